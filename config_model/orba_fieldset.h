#pragma once

// The record field set as the configuration stores it: the protocol generation and the
// 255-character mask under "PROTOCOL"/"ORBA", and the user parameters that fill the last 49
// fields under "USERPARAM". The field-set page, zrk-tool and the telemetry file header share
// these rules. No widgets.

#include <QString>
#include <QStringList>
#include <QVector>

class CXMLWorkData;
class CXmlTagV2;

namespace zrk::fieldset {

constexpr int kMaskLength = 255;
constexpr int kSizeLimit = 512; // bytes of record body the terminal can record; 512 itself fits
// Mask span ends (exclusive) of the three generations: ORBA 1 0..68, ORBA 2 ..121, ORBA 3 ..254.
constexpr int kSpanEnd[4] = { 0, 69, 122, 255 };
constexpr int kAlwaysOn = 3; // number, event code and time are in every record

constexpr char kProtocolNode[] = "PROTOCOL";
constexpr char kOrbaNode[] = "ORBA";
constexpr char kFormatKey[] = "format";
constexpr char kMaskKey[] = "mask";

// Generation texts as stored, by FlashFormat index; anything else reads as the second.
constexpr const char* kFormatTexts[3] = { "10", "20", "30" };
constexpr char kFormatReadDefault[] = "10";
int generationIndex(const QString& format); // 0..2
QString generationText(int index); // out of range: "20"

// The default masks: each generation's extends the previous one.
extern const QString const_qsDef_Orba1; // 69 characters
extern const QString const_qsDef_Orba2; // 122
extern const QString const_qsDef_Orba3; // 255
// Positions 122 (second terminal state) and 19 (backup battery voltage) depend on the device.
constexpr int kPosState2 = 122;
constexpr int kPosReserv = 19;
QString defaultMask(bool useState2, bool useReserv = true);
// This model's profile: the second terminal state is in the default mask, the backup battery shown.
constexpr bool kProfileState2 = true;
constexpr bool kProfileReserv = true;

// A stored mask read as far as it is valid ("0"/"1"), the rest "0", exactly 255 characters.
QString sanitizedMask(const QString& text);
// Bytes of record body that the mask selects within generation index (0..2), from the field table.
int maskRecordSize(const QString& mask, int generation = 2);
// Field width in bytes of mask position pos (0..254); 0 outside.
int positionWidth(int pos);
// First mask position of the span a position belongs to: 1, 2 or 3 for ORBA 1, 2, 3; 0 outside.
int positionGeneration(int pos);

// The mask faults a lint reports; empty when the mask is good.
QStringList checkMask(const QString& mask, int generation = 2);

// What a configuration tree holds for the page; missing keys give their read defaults. Both walk
// the declared "PROTOCOL" rows (zrk::cfg::protocolBranch), the mask whole.
struct FieldSetChoice
{
    QString format;
    QString mask; // sanitized
};
FieldSetChoice readFieldSet(CXMLWorkData* root, bool useState2 = true);
// "PROTOCOL" (type 0, cleared, "page") and "ORBA" (type 3) with "format" and "mask"; nothing for a
// null root.
void writeFieldSet(CXMLWorkData* root, const FieldSetChoice& choice);
// The stored "format" and "mask" as they stand, without creating nodes; false when the branch or
// its mask is missing.
bool readStoredFieldSet(CXMLWorkData* root, QString* mask, QString* format = nullptr);
// The mask stored in a configuration file; false when the file does not open or has none.
bool readMaskFromFile(const QString& path, QString* mask, QString* format = nullptr);

// ---- User parameters (positions 206..254) ------------------------------------------------------
// "USERPARAM" (type 0, "page" = "USERPARAM") with one child per width ("PARAM1", "PARAM2",
// "PARAM4", "PARAM8", type 3). Each child holds "type" (one digit per parameter, see UserType) and
// "name1".."nameN".
constexpr char kUserNode[] = "USERPARAM";
constexpr char kUserTypeKey[] = "type";
constexpr int kUserWidths[4] = { 1, 2, 4, 8 };
constexpr int kUserCounts[4] = { 16, 15, 15, 3 };
constexpr int kUserFirstPos[4] = { 206, 222, 237, 252 };
QString userGroupNode(int group); // "PARAM1".. for group 0..3
enum UserType
{
    UserUnsigned = 0,
    UserSigned = 1,
    UserHex = 2,
    UserFloat = 3, // 4- and 8-byte parameters only
};
int userTypeCount(int group); // 3 for 1- and 2-byte parameters, 4 for the wider ones

struct UserParams
{
    QStringList names[4];
    QString types[4]; // one digit per parameter
};
UserParams defaultUserParams();
UserParams readUserParams(CXMLWorkData* root); // normalised: counts and digits in range
UserParams readUserParams(const CXmlTagV2* root); // the same from a tree, making nothing
void writeUserParams(CXMLWorkData* root, const UserParams& params);
// The four type lists (1-, 2-, 4-, 8-byte) of the "USERPARAM1/2/4/8" telemetry file header.
QStringList userParamTypes(CXMLWorkData* root);
QStringList userParamTypes(const UserParams& params);

} // namespace zrk::fieldset
