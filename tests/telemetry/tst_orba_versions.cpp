#include "orba_records.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/tmipage_orba1.h"
#include "telemetry/tmipage_orba2.h"
#include "telemetry/tmipage_orba3.h"

#include <QtTest>

#include <time.h>

using namespace orbatest;

// A fixed packet: NumPage 7, Temp4 -40, Latitude -33456789, CanEngineTime 0xA1B2C3D4 and
// CanSpeed 88 at their packet offsets after the kind byte.
static QByteArray makeFixedPacket()
{
    QByteArray p(128, '\0');
    p[0] = char(orba::kKindFixedPacket);
    p.replace(1, 4, le(7, 4));
    p[59] = char(-40);
    p.replace(65, 4, le(quint32(-33456789), 4));
    p.replace(121, 4, le(0xA1B2C3D4, 4));
    p[127] = char(88);
    return p;
}

class tst_OrbaVersions : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC0");
        tzset();
    }

    void version2AcceptsExtendedRecord()
    {
        const QByteArray ext = extRecord();
        TmiPage_Orba2 page(ext);
        QCOMPARE(page.isExtended(), 1);
        QCOMPARE(page.getStrLatitude_Ext(), QStringLiteral("55 45.6789'"));
        QCOMPARE(page.body(), ext.mid(1));
    }

    void fixedPacket_data()
    {
        QTest::addColumn<int>("length");
        QTest::newRow("full") << 128;
        QTest::newRow("cut inside Latitude") << 67;
        QTest::newRow("kind byte only") << 1;
    }

    void fixedPacket()
    {
        QFETCH(int, length);
        const QByteArray packet = makeFixedPacket().left(length);
        const ExactBuffer buf(packet);
        TmiPage_Orba1 page(buf.data(), buf.size());
        QByteArray padded = packet.left(128);
        padded.append(QByteArray(128 - padded.size(), '\0'));
        auto at = [&](int offset, int width) {
            return orba::readLE(reinterpret_cast<const uchar*>(padded.constData()) + offset, width);
        };
        QCOMPARE(page.getNumPage(), quint32(at(1, 4)));
        QCOMPARE(page.getTemp4(), qint8(at(59, 1)));
        QCOMPARE(page.getLatitude(), qint32(at(65, 4)));
        QCOMPARE(page.getCanEngineTime(), quint32(at(121, 4)));
        QCOMPARE(page.getCanSpeed(), quint8(at(127, 1)));
        if (length == 128)
            QCOMPARE(page.getNumPage(), quint32(7));
        if (length == 67)
            QCOMPARE(page.getLatitude() & ~0xFFFF, 0); // the two missing bytes read as zero
        QVERIFY(!page.isUseParamModule2());
        QCOMPARE(page.getStrModule2(), QStringLiteral("n/a"));
        QCOMPARE(page.getStrFormatOrba1(),
            QStringLiteral("111110111111111111111110000010101111111111111111000011111111111110111"));
        QCOMPARE(structureBytes(page.headBytes(), 11), QByteArray::fromHex("b00afbfffe0affff0fffb8"));
        QCOMPARE(page.rawLength(), length);
    }

    // The body the page builds from a fixed packet is a version-1 record body: decoded by another page
    // it gives the same fields.
    void fixedPacketBecomesRecordBody()
    {
        QByteArray packet(128, '\0');
        for (int i = 1; i < 128; ++i)
            packet[i] = char(i * 3 + 1);
        packet[0] = char(orba::kKindFixedPacket);
        TmiPage_Orba1 fromPacket(packet);
        QCOMPARE(fromPacket.body().size(), 127);
        QCOMPARE(fromPacket.currentRecordBuffer().mid(34), fromPacket.body());
        TmiPage_Orba1 fromRecord(fromPacket.currentRecordBuffer());
        QCOMPARE(
            structureBytes(&fromRecord.currentTMI(), 146), structureBytes(&fromPacket.currentTMI(), 146));
        QCOMPARE(fromRecord.getStrFormatOrba1(), fromPacket.getStrFormatOrba1());
        QCOMPARE(fromPacket.body().left(4), packet.mid(1, 4));
    }

    void chooseForm_data()
    {
        QTest::addColumn<QByteArray>("buffer");
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("showUnknown");
        QTest::addColumn<int>("form");
        using F = orba::Form;
        QTest::newRow("empty") << QByteArray() << 0 << true << int(F::Dropped);
        QTest::newRow("kind byte only") << QByteArray("\xB0", 1) << 0 << true << int(F::Dropped);
        QTest::newRow("extended, kind and one byte")
            << QByteArray("\xB1\x00", 2) << 0 << false << int(F::Extended);
        QTest::newRow("version 2") << QByteArray("\xB0\x14", 2) << 0 << false << int(F::Orba2);
        QTest::newRow("version 1") << QByteArray("\xB0\x0A", 2) << 0 << false << int(F::Orba1);
        QTest::newRow("version 3") << QByteArray("\xB0\x1E", 2) << 0 << false << int(F::Orba3);
        QTest::newRow("version 3, mode 1")
            << QByteArray("\xB0\x1E", 2) << 1 << false << int(F::Orba3Production);
        QTest::newRow("version 3, mode 2")
            << QByteArray("\xB0\x1E", 2) << 2 << false << int(F::Orba3Production);
        QTest::newRow("version 3, mode 5") << QByteArray("\xB0\x1E", 2) << 5 << false << int(F::Orba3);
        QTest::newRow("version 40 shown") << QByteArray("\xB0\x28", 2) << 0 << true << int(F::Unknown);
        QTest::newRow("version 40 dropped") << QByteArray("\xB0\x28", 2) << 0 << false << int(F::Dropped);
        QTest::newRow("fixed packet as version 1") << QByteArray("\x08\x0A", 2) << 0 << false << int(F::Orba1);
        QTest::newRow("kind 0 dropped") << QByteArray(40, '\0') << 0 << false << int(F::Dropped);
    }

    void chooseForm()
    {
        QFETCH(QByteArray, buffer);
        QFETCH(int, mode);
        QFETCH(bool, showUnknown);
        QFETCH(int, form);
        const ExactBuffer buf(buffer);
        QCOMPARE(int(orba::chooseForm(buf.data(), buf.size(), mode, showUnknown)), form);
        if (form == int(orba::Form::Unknown))
            QVERIFY(!orba::buildPage(orba::Form::Unknown, buf.data(), buf.size()));
    }
};

QTEST_GUILESS_MAIN(tst_OrbaVersions)
#include "tst_orba_versions.moc"
