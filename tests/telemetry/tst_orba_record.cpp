#include "orba_records.h"
#include "telemetry/tmipage_orba1.h"
#include "telemetry/tmipage_orba3.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <time.h>

using namespace orbatest;

class tst_OrbaRecord : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void tableAddsUp();
    void everyFieldAlone_data();
    void everyFieldAlone();
    void allFieldsPresent();
    void masksWithGaps_data();
    void masksWithGaps();
    void shortBody_data();
    void shortBody();
    void bit256AndTrailingBytesAreNotRead();
    void displayTexts_data();
    void displayTexts();
    void subValues();
    void dateTimeAndUtcOffset_data();
    void dateTimeAndUtcOffset();
    void formatText();
    void otherKindDecodesNothing();
    void rawCopyIsLimited_data();
    void rawCopyIsLimited();
};

static void setTimeZone(const char* tz)
{
    qputenv("TZ", tz);
    tzset();
}

void tst_OrbaRecord::initTestCase()
{
    setTimeZone("UTC0");
}

// The table is the format: widths add up to the three structure sizes, places follow one another,
// names are unique.
void tst_OrbaRecord::tableAddsUp()
{
    int sum = 0;
    QSet<QString> names;
    for (int no = 1; no <= orba::kFieldCount; ++no) {
        const orba::FieldInfo& f = orba::kFields[no - 1];
        QCOMPARE(f.no, no);
        QCOMPARE(orba::kOffsets[no], sum);
        sum += f.width;
        if (no == 69)
            QCOMPARE(sum, 146);
        if (no == 122)
            QCOMPARE(sum, 404);
        QVERIFY2(!names.contains(QLatin1String(f.name)), f.name);
        names.insert(QLatin1String(f.name));
    }
    QCOMPARE(sum, 734);
}

void tst_OrbaRecord::everyFieldAlone_data()
{
    QTest::addColumn<int>("no");
    for (int no = 1; no <= orba::kFieldCount; ++no)
        QTest::newRow(orba::kFields[no - 1].name) << no;
}

// One field alone, with bytes after the body that must not be taken: the value lands at its place,
// only its bit reads present, every other text is "n/a".
void tst_OrbaRecord::everyFieldAlone()
{
    QFETCH(int, no);
    RecordBuilder b;
    b.setPattern(no);
    const ExactBuffer buf(b.record() + QByteArray(8, '\xEE'));
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(structureBytes(&page.currentTMI(), 734), b.expectedStructure(3));
    for (int n = 1; n <= orba::kFieldCount; ++n) {
        QCOMPARE(page.isUsed(n), n == no);
        if (n != no)
            QCOMPARE(page.fieldText(n), QStringLiteral("n/a"));
    }
    QVERIFY(page.fieldText(no) != QStringLiteral("n/a") || orba::kFields[no - 1].rule == orba::Rule::HpTemp);
}

void tst_OrbaRecord::allFieldsPresent()
{
    RecordBuilder b;
    for (int no = 1; no <= orba::kFieldCount; ++no)
        b.setPattern(no);
    QCOMPARE(b.body().size(), 734);
    const ExactBuffer buf(b.record());
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(structureBytes(&page.currentTMI(), 734), b.body());
    QCOMPARE(page.getStrFormatOrba3(), QString(255, QLatin1Char('1')));
    QCOMPARE(page.getUser8Byte3(), quint64(orba::readLE(buf.data() + 34 + 726, 8)));
    QCOMPARE(page.body(), b.body());
    TmiPage_Orba3 copy(page.currentTMI());
    QCOMPARE(structureBytes(&copy.currentTMI(), 734), b.body());
    QVERIFY(!copy.isUseParamNumPage()); // a bare structure carries no mask
}

void tst_OrbaRecord::masksWithGaps_data()
{
    QTest::addColumn<QList<int>>("fields");
    QList<int> odd;
    for (int no = 1; no <= 255; no += 2)
        odd << no;
    QTest::newRow("odd fields") << odd;
    QTest::newRow("first and last") << QList<int> { 1, 255 };
    QTest::newRow("across 64-field words") << QList<int> { 63, 64, 65, 66, 127, 128, 129, 191, 192, 193 };
    QRandomGenerator rng(4711);
    for (int r = 0; r < 2; ++r) {
        QList<int> some;
        for (int no = 1; no <= 255; ++no) {
            if (rng.bounded(3) == 0)
                some << no;
        }
        QTest::newRow(qPrintable(QStringLiteral("random %1").arg(r))) << some;
    }
}

