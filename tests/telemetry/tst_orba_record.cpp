#include "orba_records.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/tmipage_orba1.h"
#include "telemetry/tmipage_orba3.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <time.h>

using namespace orbatest;

static void setTimeZone(const char* tz)
{
    qputenv("TZ", tz);
    tzset();
}

class tst_OrbaRecord : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { setTimeZone("UTC0"); }

    // The table is the format: widths add up to the three structure sizes, places follow one another,
    // names are unique.
    void decodesByMask_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<QList<int>>("fields");
        QTest::addColumn<int>("cut"); // body bytes missing from the end
        QList<int> all, odd, some;
        QRandomGenerator rng(4711);
        for (int no = 1; no <= orba::kFieldCount; ++no) {
            QTest::newRow(orba::kFields[no - 1].name) << 3 << QList<int> { no } << 0;
            all << no;
            if (no % 2)
                odd << no;
            if (rng.bounded(3) == 0)
                some << no;
        }
        QTest::newRow("all fields") << 3 << all << 0;
        QTest::newRow("odd fields") << 3 << odd << 0;
        QTest::newRow("random fields") << 3 << some << 0;
        QTest::newRow("fields 1 and 3") << 3 << QList<int> { 1, 3 } << 0;
        QTest::newRow("first and last") << 3 << QList<int> { 1, 255 } << 0;
        QTest::newRow("across 64-field words")
            << 3 << QList<int> { 63, 64, 65, 66, 127, 128, 129, 191, 192, 193 } << 0;
        for (int cut : { 1, 5, 733, 734 })
            QTest::newRow(qPrintable(QStringLiteral("all fields, %1 bytes short").arg(cut)))
                << 3 << all << cut;
        QTest::newRow("version 1, bits above 69") << 1 << all << 0;
        QTest::newRow("version 1, bit 70 only above") << 1 << all.mid(0, 70) << 0;
        QTest::newRow("version 2, bits above 122") << 2 << all << 0;
    }

    // The record as the version's page reads it: the present fields up to the version's last land
    // at their places, in mask order, from a body that may be cut short (the rest reads as zero)
    // or followed by bytes the mask does not ask for. The buffers are exactly sized, so reading
    // past them shows under the sanitizers. Bit 256 is set and names no field.
    void decodesByMask()
    {
        QFETCH(int, version);
        QFETCH(QList<int>, fields);
        QFETCH(int, cut);
        RecordBuilder b;
        for (int no : fields)
            b.setPattern(no);
        QByteArray record = b.record(version);
        record[orba::kMaskOffset + 31] = char(record[orba::kMaskOffset + 31] | 0x01);
        if (cut)
            record.chop(cut);
        else
            record.append(QByteArray(8, '\xEE'));
        const ExactBuffer buf(record);
        const orba::Form form = orba::chooseForm(buf.data(), buf.size(), 0, false);
        const std::unique_ptr<OrbaPage> page = orba::buildPage(form, buf.data(), buf.size());
        QVERIFY(page);
        QCOMPARE(page->version(), version);
        QCOMPARE(page->metaObject()->className(), orba::pageClassName(form));
        const int last = orba::kLastField[version], size = orba::recordSize(version);
        QCOMPARE(structureBytes(page->recordBytes(), size), b.expectedStructure(version, cut));
        QString format(last, QLatin1Char('0'));
        for (int no = 1; no <= orba::kFieldCount + 1; ++no) {
            const bool present = no <= last && fields.contains(no);
            QCOMPARE(page->isUsed(no), present);
            if (present)
                format[no - 1] = QLatin1Char('1');
            else
                QCOMPARE(page->fieldText(no), QStringLiteral("n/a"));
        }
        QCOMPARE(page->formatText(), format);
        if (fields.size() == 1) // a present value shows, unless it is the high-precision "no sensor"
            QVERIFY(page->fieldText(fields[0]) != QStringLiteral("n/a")
                || orba::kFields[fields[0] - 1].rule == orba::Rule::HpTemp);
        if (version == 3 && fields.size() == 255 && cut == 0) {
            QCOMPARE(b.body().size(), 734);
            QCOMPARE(page->body(), b.body() + QByteArray(8, '\xEE'));
            TmiPage_Orba3 v3(record);
            QCOMPARE(v3.getUser8Byte3(), quint64(orba::readLE(buf.data() + 34 + 726, 8)));
            TmiPage_Orba3 copy(v3.currentTMI());
            QCOMPARE(structureBytes(&copy.currentTMI(), 734), b.body());
            QVERIFY(!copy.isUseParamNumPage()); // a bare structure carries no mask
        }
        if (version == 3) { // nothing of an earlier record survives into the next one
            TmiPage_Orba3 reused(RecordBuilder().setPattern(2).setPattern(200).record());
            reused.setNewTMI(buf.data(), buf.size());
            QCOMPARE(structureBytes(&reused.currentTMI(), 734), b.expectedStructure(3, cut));
            QCOMPARE(reused.getStrFormatOrba3(), format);
        }
    }

    // A stream whose field set changes from record to record, among more field sets than the
    // decoder keeps plans for, each also read by the lower versions and with bodies cut short:
    // every record lands as if it were the first one decoded.
    void changingFieldSets()
    {
        QRandomGenerator rng(2024);
        std::vector<RecordBuilder> sets(48);
        for (RecordBuilder& b : sets) {
            const int density = 1 + int(rng.bounded(6));
            for (int no = 1; no <= orba::kFieldCount; ++no) {
                if (rng.bounded(density) == 0)
                    b.setPattern(no);
            }
        }
        szCurrentTMI_ORBA3 rec;
        auto* bytes = reinterpret_cast<unsigned char*>(&rec);
        for (int i = 0; i < 4000; ++i) {
            const RecordBuilder& b = sets[rng.bounded(int(sets.size()))];
            const int version = 1 + int(rng.bounded(3));
            const int cut = rng.bounded(4) == 0 ? int(rng.bounded(20)) : 0;
            const QByteArray mask = b.mask();
            const ExactBuffer body(b.body().left(std::max(0, b.body().size() - cut)));
            std::memset(&rec, 0, sizeof rec);
            orba::decodeFields(reinterpret_cast<const unsigned char*>(mask.constData()), body.data(),
                body.size(), bytes, orba::kLastField[version]);
            const int size = orba::recordSize(version);
            QCOMPARE(structureBytes(bytes, size),
                b.expectedStructure(version, std::min(cut, int(b.body().size()))));
            QCOMPARE(structureBytes(bytes + size, 734 - size), QByteArray(734 - size, '\0'));
        }
    }

    void displayTexts_data()
    {
        const QString unit = qtTrId("abbr_017");
        QTest::addColumn<int>("no");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("text");
        auto row = [](const char* name, int no, const QByteArray& v, const QString& text) {
            QTest::newRow(name) << no << v << text;
        };
        row("Latitude 55 45.6789", orba::F_Latitude, le(33456789, 4), QStringLiteral("55 45.6789'"));
        row("Latitude negative", orba::F_Latitude, le(quint32(-33456789), 4),
            QStringLiteral("-55 -45.6789'"));
        row("Latitude under a degree", orba::F_Latitude, le(quint32(-5000), 4), QStringLiteral("0 -0.5000'"));
        row("Altitude -15", orba::F_Altitude, le(quint32(-15), 4), QStringLiteral("-1"));
        row("Temp1 0x80", orba::F_Temp1, le(0x80, 1), QString());
        row("Temp1 0x81", orba::F_Temp1, le(0x81, 1), QStringLiteral("-127 ") + unit);
        row("HPrecisionTemp1 0x8000", orba::F_HPrecisionTemp1, le(0x8000, 2), QStringLiteral("n/a"));
        row("HPrecisionTemp4 -25", orba::F_HPrecisionTemp4, le(quint16(-25), 2),
            QStringLiteral("-1.25 ") + unit);
        row("Power 12345 mV", orba::F_Power, le(12345, 2), QStringLiteral("12.35"));
        row("Speed 60.25", orba::F_Speed, QByteArray::fromHex("00007142"), QStringLiteral("60.25"));
        row("NumPage max", orba::F_NumPage, le(0xFFFFFFFF, 4), QStringLiteral("4294967295"));
        row("User8Byte1 max", orba::F_User8Byte1, le(~quint64(0), 8), QStringLiteral("18446744073709551615"));
        row("State bits", orba::F_State, le(0x9A, 1),
            QStringLiteral(
                "10011010 (AlarmMessage 1, Alarm 0, Guard 3, Evacuation 0, EnergySaving 0, AccelCalibr 1)"));
        row("NaviError", orba::F_NaviError, QByteArray::fromHex("0c17"),
            QStringLiteral("HDOP 1.2, PDOP 2.3"));
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

    void displayTexts()
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

    void subValues()
    {
        const QString unit = qtTrId("abbr_017");
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
        b.set(orba::F_EcoDrivingAccel, QByteArray::fromHex("a50f03"));
        b.set(orba::F_RefrEngine, QByteArray::fromHex("02d007"));
        b.setNumber(orba::F_Module2, 0x48);
        const ExactBuffer buf(b.record());
        TmiPage_Orba3 page(buf.data(), buf.size());

        QCOMPARE(page.getStrLbsTime(), QStringLiteral("14.11.2023 22:13:20"));
        QCOMPARE(page.getTiresTemp29(), qint8(-29));
        QCOMPARE(page.getStrTiresTemp30(), QStringLiteral("n/a"));
        QCOMPARE(page.getStrTempRS485_16(), QStringLiteral("-128 ") + unit);
        QCOMPARE(page.getEcoDriving_Accel_1(), quint8(1));
        QCOMPARE(page.getRefrEngineTurns(), quint16(2000));
        QCOMPARE(page.getCoordFixed(), quint8(1));
        QCOMPARE(page.getStrAlarm(), QStringLiteral("n/a")); // State absent
    }

    void dateTimeAndUtcOffset_data()
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

    void dateTimeAndUtcOffset()
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

    void otherKindDecodesNothing_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<int>("kind");
        QTest::newRow("kind 0x55") << 3 << 0x55;
        QTest::newRow("version 1, extended kind") << 1 << int(orba::kKindExtended);
    }

    // The record is left empty, whatever the bytes after the kind say; the mask bytes of the
    // buffer still say what they say.
    void otherKindDecodesNothing()
    {
        QFETCH(int, version);
        QFETCH(int, kind);
        RecordBuilder b;
        b.setNumber(orba::F_NumPage, 9).setNumber(orba::F_Latitude, 33456789);
        QByteArray record = b.record(version) + QByteArray(60, '\x11');
        record[0] = char(kind);
        const ExactBuffer buf(record);
        const std::unique_ptr<OrbaPage> page = version == 1
            ? std::unique_ptr<OrbaPage>(new TmiPage_Orba1(buf.data(), buf.size()))
            : std::unique_ptr<OrbaPage>(new TmiPage_Orba3(buf.data(), buf.size()));
        const int size = orba::recordSize(version);
        QCOMPARE(structureBytes(page->recordBytes(), size), QByteArray(size, '\0'));
        QVERIFY(page->isUsed(orba::F_Latitude));
        QCOMPARE(page->isExtended(), 0);
    }

    void rawCopyIsLimited_data()
    {
        QTest::addColumn<int>("length");
        for (int length : { 0, 33, 34, 512, 513, 2000 })
            QTest::newRow(qPrintable(QString::number(length))) << length;
    }

    void rawCopyIsLimited()
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
};

QTEST_GUILESS_MAIN(tst_OrbaRecord)
#include "tst_orba_record.moc"
