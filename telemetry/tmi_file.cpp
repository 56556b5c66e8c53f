#include "telemetry/tmi_file.h"

#include "telemetry/tmi_track.h"

#include "config_model/common_routines.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_writer.h"
#include "telemetry/tmipage_orba3.h"
#include "zrk/zrk_text.h"

#include <QFile>
#include <QTextCodec>

#include <cmath>
#include <cstring>

namespace zrk::tmi {

namespace {

constexpr char kRecordTag[] = "RECORD";
constexpr int kMaxRecordBytes = 65536; // far above any record kind; keeps a broken file from eating memory
constexpr double kCoordUnitsPerDegree = 600000.0; // 1/10000 arc-minute

const char* const kUserParamTags[kUserParamCount]
    = { "USERPARAM1", "USERPARAM2", "USERPARAM4", "USERPARAM8" };

QTextCodec* cp1251()
{
    static QTextCodec* const codec = QTextCodec::codecForName("windows-1251");
    return codec;
}

// Text for an attribute or element in windows-1251: the markup characters as entities, and a
// character the code page lacks (or a control character) as a character reference, so nothing is lost.
QByteArray xmlText(const QString& s)
{
    QByteArray out;
    out.reserve(s.size());
    QTextCodec* codec = cp1251();
    for (const QChar c : s) {
        switch (c.unicode()) {
        case '&':
            out += "&amp;";
            continue;
        case '<':
            out += "&lt;";
            continue;
        case '>':
            out += "&gt;";
            continue;
        case '"':
            out += "&quot;";
            continue;
        default:
            break;
        }
        if (c.unicode() >= 0x20 && c.unicode() < 0x80) {
            out += char(c.unicode());
            continue;
        }
        if (c.unicode() < 0x20 || c.isSurrogate() || !codec->canEncode(c)) {
            out += "&#" + QByteArray::number(c.unicode()) + ';';
            continue;
        }
        out += codec->fromUnicode(QString(c));
    }
    return out;
}

QString unescape(const QByteArray& raw)
{
    const QString s = cp1251()->toUnicode(raw);
    if (!s.contains(QLatin1Char('&')))
        return s;
    QString out;
    out.reserve(s.size());
    for (int i = 0; i < s.size(); ++i) {
        const int semi = s[i] == QLatin1Char('&') ? s.indexOf(QLatin1Char(';'), i) : -1;
        if (semi < 0) {
            out += s[i];
            continue;
        }
        const QStringRef name = s.midRef(i + 1, semi - i - 1);
        static const char* const kNamed[][2]
            = { { "amp", "&" }, { "lt", "<" }, { "gt", ">" }, { "quot", "\"" }, { "apos", "'" } };
        QString repl;
        for (const auto& n : kNamed) {
            if (name == QLatin1String(n[0]))
                repl = QLatin1String(n[1]);
        }
        if (repl.isEmpty() && name.startsWith(QLatin1Char('#'))) {
            bool ok = false;
            const uint code = name.startsWith(QLatin1String("#x")) ? name.mid(2).toUInt(&ok, 16)
                                                                   : name.mid(1).toUInt(&ok, 10);
            if (ok && code > 0 && code <= 0xFFFF)
                repl = QChar(ushort(code));
        }
        if (repl.isEmpty()) {
            out += s[i];
            continue;
        }
        out += repl;
        i = semi;
    }
    return out;
}

QString fileError(const QString& path, const QString& what)
{
    //% "Файл «%1»: %2"
    return qtTrId("tmif_001").arg(path, what);
}

void writeRecord(QByteArray& out, int index, const Record& r)
{
    out += "\t<RECORD n=\"" + QByteArray::number(index) + '"';
    if (r.received.isValid())
        out += " received=\"" + r.received.toUTC().toString(Qt::ISODateWithMs).toLatin1() + '"';
    if (r.fromHistory)
        out += " history=\"1\"";
    out += " data=\"" + r.bytes.toHex() + '"';
    // The decoded values are for a person reading the file; the reader takes only the bytes.
    const orba::Decoded d = orba::decodeRecord(r.bytes);
    if (!d.page) {
        out += "/>\r\n";
        return;
    }
    out += ">\r\n";
    auto element = [&out](const char* name, const QString& text) {
        out += "\t\t<";
        out += name;
        out += '>' + xmlText(text) + "</";
        out += name;
        out += ">\r\n";
    };
    if (d.form == orba::Form::Extended) {
        const szExtTMI_ORBA3& ext = static_cast<const TmiPage_Orba3&>(*d.page).extTMI();
        for (int id = orba::E_Kind + 1; id < orba::kExtCount; ++id)
            element(orba::kExtFields[id].name, orba::extFieldText(id, ext));
    } else {
        for (int no = 1; no <= d.page->lastField(); ++no) {
            if (d.page->isUsed(no))
                element(orba::kFields[no - 1].name, d.page->fieldText(no));
        }
    }
    out += "\t</RECORD>\r\n";
}

bool saveWhole(const QString& path, const QByteArray& bytes, QString* error)
{
    QString reason;
    if (saveWholeFile(path, bytes, &reason))
        return true;
    if (error) {
        //% "не удаётся записать: %1"
        *error = fileError(path, qtTrId("tmif_002").arg(reason));
    }
    return false;
}

// ---- Reading -----------------------------------------------------------------------------------

// A hand scanner over the file's bytes: the head elements and the records' attributes are all the
// reader needs, and the decoded child elements are skipped without being parsed.
class Scanner
{
public:
    Scanner(const char* data, qint64 size)
        : p(data)
        , end(data + size)
    {
    }