void tst_OrbaRecord::masksWithGaps()
{
    QFETCH(QList<int>, fields);
    RecordBuilder b;
    for (int no : fields)
        b.setPattern(no);
    const ExactBuffer buf(b.record());
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(structureBytes(&page.currentTMI(), 734), b.expectedStructure(3));
    QString format(255, QLatin1Char('0'));
    for (int no : fields)
        format[no - 1] = QLatin1Char('1');
    QCOMPARE(page.getStrFormatOrba3(), format);
}

void tst_OrbaRecord::shortBody_data()
{
    QTest::addColumn<int>("cut"); // body bytes removed from the end
    for (int cut : { 0, 1, 5, 733, 734 })
        QTest::newRow(qPrintable(QString::number(cut))) << cut;
}

// A body shorter than its mask demands: what is there lands as usual, the rest reads as zero, and
// nothing past the buffer is read (the buffer is exactly sized).
void tst_OrbaRecord::shortBody()
{
    QFETCH(int, cut);
    RecordBuilder b;
    for (int no = 1; no <= orba::kFieldCount; ++no)
        b.setPattern(no);
    QByteArray record = b.record();
    record.chop(cut);
    const ExactBuffer buf(record);
    TmiPage_Orba3 page(buf.data(), buf.size());
    QByteArray expected = b.body().left(734 - cut);
    expected.append(QByteArray(cut, '\0'));
    QCOMPARE(structureBytes(&page.currentTMI(), 734), expected);
    // Nothing of an earlier record survives into the next one.
    RecordBuilder other;
    other.setPattern(orba::F_NumPage).setPattern(255);
    const ExactBuffer otherBuf(other.record());
    page.setNewTMI(otherBuf.data(), otherBuf.size());
    QCOMPARE(structureBytes(&page.currentTMI(), 734), other.expectedStructure(3));
    page.setNewTMI(buf.data(), buf.size());
    QCOMPARE(structureBytes(&page.currentTMI(), 734), expected);
}

void tst_OrbaRecord::bit256AndTrailingBytesAreNotRead()
{
    RecordBuilder b;
    b.setNumber(orba::F_NumPage, 5);
    QByteArray record = b.record();
    record[orba::kMaskOffset + 31] = char(0x01); // bit 256: no field
    record.append(QByteArray(16, '\x7F'));
    const ExactBuffer buf(record);
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(page.getNumPage(), quint32(5));
    QCOMPARE(structureBytes(&page.currentTMI(), 734), b.expectedStructure(3));
    QVERIFY(!page.isUsed(256));
}

