#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>

// Check sums over byte buffers, bit access in bytes and in strings of "0"/"1" digits, byte-order
// reversal and number-to-text routines shared by the pages, the telemetry view and the packets.
// None of them allocates except the routines that return a QString.

// CRC-8, polynomial 0x31, initial value 0xFF, no reflection, no final XOR (check value 0xF7 over
// "123456789"). 0xFF for an empty buffer.
unsigned char SummCRC8(unsigned char* data, unsigned int len);

// CRC-16, polynomial 0x1021, initial value 0xFFFF, most significant bit first, no final XOR
// (check value 0x29B1 over "123456789"). The length is 16 bits wide. 0xFFFF for an empty buffer.
unsigned short SummCRC16(unsigned char* data, unsigned short len);

// Continues the CRC-16 above from crc over further bytes; crc unchanged for an empty buffer.
unsigned short SummPlusCRC16(unsigned short crc, unsigned char* data, unsigned short len);

// The same continuation with a 32-bit length.
unsigned short eval_crc16(unsigned short crc, unsigned char const* data, unsigned int len);

// The count bits starting at bit pos (0 = least significant) as a number; 0 unless all of them
// lie in 0..7. Every bit read of the project goes through here; constexpr for the record tables.
constexpr int bitsFromByte(unsigned char value, int pos, int count)
{
    return pos < 0 || count < 1 || pos + count > 8 ? 0 : (value >> pos) & ((1 << count) - 1);
}

// Bit pos as 0 or 1; any position outside 0..7 gives 0.
constexpr int getBitFromByte(unsigned char value, int pos)
{
    return bitsFromByte(value, pos, 1);
}

// The two bits starting at pos; any position outside 0..6 gives 0.
constexpr int get2BitFromByte(unsigned char value, int pos)
{
    return bitsFromByte(value, pos, 2);
}

// Sets bit pos of value when bit is non-zero and returns the new value. A zero bit leaves value
// unchanged: this routine never clears a bit, its callers build bytes up from zero. A position
// outside 0..7 changes nothing and returns 0.
constexpr unsigned char setBitToByte(unsigned char& value, int pos, unsigned char bit)
{
    if (pos < 0 || pos > 7)
        return 0;
    if (bit != 0)
        value = static_cast<unsigned char>(value | (1u << pos));
    return value;
}

// The digit at pos of a string of "0"/"1" characters, non-zero giving true; false when pos is
// outside the string or the character there is not a digit.
bool getBitFromStrByte(const QString& digits, int pos);

// "0" for values below 1, else "1".
QString getStrByteFromBit(int value);

// value in fixed-point notation with n decimals, right-aligned in a field of n characters.
QString getStrFromFloat(float value, int n);

// The low 32 bits in reversed byte order (the wire's big-endian order); the upper bits are kept.
unsigned long htonl32(unsigned long value);

// All eight bytes in reversed order.
unsigned long long htonl64(unsigned long long value);

// Writes bytes to path whole or not at all: a file that cannot be written completely leaves the
// old one as it was. On failure reason (when given) gets the system's text of the fault.
bool saveWholeFile(const QString& path, const QByteArray& bytes, QString* reason = nullptr);

// CRC-32 of IEEE 802.3 (the one zlib computes), kept as a running value that is at every point
// the finished check sum of the bytes seen so far (check value 0xCBF43926 over "123456789").
class crc32
{
public:
    crc32();

    void ClearCRC() { m_value = 0; }
    // Continues the running value over len bytes and returns it; nothing for len below 1.
    std::uint32_t ProcessCRC(const void* data, int len);
    // The check sum of a whole file, read in blocks of 512 bytes; 0 when the file cannot be
    // opened, as for an empty file.
    std::uint32_t FileCRC(const QString& path);

    std::uint32_t value() const { return m_value; }

private:
    std::array<std::uint32_t, 256> m_table;
    std::uint32_t m_value = 0;
};
