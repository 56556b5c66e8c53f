#pragma once

// Small text rules shared by the plug-in's tools and any host: hex bytes as people type them,
// and a CSV cell. Header-only, Qt Core only, so a host can use it without the plug-in's code.

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zrk {

namespace detail {

constexpr int hexDigit(unsigned u)
{
    return u >= '0' && u <= '9' ? int(u - '0')
        : u >= 'a' && u <= 'f'  ? int(u - 'a' + 10)
        : u >= 'A' && u <= 'F'  ? int(u - 'A' + 10)
                                : -1;
}

constexpr bool isHexSpace(unsigned u)
{
    return u == ' ' || u == '\t' || u == '\r' || u == '\n' || u == '\v' || u == '\f';
}

// What a byte is in hex text: its digit value (0..15), kHexSpace or kHexBad.
constexpr unsigned char kHexSpace = 16;
constexpr unsigned char kHexBad = 17;
struct HexTable
{
    unsigned char of[256];
};
constexpr HexTable makeHexTable()
{
    HexTable t {};
    for (unsigned u = 0; u < 256; ++u)
        t.of[u] = hexDigit(u) >= 0 ? static_cast<unsigned char>(hexDigit(u))
            : isHexSpace(u)        ? kHexSpace
                                   : kHexBad;
    return t;
}
inline constexpr HexTable kHexTable = makeHexTable();

template <class Ch> unsigned hexClass(Ch c)
{
    const unsigned u = static_cast<unsigned>(c);
    return u < 256 ? kHexTable.of[u] : unsigned(kHexBad);
}

} // namespace detail

// The result of decodeHex: bytes written, hex digits seen, and the index of the first character
// that is neither a hex digit nor white space (-1: none).
struct HexDecoded
{
    int bytes = 0;
    int digits = 0;
    int badAt = -1;
    bool ok() const { return badAt < 0 && digits % 2 == 0; }
};

// The rule of parseHex without allocating: decodes s[0..n) into out, which has room for n / 2
// bytes. Stops at the first character that is neither a hex digit nor white space.
template <class Ch> HexDecoded decodeHex(const Ch* s, int n, unsigned char* out)
{
    HexDecoded r;
    unsigned char* o = out;
    unsigned high = 0;
    bool half = false; // a digit waits for its pair
    int i = 0;
    while (i < n) {
        // Pairs of digits, the common case, two characters at a time.
        if (!half && i + 1 < n) {
            const unsigned a = detail::hexClass(s[i]), b = detail::hexClass(s[i + 1]);
            if ((a | b) < 16) {
                *o++ = static_cast<unsigned char>(a << 4 | b);
                i += 2;
                continue;
            }
        }
        const unsigned v = detail::hexClass(s[i]);
        if (v < 16) {
            if (half)
                *o++ = static_cast<unsigned char>(high << 4 | v);
            else
                high = v;
            half = !half;
        } else if (v == detail::kHexBad) {
            r.badAt = i;
            break;
        }
        ++i;
    }
    r.bytes = int(o - out);
    r.digits = 2 * r.bytes + (half ? 1 : 0);
    return r;
}

namespace detail {

template <class Ch> bool parseHexChars(const Ch* s, int n, QByteArray& out, QString* why)
{
    QByteArray bytes(n / 2, Qt::Uninitialized);
    const HexDecoded r = decodeHex(s, n, reinterpret_cast<unsigned char*>(bytes.data()));
    if (r.badAt >= 0) {
        if (why)
            *why = QStringLiteral("'%1' is not a hex digit").arg(QChar(ushort(s[r.badAt])));
        return false;
    }
    if (r.digits % 2) {
        if (why)
            *why = QStringLiteral("odd number of hex digits (%1)").arg(r.digits);
        return false;
    }
    bytes.truncate(r.bytes);
    out = bytes;
    return true;
}

} // namespace detail

// Hex bytes: pairs of hex digits, either case; ASCII white space anywhere (between or inside
// pairs) is ignored; anything else, or an odd number of digits, is an error with the reason in why.
inline bool parseHex(const QString& text, QByteArray& out, QString* why = nullptr)
{
    return detail::parseHexChars(text.utf16(), text.size(), out, why);
}
inline bool parseHex(const QByteArray& text, QByteArray& out, QString* why = nullptr)
{
    return detail::parseHexChars(reinterpret_cast<const uchar*>(text.constData()), text.size(), out, why);
}

// One CSV cell: quoted (with doubled quotes) only when it holds a comma, a quote or a line break.
inline QString csvCell(const QString& s)
{
    const bool plain = !s.contains(QLatin1Char(',')) && !s.contains(QLatin1Char('"'))
        && !s.contains(QLatin1Char('\n')) && !s.contains(QLatin1Char('\r'));
    if (plain)
        return s;
    QString q = s;
    q.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + q + QLatin1Char('"');
}

inline QString csvLine(const QStringList& cells)
{
    QStringList quoted;
    quoted.reserve(cells.size());
    for (const QString& c : cells)
        quoted << csvCell(c);
    return quoted.join(QLatin1Char(','));
}

} // namespace zrk
