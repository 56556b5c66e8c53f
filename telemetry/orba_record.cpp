#include "telemetry/orba_record.h"

#include "config_model/cp1251.h"

#include <QDateTime>
#include <QLocale>
#include <QTextStream>
#include <QtEndian>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace orba {

namespace {

// Size bytes (sizeof(T) to 2 * sizeof(T)) as two overlapping fixed-size moves.
template <class T>
__attribute__((always_inline)) inline void copyOverlapping(
    unsigned char* to, const unsigned char* from, int size)
{
    T a, b;
    std::memcpy(&a, from, sizeof a);
    std::memcpy(&b, from + size - int(sizeof b), sizeof b);
    std::memcpy(to, &a, sizeof a);
    std::memcpy(to + size - int(sizeof b), &b, sizeof b);
}

// An exact copy of size bytes; short ones as two overlapping fixed-size moves, which the compiler
// inlines, since most runs of a sparse field set are a few bytes long.
__attribute__((always_inline)) inline void copyBytes(unsigned char* to, const unsigned char* from, int size)
{
    if (size >= 16) {
        std::memcpy(to, from, size_t(size));
    } else if (size >= 8) {
        copyOverlapping<quint64>(to, from, size);
    } else if (size >= 4) {
        copyOverlapping<quint32>(to, from, size);
    } else if (size >= 2) {
        copyOverlapping<quint16>(to, from, size);
    } else if (size == 1) {
        *to = *from;
    }
}

// Copies size bytes to the structure at `to` from the body at `at`, bytes past len as zero; returns
// the read position after them.
__attribute__((always_inline)) inline int copyRun(
    int to, int size, const unsigned char* body, int len, int at, unsigned char* rec)
{
    if (len - at >= size) {
        copyBytes(rec + to, body + at, size);
    } else {
        const int have = len > at ? len - at : 0;
        if (have > 0)
            std::memcpy(rec + to, body + at, size_t(have));
        std::memset(rec + to + have, 0, size_t(size - have));
    }
    return at + size;
}

// The runs of present fields of one mask: where each goes in the structure and how long it is, in
// field order. A terminal sends the same field set record after record, so the plan of the last
// mask is kept (per thread) and the mask walk is skipped while the mask stays the same.
struct RunPlan
{
    unsigned char mask[kMaskBytes];
    int lastField = -1; // no plan yet
    int count = 0;
    qint16 to[kFieldCount / 2 + 1]; // at most every other field starts a run
    qint16 size[kFieldCount / 2 + 1];
};

void buildPlan(RunPlan& plan, const unsigned char* mask, int lastField)
{
    std::memcpy(plan.mask, mask, kMaskBytes);
    plan.lastField = lastField;
    plan.count = 0;
    // The pending run of present fields, as bit positions [first, end) (position = number - 1);
    // runs that meet at a 64-bit word boundary are joined into one.
    int first = -1, end = -1;
    auto add = [&plan](int runFirst, int runEnd) {
        plan.to[plan.count] = qint16(kOffsets[runFirst + 1]);
        plan.size[plan.count] = qint16(kOffsets[runEnd + 1] - kOffsets[runFirst + 1]);
        ++plan.count;
    };
    for (int wi = 0; wi < 4; ++wi) {
        const int base = wi * 64;
        if (base >= lastField)
            break;
        // Position base + k at bit k: little-endian bytes with the bits of each byte reversed (the
        // mask puts the lowest field number of a byte in its most significant bit). Then a run of
        // ones comes off with one addition.
        quint64 x;
        std::memcpy(&x, mask + 8 * wi, 8);
        x = qFromLittleEndian(x);
        x = ((x >> 1) & 0x5555555555555555ULL) | ((x & 0x5555555555555555ULL) << 1);
        x = ((x >> 2) & 0x3333333333333333ULL) | ((x & 0x3333333333333333ULL) << 2);
        x = ((x >> 4) & 0x0F0F0F0F0F0F0F0FULL) | ((x & 0x0F0F0F0F0F0F0F0FULL) << 4);
        if (lastField - base < 64)
            x &= (quint64(1) << (lastField - base)) - 1;
        while (x) {
            const quint64 y = x + (x & (~x + 1)); // the lowest run cleared, a carry just above it
            const int runFirst = base + __builtin_ctzll(x);
            const int runEnd = base + (y ? __builtin_ctzll(y) : 64);
            x &= y;
            if (runFirst == end) {
                end = runEnd;
            } else {
                if (first >= 0)
                    add(first, end);
                first = runFirst;
                end = runEnd;
            }
        }
    }
    if (first >= 0)
        add(first, end);
}

QString withUnit(const QString& number)
{
    return QStringLiteral("%1 %2").arg(number, temperatureUnit());
}

// value / 10^decimals with exactly that many decimals, from an integer, so no binary rounding
// shows in the text.
QString fixedPoint(qint64 value, int decimals)
{
    qint64 scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    const bool negative = value < 0;
    const quint64 a = negative ? quint64(0) - quint64(value) : quint64(value);
    QString s = QString::number(a / quint64(scale));
    if (decimals > 0)
        s += QLatin1Char('.') + QStringLiteral("%1").arg(a % quint64(scale), decimals, 10, QLatin1Char('0'));
    return negative ? QLatin1Char('-') + s : s;
}

QString shortestFloat(double v, bool single)
{
    if (!std::isfinite(v))
        return QString::number(v);
    char buf[64];
    const auto r = single ? std::to_chars(buf, buf + sizeof buf, static_cast<float>(v))
                          : std::to_chars(buf, buf + sizeof buf, v);
    return QString::fromLatin1(buf, int(r.ptr - buf));
}

QString partsText(int field, const unsigned char* fieldBytes)
{
    QStringList parts;
    for (int id = 0; id < kSubCount; ++id) {
        const SubInfo& s = kSubValues[id];
        if (s.field == field && s.shown)
            parts << QStringLiteral("%1 %2").arg(
                QLatin1String(s.label), subValueText(id, fieldBytes - kOffsets[field]));
    }
    return parts.join(QStringLiteral(", "));
}

QString valueText(Rule rule, Type type, int width, const unsigned char* p, int field)
{
    const quint64 u = type == Type::B ? 0 : readLE(p, std::min(width, 8));
    const qint64 s = signExtend(u, std::min(width, 8));
    switch (rule) {
    case Rule::Plain:
        break;
    case Rule::DateTime:
        return dateTimeText(quint32(u));
    case Rule::Coord:
        return coordinateText(qint32(s));
    case Rule::Altitude:
        return QString::number(qint32(s) / 10);
    case Rule::Float2:
        return QString::number(double(readValue<4, Type::F>(p)), 'f', 2);
    case Rule::Volts:
        // Rounded half up to hundredths of a volt.
        return fixedPoint(qint64((u + 5) / 10), 2);
    case Rule::Temp:
        return s == -128 ? QString() : withUnit(QString::number(s));
    case Rule::HpTemp:
        // 1/20 degree is 5 hundredths: exact in two decimals.
        return u == 0x8000 ? noDataText() : withUnit(fixedPoint(s * 5, 2));
    case Rule::SignedTemp:
        return withUnit(QString::number(s));
    case Rule::Bits:
        return QStringLiteral("%1 (%2)").arg(u, 8, 2, QLatin1Char('0')).arg(partsText(field, p));
    case Rule::Parts:
        return partsText(field, p);
    case Rule::Tenths:
        return fixedPoint(qint64(u), 1);
    case Rule::TyreTemp:
        return u == 0x81 ? noDataText() : QString::number(s);
    case Rule::Degrees:
        return QString::number(readValue<8, Type::D>(p), 'f', 6);
    }
    return numberText(type, width, p);
}

} // namespace

