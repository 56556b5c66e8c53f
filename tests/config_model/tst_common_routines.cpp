#include "config_model/common_routines.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstdint>
#include <random>

// Independent, bit-at-a-time forms of the three check sums straight from their definitions; the
// routines under test are table-driven.
namespace ref {

std::uint8_t crc8(const QByteArray& d)
{
    std::uint8_t crc = 0xFF;
    for (char ch : d) {
        crc ^= static_cast<std::uint8_t>(ch);
        for (int i = 0; i < 8; ++i)
            crc = (crc & 0x80) ? static_cast<std::uint8_t>((crc << 1) ^ 0x31)
                               : static_cast<std::uint8_t>(crc << 1);
    }
    return crc;
}

std::uint16_t crc16(std::uint16_t crc, const QByteArray& d)
{
    for (char ch : d) {
        crc ^= static_cast<std::uint16_t>(static_cast<std::uint8_t>(ch) << 8);
        for (int i = 0; i < 8; ++i)
            crc = (crc & 0x8000) ? static_cast<std::uint16_t>((crc << 1) ^ 0x1021)
                                 : static_cast<std::uint16_t>(crc << 1);
    }
    return crc;
}

std::uint32_t crc32(const QByteArray& d)
{
    std::uint32_t crc = 0xFFFFFFFFu;
    for (char ch : d) {
        crc ^= static_cast<std::uint8_t>(ch);
        for (int i = 0; i < 8; ++i)
            crc = (crc & 1) ? (crc >> 1) ^ 0xEDB88320u : crc >> 1;
    }
    return ~crc;
}

} // namespace ref

namespace {

QByteArray randomBytes(int n, unsigned seed)
{
    std::mt19937 gen(seed);
    QByteArray out(n, Qt::Uninitialized);
    for (int i = 0; i < n; ++i)
        out[i] = static_cast<char>(gen() & 0xFF);
    return out;
}

unsigned char* bytes(QByteArray& a)
{
    return reinterpret_cast<unsigned char*>(a.data());
}

} // namespace

class tst_CommonRoutines : public QObject
{
    Q_OBJECT
private slots:
    void checkValues_data();
    void checkValues();
    void tablesMatchBitwiseDefinition();
    void crc16ContinuesAtEverySplit();
    void crc16LengthIsSixteenBits();
    void crc32RunningValue();
    void fileCrc_data();
    void fileCrc();
    void bitFromByte_data();
    void bitFromByte();
    void setBitToByte_data();
    void setBitToByte();
    void bitFromStrByte_data();
    void bitFromStrByte();
    void strByteFromBit_data();
    void strByteFromBit();
    void strFromFloat_data();
    void strFromFloat();
    void byteOrder();
};

// Published check values of CRC-8/NRSC-5, CRC-16/IBM-3740 and CRC-32/ISO-HDLC.
void tst_CommonRoutines::checkValues_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<uint>("crc8");
    QTest::addColumn<uint>("crc16");
    QTest::addColumn<uint>("crc32");
    QTest::newRow("digits 1-9") << QByteArray("123456789") << 0xF7u << 0x29B1u << 0xCBF43926u;
    QTest::newRow("empty") << QByteArray() << 0xFFu << 0xFFFFu << 0u;
    QTest::newRow("A") << QByteArray("A") << uint(ref::crc8("A")) << 0xB915u << 0xD3D99E8Bu;
    QTest::newRow("quick fox") << QByteArray("The quick brown fox jumps over the lazy dog")
                               << uint(ref::crc8("The quick brown fox jumps over the lazy dog")) << 0x8FDDu
                               << 0x414FA339u;
}

void tst_CommonRoutines::checkValues()
{
    QFETCH(QByteArray, data);
    QFETCH(uint, crc8);
    QFETCH(uint, crc16);
    QFETCH(uint, crc32);
    QCOMPARE(uint(SummCRC8(bytes(data), data.size())), crc8);
    QCOMPARE(uint(SummCRC16(bytes(data), static_cast<unsigned short>(data.size()))), crc16);
    QCOMPARE(uint(eval_crc16(0xFFFF, bytes(data), data.size())), crc16);
    ::crc32 c;
    QCOMPARE(uint(c.ProcessCRC(data.constData(), data.size())), crc32);
}

// Every single byte value after every starting state exercises each table entry.
void tst_CommonRoutines::tablesMatchBitwiseDefinition()
{
    for (int b = 0; b < 256; ++b) {
        QByteArray one(1, char(b));
        QCOMPARE(SummCRC8(bytes(one), 1), ref::crc8(one));
        QCOMPARE(SummCRC16(bytes(one), 1), ref::crc16(0xFFFF, one));
        ::crc32 c;
        QCOMPARE(c.ProcessCRC(one.constData(), 1), ref::crc32(one));
    }
    QByteArray data = randomBytes(4099, 7);
    QCOMPARE(SummCRC8(bytes(data), data.size()), ref::crc8(data));
    QCOMPARE(SummCRC16(bytes(data), static_cast<unsigned short>(data.size())), ref::crc16(0xFFFF, data));
    ::crc32 c;
    QCOMPARE(c.ProcessCRC(data.constData(), data.size()), ref::crc32(data));
}

