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

template <class Ch> bool parseHexChars(const Ch* s, int n, QByteArray& out, QString* why)
{
    QByteArray bytes;
    bytes.reserve(n / 2);
    int digits = 0;
    int high = 0;
    for (int i = 0; i < n; ++i) {
        const unsigned u = s[i];
        if (isHexSpace(u))
            continue;
        const int d = hexDigit(u);
        if (d < 0) {
            if (why)
                *why = QStringLiteral("'%1' is not a hex digit").arg(QChar(ushort(u)));
            return false;
        }
        if (digits++ % 2)
            bytes.append(char(high << 4 | d));
        else
            high = d;
    }
    if (digits % 2) {
        if (why)
            *why = QStringLiteral("odd number of hex digits (%1)").arg(digits);
        return false;
    }
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
