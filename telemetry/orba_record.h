#pragma once

// The ORBA telemetry record: its field table, the all-fields structures of the three versions,
// the extended record, and the decoder they share. Everything here is derived from the tables in
// the published field table (include/zrk/orba_fields.def) with the display rules of
// orba_field_rules.def, orba_subvalues.def and orba_ext.def. No widgets.

#include "zrk/zrk_orba_format.h"

#include "config_model/common_routines.h"
#include "telemetry/local_clock.h"
#include "telemetry/text_buffer.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <array>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <type_traits>

class QTextStream;

namespace orba {

// How a value is stored.
enum class Type
{
    U, // unsigned little-endian
    S, // signed little-endian (two's complement)
    F, // single-precision float
    D, // double-precision float
    B, // byte block wider than 8 bytes
};

// How getStr shows a value.
enum class Rule
{
    Plain, // the number as stored
    DateTime, // Unix seconds as local "dd.MM.yyyy H:mm:ss"
    Coord, // 1/10000 arc-minute as "degrees minutes'"
    Altitude, // decimetres as whole metres, truncated toward zero
    Float2, // float with 2 decimals
    Volts, // millivolts as volts with 2 decimals
    Temp, // signed degrees with unit; -128 is no value and shows empty
    HpTemp, // 1/20 degree with unit; 0x8000 is no value ("n/a")
    SignedTemp, // signed degrees with unit, no marker
    Bits, // a status byte: its 8 bits, then its named bit values
    Parts, // a composite: its sub-values with their labels
    Tenths, // tenths with one decimal
    TyreTemp, // signed degrees; 0x81 is no value ("n/a")
    Degrees, // double-precision degrees with 6 decimals
};

constexpr int kFieldCount = ZRK_ORBA_FIELD_COUNT;
constexpr int kMaskBytes = ZRK_ORBA_MASK_BYTES;
constexpr int kMaskOffset = ZRK_ORBA_MASK_OFFSET;
constexpr int kBodyOffset = ZRK_ORBA_BODY_OFFSET; // 34: the first value byte of a current record
constexpr int kHeadBytes = 44; // the page's copy of the record head
constexpr int kRawBytes = 512; // the page's copy of the raw buffer
constexpr int kFixedPacketBytes = ZRK_ORBA_FIXED_PACKET_BYTES;
constexpr int kExtDynamicBytes = 256;

constexpr unsigned char kKindCurrent = ZRK_ORBA_KIND_CURRENT;
constexpr unsigned char kKindExtended = ZRK_ORBA_KIND_EXTENDED;
constexpr unsigned char kKindFixedPacket = ZRK_ORBA_KIND_FIXED_PACKET;

// Last field number and version byte, indexed by version 1..3.
constexpr int kLastField[4] = { 0, ZRK_ORBA_LAST_FIELD_V1, ZRK_ORBA_LAST_FIELD_V2, ZRK_ORBA_LAST_FIELD_V3 };
constexpr unsigned char kVersionByte[4] = { 0, ZRK_ORBA_VERSION_1, ZRK_ORBA_VERSION_2, ZRK_ORBA_VERSION_3 };

// ---- The field table -------------------------------------------------------------------------

struct FieldInfo
{
    int no;
    const char* name;
    int width;
    Type type;
    Rule rule;
    int version; // first version that has the field
};

enum FieldNo
{
#define ORBA_FIELD(no, name, width, type) F_##name = no,
#include "zrk/orba_fields.def"
};

// kRules[n]: the display rule of field n; fields without a row in orba_field_rules.def are plain.
constexpr std::array<Rule, kFieldCount + 1> makeRules()
{
    std::array<Rule, kFieldCount + 1> r {};
    for (Rule& x : r)
        x = Rule::Plain;
#define ORBA_RULE(name, rule) r[F_##name] = Rule::rule;
#include "telemetry/orba_field_rules.def"
    return r;
}
inline constexpr std::array<Rule, kFieldCount + 1> kRules = makeRules();

// Indexed by field number - 1.
inline constexpr FieldInfo kFields[] = {
#define ORBA_FIELD(no, name, width, type) { no, #name, width, Type::type, kRules[no], 1 },
#define ORBA_FIELD_V2(no, name, width, type) { no, #name, width, Type::type, kRules[no], 2 },
#define ORBA_FIELD_V3(no, name, width, type) { no, #name, width, Type::type, kRules[no], 3 },
#include "zrk/orba_fields.def"
};
static_assert(std::size(kFields) == kFieldCount, "one row per field");

constexpr bool rowsAreNumberedInOrder()
{
    for (int i = 0; i < kFieldCount; ++i) {
        if (kFields[i].no != i + 1 || kFields[i].width <= 0)
            return false;
        // Numbers up to 8 bytes are read as numbers, wider fields only as byte blocks.
        if ((kFields[i].type == Type::B) != (kFields[i].width > 8))
            return false;
        if (kFields[i].type == Type::F && kFields[i].width != 4)
            return false;
        const int v = kFields[i].version;
        if (v < 1 || v > 3 || i + 1 > kLastField[v] || (v > 1 && i + 1 <= kLastField[v - 1]))
            return false;
    }
    return true;
}
static_assert(rowsAreNumberedInOrder(),
    "field rows: numbers 1..255 in order, types fit widths, "
    "versions match the field ranges");

// kOffsets[n]: the place of field n in the all-fields structure; kOffsets[256] is its size.
constexpr std::array<int, kFieldCount + 2> makeOffsets()
{
    std::array<int, kFieldCount + 2> o {};
    int at = 0;
    for (int n = 1; n <= kFieldCount; ++n) {
        o[n] = at;
        at += kFields[n - 1].width;
    }
    o[kFieldCount + 1] = at;
    return o;
}
inline constexpr std::array<int, kFieldCount + 2> kOffsets = makeOffsets();

// Bytes of the all-fields structure of a version (also the largest body of that version).
constexpr int recordSize(int version)
{
    return kOffsets[kLastField[version] + 1];
}

// ---- Sub-values ------------------------------------------------------------------------------

struct SubInfo
{
    int field;
    const char* name;
    const char* label;
    int offset;
    int width;
    Type type;
    int shift;
    int bits;
    Rule rule;
    bool shown;
};

inline constexpr SubInfo kSubValues[] = {
#define ORBA_SUB(field, name, label, offset, width, type, shift, bits, rule, shown)                          \
    { F_##field, #name, label, offset, width, Type::type, shift, bits, Rule::rule, shown != 0 },
#include "telemetry/orba_subvalues.def"
};

enum SubId
{
#define ORBA_SUB(field, name, label, offset, width, type, shift, bits, rule, shown) S_##name,
#include "telemetry/orba_subvalues.def"
    kSubCount
};

constexpr bool subValuesFitTheirFields()
{
    for (const SubInfo& s : kSubValues) {
        if (s.offset < 0 || s.offset + s.width > kFields[s.field - 1].width)
            return false;
        if (s.bits != 0 && (s.width != 1 || s.shift < 0 || s.shift + s.bits > 8))
            return false;
    }
    return true;
}
static_assert(subValuesFitTheirFields(), "every sub-value lies inside its field");

// ---- Values ----------------------------------------------------------------------------------

// The C++ type of a stored value of width W and type T.
template <int W, Type T>
using ValueT = std::conditional_t<T == Type::F, float,
    std::conditional_t<T == Type::D, double,
        std::conditional_t<T == Type::B, QByteArray,
            std::conditional_t<(W == 1), std::conditional_t<T == Type::S, qint8, quint8>,
                std::conditional_t<(W == 2), std::conditional_t<T == Type::S, qint16, quint16>,
                    std::conditional_t<(W <= 4), std::conditional_t<T == Type::S, qint32, quint32>,
                        std::conditional_t<T == Type::S, qint64, quint64>>>>>>>;

// Little-endian bytes as an unsigned number (at most 8 bytes).
inline quint64 readLE(const unsigned char* p, int width)
{
    quint64 v = 0;
    for (int i = width - 1; i >= 0; --i)
        v = (v << 8) | p[i];
    return v;
}

// Sign extension of a width-byte two's complement number.
inline qint64 signExtend(quint64 v, int width)
{
    if (width < 8 && (v & (quint64(1) << (8 * width - 1))))
        v |= ~quint64(0) << (8 * width);
    return static_cast<qint64>(v);
}

template <int W, Type T> ValueT<W, T> readValue(const unsigned char* p)
{
    if constexpr (T == Type::B) {
        return QByteArray(reinterpret_cast<const char*>(p), W);
    } else if constexpr (T == Type::F) {
        static_assert(W == 4, "float fields are 4 bytes");
        float f;
        std::memcpy(&f, p, 4);
        return f;
    } else if constexpr (T == Type::D) {
        static_assert(W == 8, "double values are 8 bytes");
        double d;
        std::memcpy(&d, p, 8);
        return d;
    } else if constexpr (T == Type::S) {
        return static_cast<ValueT<W, T>>(signExtend(readLE(p, W), W));
    } else {
        return static_cast<ValueT<W, T>>(readLE(p, W));
    }
}

template <int W, Type T, int Shift, int Bits> auto readSub(const unsigned char* p)
{
    if constexpr (Bits == 0)
        return readValue<W, T>(p);
    else
        return static_cast<quint8>(bitsFromByte(p[0], Shift, Bits));
}

// ---- The structures --------------------------------------------------------------------------

#pragma pack(push, 1)
// Every field of a version at its width, in field order; absent fields stay zero.
struct szCurrentTMI_ORBA1
{
#define ORBA_FIELD(no, name, width, type) unsigned char name[width];
#define ORBA_FIELD_V2(...)
#define ORBA_FIELD_V3(...)
#include "zrk/orba_fields.def"
};
struct szCurrentTMI_ORBA2
{
#define ORBA_FIELD(no, name, width, type) unsigned char name[width];
#define ORBA_FIELD_V3(...)
#include "zrk/orba_fields.def"
};
struct szCurrentTMI_ORBA3
{
#define ORBA_FIELD(no, name, width, type) unsigned char name[width];
#include "zrk/orba_fields.def"
};

// The extended record: its fixed head, then room for the dynamic data.
struct szExtTMI_ORBA3
{
#define ORBA_EXT(name, xml, offset, width, type, rule) unsigned char name[width];
#include "telemetry/orba_ext.def"
    unsigned char DynamicData[kExtDynamicBytes];
};
#pragma pack(pop)
using szExtTMI_ORBA2 = szExtTMI_ORBA3;

static_assert(sizeof(szCurrentTMI_ORBA1) == 146 && recordSize(1) == 146, "version 1 is 146 bytes");
static_assert(sizeof(szCurrentTMI_ORBA2) == 404 && recordSize(2) == 404, "version 2 is 404 bytes");
static_assert(sizeof(szCurrentTMI_ORBA3) == 734 && recordSize(3) == 734, "version 3 is 734 bytes");
static_assert(sizeof(szExtTMI_ORBA3) == 314, "the extended record structure is 314 bytes");

// Each field sits where the table puts it, and the lower versions are prefixes of version 3.
#define ORBA_FIELD(no, name, width, type)                                                                    \
    static_assert(offsetof(szCurrentTMI_ORBA3, name) == kOffsets[no], #name " offset");                      \
    static_assert(offsetof(szCurrentTMI_ORBA2, name) == kOffsets[no], #name " offset in version 2");         \
    static_assert(offsetof(szCurrentTMI_ORBA1, name) == kOffsets[no], #name " offset in version 1");
#define ORBA_FIELD_V2(no, name, width, type)                                                                 \
    static_assert(offsetof(szCurrentTMI_ORBA3, name) == kOffsets[no], #name " offset");                      \
    static_assert(offsetof(szCurrentTMI_ORBA2, name) == kOffsets[no], #name " offset in version 2");
#define ORBA_FIELD_V3(no, name, width, type)                                                                 \
    static_assert(offsetof(szCurrentTMI_ORBA3, name) == kOffsets[no], #name " offset");
#include "zrk/orba_fields.def"

#define ORBA_EXT(name, xml, offset, width, type, rule)                                                       \
    static_assert(offsetof(szExtTMI_ORBA3, name) == offset, #name " offset in the extended head");
#include "telemetry/orba_ext.def"

constexpr int kExtHeadBytes = offsetof(szExtTMI_ORBA3, DynamicData); // 58
static_assert(kExtHeadBytes == ZRK_ORBA_EXT_HEAD_BYTES
        && offsetof(szExtTMI_ORBA3, DataSize) == ZRK_ORBA_EXT_DATA_SIZE
        && offsetof(szExtTMI_ORBA3, Latitude) == ZRK_ORBA_EXT_LATITUDE
        && offsetof(szExtTMI_ORBA3, Motochas) == ZRK_ORBA_EXT_MOTOCHAS,
    "the extended head is laid out as published");

struct ExtInfo
{
    const char* name;
    const char* xml;
    int offset;
    int width;
    Type type;
    Rule rule;
};
inline constexpr ExtInfo kExtFields[] = {
#define ORBA_EXT(name, xml, offset, width, type, rule) { #name, #xml, offset, width, Type::type, Rule::rule },
#include "telemetry/orba_ext.def"
};
enum ExtId
{
#define ORBA_EXT(name, xml, offset, width, type, rule) E_##name,
#include "telemetry/orba_ext.def"
    kExtCount
};

// ---- Decoding --------------------------------------------------------------------------------

// Unpacks the values of the present fields 1..lastField from body into rec (a structure of
// recordSize(version) bytes). A run of consecutive present fields lies in the body exactly as in
// the structure, so each run is one copy. Body bytes past len read as zero; nothing past rec's
// lastField is written and nothing past body + len is read.
void decodeFields(
    const unsigned char* mask, const unsigned char* body, int len, unsigned char* rec, int lastField);

// The field set as "0"/"1" characters, fields 1..lastField.
QString formatText(const unsigned char* mask, int lastField);

// The extended record: fills ext from buf (kind 0xB1 first) without reading past len; the head
// and the dynamic data beyond the buffer read as zero.
void decodeExt(const unsigned char* buf, int len, szExtTMI_ORBA3& ext);

// Size of the dynamic data as the record declares it: DataSize - 4 - VisibleSize - HiddenSize,
// in 16-bit arithmetic (a record that lies gives a large number; only kExtDynamicBytes are kept).
quint16 dynamicDataSize(const szExtTMI_ORBA3& ext);

struct DynamicItem
{
    int type = 0;
    int size = 0; // the item's size byte, reported as it is
    quint64 number = 0; // types 1 and 3
    QString text; // type 2
};

// The items of the dynamic data of type 1, 2 or 3, walked as the terminal writes them: 10 bytes
// for types 1 and 3, 18 for type 2, 2 for any other type, while at least 2 bytes remain.
QVector<DynamicItem> dynamicItems(const szExtTMI_ORBA3& ext);

// The extended page as XML lines (CR LF, tab indent).
void writeXmlPageExt(QTextStream& out, const szExtTMI_ORBA3& ext);

// ---- Display texts ---------------------------------------------------------------------------

// What a display text needs besides the value: the temperature unit of the installed catalogue
// (UTF-8) and a clock of the local zone. Made once, it serves any number of texts.
struct TextContext
{
    TextContext();
    QByteArray unit;
    zrk::LocalClock clock;
};

QString noDataText(); // "n/a"
QString temperatureUnit(); // the catalogue's temperature unit
QString dateTimeText(quint32 unixSeconds); // local "dd.MM.yyyy H:mm:ss"
QString utcOffsetText(int seconds); // "(UTC +3)", "(UTC -3:30)"
QString coordinateText(qint32 value); // "55 45.6789'"

// Display text of field no of rec (present assumed).
QString fieldText(int no, const unsigned char* rec);
// Display text of sub-value id of rec.
QString subValueText(int id, const unsigned char* rec);
// Display text of the extended head value id.
QString extFieldText(int id, const szExtTMI_ORBA3& ext);

// A value as a plain decimal (or shortest float) number, for export.
QString numberText(Type type, int width, const unsigned char* p);

// The same texts appended as UTF-8, for writers of many records.
void appendDateTime(zrk::TextBuffer& out, quint32 unixSeconds, zrk::LocalClock& clock);
void appendCoordinate(zrk::TextBuffer& out, qint32 value);
void appendFieldText(zrk::TextBuffer& out, int no, const unsigned char* rec, TextContext& context);
void appendSubValueText(zrk::TextBuffer& out, int id, const unsigned char* rec, TextContext& context);
void appendExtFieldText(zrk::TextBuffer& out, int id, const szExtTMI_ORBA3& ext, TextContext& context);
void appendNumberText(zrk::TextBuffer& out, Type type, int width, const unsigned char* p);

} // namespace orba

using orba::szCurrentTMI_ORBA1;
using orba::szCurrentTMI_ORBA2;
using orba::szCurrentTMI_ORBA3;
using orba::szExtTMI_ORBA2;
using orba::szExtTMI_ORBA3;
