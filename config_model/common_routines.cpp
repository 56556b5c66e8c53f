#include "config_model/common_routines.h"

#include <QFile>
#include <QSaveFile>

namespace {

// The tables follow the usual rule: entry i is the register after shifting the byte i through
// eight steps of the polynomial division, most significant bit first.
constexpr std::array<std::uint8_t, 256> makeCrc8Table(std::uint8_t poly)
{
    std::array<std::uint8_t, 256> table {};
    for (int i = 0; i < 256; ++i) {
        std::uint8_t crc = static_cast<std::uint8_t>(i);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x80) ? static_cast<std::uint8_t>((crc << 1) ^ poly)
                               : static_cast<std::uint8_t>(crc << 1);
        table[i] = crc;
    }
    return table;
}

constexpr std::array<std::uint16_t, 256> makeCrc16Table(std::uint16_t poly)
{
    std::array<std::uint16_t, 256> table {};
    for (int i = 0; i < 256; ++i) {
        std::uint16_t crc = static_cast<std::uint16_t>(i << 8);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000) ? static_cast<std::uint16_t>((crc << 1) ^ poly)
                                 : static_cast<std::uint16_t>(crc << 1);
        table[i] = crc;
    }
    return table;
}

constexpr auto kCrc8Table = makeCrc8Table(0x31);
constexpr auto kCrc16Table = makeCrc16Table(0x1021);

// The reflected polynomial of CRC-32.
constexpr std::uint32_t kCrc32Poly = 0xEDB88320u;

inline std::uint16_t crc16Step(std::uint16_t crc, std::uint8_t byte)
{
    return static_cast<std::uint16_t>((crc << 8) ^ kCrc16Table[((crc >> 8) ^ byte) & 0xFF]);
}

} // namespace

unsigned char SummCRC8(unsigned char* data, unsigned int len)
{
    std::uint8_t crc = 0xFF;
    for (unsigned int i = 0; i < len; ++i)
        crc = kCrc8Table[crc ^ data[i]];
    return crc;
}

unsigned short SummCRC16(unsigned char* data, unsigned short len)
{
    return eval_crc16(0xFFFF, data, len);
}

unsigned short SummPlusCRC16(unsigned short crc, unsigned char* data, unsigned short len)
{
    return eval_crc16(crc, data, len);
}

unsigned short eval_crc16(unsigned short crc, unsigned char const* data, unsigned int len)
{
    std::uint16_t value = crc;
    for (unsigned int i = 0; i < len; ++i)
        value = crc16Step(value, data[i]);
    return value;
}

bool saveWholeFile(const QString& path, const QByteArray& bytes, QString* reason)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    if (reason)
        *reason = file.errorString();
    return false;
}

bool getBitFromStrByte(const QString& digits, int pos)
{
    if (pos < 0 || pos >= digits.size())
        return false;
    const QChar c = digits.at(pos);
    return c >= QLatin1Char('1') && c <= QLatin1Char('9');
}

QString getStrByteFromBit(int value)
{
    return value < 1 ? QStringLiteral("0") : QStringLiteral("1");
}

QString getStrFromFloat(float value, int n)
{
    return QStringLiteral("%1").arg(static_cast<double>(value), n, 'f', n, QLatin1Char(' '));
}

unsigned long htonl32(unsigned long value)
{
    const std::uint32_t low = static_cast<std::uint32_t>(value & 0xFFFFFFFFul);
    const std::uint32_t swapped = ((low & 0x000000FFu) << 24) | ((low & 0x0000FF00u) << 8)
        | ((low & 0x00FF0000u) >> 8) | ((low & 0xFF000000u) >> 24);
    // On a platform where long is 32 bits wide the mask is all ones and nothing is kept.
    const unsigned long upper = value & ~static_cast<unsigned long>(0xFFFFFFFFul);
    return upper | swapped;
}

unsigned long long htonl64(unsigned long long value)
{
    unsigned long long out = 0;
    for (int i = 0; i < 8; ++i) {
        out = (out << 8) | (value & 0xFFu);
        value >>= 8;
    }
    return out;
}

crc32::crc32()
{
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t c = i;
        for (int bit = 0; bit < 8; ++bit)
            c = (c & 1) ? (c >> 1) ^ kCrc32Poly : c >> 1;
        m_table[i] = c;
    }
}

std::uint32_t crc32::ProcessCRC(const void* data, int len)
{
    const auto* p = static_cast<const std::uint8_t*>(data);
    // The running value is kept as the finished check sum, so that it can be read at any point.
    // Per byte that is value' = (value >> 8) ^ table[(byte ^ value) & 0xFF] ^ 0xD202EF8D, the
    // constant being table[0xFF] ^ 0xFF000000 (the table is linear, so it stands for the
    // inversion before and after each step). The same step on the inverted value is the plain
    // reflected CRC step without the constant, one operation less on the chain every byte waits for.
    std::uint32_t inverted = ~m_value;
    for (int i = 0; i < len; ++i)
        inverted = (inverted >> 8) ^ m_table[(p[i] ^ inverted) & 0xFF];
    m_value = ~inverted;
    return m_value;
}

std::uint32_t crc32::FileCRC(const QString& path)
{
    ClearCRC();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    char block[512];
    for (;;) {
        const qint64 got = file.read(block, sizeof block);
        if (got <= 0)
            break;
        ProcessCRC(block, static_cast<int>(got));
    }
    file.close();
    return m_value;
}
