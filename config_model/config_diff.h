#pragma once

#include <QString>
#include <QVector>

class CXmlTagV2;

namespace zrk {

// One difference between two configurations: the node path under the root ("TRACK/POINTS"; a
// repeated node carries its number, "ZONE[2]"), the key, the declared key's display label (empty
// for keys no page declares) and both values. A side that lacks the key has an empty value and
// its present flag cleared.
struct ConfigDifference
{
    QString node;
    QString key;
    QString label;
    QString left;
    QString right;
    bool inLeft = true;
    bool inRight = true;
};

// Walks both trees: attributes by name (the last of a name wins, as in the file), text elements
// as keys of their parent, child nodes by name and order. Roots are compared by their contents.
QVector<ConfigDifference> diffConfigs(const CXmlTagV2* left, const CXmlTagV2* right);

} // namespace zrk
