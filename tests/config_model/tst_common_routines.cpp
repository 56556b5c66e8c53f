#include "config_model/common_routines.h"
#include "device/common_functions.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstdint>

namespace {

// The three check sums bit at a time, straight from their definitions (the routines under test
// are table-driven): most significant bit first for CRC-8 and CRC-16, reflected with the final
// inversion for CRC-32.
std::uint32_t bitwise(const QByteArray& d, int width, std::uint32_t poly, std::uint32_t crc)
{
    const std::uint32_t top = 1u << (width - 1), mask = top | (top - 1);
    for (char ch : d) {
        const auto byte = static_cast<std::uint8_t>(ch);
        crc ^= width == 32 ? byte : static_cast<std::uint32_t>(byte) << (width - 8);
        for (int i = 0; i < 8; ++i) {
            if (width == 32)
                crc = (crc & 1) ? (crc >> 1) ^ poly : crc >> 1;
            else
                crc = ((crc & top) ? (crc << 1) ^ poly : crc << 1) & mask;
        }
    }
    return width == 32 ? ~crc : crc;
}

std::uint8_t refCrc8(const QByteArray& d)
{
    return std::uint8_t(bitwise(d, 8, 0x31, 0xFF));
}
std::uint16_t refCrc16(const QByteArray& d)
{
    return std::uint16_t(bitwise(d, 16, 0x1021, 0xFFFF));
}
std::uint32_t refCrc32(const QByteArray& d)
{
    return bitwise(d, 32, 0xEDB88320u, 0xFFFFFFFFu);
}

unsigned char* bytes(QByteArray& a)
{
    return reinterpret_cast<unsigned char*>(a.data());
}

// A buffer long enough to cross block and length limits; the check sums do not mind a period.
QByteArray filler(int n)
{
    return QByteArray("\x01\x80\xFF\x10 K-7140 \xC0").repeated(n / 12 + 1).left(n);
}

// The file's check sum by a check-sum object that has already run over other bytes.
uint fileCrc(const QString& path)
{
    ::crc32 c;
    c.ProcessCRC("stale", 5);
    return c.FileCRC(path);
}

// The byte after setting a bit, then what the call returned, as 0xAARR.
uint setBit(int before, int pos, int bit)
{
    unsigned char value = static_cast<unsigned char>(before);
    const unsigned char returned = ::setBitToByte(value, pos, static_cast<unsigned char>(bit));
    return uint(value) << 8 | returned;
}

} // namespace

class tst_CommonRoutines : public QObject
{
    Q_OBJECT
private slots:
    void values_data();
    void values();
    void texts_data();
    void texts();
    void tablesMatchBitwiseDefinition();
    void crc16Continues();
    void crc32RunningValue();

private:
    QTemporaryDir m_dir;
    QString file(const char* name, const QByteArray& content)
    {
        QFile f(m_dir.filePath(QLatin1String(name)));
        if (!f.open(QIODevice::WriteOnly) || f.write(content) != content.size())
            qFatal("cannot write %s", name);
        return f.fileName();
    }
};

// Each row: the call's result, the value it must give.
void tst_CommonRoutines::values_data()
{
    QTest::addColumn<quint64>("actual");
    QTest::addColumn<quint64>("expected");
    // Published check values of CRC-8/NRSC-5, CRC-16/IBM-3740 and CRC-32/ISO-HDLC.
    QByteArray digits("123456789"), none;
    ::crc32 c;
    QTest::newRow("crc8 digits") << quint64(SummCRC8(bytes(digits), 9)) << quint64(0xF7);
    QTest::newRow("crc8 empty") << quint64(SummCRC8(bytes(none), 0)) << quint64(0xFF);
    QTest::newRow("crc16 digits") << quint64(SummCRC16(bytes(digits), 9)) << quint64(0x29B1);
    QTest::newRow("crc16 empty") << quint64(SummCRC16(bytes(none), 0)) << quint64(0xFFFF);
    QTest::newRow("crc16 wide length") << quint64(eval_crc16(0xFFFF, bytes(digits), 9)) << quint64(0x29B1);
    QTest::newRow("crc32 digits") << quint64(c.ProcessCRC(digits.constData(), 9)) << quint64(0xCBF43926);
    QTest::newRow("crc32 empty") << quint64(::crc32().ProcessCRC("", 0)) << quint64(0);
    const QByteArray big = filler(512 * 3 + 100);
    QTest::newRow("file digits") << quint64(fileCrc(file("d", digits))) << quint64(0xCBF43926);
    QTest::newRow("file empty") << quint64(fileCrc(file("e", none))) << quint64(0);
    QTest::newRow("file missing") << quint64(fileCrc(m_dir.filePath("missing"))) << quint64(0);
    QTest::newRow("file of blocks") << quint64(fileCrc(file("b", big))) << quint64(refCrc32(big));
    QTest::newRow("config digits") << quint64(commonFunctions::getConfigCRC32(file("d", digits)))
                                   << quint64(0xCBF43926);
    QTest::newRow("config missing") << quint64(commonFunctions::getConfigCRC32(m_dir.filePath("missing")))
                                    << quint64(0);

    QTest::newRow("bit lsb set") << quint64(getBitFromByte(0x01, 0)) << quint64(1);
    QTest::newRow("bit lsb clear") << quint64(getBitFromByte(0xFE, 0)) << quint64(0);
    QTest::newRow("bit 7") << quint64(getBitFromByte(0xFF, 7)) << quint64(1);
    QTest::newRow("bit 8") << quint64(getBitFromByte(0xFF, 8)) << quint64(0);
    QTest::newRow("bit -1") << quint64(getBitFromByte(0xFF, -1)) << quint64(0);
    QTest::newRow("pair 0 of FE") << quint64(get2BitFromByte(0xFE, 0)) << quint64(2);
    QTest::newRow("pair 6 of C0") << quint64(get2BitFromByte(0xC0, 6)) << quint64(3);
    QTest::newRow("pair 7") << quint64(get2BitFromByte(0xFF, 7)) << quint64(0);
    QTest::newRow("pair -1") << quint64(get2BitFromByte(0xFF, -1)) << quint64(0);
    QTest::newRow("set 7 by 0xFF") << quint64(setBit(0x00, 7, 0xFF)) << quint64(0x8080);
    QTest::newRow("set already set") << quint64(setBit(0x08, 3, 1)) << quint64(0x0808);
    QTest::newRow("zero never clears") << quint64(setBit(0x08, 3, 0)) << quint64(0x0808);
    QTest::newRow("set 8 untouched") << quint64(setBit(0x05, 8, 1)) << quint64(0x0500);
    QTest::newRow("set -1 untouched") << quint64(setBit(0x05, -1, 1)) << quint64(0x0500);
    QTest::newRow("0101 @0") << quint64(getBitFromStrByte("0101", 0)) << quint64(false);
    QTest::newRow("0101 @1") << quint64(getBitFromStrByte("0101", 1)) << quint64(true);
    QTest::newRow("0101 @4") << quint64(getBitFromStrByte("0101", 4)) << quint64(false);
    QTest::newRow("0101 @9") << quint64(getBitFromStrByte("0101", 9)) << quint64(false);
    QTest::newRow("1111 @-1") << quint64(getBitFromStrByte("1111", -1)) << quint64(false);
    QTest::newRow("other digit") << quint64(getBitFromStrByte("0501", 1)) << quint64(true);
    QTest::newRow("letter") << quint64(getBitFromStrByte("0x01", 1)) << quint64(false);

    QTest::newRow("htonl32") << quint64(htonl32(0x12345678ul)) << quint64(0x78563412);
    if (sizeof(unsigned long) == 8) // the bits above the low 32 stay where they are
        QTest::newRow("htonl32 upper") << quint64(htonl32(static_cast<unsigned long>(0x1122334455667788ull)))
                                       << quint64(0x1122334488776655ull);
    QTest::newRow("htonl64") << quint64(htonl64(0x0102030405060708ull)) << quint64(0x0807060504030201ull);
}

