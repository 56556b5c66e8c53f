#include "telemetry/orba_writer.h"

#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_export.h"
#include "telemetry/tmipage_orba3.h"
#include "zrk/zrk_text.h"

#include <QTextStream>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <numeric>

namespace orba {

namespace {

constexpr char kExtendedPage[] = "TmiPage_Orba3";

void appendQuoted(zrk::TextBuffer& out, const char* text)
{
    out.append('"');
    out.append(text, std::strlen(text));
    out.append('"');
}

void appendJsonInteger(zrk::TextBuffer& out, quint64 magnitude, bool negative)
{
    // Beyond what a JSON reader holds exactly (a double), a number is written as a string.
    const bool exact = magnitude <= kJsonExactInteger;
    if (!exact)
        out.append('"');
    if (negative)
        out.append('-');
    out.appendUnsigned(magnitude);
    if (!exact)
        out.append('"');
}

// An integer value JSON holds exactly, written as a number.
bool exactInJson(Type type, int width, const unsigned char* p)
{
    const quint64 u = readLE(p, width);
    if (type != Type::S)
        return u <= kJsonExactInteger;
    const qint64 v = signExtend(u, width);
    return (v < 0 ? quint64(0) - quint64(v) : quint64(v)) <= kJsonExactInteger;
}

// A stored value as recordJson writes it.
void appendJsonValue(zrk::TextBuffer& out, Type type, int width, const unsigned char* p)
{
    switch (type) {
    case Type::U:
        appendJsonInteger(out, readLE(p, width), false);
        return;
    case Type::S: {
        const qint64 v = signExtend(readLE(p, width), width);
        appendJsonInteger(out, v < 0 ? quint64(0) - quint64(v) : quint64(v), v < 0);
        return;
    }
    case Type::F:
    case Type::D: {
        double d = type == Type::D ? readValue<8, Type::D>(p) : double(readValue<4, Type::F>(p));
        if (!std::isfinite(d)) {
            out.appendLiteral("null");
            return;
        }
        if (type == Type::F) {
            // Through the float's shortest text, so 0.1f is written 0.1 and not as its double
            // expansion.
            char text[32];
            const char* end = std::to_chars(text, text + sizeof text, readValue<4, Type::F>(p)).ptr;
            std::from_chars(text, end, d);
        }
        out.appendJsonNumber(d);
        return;
    }
    case Type::B:
        out.append('"');
        out.appendHex(p, width);
        out.append('"');
        return;
    }
}

void appendByteOrNull(zrk::TextBuffer& out, const unsigned char* buf, int len, int i)
{
    if (i < len)
        out.appendUnsigned(buf[i]);
    else
        out.appendLiteral("null");
}

void appendByteOrEmpty(zrk::TextBuffer& out, const unsigned char* buf, int len, int i)
{
    if (i < len)
        out.appendUnsigned(buf[i]);
}

// The CSV cells before the field set: the kind and version bytes as received, the length, the page.
void appendCsvHead(zrk::TextBuffer& out, const unsigned char* buf, int len, const char* className)
{
    appendByteOrEmpty(out, buf, len, 0);
    out.append(',');
    appendByteOrEmpty(out, buf, len, 1);
    out.append(',');
    out.appendUnsigned(quint64(len));
    out.append(',');
    out.append(className, std::strlen(className));
    out.append(',');
}

// The field-set characters of each mask byte.
struct FormatTable
{
    char of[256][8];
};
constexpr FormatTable makeFormatTable()
{
    FormatTable t {};
    for (int b = 0; b < 256; ++b) {
        for (int i = 0; i < 8; ++i)
            t.of[b][i] = (b >> (7 - i)) & 1 ? '1' : '0';
    }
    return t;
}
constexpr FormatTable kFormatOfByte = makeFormatTable();

// True when a text holds a character a JSON string must escape.
bool needsJsonEscape(const char* text, std::size_t n)
{
    for (std::size_t i = 0; i < n; ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (c < 0x20 || c == '"' || c == '\\')
            return true;
    }
    return false;
}

// 1, 2 or 3 for the version byte of a current record; 0 for any other byte.
int versionOf(unsigned char versionByte)
{
    for (int v = 1; v <= 3; ++v) {
        if (kVersionByte[v] == versionByte)
            return v;
    }
    return 0;
}

// Calls f(no) for each field 1..lastField whose mask bit is set, in field order.
template <class F> void forEachPresent(const unsigned char* mask, int lastField, F&& f)
{
    for (int byte = 0; byte * 8 < lastField; ++byte) {
        unsigned bits = mask[byte];
        while (bits) {
            const int high = 31 - __builtin_clz(bits);
            const int no = byte * 8 + (7 - high) + 1;
            if (no > lastField)
                return;
            f(no);
            bits &= ~(1u << high);
        }
    }
}

} // namespace

RecordWriter::RecordWriter(Format format, const char* lineEnd)
    : m_format(format)
    , m_lineEnd(lineEnd)
{
    const unsigned char zeros[64] = {}; // wider than any field
    zrk::TextBuffer b;
    // JSON: the parts of absent fields and the openings of present ones.
    for (const bool present : { false, true }) {
        auto& at = present ? m_presentAt : m_absentAt;
        b.clear();
        for (int no = 1; no <= kFieldCount; ++no) {
            const FieldInfo& f = kFields[no - 1];
            at[no] = int(b.size());
            if (no > 1)
                b.append(',');
            b.appendLiteral("{\"name\":\"");
            b.append(f.name, std::strlen(f.name));
            b.appendLiteral("\",\"no\":");
            b.appendUnsigned(quint64(no));
            if (present) {
                b.appendLiteral(",\"present\":true,\"text\":\"");
                continue;
            }
            // An absent field's bytes stay zero.
            b.appendLiteral(",\"present\":false,\"text\":\"n/a\",\"value\":");
            appendJsonValue(b, f.type, f.width, zeros);
            b.append('}');
        }
        at[kFieldCount + 1] = int(b.size());
        (present ? m_present : m_absent) = QByteArray(b.data(), int(b.size()));
    }
    // A field's text is made of numbers, signs, points, the labels of its values and the unit: it
    // needs escaping in JSON only when a label or the unit does.
    m_textsArePlain = !needsJsonEscape(m_context.unit.constData(), std::size_t(m_context.unit.size()));
    for (const SubInfo& sub : kSubValues)
        m_textsArePlain = m_textsArePlain && !needsJsonEscape(sub.label, std::strlen(sub.label));
    // CSV.
    m_csvHeader = zrk::csvLine(csvHeader()).toUtf8();
    for (int no = 1; no <= kFieldCount; ++no)
        m_csvAbsent += ",n/a";
    // The extended head: JSON keys in order, CSV columns by name.
    std::iota(m_extByName.begin(), m_extByName.end(), 0);
    std::sort(m_extByName.begin() + 1, m_extByName.end(),
        [](int a, int b) { return std::strcmp(kExtFields[a].name, kExtFields[b].name) < 0; });
    m_extOfField.fill(-1);
    for (int id = 0; id < kExtCount; ++id) {
        for (int no = 1; no <= kFieldCount; ++no) {
            if (kExtFields[id].xml[0] != '\0' && std::strcmp(kExtFields[id].xml, kFields[no - 1].name) == 0)
                m_extOfField[no] = id;
        }
    }
}

void RecordWriter::writeHeader(zrk::TextBuffer& out) const
{
    if (m_format != Format::Csv)
        return;
    out.append(m_csvHeader);
    endLine(out);
}

void RecordWriter::write(const unsigned char* buf, int len, zrk::TextBuffer& out)
{
    if (!buf || len < 0)
        len = 0;
    // A current record of a known version, the bulk of any archive: decoded here, without a page.
    const int version = len >= 2 && buf[0] == kKindCurrent ? versionOf(buf[1]) : 0;
    if (version > 0) {
        unsigned char head[kBodyOffset] = {};
        std::memcpy(head, buf, size_t(std::min(len, kBodyOffset)));
        const int bodyLen = std::max(len - kBodyOffset, 0);
        auto* rec = reinterpret_cast<unsigned char*>(&m_rec);
        decodeFields(
            head + kMaskOffset, bodyLen > 0 ? buf + kBodyOffset : nullptr, bodyLen, rec, kLastField[version]);
        const Form form = version == 1 ? Form::Orba1 : version == 2 ? Form::Orba2 : Form::Orba3;
        writeFields({ buf[0], buf[1], pageClassName(form), head + kMaskOffset, rec, kLastField[version] },
            buf, len, out);
        return;
    }
    // The other kinds, rare in an archive, through the pages the view shows them with.
    const Decoded d = decodeRecord(buf, len);
    if (!d.page) {
        writeUnknown(buf, len, out);
    } else if (d.form == Form::Extended) {
        writeExtended(buf, len, static_cast<const TmiPage_Orba3&>(*d.page).extTMI(), out);
    } else {
        const OrbaPage& page = *d.page;
        writeFields({ buf[0], page.headBytes()[1], d.className, page.headBytes() + kMaskOffset,
                        page.recordBytes(), page.lastField() },
            buf, len, out);
    }
}

void RecordWriter::writeFields(const Fields& f, const unsigned char* buf, int len, zrk::TextBuffer& out)
{
    if (m_format == Format::Csv)
        writeCsvFields(f, buf, len, out);
    else
        writeJsonFields(f, out);
    endLine(out);
}

void RecordWriter::writeJsonFields(const Fields& f, zrk::TextBuffer& out)
{
    out.appendLiteral("{\"fields\":[");
    int next = 1; // the first field not written yet
    auto absentUpTo = [&](int end) {
        if (end > next)
            out.append(
                m_absent.constData() + m_absentAt[next], std::size_t(m_absentAt[end] - m_absentAt[next]));
    };
    forEachPresent(f.mask, f.lastField, [&](int no) {
        absentUpTo(no);
        out.append(
            m_present.constData() + m_presentAt[no], std::size_t(m_presentAt[no + 1] - m_presentAt[no]));
        const std::size_t from = out.size();
        appendFieldText(out, no, f.rec, m_context);
        const std::size_t textSize = out.size() - from;
        if (!m_textsArePlain)
            escapeJson(out, from);
        out.appendLiteral("\",\"value\":");
        const FieldInfo& info = kFields[no - 1];
        if (m_textsArePlain && info.rule == Rule::Plain && (info.type == Type::U || info.type == Type::S)) {
            // The text is the number already: copied, not made again (a string when JSON cannot
            // hold it exactly).
            const bool exact = exactInJson(info.type, info.width, f.rec + kOffsets[no]);
            char* to = out.room(textSize + 2);
            const char* text = out.data() + from;
            if (!exact)
                *to++ = '"';
            std::memcpy(to, text, textSize);
            to += textSize;
            if (!exact)
                *to++ = '"';
            out.advance(textSize + (exact ? 0 : 2));
        } else {
            appendJsonValue(out, info.type, info.width, f.rec + kOffsets[no]);
        }
        out.append('}');
        next = no + 1;
    });
    absentUpTo(f.lastField + 1);
    out.appendLiteral("],\"format\":\"");
    writeFormat(f.mask, f.lastField, out);
    out.appendLiteral("\",\"kind\":");
    out.appendUnsigned(quint64(f.kind));
    out.appendLiteral(",\"page\":");
    appendQuoted(out, f.className);
    out.appendLiteral(",\"version\":");
    out.appendUnsigned(quint64(f.version));
    out.append('}');
}

void RecordWriter::writeCsvFields(const Fields& f, const unsigned char* buf, int len, zrk::TextBuffer& out)
{
    appendCsvHead(out, buf, len, f.className);
    writeFormat(f.mask, f.lastField, out);
    int next = 1;
    auto absentUpTo = [&](int end) {
        if (end > next)
            out.append(m_csvAbsent.constData(), std::size_t(end - next) * 4);
    };
    forEachPresent(f.mask, f.lastField, [&](int no) {
        absentUpTo(no);
        out.append(',');
        const std::size_t from = out.size();
        appendFieldText(out, no, f.rec, m_context);
        quoteCsv(out, from);
        next = no + 1;
    });
    absentUpTo(f.lastField + 1);
    // The columns of the fields the record's version does not have stay empty.
    for (int no = f.lastField + 1; no <= kFieldCount; ++no)
        out.append(',');
}

void RecordWriter::writeFormat(const unsigned char* mask, int lastField, zrk::TextBuffer& out) const
{
    // Eight characters a mask byte, the field of its high bit first; the last byte's tail is cut.
    char* p = out.room(std::size_t(kMaskBytes) * 8);
    for (int byte = 0; byte * 8 < lastField; ++byte)
        std::memcpy(p + byte * 8, kFormatOfByte.of[mask[byte]], 8);
    out.advance(std::size_t(lastField));
}

void RecordWriter::writeExtended(
    const unsigned char* buf, int len, const szExtTMI_ORBA3& ext, zrk::TextBuffer& out)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&ext);
    if (m_format == Format::Csv) {
        appendCsvHead(out, buf, len, kExtendedPage);
        for (int no = 1; no <= kFieldCount; ++no) {
            out.append(',');
            if (m_extOfField[no] < 0)
                continue;
            const std::size_t from = out.size();
            appendExtFieldText(out, m_extOfField[no], ext, m_context);
            quoteCsv(out, from);
        }
        endLine(out);
        return;
    }
    out.appendLiteral("{\"dynamic\":[");
    bool first = true;
    for (const DynamicItem& item : dynamicItems(ext)) {
        if (!first)
            out.append(',');
        first = false;
        out.appendLiteral("{\"size\":");
        out.appendUnsigned(quint64(item.size));
        out.appendLiteral(",\"type\":");
        out.appendUnsigned(quint64(item.type));
        out.appendLiteral(",\"value\":");
        if (item.type == 2)
            appendJsonString(out, item.text);
        else
            appendJsonInteger(out, item.number, false);
        out.append('}');
    }
    out.appendLiteral("],\"dynamicSize\":");
    out.appendUnsigned(dynamicDataSize(ext));
    out.appendLiteral(",\"extended\":true,\"head\":{");
    for (int i = 1; i < kExtCount; ++i) {
        const ExtInfo& e = kExtFields[m_extByName[i]];
        if (i > 1)
            out.append(',');
        appendQuoted(out, e.name);
        out.append(':');
        appendJsonValue(out, e.type, e.width, bytes + e.offset);
    }
    out.appendLiteral("},\"kind\":");
    appendByteOrNull(out, buf, len, 0);
    out.appendLiteral(",\"length\":");
    out.appendUnsigned(quint64(len));
    out.appendLiteral(",\"page\":");
    appendQuoted(out, kExtendedPage);
    out.appendLiteral(",\"version\":");
    appendByteOrNull(out, buf, len, 1);
    out.appendLiteral(",\"xml\":");
    QString xml;
    QTextStream xs(&xml);
    writeXmlPageExt(xs, ext);
    xs.flush();
    appendJsonString(out, xml);
    out.append('}');
    endLine(out);
}

