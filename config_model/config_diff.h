#pragma once

#include <QString>
#include <QVector>

#include <functional>

class CXmlTagV2;

namespace zrk {

// One difference between two configurations: a key whose value differs, or that only one side has.
struct ConfigDifference
{
    QString node; // path below the root, "TRACK/POINTS"; repeated siblings as "Zone[2]"; "" for the root
    QString key; // empty when a whole node is only on one side
    QString label; // display label of a declared key; empty when the key is not declared
    QString left; // the value in the first configuration
    QString right;
    bool inLeft = true;
    bool inRight = true;
};

// The display label of a key (node path and key name); empty for a key that has none.
using ConfigKeyLabeler = std::function<QString(const QString& node, const QString& key)>;

// Differences of two configuration trees by node and key, in the first tree's order followed by
// what only the second has. Keys are an element's attributes (the last entry of a name wins, as
// when written) and its child elements that carry only a text. Either root may be null (empty).
// Without a labeler the declared keys' labels are used.
QVector<ConfigDifference> diffConfigs(
    const CXmlTagV2* left, const CXmlTagV2* right, const ConfigKeyLabeler& labeler = ConfigKeyLabeler());

// Loads both files through the serializer and compares them; false with a one-line reason when
// either does not load (the reason names the file).
bool diffConfigFiles(const QString& left, const QString& right, QVector<ConfigDifference>* out,
    QString* error, const ConfigKeyLabeler& labeler = ConfigKeyLabeler());

// The labels of the keys the pages declare, "node path" as in ConfigDifference.
QString declaredLabel(const QString& node, const QString& key);

} // namespace zrk