void tst_OrbaRecord::displayTexts_data()
{
    const QString unit = qtTrId("abbr_017");
    QTest::addColumn<int>("no");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    auto row = [](const char* name, int no, const QByteArray& v, const QString& text) {
        QTest::newRow(name) << no << v << text;
    };
    row("Latitude 55 45.6789", orba::F_Latitude, le(33456789, 4), QStringLiteral("55 45.6789'"));
    row("Latitude negative", orba::F_Latitude, le(quint32(-33456789), 4), QStringLiteral("-55 -45.6789'"));
    row("Latitude under a degree", orba::F_Latitude, le(quint32(-5000), 4), QStringLiteral("0 -0.5000'"));
    row("Altitude -15", orba::F_Altitude, le(quint32(-15), 4), QStringLiteral("-1"));
    row("Temp1 0x80", orba::F_Temp1, le(0x80, 1), QString());
    row("Temp1 0x81", orba::F_Temp1, le(0x81, 1), QStringLiteral("-127 ") + unit);
    row("HPrecisionTemp1 0x8000", orba::F_HPrecisionTemp1, le(0x8000, 2), QStringLiteral("n/a"));
    row("HPrecisionTemp4 -25", orba::F_HPrecisionTemp4, le(quint16(-25), 2), QStringLiteral("-1.25 ") + unit);
    row("Power 12345 mV", orba::F_Power, le(12345, 2), QStringLiteral("12.35"));
    row("Speed 60.25", orba::F_Speed, QByteArray::fromHex("00007142"), QStringLiteral("60.25"));
    row("NumPage max", orba::F_NumPage, le(0xFFFFFFFF, 4), QStringLiteral("4294967295"));
    row("User8Byte1 max", orba::F_User8Byte1, le(~quint64(0), 8), QStringLiteral("18446744073709551615"));
    row("State bits", orba::F_State, le(0x9A, 1),
        QStringLiteral(
            "10011010 (AlarmMessage 1, Alarm 0, Guard 3, Evacuation 0, EnergySaving 0, AccelCalibr 1)"));
    row("NaviError", orba::F_NaviError, QByteArray::fromHex("0c17"), QStringLiteral("HDOP 1.2, PDOP 2.3"));
    row("NaviState", orba::F_NaviState, le((13 << 2) | 2, 1), QStringLiteral("state 2, sat 13"));
    row("NaviInfo", orba::F_NaviInfo, QByteArray::fromHex("0102030405060708"),
        QStringLiteral("GLONASS 1, GPS 2, Galileo 3, Compass 4, Beidou 5, DORIS 6, IRNSS 7, QZSS 8"));
    row("RS485_7", orba::F_RS485_7, QByteArray::fromHex("3412fe"),
        QStringLiteral("level 4660, t -2 ") + unit);
    row("Tires1_2 with no temperature", orba::F_Tires1_2, QByteArray::fromHex("015081021e14"),
        QStringLiteral("#1 no 1, #1 p 80, #1 t n/a, #2 no 2, #2 p 30, #2 t 20"));
    row("CAN3Failure", orba::F_CAN3Failure, QByteArray::fromHex("0178563412"),
        QStringLiteral("lamp 1, code 305419896"));
    row("NaviCoord", orba::F_NaviCoord,
        QByteArray::fromHex("000000000000f03f") + QByteArray::fromHex("000000000000e0bf"),
        QStringLiteral("lat 1.000000, lon -0.500000"));
}

void tst_OrbaRecord::displayTexts()
{
    QFETCH(int, no);
    QFETCH(QByteArray, value);
    QFETCH(QString, text);
    RecordBuilder b;
    b.set(no, value);
    const ExactBuffer buf(b.record());
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(page.fieldText(no), text);
}

void tst_OrbaRecord::subValues()
{
    const QString unit = qtTrId("abbr_017");
    QVERIFY(!unit.isEmpty());
    RecordBuilder b;
    QByteArray lbs;
    for (int cell = 0; cell < 3; ++cell)
        lbs += le(1000 + cell, 4) + le(200 + cell, 2) + le(250, 2) + le(cell + 1, 2) + le(40 + cell, 1);
    lbs += le(1700000000, 4);
    b.set(orba::F_LBS, lbs);
    QByteArray tyres;
    for (int t = 15; t <= 30; ++t)
        tyres += le(t, 1) + le(t + 100, 1) + le(t == 30 ? 0x81 : quint8(-t), 1);
    b.set(orba::F_Tires15_30, tyres);
    b.set(orba::F_RS485_16, QByteArray::fromHex("ffff80"));
    b.set(orba::F_Passager15_16, QByteArray::fromHex("0709"));
    b.set(orba::F_EcoDrivingAccel, QByteArray::fromHex("a50f03"));
    b.set(orba::F_RefrEngine, QByteArray::fromHex("02d007"));
    b.setNumber(orba::F_Out2, 0x81);
    b.setNumber(orba::F_Module2, 0x48);
    const ExactBuffer buf(b.record());
    TmiPage_Orba3 page(buf.data(), buf.size());

    QCOMPARE(page.getLbsCellID(), quint32(1000));
    QCOMPARE(page.getStrLbsTime(), QStringLiteral("14.11.2023 22:13:20"));
    QCOMPARE(page.getTiresTemp29(), qint8(-29));
    QCOMPARE(page.getStrTiresTemp30(), QStringLiteral("n/a"));
    QCOMPARE(page.getStrTiresTemp1(), QStringLiteral("n/a")); // Tires1_2 absent
    QCOMPARE(page.getStrTempRS485_16(), QStringLiteral("-128 ") + unit);
    QCOMPARE(page.getPassager_16(), quint8(9));
    QCOMPARE(page.getEcoDriving_Accel_1(), quint8(1));
    QCOMPARE(page.getEcoDriving_Braking_2(), quint8(1));
    QCOMPARE(page.getEcoDriving_Left_4(), quint8(1));
    QCOMPARE(page.getEcoDriving_Vertical_2(), quint8(1));
    QCOMPARE(page.getRefrEngineTurns(), quint16(2000));
    QCOMPARE(page.getStateO9(), quint8(1));
    QCOMPARE(page.getStateO16(), quint8(1));
    QCOMPARE(page.getState_WiFi(), quint8(1));
    QCOMPARE(page.getCoordFixed(), quint8(1));
    QCOMPARE(page.getStrAlarm(), QStringLiteral("n/a")); // State absent
}

