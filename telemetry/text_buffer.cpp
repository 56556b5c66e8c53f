#include "telemetry/text_buffer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <new>
#include <utility>

namespace zrk {

namespace {

// "00" to "99": two digits at a time.
constexpr char kDigitPairs[]
    = "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
      "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
      "8081828384858687888990919293949596979899";

// Writes the decimal digits of v ending just before end; returns where they start.
char* digitsBackwards(char* end, quint64 v)
{
    while (v >= 100) {
        const unsigned pair = unsigned(v % 100) * 2;
        v /= 100;
        *--end = kDigitPairs[pair + 1];
        *--end = kDigitPairs[pair];
    }
    if (v >= 10) {
        *--end = kDigitPairs[v * 2 + 1];
        *--end = kDigitPairs[v * 2];
    } else {
        *--end = char('0' + v);
    }
    return end;
}

bool appendNonFinite(TextBuffer& out, double value)
{
    if (std::isnan(value)) {
        out.appendLiteral("nan");
        return true;
    }
    if (std::isinf(value)) {
        if (value < 0)
            out.appendLiteral("-inf");
        else
            out.appendLiteral("inf");
        return true;
    }
    return false;
}

} // namespace

TextBuffer::TextBuffer(TextBuffer&& other) noexcept
    : m_data(std::exchange(other.m_data, nullptr))
    , m_size(std::exchange(other.m_size, 0))
    , m_capacity(std::exchange(other.m_capacity, 0))
{
}

TextBuffer& TextBuffer::operator=(TextBuffer&& other) noexcept
{
    if (this != &other) {
        std::free(m_data);
        m_data = std::exchange(other.m_data, nullptr);
        m_size = std::exchange(other.m_size, 0);
        m_capacity = std::exchange(other.m_capacity, 0);
    }
    return *this;
}

void TextBuffer::grow(std::size_t n)
{
    const std::size_t capacity = std::max({ m_capacity * 2, m_size + n, std::size_t(4096) });
    char* data = static_cast<char*>(std::realloc(m_data, capacity));
    if (!data)
        throw std::bad_alloc();
    m_data = data;
    m_capacity = capacity;
}

void TextBuffer::appendUtf8(const QString& text)
{
    for (const QChar c : text)
        appendUtf8(c);
}

void TextBuffer::appendUtf8(QChar c)
{
    const unsigned u = c.unicode();
    char* p = room(3);
    if (u < 0x80) {
        *p = char(u);
        ++m_size;
    } else if (u < 0x800) {
        p[0] = char(0xC0 | (u >> 6));
        p[1] = char(0x80 | (u & 0x3F));
        m_size += 2;
    } else {
        p[0] = char(0xE0 | (u >> 12));
        p[1] = char(0x80 | ((u >> 6) & 0x3F));
        p[2] = char(0x80 | (u & 0x3F));
        m_size += 3;
    }
}

void TextBuffer::appendUnsigned(quint64 value)
{
    char digits[20];
    char* end = digits + sizeof digits;
    const char* start = digitsBackwards(end, value);
    append(start, std::size_t(end - start));
}

void TextBuffer::appendSigned(qint64 value)
{
    if (value < 0) {
        append('-');
        appendUnsigned(quint64(0) - quint64(value));
    } else {
        appendUnsigned(quint64(value));
    }
}

void TextBuffer::appendFixedPoint(qint64 value, int decimals)
{
    quint64 scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    const quint64 a = value < 0 ? quint64(0) - quint64(value) : quint64(value);
    if (value < 0)
        append('-');
    appendUnsigned(a / scale);
    if (decimals <= 0)
        return;
    append('.');
    char digits[20];
    char* end = digits + sizeof digits;
    char* start = digitsBackwards(end, a % scale);
    while (end - start < decimals)
        *--start = '0';
    append(start, std::size_t(end - start));
}

void TextBuffer::appendFixed(double value, int decimals)
{
    if (appendNonFinite(*this, value))
        return;
    const double a = std::fabs(value);
    if (value < 0)
        append('-');
    // The exact digits of a double reach past 300 places before the point.
    const std::size_t most = 330 + std::size_t(decimals);
    char* p = room(most + 1);
    // The C library rounds a tie to even, Qt away from zero. A value exactly half a unit of the
    // last decimal past it is an odd multiple of 2^-(decimals + 1): its exact digits end in that 5,
    // which is dropped, and the digits before it are counted up by one.
    const double halves = std::ldexp(a, decimals + 1);
    if (halves < 9007199254740992.0 && halves == std::floor(halves) && std::fmod(halves, 2.0) == 1.0) {
        char* end = std::to_chars(p + 1, p + 1 + most, a, std::chars_format::fixed, decimals + 1).ptr - 1;
        if (decimals == 0)
            --end; // the point before the dropped digit
        char* q = end;
        while (q > p + 1) {
            --q;
            if (*q == '.')
                continue;
            if (*q != '9') {
                ++*q;
                break;
            }
            *q = '0';
        }
        const bool carried = q == p + 1 && *q == '0';
        if (carried)
            *p = '1';
        const std::size_t n = std::size_t(end - (p + 1)) + (carried ? 1 : 0);
        if (!carried)
            std::memmove(p, p + 1, n);
        advance(n);
        return;
    }
    advance(std::size_t(std::to_chars(p, p + most, a, std::chars_format::fixed, decimals).ptr - p));
}

void TextBuffer::appendShortest(float value)
{
    if (appendNonFinite(*this, double(value)))
        return;
    char* p = room(32);
    advance(std::size_t(std::to_chars(p, p + 32, value).ptr - p));
}

void TextBuffer::appendShortest(double value)
{
    if (appendNonFinite(*this, value))
        return;
    char* p = room(32);
    advance(std::size_t(std::to_chars(p, p + 32, value).ptr - p));
}

void TextBuffer::appendJsonNumber(double value)
{
    if (value == 0 || !std::isfinite(value)) {
        append('0');
        return;
    }
    // Qt writes the shortest digits, in decimal form from 0.0001 up to 2^64 (further while that
    // is at most five characters longer than the digits), otherwise in exponent form.
    char text[32];
    const char* end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific).ptr;
    const char* p = text;
    if (*p == '-')
        append(*p++);
    const char* e = std::find(p, end, 'e');
    char digits[20];
    int count = 0;
    for (const char* c = p; c < e; ++c) {
        if (*c != '.')
            digits[count++] = *c;
    }
    int exponent = 0;
    std::from_chars(e + (e[1] == '+' ? 2 : 1), end, exponent);
    const int point = exponent + 1; // digits before the decimal point
    const bool decimal = point >= -3 && (point <= count + 5 || std::fabs(value) < 18446744073709551616.0);
    if (!decimal) {
        append(p, std::size_t(end - p));
        return;
    }
    if (point <= 0) {
        appendLiteral("0.");
        for (int i = 0; i < -point; ++i)
            append('0');
        append(digits, std::size_t(count));
    } else if (point < count) {
        append(digits, std::size_t(point));
        append('.');
        append(digits + point, std::size_t(count - point));
    } else {
        append(digits, std::size_t(count));
        for (int i = count; i < point; ++i)
            append('0');
    }
}

void TextBuffer::appendHex(const unsigned char* bytes, int n)
{
    static const char kHex[] = "0123456789abcdef";
    if (n <= 0)
        return;
    char* p = room(std::size_t(n) * 2);
    for (int i = 0; i < n; ++i) {
        *p++ = kHex[bytes[i] >> 4];
        *p++ = kHex[bytes[i] & 15];
    }
    advance(std::size_t(n) * 2);
}

void TextBuffer::appendBits(unsigned char byte)
{
    char* p = room(8);
    for (int i = 0; i < 8; ++i)
        p[i] = char('0' + ((byte >> (7 - i)) & 1));
    advance(8);
}

} // namespace zrk