    void skipSpace()
    {
        while (p < end && (*p == ' ' || *p == '\t' || *p == '\r' || *p == '\n'))
            ++p;
    }
    bool atEnd() const { return p >= end; }
    bool startsWith(const char* s) const
    {
        const size_t n = std::strlen(s);
        return size_t(end - p) >= n && std::memcmp(p, s, n) == 0;
    }
    // Moves past the next occurrence of s; false (at the end) when there is none.
    bool skipPast(const char* s)
    {
        const size_t n = std::strlen(s);
        while (size_t(end - p) >= n) {
            const void* hit = std::memchr(p, s[0], size_t(end - p) - n + 1);
            if (!hit)
                break;
            p = static_cast<const char*>(hit);
            if (std::memcmp(p, s, n) == 0) {
                p += n;
                return true;
            }
            ++p;
        }
        p = end;
        return false;
    }

    enum class Tag
    {
        Open, // <name ...>
        Empty, // <name .../>
        Truncated,
        Broken,
    };
    // At '<': reads the name and the attributes up to the tag's end.
    Tag readTag(QByteArray& name, QVector<QPair<QByteArray, QByteArray>>& attrs)
    {
        attrs.clear();
        ++p;
        const char* n = p;
        while (p < end && isNameChar(*p))
            ++p;
        name = QByteArray::fromRawData(n, int(p - n));
        if (name.isEmpty())
            return p >= end ? Tag::Truncated : Tag::Broken;
        for (;;) {
            skipSpace();
            if (p >= end)
                return Tag::Truncated;
            if (*p == '>') {
                ++p;
                return Tag::Open;
            }
            if (*p == '/') {
                if (end - p < 2)
                    return Tag::Truncated;
                if (p[1] != '>')
                    return Tag::Broken;
                p += 2;
                return Tag::Empty;
            }
            const char* a = p;
            while (p < end && isNameChar(*p))
                ++p;
            const QByteArray attr = QByteArray::fromRawData(a, int(p - a));
            skipSpace();
            if (p >= end)
                return Tag::Truncated;
            if (attr.isEmpty() || *p != '=')
                return Tag::Broken;
            ++p;
            skipSpace();
            if (p >= end)
                return Tag::Truncated;
            const char quote = *p;
            if (quote != '"' && quote != '\'')
                return Tag::Broken;
            const char* v = ++p;
            const void* close = std::memchr(p, quote, size_t(end - p));
            if (!close)
                return Tag::Truncated;
            p = static_cast<const char*>(close) + 1;
            attrs.append({ attr, QByteArray::fromRawData(v, int(static_cast<const char*>(close) - v)) });
        }
    }

