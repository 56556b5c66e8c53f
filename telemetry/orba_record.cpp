#include "telemetry/orba_record.h"

#include "config_model/cp1251.h"

#include <QTextStream>
#include <QtEndian>

#include <algorithm>
#include <type_traits>

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

// Copies size bytes to the structure at `to` from the body at `from`, bytes past len as zero.
void copyRunOfShortBody(int to, int from, int size, const unsigned char* body, int len, unsigned char* rec)
{
    const int have = std::clamp(len - from, 0, size);
    if (have > 0)
        std::memcpy(rec + to, body + from, size_t(have));
    std::memset(rec + to + have, 0, size_t(size - have));
}

// The runs of present fields of one mask: where each goes in the structure, where it starts in the
// body and how long it is. The runs are ordered by length class (16 bytes and more, 8 to 15, 4 to
// 7, 2 and 3, 1), so that each class is copied by one loop without a branch on the length, which
// changes from run to run. Plans are kept (PlanCache): the mask walk is done once per field set.
struct RunPlan
{
    static constexpr int kClasses = 5;
    unsigned char mask[kMaskBytes];
    int lastField = -1; // no plan yet
    int count = 0;
    int total = 0; // body bytes of all runs
    int classEnd[kClasses] = {}; // where each length class ends in the runs
    qint16 to[kFieldCount / 2 + 1]; // at most every other field starts a run
    qint16 from[kFieldCount / 2 + 1];
    qint16 size[kFieldCount / 2 + 1];
};

int lengthClass(int size)
{
    return size >= 16 ? 0 : size >= 8 ? 1 : size >= 4 ? 2 : size >= 2 ? 3 : 4;
}