void decodeFields(
    const unsigned char* mask, const unsigned char* body, int len, unsigned char* rec, int lastField)
{
    if (!body || len < 0)
        len = 0;
    thread_local RunPlan plan;
    if (plan.lastField != lastField || std::memcmp(plan.mask, mask, kMaskBytes) != 0)
        buildPlan(plan, mask, lastField);
    int at = 0; // read position in the body
    for (int i = 0; i < plan.count; ++i)
        at = copyRun(plan.to[i], plan.size[i], body, len, at, rec);
}

QString formatText(const unsigned char* mask, int lastField)
{
    QString s(lastField, QLatin1Char('0'));
    QChar* c = s.data();
    for (int n = 1; n <= lastField; ++n) {
        if (zrkOrbaMaskBit(mask, n))
            c[n - 1] = QLatin1Char('1');
    }
    return s;
}

quint16 dynamicDataSize(const szExtTMI_ORBA3& ext)
{
    return quint16(readLE(ext.DataSize, 2) - 4 - ext.VisibleSize[0] - ext.HiddenSize[0]);
}

void decodeExt(const unsigned char* buf, int len, szExtTMI_ORBA3& ext)
{
    std::memset(&ext, 0, sizeof ext);
    if (!buf || len <= 0)
        return;
    // The whole fixed head: the state bytes, outputs and counters after HiddenSize are read by
    // their accessors like the rest of it.
    std::memcpy(&ext, buf, size_t(std::min(len, kExtHeadBytes)));
    // The dynamic data is the tail of the record: it ends at DataSize + 3. Positions outside the
    // buffer read as zero, and only as much as the structure holds is kept.
    const int end = int(readLE(ext.DataSize, 2)) + 3;
    const int size = std::min<int>(dynamicDataSize(ext), kExtDynamicBytes);
    const int start = end - int(dynamicDataSize(ext));
    for (int i = 0; i < size; ++i) {
        const int at = start + i;
        ext.DynamicData[i] = (at >= 0 && at < len && at < end) ? buf[at] : 0;
    }
}