    static bool isNameChar(char c)
    {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
            || c == '-' || c == ':' || c == '.';
    }

    const char* p;
    const char* end;
};

QByteArray attrValue(const QVector<QPair<QByteArray, QByteArray>>& attrs, const char* name)
{
    for (const auto& a : attrs) {
        if (a.first == name)
            return a.second;
    }
    return QByteArray();
}

bool hasAttr(const QVector<QPair<QByteArray, QByteArray>>& attrs, const char* name)
{
    for (const auto& a : attrs) {
        if (a.first == name)
            return true;
    }
    return false;
}

void setTitle(QStringList& list, int count, int index, const QString& title)
{
    while (list.size() < count)
        list << QString();
    if (index >= 0 && index < count)
        list[index] = title;
}

// The head element that names a title or a type: IN1..IN6, OUT1..OUT4, TEMP1..TEMP4, USERPARAMn.
void readHeadElement(const QByteArray& name, const QVector<QPair<QByteArray, QByteArray>>& attrs, Header* h)
{
    if (name == "TIMEZONE") {
        h->timezoneOffset = attrValue(attrs, "offset").toInt();
        return;
    }
    for (int i = 0; i < kUserParamCount; ++i) {
        if (name == kUserParamTags[i]) {
            setTitle(h->userParamTypes, kUserParamCount, i, unescape(attrValue(attrs, "type")));
            return;
        }
    }
    const struct
    {
        const char* prefix;
        QStringList* list;
        int count;
    } kTitled[] = { { "IN", &h->inTitles, kInCount }, { "OUT", &h->outTitles, kOutCount },
        { "TEMP", &h->tempTitles, kTempCount } };
    for (const auto& t : kTitled) {
        const int len = int(std::strlen(t.prefix));
        if (name.size() == len + 1 && name.startsWith(t.prefix) && name[len] >= '1' && name[len] <= '9')
            setTitle(*t.list, t.count, name[len] - '1', unescape(attrValue(attrs, "title")));
    }
}

// A record's attributes as a record; the reason when they are broken.
QString readRecordAttrs(
    const QVector<QPair<QByteArray, QByteArray>>& attrs, QByteArray& bytes, qint64& receivedMs, bool& history)
{
    if (!hasAttr(attrs, "data")) {
        //% "нет байтов записи (атрибут data)"
        return qtTrId("tmif_003");
    }
    const QByteArray data = attrValue(attrs, "data");
    if (data.size() > 2 * kMaxRecordBytes) {
        //% "запись длиннее %1 байт"
        return qtTrId("tmif_004").arg(kMaxRecordBytes);
    }
    if (!parseHex(data, bytes) || bytes.isEmpty()) {
        //% "байты записи не в шестнадцатеричном виде"
        return qtTrId("tmif_005");
    }
    receivedMs = kNoTime;
    if (hasAttr(attrs, "received")) {
        const QDateTime t
            = QDateTime::fromString(QString::fromLatin1(attrValue(attrs, "received")), Qt::ISODateWithMs);
        if (!t.isValid()) {
            //% "неверное время получения"
            return qtTrId("tmif_006");
        }
        receivedMs = t.toMSecsSinceEpoch();
    }
    history = attrValue(attrs, "history") == "1";
    return QString();
}

QString recordBroken(int index, const QString& why)
{
    //% "запись %1 повреждена: %2"
    return qtTrId("tmif_011").arg(index).arg(why);
}

// Unix seconds of a record field that holds them.
quint32 readU32(const unsigned char* p)
{
    return orba::readValue<4, orba::Type::U>(p);
}

} // namespace

bool operator==(const Record& a, const Record& b)
{
    return a.bytes == b.bytes && a.received == b.received && a.fromHistory == b.fromHistory;
}

QByteArray fileBytes(const Header& header, const QVector<Record>& records)
{
    QByteArray out;
    out.reserve(1024 + records.size() * 512);
    out += "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n";
    out += "<TMI model=\"" + xmlText(header.model) + "\" modification=\"7\" vendor=\""
        + xmlText(header.vendor) + "\" version=\"3.0\"> \r\n";
    out += "\t<TIMEZONE offset=\"" + QByteArray::number(header.timezoneOffset) + "\"/>\r\n";
    auto titles = [&out](const char* tag, const char* attr, const QStringList& list, int count) {
        for (int i = 0; i < count; ++i) {
            out += "\t<" + QByteArray(tag) + QByteArray::number(i + 1) + ' ' + attr + "=\""
                + xmlText(list.value(i)) + "\"/>\r\n";
        }
    };
    titles("IN", "title", header.inTitles, kInCount);
    titles("OUT", "title", header.outTitles, kOutCount);
    titles("TEMP", "title", header.tempTitles, kTempCount);
    for (int i = 0; i < kUserParamCount; ++i)
        out += "\t<" + QByteArray(kUserParamTags[i]) + " type=\"" + xmlText(header.userParamTypes.value(i))
            + "\"/>\r\n";
    for (int i = 0; i < records.size(); ++i)
        writeRecord(out, i + 1, records[i]);
    out += "</TMI>\r\n";
    return out;
}

bool write(const QString& path, const Header& header, const QVector<Record>& records, QString* error)
{
    return saveWhole(path, fileBytes(header, records), error);
}

QString parse(const char* data, qint64 size, const QString& name, Header* header, const RecordSink& sink)
{
    Header h;
    auto done = [&](const QString& what) {
        if (header)
            *header = h;
        return what.isEmpty() ? QString() : fileError(name, what);
    };
    Scanner s(data, size);
    //% "это не файл телеметрии .tmi"
    const QString notTmi = qtTrId("tmif_007");
    //% "файл обрывается: нет конца </TMI>"
    const QString truncated = qtTrId("tmif_008");
    s.skipSpace();
    if (!s.startsWith("<?xml"))
        return done(notTmi);
    if (!s.skipPast("?>"))
        return done(notTmi);
    QByteArray tag;
    QVector<QPair<QByteArray, QByteArray>> attrs;
    for (;;) { // comments before the root
        s.skipSpace();
        if (!s.startsWith("<!--"))
            break;
        if (!s.skipPast("-->"))
            return done(notTmi);
    }
    if (s.atEnd() || !s.startsWith("<TMI"))
        return done(notTmi);
    Scanner::Tag t = s.readTag(tag, attrs);
    if (t != Scanner::Tag::Open || tag != "TMI")
        return done(t == Scanner::Tag::Truncated ? truncated : notTmi);
    h.model = unescape(attrValue(attrs, "model"));
    h.vendor = unescape(attrValue(attrs, "vendor"));
    int index = 0;
    for (;;) {
        s.skipSpace();
        if (s.atEnd())
            return done(truncated);
        if (s.startsWith("</TMI")) {
            s.p += 5;
            s.skipSpace();
            return done(!s.atEnd() && *s.p == '>' ? QString() : truncated);
        }
        if (s.startsWith("<!--")) {
            if (!s.skipPast("-->"))
                return done(truncated);
            continue;
        }
        if (*s.p != '<') {
            //% "после записи %1 стоит посторонний текст"
            return done(qtTrId("tmif_009").arg(index));
        }
        t = s.readTag(tag, attrs);
        const bool isRecord = tag == kRecordTag;
        if (isRecord)
            ++index;
        if (t == Scanner::Tag::Truncated) {
            //% "файл обрывается внутри записи %1"
            return done(isRecord ? qtTrId("tmif_010").arg(index) : truncated);
        }
        if (t == Scanner::Tag::Broken && isRecord) {
            //% "нарушена разметка"
            return done(recordBroken(index, qtTrId("tmif_012")));
        }
        if (t == Scanner::Tag::Broken) {
            //% "нарушена разметка после записи %1"
            return done(qtTrId("tmif_016").arg(index));
        }
        if (t == Scanner::Tag::Open) {
            const QByteArray close = "</" + tag + '>';
            if (!s.skipPast(close.constData()))
                return done(isRecord ? qtTrId("tmif_010").arg(index) : truncated);
        }
        if (!isRecord) {
            readHeadElement(tag, attrs, &h);
            continue;
        }
        QByteArray bytes;
        qint64 receivedMs = kNoTime;
        bool history = false;
        const QString why = readRecordAttrs(attrs, bytes, receivedMs, history);
        if (!why.isEmpty())
            return done(recordBroken(index, why));
        if (!sink(bytes, receivedMs, history))
            return done(QString());
    }
}

QString readEach(const QString& path, Header* header, const RecordSink& sink)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        //% "не удаётся открыть: %1"
        return fileError(path, qtTrId("tmif_013").arg(f.errorString()));
    }
    const qint64 size = f.size();
    if (size == 0)
        return parse("", 0, path, header, sink);
    // Mapped, not read: a large file is scanned once and never copied whole.
    if (const uchar* map = f.map(0, size))
        return parse(reinterpret_cast<const char*>(map), size, path, header, sink);
    const QByteArray all = f.readAll();
    return parse(all.constData(), all.size(), path, header, sink);
}