void buildPlan(RunPlan& plan, const unsigned char* mask, int lastField)
{
    std::memcpy(plan.mask, mask, kMaskBytes);
    plan.lastField = lastField;
    plan.count = 0;
    plan.total = 0;
    // The pending run of present fields, as bit positions [first, end) (position = number - 1);
    // runs that meet at a 64-bit word boundary are joined into one.
    int first = -1, end = -1;
    auto add = [&plan](int runFirst, int runEnd) {
        plan.to[plan.count] = qint16(kOffsets[runFirst + 1]);
        plan.size[plan.count] = qint16(kOffsets[runEnd + 1] - kOffsets[runFirst + 1]);
        plan.from[plan.count] = qint16(plan.total);
        plan.total += plan.size[plan.count];
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
    // A stable sort by length class, through a copy.
    RunPlan byClass;
    int n = 0;
    for (int c = 0; c < RunPlan::kClasses; ++c) {
        for (int i = 0; i < plan.count; ++i) {
            if (lengthClass(plan.size[i]) != c)
                continue;
            byClass.to[n] = plan.to[i];
            byClass.from[n] = plan.from[i];
            byClass.size[n] = plan.size[i];
            ++n;
        }
        plan.classEnd[c] = n;
    }
    std::copy_n(byClass.to, n, plan.to);
    std::copy_n(byClass.from, n, plan.from);
    std::copy_n(byClass.size, n, plan.size);
}

// The sub-values of each field, [first, end) in kSubValues: the table keeps a field's rows together.
struct SubRange
{
    int first = 0, end = 0;
};
constexpr std::array<SubRange, kFieldCount + 1> makeSubRanges()
{
    std::array<SubRange, kFieldCount + 1> r {};
    for (int id = kSubCount - 1; id >= 0; --id) {
        SubRange& f = r[kSubValues[id].field];
        if (f.end == 0)
            f.end = id + 1;
        f.first = id;
    }
    return r;
}
inline constexpr std::array<SubRange, kFieldCount + 1> kSubRanges = makeSubRanges();

constexpr bool subValuesAreGrouped()
{
    for (int id = 0; id < kSubCount; ++id) {
        const SubRange& f = kSubRanges[kSubValues[id].field];
        if (id < f.first || id >= f.end)
            return false;
    }
    for (int no = 1; no <= kFieldCount; ++no) {
        for (int id = kSubRanges[no].first; id < kSubRanges[no].end; ++id) {
            if (kSubValues[id].field != no)
                return false;
        }
    }
    return true;
}
static_assert(subValuesAreGrouped(), "the sub-values of a field are consecutive rows");

void appendWithUnit(zrk::TextBuffer& out, qint64 number, TextContext& context)
{
    out.appendSigned(number);
    out.append(' ');
    out.append(context.unit);
}

void appendNoData(zrk::TextBuffer& out)
{
    out.appendLiteral("n/a");
}

// The labels' lengths, counted once.
constexpr std::array<int, kSubCount> makeLabelLengths()
{
    std::array<int, kSubCount> n {};
    for (int id = 0; id < kSubCount; ++id) {
        while (kSubValues[id].label[n[id]] != '\0')
            ++n[id];
    }
    return n;
}
inline constexpr std::array<int, kSubCount> kLabelLengths = makeLabelLengths();

void appendParts(zrk::TextBuffer& out, int field, const unsigned char* fieldBytes, TextContext& context)
{
    bool first = true;
    for (int id = kSubRanges[field].first; id < kSubRanges[field].end; ++id) {
        const SubInfo& s = kSubValues[id];
        if (!s.shown)
            continue;
        if (!first)
            out.appendLiteral(", ");
        first = false;
        out.append(s.label, std::size_t(kLabelLengths[id]));
        out.append(' ');
        appendSubValueText(out, id, fieldBytes - kOffsets[field], context);
    }
}

void appendValueText(zrk::TextBuffer& out, Rule rule, Type type, int width, const unsigned char* p, int field,
    TextContext& context)
{
    const quint64 u = type == Type::B ? 0 : readLE(p, std::min(width, 8));
    const qint64 s = signExtend(u, std::min(width, 8));
    switch (rule) {
    case Rule::Plain:
        break;
    case Rule::DateTime:
        appendDateTime(out, quint32(u), context.clock);
        return;
    case Rule::Coord:
        appendCoordinate(out, qint32(s));
        return;
    case Rule::Altitude:
        out.appendSigned(qint32(s) / 10);
        return;
    case Rule::Float2:
        out.appendFixed(double(readValue<4, Type::F>(p)), 2);
        return;
    case Rule::Volts:
        // Rounded half up to hundredths of a volt.
        out.appendFixedPoint(qint64((u + 5) / 10), 2);
        return;
    case Rule::Temp:
        if (s != -128)
            appendWithUnit(out, s, context);
        return;
    case Rule::HpTemp:
        // 1/20 degree is 5 hundredths: exact in two decimals.
        if (u == 0x8000) {
            appendNoData(out);
        } else {
            out.appendFixedPoint(s * 5, 2);
            out.append(' ');
            out.append(context.unit);
        }
        return;
    case Rule::SignedTemp:
        appendWithUnit(out, s, context);
        return;
    case Rule::Bits:
        out.appendBits(static_cast<unsigned char>(u));
        out.appendLiteral(" (");
        appendParts(out, field, p, context);
        out.append(')');
        return;
    case Rule::Parts:
        appendParts(out, field, p, context);
        return;
    case Rule::Tenths:
        out.appendFixedPoint(qint64(u), 1);
        return;
    case Rule::TyreTemp:
        if (u == 0x81)
            appendNoData(out);
        else
            out.appendSigned(s);
        return;
    case Rule::Degrees:
        out.appendFixed(readValue<8, Type::D>(p), 6);
        return;
    }
    appendNumberText(out, type, width, p);
}

// A text made by an append function, as a QString.
template <class F> QString textOf(F&& append)
{
    // A buffer of its own each time: a thread_local one with a destructor would keep the plug-in
    // loaded after its host unloads it (the C library pins a library with such objects).
    zrk::TextBuffer buffer;
    append(buffer);
    return buffer.toString();
}

// The plans of the field sets met last, per thread. A terminal sends the same field set record after
// record, and an archive of many terminals moves among a few: the plan of the record before is
// tried first, then the four kept for masks of the same hash, the oldest of which gives way.
class PlanCache
{
public:
    const RunPlan& planFor(const unsigned char* mask, int lastField)
    {
        quint64 words[4];
        std::memcpy(words, mask, sizeof words);
        const quint64 hash
            = (words[0] ^ (words[1] * 0x9E3779B97F4A7C15ULL) ^ (words[2] * 0xC2B2AE3D27D4EB4FULL)
                  ^ (words[3] * 0x165667B19E3779F9ULL) ^ quint64(lastField))
            * 0xFF51AFD7ED558CCDULL;
        if (m_last && fits(*m_last, hash, mask, lastField))
            return m_last->plan;
        Set& set = m_sets[hash >> (64 - kSetBits)];
        for (Way& way : set.ways) {
            if (fits(way, hash, mask, lastField))
                return (m_last = &way)->plan;
        }
        Way& oldest = set.ways[set.next];
        set.next = (set.next + 1) % kWays;
        oldest.hash = hash;
        buildPlan(oldest.plan, mask, lastField);
        return (m_last = &oldest)->plan;
    }

private:
    static constexpr int kSetBits = 3;
    static constexpr int kWays = 4;
    struct Way
    {
        quint64 hash = 0;
        RunPlan plan;
    };
    struct Set
    {
        Way ways[kWays];
        int next = 0;
    };
    static bool fits(const Way& way, quint64 hash, const unsigned char* mask, int lastField)
    {
        return way.hash == hash && way.plan.lastField == lastField
            && std::memcmp(way.plan.mask, mask, kMaskBytes) == 0;
    }

    Set m_sets[1 << kSetBits];
    const Way* m_last = nullptr;
};

} // namespace