void tst_OrbaRecord::dateTimeAndUtcOffset_data()
{
    QTest::addColumn<QByteArray>("tz");
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("offset");
    // POSIX zone strings count west of Greenwich as positive.
    QTest::newRow("UTC") << QByteArray("UTC0") << QStringLiteral("14.11.2023 22:13:20")
                         << QStringLiteral("(UTC +0)");
    QTest::newRow("+5:30") << QByteArray("IST-5:30") << QStringLiteral("15.11.2023 3:43:20")
                           << QStringLiteral("(UTC +5:30)");
    QTest::newRow("-3:30") << QByteArray("NST3:30") << QStringLiteral("14.11.2023 18:43:20")
                           << QStringLiteral("(UTC -3:30)");
    QTest::newRow("-10") << QByteArray("HST10") << QStringLiteral("14.11.2023 12:13:20")
                         << QStringLiteral("(UTC -10)");
}

void tst_OrbaRecord::dateTimeAndUtcOffset()
{
    QFETCH(QByteArray, tz);
    QFETCH(QString, local);
    QFETCH(QString, offset);
    setTimeZone(tz.constData());
    RecordBuilder b;
    b.setNumber(orba::F_Time, 1700000000);
    const ExactBuffer buf(b.record());
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(page.getStrTime(), local);
    QCOMPARE(page.getStrDateTime(), local);
    QCOMPARE(page.getStrDateTimeUTC_Offset(), local + QLatin1Char(' ') + offset);
    setTimeZone("UTC0");
    TmiPage_Orba3 empty(QByteArray("\xB0\x1E", 2));
    QCOMPARE(empty.getStrDateTimeUTC_Offset(), QStringLiteral("n/a"));
}

void tst_OrbaRecord::formatText()
{
    RecordBuilder b;
    b.setNumber(1, 1).setNumber(3, 3);
    TmiPage_Orba3 page(b.record());
    QCOMPARE(page.getStrFormatOrba3(), QStringLiteral("101") + QString(252, QLatin1Char('0')));
}

void tst_OrbaRecord::otherKindDecodesNothing()
{
    RecordBuilder b;
    b.setNumber(orba::F_NumPage, 9).setNumber(orba::F_Latitude, 33456789);
    QByteArray record = b.record();
    record[0] = char(0x55);
    TmiPage_Orba3 page(record);
    QCOMPARE(structureBytes(&page.currentTMI(), 734), QByteArray(734, '\0'));
    // The mask bytes of the buffer still say what they say.
    QVERIFY(page.isUseParamLatitude());
    QCOMPARE(page.getLatitude(), qint32(0));
    QCOMPARE(page.isExtended(), 0);
}

void tst_OrbaRecord::rawCopyIsLimited_data()
{
    QTest::addColumn<int>("length");
    for (int length : { 0, 33, 34, 512, 513, 2000 })
        QTest::newRow(qPrintable(QString::number(length))) << length;
}

void tst_OrbaRecord::rawCopyIsLimited()
{
    QFETCH(int, length);
    QByteArray record(length, '\xFF');
    if (length > 0)
        record[0] = char(orba::kKindCurrent);
    const ExactBuffer buf(record);
    TmiPage_Orba3 page(buf.data(), buf.size());
    QCOMPARE(page.rawLength(), length);
    const int kept = qMin(length, 512);
    QCOMPARE(structureBytes(page.rawBytes(), 512), record.left(kept) + QByteArray(512 - kept, '\0'));
    const int head = qMin(length, 44);
    QCOMPARE(structureBytes(page.headBytes(), 44), record.left(head) + QByteArray(44 - head, '\0'));
    QCOMPARE(page.body(), record.mid(34));
    if (length >= 34 + 734)
        QCOMPARE(structureBytes(&page.currentTMI(), 734), QByteArray(734, '\xFF'));
}

QTEST_GUILESS_MAIN(tst_OrbaRecord)
#include "tst_orba_record.moc"
