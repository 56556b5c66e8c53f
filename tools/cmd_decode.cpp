// zrk-tool decode: telemetry records as the host delivers them (kind byte first), decoded by the
// plug-in's own pages and written one JSON object (or CSV row) per record.
#include "telemetry/orba_dispatch.h"
#include "telemetry/tmipage_orba1.h"
#include "telemetry/tmipage_orba3.h"
#include "tools/commands.h"
#include "translations/catalogue.h"

#include <QFile>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <memory>

const char* const kDecodeUsage
    = "  decode [--csv] [--lang ru|en] [--hex HEX | FILE | -]\n"
      "                                  decode telemetry records (kind byte first): one hex string,\n"
      "                                  a binary file, or lines of hex on standard input; one JSON\n"
      "                                  object per record (--csv: one row, with a header row);\n"
      "                                  texts in the catalogue's language (default ru)\n";

namespace {

QString jsonString(const QString& s)
{
    QString out;
    out.reserve(s.size() + 2);
    out += QLatin1Char('"');
    for (const QChar c : s) {
        static const char* const kEscapes[][2]
            = { { "\"", "\\\"" }, { "\\", "\\\\" }, { "\n", "\\n" }, { "\r", "\\r" }, { "\t", "\\t" } };
        const auto escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
            [c](const auto& e) { return c == QLatin1Char(e[0][0]); });
        if (escape != std::end(kEscapes))
            out += QLatin1String((*escape)[1]);
        else if (c.unicode() < 0x20)
            out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            out += c;
    }
    out += QLatin1Char('"');
    return out;
}

QString csvCell(const QString& s)
{
    if (!s.contains(QLatin1Char(',')) && !s.contains(QLatin1Char('"')) && !s.contains(QLatin1Char('\n'))
        && !s.contains(QLatin1Char('\r')))
        return s;
    QString q = s;
    q.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + q + QLatin1Char('"');
}

// A stored value as JSON: numbers for values of up to 8 bytes (null for a float that is not a
// number), a lower-case hex string of the bytes for wider ones.
QString jsonValue(orba::Type type, int width, const unsigned char* p)
{
    if (type == orba::Type::B)
        return jsonString(orba::numberText(type, width, p));
    if (type == orba::Type::F && !std::isfinite(orba::readValue<4, orba::Type::F>(p)))
        return QStringLiteral("null");
    return orba::numberText(type, width, p);
}

QString byteOrNull(const QByteArray& record, int i)
{
    return i < record.size() ? QString::number(quint8(record[i])) : QStringLiteral("null");
}

QString unknownJson(const QByteArray& record)
{
    return QStringLiteral("{\"kind\":%1,\"version\":%2,\"length\":%3,\"page\":\"unknown\"}")
        .arg(byteOrNull(record, 0), byteOrNull(record, 1))
        .arg(record.size());
}

QString pageJson(int kind, const OrbaPage& page, const char* className)
{
    QString s = QStringLiteral("{\"kind\":%1,\"version\":%2,\"page\":\"%3\",\"format\":\"%4\",\"fields\":[")
                    .arg(kind)
                    .arg(page.headBytes()[1])
                    .arg(QLatin1String(className), page.formatText());
    for (int no = 1; no <= page.lastField(); ++no) {
        const orba::FieldInfo& f = orba::kFields[no - 1];
        if (no > 1)
            s += QLatin1Char(',');
        s += QStringLiteral("{\"no\":%1,\"name\":\"%2\",\"present\":%3,\"value\":%4,\"text\":%5}")
                 .arg(no)
                 .arg(QLatin1String(f.name))
                 .arg(page.isUsed(no) ? QLatin1String("true") : QLatin1String("false"))
                 .arg(jsonValue(f.type, f.width, page.recordBytes() + orba::kOffsets[no]),
                     jsonString(page.fieldText(no)));
    }
    return s + QLatin1String("]}");
}