void tst_CommonRoutines::crc16ContinuesAtEverySplit()
{
    QByteArray digits("123456789");
    for (int split = 0; split <= digits.size(); ++split) {
        const unsigned short first = SummCRC16(bytes(digits), static_cast<unsigned short>(split));
        const unsigned short whole
            = SummPlusCRC16(first, bytes(digits) + split, static_cast<unsigned short>(digits.size() - split));
        QCOMPARE(whole, static_cast<unsigned short>(0x29B1));
        QCOMPARE(eval_crc16(first, bytes(digits) + split, digits.size() - split),
            static_cast<unsigned short>(0x29B1));
    }
    QCOMPARE(SummPlusCRC16(0x1234, bytes(digits), 0), static_cast<unsigned short>(0x1234));
    QCOMPARE(eval_crc16(0xBEEF, nullptr, 0), static_cast<unsigned short>(0xBEEF));
}

// A 16-bit length covers at most 65,535 bytes; the 32-bit continuation covers the rest.
void tst_CommonRoutines::crc16LengthIsSixteenBits()
{
    QByteArray data = randomBytes(70000, 3);
    const unsigned short max = SummCRC16(bytes(data), 0xFFFF);
    QCOMPARE(max, ref::crc16(0xFFFF, data.left(0xFFFF)));
    QCOMPARE(eval_crc16(0xFFFF, bytes(data), data.size()), ref::crc16(0xFFFF, data));
    QCOMPARE(SummPlusCRC16(max, bytes(data) + 0xFFFF, static_cast<unsigned short>(data.size() - 0xFFFF)),
        ref::crc16(0xFFFF, data));
}

void tst_CommonRoutines::crc32RunningValue()
{
    const QByteArray data = randomBytes(1000, 11);
    ::crc32 c;
    for (int i = 0; i < data.size(); i += 37) {
        const int n = qMin(37, data.size() - i);
        c.ProcessCRC(data.constData() + i, n);
        // The running value is a finished check sum after every block.
        QCOMPARE(c.value(), ref::crc32(data.left(i + n)));
    }
    QCOMPARE(c.ProcessCRC(data.constData(), 0), ref::crc32(data));
    QCOMPARE(c.ProcessCRC(data.constData(), -5), ref::crc32(data));
    c.ClearCRC();
    QCOMPARE(c.ProcessCRC("123456789", 9), 0xCBF43926u);
}

void tst_CommonRoutines::fileCrc_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<uint>("expected");
    QTest::newRow("digits") << QByteArray("123456789") << true << 0xCBF43926u;
    QTest::newRow("missing") << QByteArray() << false << 0u;
    QTest::newRow("empty") << QByteArray() << true << 0u;
    const QByteArray big = randomBytes(512 * 3 + 100, 5);
    QTest::newRow("several blocks") << big << true << ref::crc32(big);
    const QByteArray exact = randomBytes(1024, 6);
    QTest::newRow("whole blocks") << exact << true << ref::crc32(exact);
}

void tst_CommonRoutines::fileCrc()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, exists);
    QFETCH(uint, expected);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("config.xml"));
    if (exists) {
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(content);
    }
    ::crc32 c;
    c.ProcessCRC("stale", 5);
    QCOMPARE(uint(c.FileCRC(path)), expected);
}

void tst_CommonRoutines::bitFromByte_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("pos");
    QTest::addColumn<int>("bit");
    QTest::addColumn<int>("twoBits");
    QTest::newRow("lsb set") << 0x01 << 0 << 1 << 1;
    QTest::newRow("lsb clear") << 0xFE << 0 << 0 << 2;
    QTest::newRow("msb") << 0x80 << 7 << 1 << 0;
    QTest::newRow("pair 6 of C0") << 0xC0 << 6 << 1 << 3;
    QTest::newRow("pair 5 of 0x60") << 0x60 << 5 << 1 << 3;
    QTest::newRow("pair 3 of 0x10") << 0x10 << 3 << 0 << 2;
    QTest::newRow("pos 8") << 0xFF << 8 << 0 << 0;
    QTest::newRow("pair at 7") << 0xFF << 7 << 1 << 0;
    QTest::newRow("negative") << 0xFF << -1 << 0 << 0;
    QTest::newRow("huge") << 0xFF << 1000 << 0 << 0;
}

