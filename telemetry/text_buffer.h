#pragma once

// Text built piece by piece into one growing byte buffer (UTF-8): numbers are formatted in place,
// so writing the thousands of values of a record export allocates nothing per value. The number
// texts are those of Qt's own formatting, so a text made here equals the QString one.

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace zrk {

class TextBuffer
{
public:
    TextBuffer() = default;
    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;
    TextBuffer(TextBuffer&& other) noexcept;
    TextBuffer& operator=(TextBuffer&& other) noexcept;
    ~TextBuffer() { std::free(m_data); }

    const char* data() const { return m_data; }
    char* data() { return m_data; }
    std::size_t size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    void clear() { m_size = 0; }
    void truncate(std::size_t size)
    {
        if (size < m_size)
            m_size = size;
    }

    // Room for n more bytes at the end; write them there, then advance by what was written.
    char* room(std::size_t n)
    {
        if (m_capacity - m_size < n)
            grow(n);
        return m_data + m_size;
    }
    void advance(std::size_t n) { m_size += n; }

    void append(char c) { *room(1) = c, ++m_size; }
    void append(const char* s, std::size_t n)
    {
        if (n > 0) {
            std::memcpy(room(n), s, n);
            m_size += n;
        }
    }
    template <std::size_t N> void appendLiteral(const char (&s)[N]) { append(s, N - 1); }
    void append(const QByteArray& bytes) { append(bytes.constData(), std::size_t(bytes.size())); }
    void appendUtf8(const QString& text);
    void appendUtf8(QChar c);

    void appendUnsigned(quint64 value);
    void appendSigned(qint64 value);
    // value / 10^decimals with exactly that many decimals (from an integer: no binary rounding).
    void appendFixedPoint(qint64 value, int decimals);
    // As QString::number(value, 'f', decimals): ties away from zero, "-0" shown as "0", "nan", "inf".
    void appendFixed(double value, int decimals);
    // The shortest text that reads back as the same value; "nan", "inf", "-inf" as QString::number.
    void appendShortest(float value);
    void appendShortest(double value);
    // A finite value as Qt's JSON writer writes a double.
    void appendJsonNumber(double value);
    // Lower-case hex of n bytes.
    void appendHex(const unsigned char* bytes, int n);
    // The 8 bits of a byte, most significant first.
    void appendBits(unsigned char byte);

    QString toString(std::size_t from = 0) const
    {
        return QString::fromUtf8(m_data + from, int(m_size - from));
    }

private:
    void grow(std::size_t n);

    char* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace zrk