ReadResult read(const QString& path)
{
    ReadResult r;
    r.error = readEach(path, &r.header, [&r](const QByteArray& bytes, qint64 ms, bool history) {
        Record rec;
        rec.bytes = bytes;
        if (ms != kNoTime)
            rec.received = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
        rec.fromHistory = history;
        r.records.append(rec);
        return true;
    });
    return r;
}

// ---- Keys, CSV and KML -------------------------------------------------------------------------

RecordKeys keysOf(const QByteArray& record)
{
    const orba::Decoded d = orba::decodeRecord(record);
    return d.page ? keysOf(*d.page) : RecordKeys();
}

RecordKeys keysOf(const OrbaPage& page)
{
    RecordKeys k;
    const bool extended = page.isExtended();
    const unsigned char* p = nullptr;
    auto at = [&](int no, int extId) -> const unsigned char* {
        if (extended)
            return extId < 0 ? nullptr : p + orba::kExtFields[extId].offset;
        return no <= page.lastField() && page.isUsed(no) ? p + orba::kOffsets[no] : nullptr;
    };
    p = extended ? reinterpret_cast<const unsigned char*>(&static_cast<const TmiPage_Orba3&>(page).extTMI())
                 : page.recordBytes();
    if (const unsigned char* v = at(orba::F_NumPage, orba::E_NumberTmiPage)) {
        k.hasNumber = true;
        k.number = readU32(v);
    }
    if (const unsigned char* v = at(orba::F_Code, orba::E_Code)) {
        k.hasCode = true;
        k.code = orba::readValue<2, orba::Type::U>(v);
    }
    if (const unsigned char* v = at(orba::F_Time, orba::E_EventTime)) {
        k.hasTime = true;
        k.time = readU32(v);
    }
    const unsigned char* lat = at(orba::F_Latitude, orba::E_Latitude);
    const unsigned char* lon = at(orba::F_Longitude, orba::E_Longitude);
    if (lat && lon) {
        k.latitude = orba::readValue<4, orba::Type::S>(lat) / kCoordUnitsPerDegree;
        k.longitude = orba::readValue<4, orba::Type::S>(lon) / kCoordUnitsPerDegree;
        // A fix at 0,0 or outside the globe is no position.
        k.hasPosition = (k.latitude != 0 || k.longitude != 0) && std::fabs(k.latitude) <= 90
            && std::fabs(k.longitude) <= 180;
    }
    if (const unsigned char* v = at(orba::F_Altitude, orba::E_Altitude))
        k.altitude = orba::readValue<4, orba::Type::S>(v) / 10;
    if (const unsigned char* v = at(orba::F_Speed, orba::E_Speed)) {
        k.speed = orba::readValue<4, orba::Type::F>(v);
        k.hasSpeed = std::isfinite(k.speed);
    }
    return k;
}

