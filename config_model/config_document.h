#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

class CSerialize;
class CXmlTagV2;

// Whole-configuration helpers above the node tree: loading with a reason on failure, saving whole
// or not at all, and the branches the editor's pages do not own.
namespace zrk {

// The header keys the window writes on the root itself.
const QStringList& configHeaderKeys();

struct ConfigLoadResult
{
    std::unique_ptr<CSerialize> doc; // null when the file did not load
    QString error; // the parser's reason ("line 3, column 7: ..."); empty on success
};

// Loads a configuration file without creating it when it is missing; a file without a "DEVICE"
// root is refused too.
ConfigLoadResult loadConfigFile(const QString& path);
ConfigLoadResult loadConfigBytes(const QByteArray& text);

// A memory document holding a copy of the tree under root (its root the copy); never null.
std::unique_ptr<CSerialize> copyDocument(const CXmlTagV2* root);

// Replaces the file as a whole or leaves it as it was; false with the reason.
bool writeFileWhole(const QString& path, const QByteArray& bytes, QString* error);

// The first child of tag by a path of names ("TRACK/POINTS"); null when any step is missing.
CXmlTagV2* childAt(const CXmlTagV2* tag, const QString& path);
// A node by a path whose steps may carry their number among siblings of that name ("CAN/CAN[2]",
// counting from 1); "" is tag itself. Null when any step is missing.
CXmlTagV2* nodeAt(const CXmlTagV2* tag, const QString& path);
// The path of a node under the document's root in that form; the number only where needed.
QString pathOf(const CXmlTagV2* node);
// The value of a key (the last attribute entry of that name, as when written); def when missing.
QString keyValue(const CXmlTagV2* tag, const QString& key, const QString& def = QString());
// Sets every attribute entry of that name, or appends one; the value is stored as given.
void setKeyValue(CXmlTagV2* tag, const QString& key, const QString& value);
// The child of that name, appended with the given type when missing.
CXmlTagV2* ensureChild(CXmlTagV2* tag, const QString& name, int type);

// What the pages do not own, kept as it was read: a holder whose attribute entries are the root's
// keys other than the header and whose children are the top-level branches no page writes.
std::unique_ptr<CXmlTagV2> extractUnowned(const CXmlTagV2* root, const QStringList& ownedTopNodes);
// Appends copies of the kept keys and branches under root, after what is there.
void appendKept(CXmlTagV2* root, const CXmlTagV2* kept);
// The names of the top-level branches of a document, in order, once each.
QStringList topNodeNames(const CXmlTagV2* root);

// The names given to the inputs, outputs and temperature sensors, by number from 1: the "name" key
// of "INPUTS/IN<n>", "OUTPUTS/OUT<n>" and "TEMPSENS/TEMP<n>"; empty where there is none.
struct DeviceTitles
{
    static constexpr int kInputs = 6, kOutputs = 4, kTemperatures = 4;
    QStringList inputs, outputs, temperatures;
};
DeviceTitles deviceTitles(const CXmlTagV2* root);

} // namespace zrk
