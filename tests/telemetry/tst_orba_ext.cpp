#include "orba_records.h"
#include "telemetry/tmipage_orba3.h"

#include <QtTest>

#include <time.h>

using namespace orbatest;

static QString xmlOf(const TmiPage_Orba3& page)
{
    QString xml;
    QTextStream s(&xml);
    page.getXmlPageExt(s);
    s.flush();
    return xml;
}

class tst_OrbaExt : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC0");
        tzset();
    }

    void head()
    {
        const ExactBuffer buf(extRecord());
        TmiPage_Orba3 page(buf.data(), buf.size());
        QCOMPARE(page.isExtended(), 1);
        QCOMPARE(page.body(), extRecord().mid(1));
        QCOMPARE(page.getDataSize_Ext(), quint16(55));
        QCOMPARE(page.getNumberTmiPage_Ext(), quint32(12));
        QCOMPARE(page.getStrEventTime_Ext(), QStringLiteral("14.11.2023 22:13:20"));
        QCOMPARE(page.getStrLatitude_Ext(), QStringLiteral("55 45.6789'"));
        QCOMPARE(page.getStrLongitude_Ext(), QStringLiteral("-37 -0.0001'"));
        QCOMPARE(page.getStrRun_Ext(), QStringLiteral("-1.50"));
        QCOMPARE(page.getGuard_Ext(), quint8(3));
        QCOMPARE(page.getAccelCalibr_Ext(), quint8(1));
        QCOMPARE(page.getDynamicDataSize_Ext(), quint16(0));
        // The current-record fields stay empty.
        QCOMPARE(structureBytes(&page.currentTMI(), 734), QByteArray(734, '\0'));

        // A current record shows no extended values.
        RecordBuilder b;
        b.setNumber(orba::F_NumPage, 1);
        TmiPage_Orba3 current(b.record());
        QCOMPARE(current.getStrLatitude_Ext(), QStringLiteral("n/a"));
        QCOMPARE(current.getStrStateO1_Ext(), QStringLiteral("n/a"));
    }

    void dynamicItems_data()
    {
        QTest::addColumn<QByteArray>("dynamic");
        QTest::addColumn<QStringList>("items"); // "type/size/value"
        const QByteArray eight = le(0x1122334455667788ULL, 8);
        QTest::newRow("type 3, size byte reported as it is")
            << item(3, 99, le(5, 8)) << QStringList { "3/99/5" };
        QTest::newRow("type 2, 16 characters") << item(2, 16, QByteArray("ABCDEFGHIJKLMNOP"))
                + item(1, 8, le(9, 8)) << QStringList { "2/16/ABCDEFGHIJKLMNOP", "1/8/9" };
        QTest::newRow("type 2, windows-1251 text")
            << item(2, 16, QByteArray("\xCF\xF3\xF1\xEA") + QByteArray(12, '\0'))
            << QStringList { QStringLiteral("2/16/Пуск") };
        QTest::newRow("type 1 then an unknown head ends the walk")
            << item(1, 8, eight) + QByteArray("\x07\x05", 2) << QStringList { "1/8/1234605616436508552" };
        QTest::newRow("two more bytes are a further head") << item(1, 8, eight) + QByteArray("\x07\x05", 2)
                + QByteArray("\x03\x08", 2) << QStringList { "1/8/1234605616436508552", "3/8/0" };
        QTest::newRow("unknown types skip 2 bytes each")
            << QByteArray("\x00\x00\x09\x01", 4) + item(3, 8, le(1, 8)) << QStringList { "3/8/1" };
        QTest::newRow("one byte is no item") << QByteArray("\x01", 1) << QStringList {};
        QTest::newRow("cut value reads as zero")
            << item(1, 8, QByteArray("\xFF\xFF", 2)) << QStringList { "1/8/65535" };
    }

    void dynamicItems()
    {
        QFETCH(QByteArray, dynamic);
        QFETCH(QStringList, items);
        const QByteArray record = extRecord(dynamic);
        const ExactBuffer buf(record);
        TmiPage_Orba3 page(buf.data(), buf.size());
        QCOMPARE(page.getDynamicDataSize_Ext(), quint16(dynamic.size()));
        QStringList got;
        for (const orba::DynamicItem& i : page.getDynamicItems_Ext())
            got << QStringLiteral("%1/%2/%3")
                       .arg(i.type)
                       .arg(i.size)
                       .arg(i.type == 2 ? i.text : QString::number(i.number));
        QCOMPARE(got, items);
    }

    void sizesThatLie_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<int>("declared"); // getDynamicDataSize_Ext
        QTest::addColumn<QByteArray>("kept"); // the dynamic data the page keeps
        const QByteArray good = extRecord(item(1, 8, le(42, 8)));

        QByteArray longer = good;
        longer.replace(1, 2, le(55 + 10 + 20, 2)); // DataSize claims 20 bytes the buffer lacks
        QTest::newRow("DataSize past the buffer") << longer << 30 << good.mid(58) + QByteArray(20, '\0');

        QByteArray wrapped = good;
        wrapped.replace(1, 2, le(10, 2)); // smaller than the head: the size wraps around
        QTest::newRow("DataSize smaller than the parts")
            << wrapped << int(quint16(10 - 4 - 37 - 14)) << QByteArray(256, '\0');

        QByteArray zero = good;
        zero.replace(1, 2, le(0, 2));
        zero[4] = char(0);
        zero[43] = char(0);
        QTest::newRow("all sizes zero") << zero << int(quint16(-4)) << QByteArray(256, '\0');

        QByteArray hiddenBig = good;
        hiddenBig[43] = char(200);
        QTest::newRow("hidden size too big")
            << hiddenBig << int(quint16(65 - 4 - 37 - 200)) << QByteArray(256, '\0');

        QByteArray visibleSmall = good;
        visibleSmall[4] = char(0); // the visible bytes count as dynamic data now
        QTest::newRow("visible size too small")
            << visibleSmall << 47 << good.mid(21, 47) + QByteArray(209, '\0');

        QByteArray many;
        for (int i = 0; i < 300; ++i)
            many.append(char(i));
        QTest::newRow("more than the structure holds") << extRecord(many) << 300 << many.left(256);

        QTest::newRow("head cut short")
            << good.left(10) << int(quint16(65 - 4 - 37)) << QByteArray(256, '\0');
        QTest::newRow("kind only") << good.left(1) << int(quint16(-4)) << QByteArray(256, '\0');
    }

    void sizesThatLie()
    {
        QFETCH(QByteArray, record);
        QFETCH(int, declared);
        QFETCH(QByteArray, kept);
        const ExactBuffer buf(record);
        TmiPage_Orba3 page(buf.data(), buf.size());
        QCOMPARE(int(page.getDynamicDataSize_Ext()), declared);
        QCOMPARE(structureBytes(page.extTMI().DynamicData, 256).left(kept.size()), kept);
        QCOMPARE(structureBytes(page.extTMI().DynamicData, 256).mid(kept.size()),
            QByteArray(256 - kept.size(), '\0'));
        QVERIFY(xmlOf(page).endsWith(QStringLiteral("\t</Page>\r\n"))); // the walk stays inside
    }

    void xmlPage()
    {
        const QByteArray record
            = extRecord(item(1, 8, le(42, 8)) + item(2, 16, QByteArray("a<b&\"c\"") + QByteArray(9, '\0'))
                + item(9, 1, {}) + item(3, 8, le(~quint64(0), 8)));
        const ExactBuffer buf(record);
        TmiPage_Orba3 page(buf.data(), buf.size());
        const QString xml = xmlOf(page);
        const int size = record.size() - 3;
        const QString expected = QStringLiteral(
            "\t<Page type=\"177\" size=\"%1\" stVer=\"1\" stSize=\"37\" hVer=\"2\" hSize=\"14\">\r\n"
            "\t\t<NumPage>12</NumPage>\r\n"
            "\t\t<Code>258</Code>\r\n"
            "\t\t<Time>1700000000</Time>\r\n"
            "\t\t<StateNGauge>3</StateNGauge>\r\n"
            "\t\t<LastTime>1699999990</LastTime>\r\n"
            "\t\t<Latitude>33456789</Latitude>\r\n"
            "\t\t<Longitude>-22200001</Longitude>\r\n"
            "\t\t<Altitude>-15</Altitude>\r\n"
            "\t\t<Speed>12.5</Speed>\r\n"
            "\t\t<Course>270</Course>\r\n"
            "\t\t<Run>-1.5</Run>\r\n"
            "\t\t<State>153</State>\r\n"
            "\t\t<StateOut1>129</StateOut1>\r\n"
            "\t\t<StateIn_Imp1>100000</StateIn_Imp1>\r\n"
            "\t\t<StateIn_Imp2>7</StateIn_Imp2>\r\n"
            "\t\t<Motochas>3600</Motochas>\r\n"
            "\t\t<Dynamic type=\"1\" size=\"8\" value=\"42\"/>\r\n"
            "\t\t<Dynamic type=\"2\" size=\"16\" value=\"a&lt;b&amp;&quot;c&quot;\"/>\r\n"
            "\t\t<Dynamic type=\"3\" size=\"8\" value=\"18446744073709551615\"/>\r\n"
            "\t</Page>\r\n")
                                     .arg(size);
        QCOMPARE(xml, expected);
    }

    void fromStructure()
    {
        const QByteArray record = extRecord(item(3, 8, le(77, 8)));
        TmiPage_Orba3 decoded(record);
        TmiPage_Orba3 copy(decoded.extTMI());
        QCOMPARE(copy.isExtended(), 1);
        QCOMPARE(structureBytes(&copy.extTMI(), 314), structureBytes(&decoded.extTMI(), 314));
    }
};

QTEST_GUILESS_MAIN(tst_OrbaExt)
#include "tst_orba_ext.moc"