void tst_CommonRoutines::values()
{
    QFETCH(quint64, actual);
    QFETCH(quint64, expected);
    QCOMPARE(actual, expected);
}

void tst_CommonRoutines::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("bit -3") << getStrByteFromBit(-3) << "0";
    QTest::newRow("bit 0") << getStrByteFromBit(0) << "0";
    QTest::newRow("bit 1") << getStrByteFromBit(1) << "1";
    QTest::newRow("bit 255") << getStrByteFromBit(255) << "1";
    QTest::newRow("1.5, 2") << getStrFromFloat(1.5f, 2) << "1.50";
    QTest::newRow("-0.25, 3") << getStrFromFloat(-0.25f, 3) << "-0.250";
    QTest::newRow("12, 0") << getStrFromFloat(12.0f, 0) << "12";
}

void tst_CommonRoutines::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(text, expected);
}

// From the initial state, the 256 single bytes reach every table entry once.
void tst_CommonRoutines::tablesMatchBitwiseDefinition()
{
    for (int b = 0; b < 256; ++b) {
        QByteArray one(1, char(b));
        QCOMPARE(SummCRC8(bytes(one), 1), refCrc8(one));
        QCOMPARE(SummCRC16(bytes(one), 1), refCrc16(one));
        QCOMPARE(::crc32().ProcessCRC(one.constData(), 1), refCrc32(one));
    }
}

// Continuing from any split gives the whole sum; past 65,535 bytes only the 32-bit length reaches.
void tst_CommonRoutines::crc16Continues()
{
    QByteArray digits("123456789");
    for (int split = 0; split <= digits.size(); ++split) {
        const unsigned short first = SummCRC16(bytes(digits), static_cast<unsigned short>(split));
        const auto rest = static_cast<unsigned short>(digits.size() - split);
        QCOMPARE(SummPlusCRC16(first, bytes(digits) + split, rest), static_cast<unsigned short>(0x29B1));
    }
    QCOMPARE(SummPlusCRC16(0x1234, bytes(digits), 0), static_cast<unsigned short>(0x1234));
    QByteArray big = filler(70000);
    const unsigned short max = SummCRC16(bytes(big), 0xFFFF);
    QCOMPARE(max, refCrc16(big.left(0xFFFF)));
    QCOMPARE(SummPlusCRC16(max, bytes(big) + 0xFFFF, 70000 - 0xFFFF), refCrc16(big));
    QCOMPARE(eval_crc16(0xFFFF, bytes(big), big.size()), refCrc16(big));
}

void tst_CommonRoutines::crc32RunningValue()
{
    const QByteArray data = filler(1000);
    ::crc32 c;
    for (int i = 0; i < data.size(); i += 37) {
        const int n = qMin(37, data.size() - i);
        c.ProcessCRC(data.constData() + i, n);
        // The running value is a finished check sum after every block.
        QCOMPARE(c.value(), refCrc32(data.left(i + n)));
    }
    QCOMPARE(c.ProcessCRC(data.constData(), 0), refCrc32(data));
    QCOMPARE(c.ProcessCRC(data.constData(), -5), refCrc32(data));
}

QTEST_APPLESS_MAIN(tst_CommonRoutines)
#include "tst_common_routines.moc"