QVector<DynamicItem> dynamicItems(const szExtTMI_ORBA3& ext)
{
    QVector<DynamicItem> items;
    const int size = std::min<int>(dynamicDataSize(ext), kExtDynamicBytes);
    const unsigned char* d = ext.DynamicData;
    // Bytes an item lacks inside the kept data read as zero.
    auto byteAt = [&](int i) -> unsigned char { return i < size ? d[i] : 0; };
    int at = 0;
    while (size - at >= 2) {
        DynamicItem item;
        item.type = d[at];
        item.size = d[at + 1];
        if (item.type == 1 || item.type == 3) {
            for (int i = 7; i >= 0; --i)
                item.number = (item.number << 8) | byteAt(at + 2 + i);
            items << item;
            at += 10;
        } else if (item.type == 2) {
            for (int i = 0; i < 16; ++i) {
                const unsigned char c = byteAt(at + 2 + i);
                if (!c)
                    break;
                item.text += zrk::fromWindows1251Byte(c);
            }
            items << item;
            at += 18;
        } else {
            at += 2;
        }
    }
    return items;
}

void writeXmlPageExt(QTextStream& out, const szExtTMI_ORBA3& ext)
{
    auto num = [&](ExtId id) {
        return numberText(kExtFields[id].type, kExtFields[id].width,
            reinterpret_cast<const unsigned char*>(&ext) + kExtFields[id].offset);
    };
    out << QStringLiteral(
        "\t<Page type=\"%1\" size=\"%2\" stVer=\"%3\" stSize=\"%4\" hVer=\"%5\" hSize=\"%6\">\r\n")
               .arg(num(E_Kind), num(E_DataSize), num(E_VisibleVer), num(E_VisibleSize), num(E_HiddenVer),
                   num(E_HiddenSize));
    for (int id = 0; id < kExtCount; ++id) {
        const QLatin1String xml(kExtFields[id].xml);
        if (xml.size() > 0)
            out << QStringLiteral("\t\t<%1>%2</%1>\r\n").arg(xml, num(ExtId(id)));
    }
    for (const DynamicItem& item : dynamicItems(ext)) {
        const QString value = item.type == 2 ? item.text.toHtmlEscaped() : QString::number(item.number);
        out << QStringLiteral("\t\t<Dynamic type=\"%1\" size=\"%2\" value=\"%3\"/>\r\n")
                   .arg(item.type)
                   .arg(item.size)
                   .arg(value);
    }
    out << "\t</Page>\r\n";
}

QString noDataText()
{
    return QStringLiteral("n/a");
}

QString temperatureUnit()
{
    //% "°С"
    return qtTrId("abbr_017");
}

QString dateTimeText(quint32 unixSeconds)
{
    const QDateTime t = QDateTime::fromSecsSinceEpoch(qint64(unixSeconds), Qt::LocalTime);
    return QLocale::c().toString(t, QStringLiteral("dd.MM.yyyy H:mm:ss"));
}

QString utcOffsetText(int seconds)
{
    const QChar sign = seconds < 0 ? QLatin1Char('-') : QLatin1Char('+');
    const qint64 a = seconds < 0 ? -qint64(seconds) : qint64(seconds);
    QString hours = QString::number(a / 3600);
    if (a % 3600 != 0)
        hours += QStringLiteral(":%1").arg((a % 3600) / 60, 2, 10, QLatin1Char('0'));
    return QStringLiteral("(UTC %1%2)").arg(sign).arg(hours);
}

QString coordinateText(qint32 value)
{
    const qint32 degrees = value / 600000;
    const qint64 rest = qint64(value) - 600000 * qint64(degrees); // same sign as value
    return QStringLiteral("%1 %2'").arg(degrees).arg(fixedPoint(rest, 4));
}

QString fieldText(int no, const unsigned char* rec)
{
    if (no < 1 || no > kFieldCount)
        return noDataText();
    const FieldInfo& f = kFields[no - 1];
    return valueText(f.rule, f.type, f.width, rec + kOffsets[no], no);
}

QString subValueText(int id, const unsigned char* rec)
{
    if (id < 0 || id >= kSubCount)
        return noDataText();
    const SubInfo& s = kSubValues[id];
    const unsigned char* p = rec + kOffsets[s.field] + s.offset;
    if (s.bits != 0)
        return QString::number(bitsFromByte(p[0], s.shift, s.bits));
    return valueText(s.rule, s.type, s.width, p, s.field);
}

QString extFieldText(int id, const szExtTMI_ORBA3& ext)
{
    if (id < 0 || id >= kExtCount)
        return noDataText();
    const ExtInfo& e = kExtFields[id];
    return valueText(e.rule, e.type, e.width, reinterpret_cast<const unsigned char*>(&ext) + e.offset, 0);
}

QString numberText(Type type, int width, const unsigned char* p)
{
    switch (type) {
    case Type::U:
        return QString::number(readLE(p, width));
    case Type::S:
        return QString::number(signExtend(readLE(p, width), width));
    case Type::F:
        return shortestFloat(double(readValue<4, Type::F>(p)), true);
    case Type::D:
        return shortestFloat(readValue<8, Type::D>(p), false);
    case Type::B:
        break;
    }
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(p), width).toHex());
}

} // namespace orba