QString extendedJson(const QByteArray& record, const TmiPage_Orba3& page)
{
    const szExtTMI_ORBA3& ext = page.extTMI();
    const unsigned char* bytes = reinterpret_cast<const unsigned char*>(&ext);
    QString head;
    for (int id = orba::E_Kind + 1; id < orba::kExtCount; ++id) {
        const orba::ExtInfo& e = orba::kExtFields[id];
        if (!head.isEmpty())
            head += QLatin1Char(',');
        head += QStringLiteral("\"%1\":%2")
                    .arg(QLatin1String(e.name), jsonValue(e.type, e.width, bytes + e.offset));
    }
    QString dynamic;
    for (const orba::DynamicItem& item : page.getDynamicItems_Ext()) {
        if (!dynamic.isEmpty())
            dynamic += QLatin1Char(',');
        dynamic += QStringLiteral("{\"type\":%1,\"size\":%2,\"value\":%3}")
                       .arg(item.type)
                       .arg(item.size)
                       .arg(item.type == 2 ? jsonString(item.text) : QString::number(item.number));
    }
    QString xml;
    QTextStream xs(&xml);
    page.getXmlPageExt(xs);
    xs.flush();
    return QStringLiteral(
        "{\"kind\":%1,\"version\":%2,\"length\":%3,\"page\":\"TmiPage_Orba3\",\"extended\":true,"
        "\"head\":{%4},\"dynamicSize\":%5,\"dynamic\":[%6],\"xml\":%7}")
        .arg(byteOrNull(record, 0), byteOrNull(record, 1))
        .arg(record.size())
        .arg(head)
        .arg(page.getDynamicDataSize_Ext())
        .arg(dynamic, jsonString(xml));
}

QString csvHeader()
{
    QStringList cells { QStringLiteral("kind"), QStringLiteral("version"), QStringLiteral("length"),
        QStringLiteral("page"), QStringLiteral("format") };
    for (const orba::FieldInfo& f : orba::kFields)
        cells << QLatin1String(f.name);
    return cells.join(QLatin1Char(','));
}

// One row: the record's bytes, its page, and the display text of every field (empty where the
// record's version has no such field). An extended record fills the fields its head shares by name.
QString csvRow(
    const QByteArray& record, const char* className, const OrbaPage* page, const TmiPage_Orba3* ext)
{
    auto byteOrEmpty
        = [&](int i) { return i < record.size() ? QString::number(quint8(record[i])) : QString(); };
    QStringList cells { byteOrEmpty(0), byteOrEmpty(1), QString::number(record.size()),
        QLatin1String(className), page && !ext ? page->formatText() : QString() };
    QStringList fields;
    for (int no = 1; no <= orba::kFieldCount; ++no)
        fields << (page && !ext && no <= page->lastField() ? page->fieldText(no) : QString());
    if (ext) {
        for (int id = 0; id < orba::kExtCount; ++id) {
            const QLatin1String xml(orba::kExtFields[id].xml);
            for (int no = 1; no <= orba::kFieldCount && xml.size() > 0; ++no) {
                if (xml == QLatin1String(orba::kFields[no - 1].name))
                    fields[no - 1] = orba::extFieldText(id, ext->extTMI());
            }
        }
    }
    for (const QString& f : fields)
        cells << csvCell(f);
    return cells.join(QLatin1Char(','));
}

QString decodeRecord(const QByteArray& record, bool csv)
{
    const auto* buf = reinterpret_cast<const unsigned char*>(record.constData());
    const int len = record.size();
    if (len >= 1 && buf[0] == orba::kKindFixedPacket) {
        TmiPage_Orba1 page(buf, len);
        return csv ? csvRow(record, "TmiPage_Orba1", &page, nullptr)
                   : pageJson(orba::kKindFixedPacket, page, "TmiPage_Orba1");
    }
    const orba::Form form = orba::chooseForm(buf, len, 0, true);
    if (form == orba::Form::Extended) {
        TmiPage_Orba3 page(buf, len);
        return csv ? csvRow(record, "TmiPage_Orba3", &page, &page) : extendedJson(record, page);
    }
    const std::unique_ptr<OrbaPage> page = orba::buildPage(form, buf, len);
    if (!page)
        return csv ? csvRow(record, "unknown", nullptr, nullptr) : unknownJson(record);
    return csv ? csvRow(record, orba::pageClassName(form), page.get(), nullptr)
               : pageJson(buf[0], *page, orba::pageClassName(form));
}

