#include "config_model/common_routines.h"
#include "config_model/cp1251.h"
#include "device/common_functions.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <cstdint>

namespace {

// The check sum of the given width bit at a time, straight from its definition (the routines under
// test are table-driven): all ones to start, most significant bit first for CRC-8 and CRC-16,
// reflected with the final inversion for CRC-32.
std::uint32_t ref(int width, const QByteArray& d)
{
    const std::uint32_t top = 1u << (width - 1), mask = top | (top - 1);
    const std::uint32_t poly = width == 8 ? 0x31 : width == 16 ? 0x1021 : 0xEDB88320u;
    std::uint32_t crc = mask;
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

unsigned char* bytes(QByteArray& a)
{
    return reinterpret_cast<unsigned char*>(a.data());
}

// saveWholeFile's result: 1 saved, 0 refused with a reason, 2 refused without one.
int saved(const QString& path, const QByteArray& bytes)
{
    QString reason;
    return saveWholeFile(path, bytes, &reason) ? 1 : reason.isEmpty() ? 2 : 0;
}

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
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

void v(const char* name, quint64 actual, quint64 expected)
{
    QTest::newRow(name) << actual << expected;
}

void t(const char* name, const QString& actual, const QString& expected)
{
    QTest::newRow(name) << actual << expected;
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
    void everyUnitMatchesQtCodec();
    void upperHalfRoundTrips();
    void appendKeepsWhatIsThere();
    void examples_data();
    void examples();

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
    // Long enough to cross the 16-bit length and the file's 512-byte blocks; a period does no harm.
    const QByteArray period("\x01\x80\xFF\x10 K-7140 \xC0");
    QByteArray big = period.repeated(5400);
    v("crc8 digits", SummCRC8(bytes(digits), 9), 0xF7);
    v("crc8 empty", SummCRC8(bytes(none), 0), 0xFF);
    v("crc16 digits", SummCRC16(bytes(digits), 9), 0x29B1);
    v("crc16 empty", SummCRC16(bytes(none), 0), 0xFFFF);
    // Continuing from the sum of the first bytes gives the sum of all; nothing more changes nothing.
    v("crc16 continued", SummPlusCRC16(SummCRC16(bytes(digits), 4), bytes(digits) + 4, 5), 0x29B1);
    v("crc16 continued by 0", SummPlusCRC16(0x1234, bytes(digits), 0), 0x1234);
    // A 16-bit length reaches 65,535 bytes; the 32-bit continuation goes past.
    v("crc16 65535", SummCRC16(bytes(big), 0xFFFF), ref(16, big.left(0xFFFF)));
    v("crc16 70200", eval_crc16(0xFFFF, bytes(big), big.size()), ref(16, big));
    v("crc32 digits", ::crc32().ProcessCRC("123456789", 9), 0xCBF43926);
    v("crc32 empty", ::crc32().ProcessCRC("", 0), 0);
    // The running value is the finished sum at every point, so a run can go on from it.
    ::crc32 runs;
    runs.ProcessCRC("1234", 4);
    runs.ProcessCRC("x", -5);
    v("crc32 in runs", runs.ProcessCRC("56789", 5), 0xCBF43926);
    const QByteArray blocks = period.repeated(130);
    v("file of blocks", fileCrc(file("b", blocks)), ref(32, blocks));
    v("file empty", fileCrc(file("e", none)), 0);
    v("config digits", commonFunctions::getConfigCRC32(file("d", digits)), 0xCBF43926);
    v("config missing", commonFunctions::getConfigCRC32(m_dir.filePath("missing")), 0);

    v("bit lsb set", getBitFromByte(0x01, 0), 1);
    v("bit 7", getBitFromByte(0xFF, 7), 1);
    v("bit 8", getBitFromByte(0xFF, 8), 0);
    v("bit -1", getBitFromByte(0xFF, -1), 0);
    v("pair 6 of C0", get2BitFromByte(0xC0, 6), 3);
    v("pair 7", get2BitFromByte(0xFF, 7), 0);
    v("pair -1", get2BitFromByte(0xFF, -1), 0);
    v("six from 2 of FC", bitsFromByte(0xFC, 2, 6), 0x3F);
    v("six from 3 run past 7", bitsFromByte(0xFF, 3, 6), 0);
    v("saved whole", saved(m_dir.filePath("w"), "new") == 1 && readAll(m_dir.filePath("w")) == "new", 1);
    v("save over old", saved(file("o", "old"), "newer") == 1 && readAll(m_dir.filePath("o")) == "newer", 1);
    v("save into missing folder", saved(m_dir.filePath("missing/w"), "x"), 0);
    v("save onto a folder", saved(m_dir.path(), "x"), 0);
    v("set 7 by 0xFF", setBit(0x00, 7, 0xFF), 0x8080);
    v("set already set", setBit(0x08, 3, 1), 0x0808);
    v("zero never clears", setBit(0x08, 3, 0), 0x0808);
    v("set 8 untouched", setBit(0x05, 8, 1), 0x0500);
    v("set -1 untouched", setBit(0x05, -1, 1), 0x0500);
    v("0101 @0", getBitFromStrByte("0101", 0), false);
    v("0101 @1", getBitFromStrByte("0101", 1), true);
    v("0101 @4", getBitFromStrByte("0101", 4), false);
    v("0101 @9", getBitFromStrByte("0101", 9), false);
    v("1111 @-1", getBitFromStrByte("1111", -1), false);
    v("other digit", getBitFromStrByte("0501", 1), true);
    v("letter", getBitFromStrByte("0x01", 1), false);

    v("htonl32", htonl32(0x12345678ul), 0x78563412);
    if (sizeof(unsigned long) == 8) // the bits above the low 32 stay where they are
        v("htonl32 upper", htonl32(static_cast<unsigned long>(0x1122334455667788ull)), 0x1122334488776655ull);
    v("htonl64", htonl64(0x0102030405060708ull), 0x0807060504030201ull);
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
    t("bit -3", getStrByteFromBit(-3), "0");
    t("bit 0", getStrByteFromBit(0), "0");
    t("bit 1", getStrByteFromBit(1), "1");
    t("bit 255", getStrByteFromBit(255), "1");
    t("1.5, 2", getStrFromFloat(1.5f, 2), "1.50");
    t("-0.25, 3", getStrFromFloat(-0.25f, 3), "-0.250");
    t("12, 0", getStrFromFloat(12.0f, 0), "12");
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
        QCOMPARE(std::uint32_t(SummCRC8(bytes(one), 1)), ref(8, one));
        QCOMPARE(std::uint32_t(SummCRC16(bytes(one), 1)), ref(16, one));
        QCOMPARE(::crc32().ProcessCRC(one.constData(), 1), ref(32, one));
    }
}

// Every one of the 65,536 UTF-16 units: the byte Qt's own codec gives when it can represent the
// unit (the unit survives a round trip), "_" when it cannot.
void tst_CommonRoutines::everyUnitMatchesQtCodec()
{
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    QVERIFY(codec);
    int mismatches = 0;
    for (int u = 0; u <= 0xFFFF; ++u) {
        const QChar c(static_cast<ushort>(u));
        QByteArray expected;
        if (!c.isSurrogate()) {
            QTextCodec::ConverterState state(QTextCodec::ConvertInvalidToNull);
            const QByteArray qt = codec->fromUnicode(&c, 1, &state);
            if (state.invalidChars == 0 && qt.size() == 1 && codec->toUnicode(qt) == QString(c))
                expected = qt;
        }
        if (expected.isEmpty())
            expected = "_";
        const char got = zrk::windows1251Byte(static_cast<char16_t>(u));
        if (got != expected.at(0) && ++mismatches < 10)
            qWarning("U+%04X: got 0x%02X, expected 0x%02X", u, uchar(got), uchar(expected.at(0)));
    }
    QCOMPARE(mismatches, 0);
}

void tst_CommonRoutines::upperHalfRoundTrips()
{
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    for (int b = 0; b < 256; ++b) {
        const QChar c = zrk::fromWindows1251Byte(static_cast<unsigned char>(b));
        QCOMPARE(QString(c), codec->toUnicode(QByteArray(1, char(b))));
        QCOMPARE(uchar(zrk::windows1251Byte(c.unicode())), uchar(b));
    }
}

void tst_CommonRoutines::appendKeepsWhatIsThere()
{
    QByteArray out("@ZRK");
    zrk::appendWindows1251(out, QString::fromUtf8("*>PASS:Пароль€"));
    QCOMPARE(out, QByteArray("@ZRK*>PASS:\xCF\xE0\xF0\xEE\xEB\xFC\x88"));
}

void tst_CommonRoutines::examples_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("ascii") << QStringLiteral("*?PING 1") << QByteArray("*?PING 1");
    QTest::newRow("yo") << QString::fromUtf8("Ёё") << QByteArray("\xA8\xB8");
    QTest::newRow("numero") << QString::fromUtf8("№") << QByteArray("\xB9");
    QTest::newRow("not in code page") << QString::fromUtf8("日ä") << QByteArray("__");
    QTest::newRow("surrogate pair is two units") << QString::fromUtf8("😀") << QByteArray("__");
    QTest::newRow("empty") << QString() << QByteArray();
}

void tst_CommonRoutines::examples()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(zrk::toWindows1251(text), bytes);
}

QTEST_APPLESS_MAIN(tst_CommonRoutines)
#include "tst_common_routines.moc"
