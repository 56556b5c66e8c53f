#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class CXMLWorkData;
class CXmlTagV2;
struct ZRK_Track_Caps;

// The configuration keys the editor's pages own, declared once as data. A page binds its widgets
// to these rows, so reading, writing and resetting walk the same table; zrk-tool's new, lint and
// diff, the window's compare and the light editor read the same rows.
namespace zrk::cfg {

// The header every saved configuration carries on its root.
constexpr char kRootNode[] = "DEVICE";
constexpr char kHeaderModel[] = "model";
constexpr char kHeaderVersion[] = "version";
constexpr char kHeaderCreator[] = "creator";
constexpr char kHeaderVendor[] = "vendor";
constexpr char kVersionText[] = "3.5.8"; // the library version, "%d.%d.%d"
constexpr char kCreatorText[] = "config";
constexpr char kDefaultModel[] = "K-7140";
constexpr char kDefaultVendor[] = "ZIRKOMATIC"; // until the host names the vendor (message 2013)
// The key on every page's top node that names the node itself.
constexpr char kPageKey[] = "page";

enum class KeyType
{
    Integer, // "%d", checked against min..max
    Bool, // "1"/"0"
    Text, // any string; when `choices` is not empty, only their decimal texts
    Flags, // a string of "0"/"1", `length` characters
    Decimal, // text with exactly one decimal ("2.5"), at least min tenths
};

struct KeyDecl
{
    QString group; // record node under the branch's top node ("POINTS"); empty: the top node
    QString key;
    KeyType type = KeyType::Integer;
    QString readDefault; // what reading yields for a missing key
    QString resetValue; // what "new" / reset to defaults sets
    int min = 0; // Integer range; Decimal: the smallest value in tenths
    int max = 0;
    int length = 0; // Flags: characters written
    const char* labelId = nullptr; // catalogue id of the key's display label
    bool keptOnReset = false; // reset leaves the current value (resetValue is that of a fresh form)
    bool zeroMeansOff = false; // Integer: 0 switches the setting off, else min..max
    QVector<int> choices; // Integer, Text: the only values allowed, when not empty
    bool checkedApart = false; // lint checks it by a rule of its own (the record mask)
    // The page's widget showing the key: "name" (its usual value: a box's check, a spin box's
    // number, a line's text, a list's index), "name.property" (a property of that widget), or
    // "name:property" (the widget shows it, a property of the page reads and writes it by a rule of
    // the page; "[n]" after it takes element n of a list). Empty: no page shows it by itself.
    QString widget;
    // The light editor's widget showing the key (object name); empty when it does not show it.
    QString lightWidget;
};

// One branch a page owns: its top node under "DEVICE", its record nodes in write order and keys.
struct BranchDecl
{
    QString top;
    QStringList groups;
    QVector<KeyDecl> keys;

    int indexOf(const QString& group, const QString& key) const;
};

// Values of one branch, aligned with BranchDecl::keys, in their text form.
using Values = QVector<QString>;

// The branches the pages own, in the window's write order, gated by this model's capabilities.
const QVector<BranchDecl>& declaredBranches();
const BranchDecl* declaredBranch(const QString& top);
// The black list's twelve rows as a fresh terminal has them.
const QStringList& blackListDefaults();
// The track page's two branches for a given capability record (the page and tests use others).
BranchDecl trackBranch(const ZRK_Track_Caps& caps);
BranchDecl locatorBranch(const ZRK_Track_Caps& caps);
// The record field-set branch ("PROTOCOL"/"ORBA"): the default mask's position 122 follows the
// device's second-state flag; reset also clears position 19 when the device has no backup battery.
BranchDecl protocolBranch(bool useState2, bool useReserv = true);

// The user parameters ("USERPARAM"): per width a "type" string (one digit a parameter) and the
// names "name1".."nameN". The window writes the branch last, after the branches no page owns.
BranchDecl userParamBranch();

// node: a record node name ("POINTS") or a path ("TRACK/POINTS"); null when not declared.
const KeyDecl* findDeclaredKey(const QString& node, const QString& key);
QString declaredKeyLabel(const KeyDecl& decl);

// The parameter list keeps at most 254 bytes of a value, one short of the record mask. Text values
// are read whole from the element's own attribute, and a longer one is put there after the list
// has been committed (writeParameters), so nothing is cut.
QString readWholeValue(const CXMLWorkData* node, const QString& key, const QString& def);
void writeWholeValue(CXMLWorkData* node, const QString& key, const QString& value);

// Reads the branch under root (creating missing nodes, as every page does); missing keys yield
// their read default. A null root yields the read defaults.
Values readBranch(CXMLWorkData* root, const BranchDecl& branch);
// The same reading straight from a tree, making nothing: a missing node reads as an empty one.
Values readBranch(const CXmlTagV2* root, const BranchDecl& branch);
// Writes the branch: top node (mode 0) cleared, "page" = its name, then each record node created
// with mode 3, cleared, written, committed and released. Nothing for a null root or an empty branch.
void writeBranch(CXMLWorkData* root, const BranchDecl& branch, const Values& values);
Values resetValues(const BranchDecl& branch);
// Brings a value into its declared form (range clamp, flag padding, one decimal).
QString normalizedValue(const KeyDecl& decl, const QString& value);

// "model", "version", "creator", "vendor" on the root, as the window writes them.
void writeConfigHeader(CXMLWorkData* root, const QString& model, const QString& vendor);
// The file that "new" followed by saving produces: header, every declared branch at reset, then the
// user parameters at their defaults (the window writes them last, after all pages).
QByteArray renderNewConfiguration(const QString& model = QString::fromLatin1(kDefaultModel),
    const QString& vendor = QString::fromLatin1(kDefaultVendor));

// One lint finding: the branch (and record node), key, value found and what was expected.
struct LintFinding
{
    QString node; // "TRACK/POINTS"
    QString key;
    QString value;
    QString expected;
};
// Checks every declared branch present under root: type, range, flag length, unknown keys/nodes.
QVector<LintFinding> lintConfiguration(CXMLWorkData* root);

} // namespace zrk::cfg