void RecordWriter::writeUnknown(const unsigned char* buf, int len, zrk::TextBuffer& out)
{
    if (m_format == Format::Csv) {
        appendCsvHead(out, buf, len, pageClassName(Form::Unknown));
        char* p = out.room(kFieldCount);
        std::memset(p, ',', kFieldCount);
        out.advance(kFieldCount);
    } else {
        out.appendLiteral("{\"kind\":");
        appendByteOrNull(out, buf, len, 0);
        out.appendLiteral(",\"length\":");
        out.appendUnsigned(quint64(len));
        out.appendLiteral(",\"page\":\"unknown\",\"version\":");
        appendByteOrNull(out, buf, len, 1);
        out.append('}');
    }
    endLine(out);
}

void RecordWriter::escapeJson(zrk::TextBuffer& out, std::size_t from)
{
    const auto* text = reinterpret_cast<const unsigned char*>(out.data() + from);
    const std::size_t n = out.size() - from;
    std::size_t i = 0;
    while (i < n && text[i] >= 0x20 && text[i] != '"' && text[i] != '\\')
        ++i;
    if (i == n)
        return;
    // As Qt's JSON writer: the quote, the backslash and the control characters, nothing else.
    m_scratch.clear();
    m_scratch.append(out.data() + from, n);
    out.truncate(from + i);
    static const char kHex[] = "0123456789abcdef";
    static const char kNamed[] = "\"\\\b\f\n\r\t"; // those with a letter of their own
    static const char kLetters[] = "\"\\bfnrt";
    for (; i < n; ++i) {
        const unsigned char c = static_cast<unsigned char>(m_scratch.data()[i]);
        const char* named = c != 0 ? std::strchr(kNamed, c) : nullptr;
        if (named) {
            out.append('\\');
            out.append(kLetters[named - kNamed]);
        } else if (c >= 0x20) {
            out.append(char(c));
        } else {
            out.appendLiteral("\\u00");
            out.append(kHex[c >> 4]);
            out.append(kHex[c & 15]);
        }
    }
}

void RecordWriter::quoteCsv(zrk::TextBuffer& out, std::size_t from)
{
    const char* text = out.data() + from;
    const std::size_t n = out.size() - from;
    bool plain = true;
    for (std::size_t i = 0; i < n && plain; ++i)
        plain = text[i] != ',' && text[i] != '"' && text[i] != '\n' && text[i] != '\r';
    if (plain)
        return;
    m_scratch.clear();
    m_scratch.append(text, n);
    out.truncate(from);
    out.append('"');
    for (std::size_t i = 0; i < n; ++i) {
        const char c = m_scratch.data()[i];
        if (c == '"')
            out.append('"');
        out.append(c);
    }
    out.append('"');
}

void RecordWriter::appendJsonString(zrk::TextBuffer& out, const QString& text)
{
    out.append('"');
    const std::size_t from = out.size();
    out.appendUtf8(text);
    escapeJson(out, from);
    out.append('"');
}

} // namespace orba