QByteArray csvBytes(const RecordSource& source)
{
    orba::RecordWriter writer(orba::RecordWriter::Format::Csv, "\r\n");
    TextBuffer out;
    out.appendLiteral("\xEF\xBB\xBF"); // so that spreadsheets read the Cyrillic texts as UTF-8
    writer.writeHeader(out);
    Record r;
    while (source(r))
        writer.write(r.bytes, out);
    return QByteArray(out.data(), int(out.size()));
}

namespace {

QByteArray kmlText(const QString& s)
{
    return s.toHtmlEscaped().toUtf8();
}

QString timeText(const RecordKeys& k)
{
    return k.hasTime ? orba::dateTimeText(k.time) : orba::noDataText();
}

} // namespace

QByteArray kmlBytes(const RecordSource& source)
{
    QByteArray track, marks;
    Record r;
    int n = 0;
    while (source(r)) {
        ++n;
        const RecordKeys k = keysOf(r.bytes);
        if (!k.hasPosition)
            continue;
        const QByteArray where = QByteArray::number(k.longitude, 'f', 6) + ','
            + QByteArray::number(k.latitude, 'f', 6) + ',' + QByteArray::number(k.altitude, 'f', 0);
        track += where + '\n';
        //% "Время: %1; скорость: %2 км/ч; событие: %3"
        const QString description
            = qtTrId("tmif_014")
                  .arg(timeText(k),
                      k.hasSpeed ? QString::number(double(k.speed), 'f', 2) : orba::noDataText(),
                      k.hasCode ? QString::number(k.code) : orba::noDataText());
        marks += "<Placemark><name>" + QByteArray::number(k.hasNumber ? qint64(k.number) : qint64(n))
            + "</name>";
        if (k.hasTime) {
            marks += "<TimeStamp><when>"
                + QDateTime::fromSecsSinceEpoch(k.time, Qt::UTC).toString(Qt::ISODate).toLatin1()
                + "</when></TimeStamp>";
        }
        marks += "<description>" + kmlText(description) + "</description><Point><coordinates>" + where
            + "</coordinates></Point></Placemark>\n";
    }
    QByteArray out
        = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml xmlns=\"http://www.opengis.net/kml/2.2\">\n"
          "<Document>\n";
    //% "Трек"
    out += "<Placemark><name>" + kmlText(qtTrId("tmif_015"))
        + "</name><LineString><tessellate>1</tessellate><coordinates>\n" + track
        + "</coordinates></LineString></Placemark>\n";
    out += marks + "</Document>\n</kml>\n";
    return out;
}

namespace {

RecordSource sourceOf(const QVector<Record>& records)
{
    return [&records, i = 0](Record& next) mutable {
        if (i >= records.size())
            return false;
        next = records[i++];
        return true;
    };
}

} // namespace

bool exportCsv(const QString& path, const QVector<Record>& records, QString* error)
{
    return saveWhole(path, csvBytes(sourceOf(records)), error);
}

bool exportKml(const QString& path, const QVector<Record>& records, QString* error)
{
    return saveWhole(path, kmlBytes(sourceOf(records)), error);
}

} // namespace zrk::tmi

bool zrkTrackPointOf(const zrk::tmi::RecordKeys& keys, ZrkMapTrackPoint* point)
{
    if (!keys.hasPosition)
        return false;
    point->lat = keys.latitude;
    point->lon = keys.longitude;
    point->time = keys.hasTime ? QDateTime::fromSecsSinceEpoch(keys.time) : QDateTime();
    point->speed = keys.hasSpeed ? keys.speed : 0.0;
    return true;
}

bool zrkTrackPointOf(const QByteArray& record, ZrkMapTrackPoint* point)
{
    return zrkTrackPointOf(zrk::tmi::keysOf(record), point);
}