void tst_CommonRoutines::bitFromByte()
{
    QFETCH(int, value);
    QFETCH(int, pos);
    QFETCH(int, bit);
    QFETCH(int, twoBits);
    QCOMPARE(getBitFromByte(static_cast<unsigned char>(value), pos), bit);
    QCOMPARE(get2BitFromByte(static_cast<unsigned char>(value), pos), twoBits);
}

void tst_CommonRoutines::setBitToByte_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("pos");
    QTest::addColumn<int>("bit");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("returned");
    QTest::newRow("set 0") << 0x00 << 0 << 1 << 0x01 << 0x01;
    QTest::newRow("set 7 with 0xFF") << 0x00 << 7 << 0xFF << 0x80 << 0x80;
    QTest::newRow("set already set") << 0x08 << 3 << 1 << 0x08 << 0x08;
    QTest::newRow("zero never clears") << 0x08 << 3 << 0 << 0x08 << 0x08;
    QTest::newRow("zero on clear bit") << 0x05 << 1 << 0 << 0x05 << 0x05;
    QTest::newRow("pos 8 untouched") << 0x05 << 8 << 1 << 0x05 << 0x00;
    QTest::newRow("negative untouched") << 0x05 << -1 << 1 << 0x05 << 0x00;
}

void tst_CommonRoutines::setBitToByte()
{
    QFETCH(int, before);
    QFETCH(int, pos);
    QFETCH(int, bit);
    QFETCH(int, after);
    QFETCH(int, returned);
    unsigned char value = static_cast<unsigned char>(before);
    QCOMPARE(int(::setBitToByte(value, pos, static_cast<unsigned char>(bit))), returned);
    QCOMPARE(int(value), after);
}

void tst_CommonRoutines::bitFromStrByte_data()
{
    QTest::addColumn<QString>("digits");
    QTest::addColumn<int>("pos");
    QTest::addColumn<bool>("expected");
    QTest::newRow("0101 @1") << "0101" << 1 << true;
    QTest::newRow("0101 @0") << "0101" << 0 << false;
    QTest::newRow("0101 @3") << "0101" << 3 << true;
    QTest::newRow("0101 @4") << "0101" << 4 << false;
    QTest::newRow("0101 @9") << "0101" << 9 << false;
    QTest::newRow("negative") << "1111" << -1 << false;
    QTest::newRow("other digit") << "0501" << 1 << true;
    QTest::newRow("letter") << "0x01" << 1 << false;
    QTest::newRow("space") << "1 1" << 1 << false;
    QTest::newRow("empty") << "" << 0 << false;
}

void tst_CommonRoutines::bitFromStrByte()
{
    QFETCH(QString, digits);
    QFETCH(int, pos);
    QFETCH(bool, expected);
    QCOMPARE(getBitFromStrByte(digits, pos), expected);
}

void tst_CommonRoutines::strByteFromBit_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("negative") << -3 << "0";
    QTest::newRow("zero") << 0 << "0";
    QTest::newRow("one") << 1 << "1";
    QTest::newRow("many") << 255 << "1";
}

void tst_CommonRoutines::strByteFromBit()
{
    QFETCH(int, value);
    QFETCH(QString, expected);
    QCOMPARE(getStrByteFromBit(value), expected);
}

void tst_CommonRoutines::strFromFloat_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("expected");
    QTest::newRow("1.5, 2") << 1.5f << 2 << "1.50";
    QTest::newRow("rounding") << 2.125f << 1 << "2.1";
    QTest::newRow("negative") << -0.25f << 3 << "-0.250";
    QTest::newRow("no decimals") << 12.0f << 0 << "12";
    QTest::newRow("big") << 1048576.0f << 1 << "1048576.0";
}

void tst_CommonRoutines::strFromFloat()
{
    QFETCH(float, value);
    QFETCH(int, n);
    QFETCH(QString, expected);
    QCOMPARE(getStrFromFloat(value, n), expected);
}

void tst_CommonRoutines::byteOrder()
{
    QCOMPARE(htonl32(0x12345678ul), 0x78563412ul);
    QCOMPARE(htonl32(0x000000FFul), 0xFF000000ul);
    // Called twice: the routine has no state that changes its result.
    QCOMPARE(htonl32(0x12345678ul), 0x78563412ul);
    if (sizeof(unsigned long) == 8)
        QCOMPARE(htonl32(static_cast<unsigned long>(0x1122334455667788ull)),
            static_cast<unsigned long>(0x1122334488776655ull));
    QCOMPARE(htonl64(0x0102030405060708ull), 0x0807060504030201ull);
    QCOMPARE(htonl64(0xFF00000000000000ull), 0x00000000000000FFull);
}

QTEST_APPLESS_MAIN(tst_CommonRoutines)
#include "tst_common_routines.moc"