void decodeFields(
    const unsigned char* mask, const unsigned char* body, int len, unsigned char* rec, int lastField)
{
    if (!body || len < 0)
        len = 0;
    // Plain data, so that keeping it per thread does not pin the plug-in in memory (above).
    static_assert(std::is_trivially_destructible_v<PlanCache>);
    thread_local PlanCache plans;
    const RunPlan& plan = plans.planFor(mask, lastField);
    if (len < plan.total) {
        for (int i = 0; i < plan.count; ++i)
            copyRunOfShortBody(plan.to[i], plan.from[i], plan.size[i], body, len, rec);
        return;
    }
    // The whole body is there, as in every record a terminal sends: copies only, a loop a class.
    int i = 0;
    for (; i < plan.classEnd[0]; ++i)
        std::memcpy(rec + plan.to[i], body + plan.from[i], size_t(plan.size[i]));
    for (; i < plan.classEnd[1]; ++i)
        copyOverlapping<quint64>(rec + plan.to[i], body + plan.from[i], plan.size[i]);
    for (; i < plan.classEnd[2]; ++i)
        copyOverlapping<quint32>(rec + plan.to[i], body + plan.from[i], plan.size[i]);
    for (; i < plan.classEnd[3]; ++i)
        copyOverlapping<quint16>(rec + plan.to[i], body + plan.from[i], plan.size[i]);
    for (; i < plan.count; ++i)
        rec[plan.to[i]] = body[plan.from[i]];
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

TextContext::TextContext()
    : unit(temperatureUnit().toUtf8())
{
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

void appendDateTime(zrk::TextBuffer& out, quint32 unixSeconds, zrk::LocalClock& clock)
{
    // "dd.MM.yyyy H:mm:ss"
    const zrk::CivilTime t = clock.civil(qint64(unixSeconds));
    char* p = out.room(20);
    const auto two = [&p](int v) {
        *p++ = char('0' + v / 10);
        *p++ = char('0' + v % 10);
    };
    two(t.day);
    *p++ = '.';
    two(t.month);
    *p++ = '.';
    two(t.year / 100);
    two(t.year % 100);
    *p++ = ' ';
    if (t.hour >= 10)
        *p++ = char('0' + t.hour / 10);
    *p++ = char('0' + t.hour % 10);
    *p++ = ':';
    two(t.minute);
    *p++ = ':';
    two(t.second);
    out.advance(std::size_t(p - (out.data() + out.size())));
}

QString dateTimeText(quint32 unixSeconds)
{
    zrk::LocalClock clock;
    return textOf([&](zrk::TextBuffer& out) { appendDateTime(out, unixSeconds, clock); });
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

void appendCoordinate(zrk::TextBuffer& out, qint32 value)
{
    const qint32 degrees = value / 600000;
    const qint64 rest = qint64(value) - 600000 * qint64(degrees); // same sign as value
    out.appendSigned(degrees);
    out.append(' ');
    out.appendFixedPoint(rest, 4);
    out.append('\'');
}

QString coordinateText(qint32 value)
{
    return textOf([&](zrk::TextBuffer& out) { appendCoordinate(out, value); });
}

void appendFieldText(zrk::TextBuffer& out, int no, const unsigned char* rec, TextContext& context)
{
    if (no < 1 || no > kFieldCount) {
        appendNoData(out);
        return;
    }
    const FieldInfo& f = kFields[no - 1];
    appendValueText(out, f.rule, f.type, f.width, rec + kOffsets[no], no, context);
}

QString fieldText(int no, const unsigned char* rec)
{
    TextContext c;
    return textOf([&](zrk::TextBuffer& out) { appendFieldText(out, no, rec, c); });
}

void appendSubValueText(zrk::TextBuffer& out, int id, const unsigned char* rec, TextContext& context)
{
    if (id < 0 || id >= kSubCount) {
        appendNoData(out);
        return;
    }
    const SubInfo& s = kSubValues[id];
    const unsigned char* p = rec + kOffsets[s.field] + s.offset;
    if (s.bits != 0)
        out.appendUnsigned(bitsFromByte(p[0], s.shift, s.bits));
    else
        appendValueText(out, s.rule, s.type, s.width, p, s.field, context);
}

QString subValueText(int id, const unsigned char* rec)
{
    TextContext c;
    return textOf([&](zrk::TextBuffer& out) { appendSubValueText(out, id, rec, c); });
}

void appendExtFieldText(zrk::TextBuffer& out, int id, const szExtTMI_ORBA3& ext, TextContext& context)
{
    if (id < 0 || id >= kExtCount) {
        appendNoData(out);
        return;
    }
    const ExtInfo& e = kExtFields[id];
    appendValueText(
        out, e.rule, e.type, e.width, reinterpret_cast<const unsigned char*>(&ext) + e.offset, 0, context);
}

QString extFieldText(int id, const szExtTMI_ORBA3& ext)
{
    TextContext c;
    return textOf([&](zrk::TextBuffer& out) { appendExtFieldText(out, id, ext, c); });
}

void appendNumberText(zrk::TextBuffer& out, Type type, int width, const unsigned char* p)
{
    switch (type) {
    case Type::U:
        out.appendUnsigned(readLE(p, width));
        return;
    case Type::S:
        out.appendSigned(signExtend(readLE(p, width), width));
        return;
    case Type::F:
        out.appendShortest(readValue<4, Type::F>(p));
        return;
    case Type::D:
        out.appendShortest(readValue<8, Type::D>(p));
        return;
    case Type::B:
        break;
    }
    out.appendHex(p, width);
}

QString numberText(Type type, int width, const unsigned char* p)
{
    return textOf([&](zrk::TextBuffer& out) { appendNumberText(out, type, width, p); });
}

} // namespace orba