// Hex digits, whitespace ignored. False with a reason on odd length or a stray character.
bool parseHex(const QString& text, QByteArray& out, QString& why)
{
    QByteArray digits;
    for (const QChar c : text) {
        if (c.isSpace())
            continue;
        if (!isxdigit(c.toLatin1()) || c.unicode() > 0x7F) {
            why = QStringLiteral("'%1' is not a hex digit").arg(c);
            return false;
        }
        digits.append(c.toLatin1());
    }
    if (digits.size() % 2) {
        why = QStringLiteral("odd number of hex digits (%1)").arg(digits.size());
        return false;
    }
    out = QByteArray::fromHex(digits);
    return true;
}

} // namespace

int runDecodeCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err)
{
    bool csv = false;
    QString hex, source;
    bool haveHex = false;
    QString language = QStringLiteral("ru");
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        // The value after an option; false (and the error said) when there is none.
        const auto value = [&](QString& into, const char* needs) {
            if (i + 1 >= args.size()) {
                err << "zrk-tool " << name << ": " << a << " needs " << needs << "\n";
                return false;
            }
            into = args[++i];
            return true;
        };
        if (a == QLatin1String("--csv")) {
            csv = true;
        } else if (a == QLatin1String("--hex")) {
            if (!value(hex, "a hex string"))
                return 2;
            haveHex = true;
        } else if (a == QLatin1String("--lang")) {
            if (!value(language, "ru or en"))
                return 2;
        } else if (a.startsWith(QLatin1String("--"))) {
            err << "zrk-tool " << name << ": unknown option '" << a << "'\n";
            return 2;
        } else if (source.isEmpty()) {
            source = a;
        } else {
            err << "zrk-tool " << name << ": more than one input\n";
            return 2;
        }
    }
    if (haveHex && !source.isEmpty()) {
        err << "zrk-tool " << name << ": give either --hex or an input, not both\n";
        return 2;
    }
    // The unit texts of the display rules come from the catalogue, as in the plug-in.
    zrk::installCatalogue(language);
    if (csv)
        out << csvHeader() << '\n';
    auto print = [&](const QByteArray& record) {
        out << decodeRecord(record, csv) << '\n';
        out.flush();
    };
    QString why;
    if (haveHex) {
        QByteArray record;
        if (!parseHex(hex, record, why)) {
            err << "zrk-tool " << name << ": bad hex: " << why << '\n';
            return 1;
        }
        print(record);
        return 0;
    }
    if (!source.isEmpty() && source != QLatin1String("-")) {
        QFile f(source);
        if (!f.open(QIODevice::ReadOnly)) {
            err << "zrk-tool " << name << ": cannot read " << source << ": " << f.errorString() << '\n';
            return 1;
        }
        print(f.readAll());
        return 0;
    }
    QFile in;
    if (!in.open(stdin, QIODevice::ReadOnly)) {
        err << "zrk-tool " << name << ": cannot read standard input\n";
        return 1;
    }
    int lineNo = 0;
    while (!in.atEnd()) {
        const QString line = QString::fromLatin1(in.readLine());
        ++lineNo;
        if (line.trimmed().isEmpty())
            continue;
        QByteArray record;
        if (!parseHex(line, record, why)) {
            err << "zrk-tool " << name << ": bad hex on line " << lineNo << ": " << why << '\n';
            return 1;
        }
        print(record);
    }
    return 0;
}
