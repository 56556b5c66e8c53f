// Saved telemetry files: the exact text, the round trip, damaged files, the hex rule, and
// zrk-tool tmi run as the built program.
#include "orba_records.h"
#include "telemetry/orba_export.h"
#include "telemetry/tmi_file.h"
#include "tests/common/tool_run.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace orbatest;
using zrk::tmi::Header;
using zrk::tmi::Record;

Q_DECLARE_METATYPE(Header)
Q_DECLARE_METATYPE(QVector<Record>)

namespace {

QString dataFile(const char* name)
{
    return QStringLiteral(ZRK_TEST_DATA_DIR "/") + QLatin1String(name);
}

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool writeAll(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

QByteArray positioned(quint32 number, qint32 lat, qint32 lon, float speed, int version = 3)
{
    quint32 speedBits;
    std::memcpy(&speedBits, &speed, 4);
    return RecordBuilder()
        .setNumber(orba::F_NumPage, number)
        .setNumber(orba::F_Code, 5)
        .setNumber(orba::F_Time, 1700000000 + number)
        .setNumber(orba::F_Latitude, quint32(lat))
        .setNumber(orba::F_Longitude, quint32(lon))
        .setNumber(orba::F_Speed, speedBits)
        .record(version);
}

Record rec(const QByteArray& bytes, qint64 ms = zrk::tmi::kNoTime, bool history = false)
{
    Record r;
    r.bytes = bytes;
    if (ms != zrk::tmi::kNoTime)
        r.received = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
    r.fromHistory = history;
    return r;
}

// The file of the golden text: titles with markup, Cyrillic and a character windows-1251 lacks;
// a current record, one from the history, an extended record and one of an unknown kind.
Header goldenHeader()
{
    Header h;
    h.model = QStringLiteral("K-7140");
    h.vendor = QStringLiteral("ZIRKOMATIC");
    h.timezoneOffset = 10800;
    h.inTitles = QStringList { QStringLiteral("Зажигание"), QStringLiteral("Дверь \"A\" & <B>") };
    h.outTitles = QStringList { QStringLiteral("Сирена ✓") };
    h.tempTitles = QStringList { QStringLiteral("Кузов") };
    h.userParamTypes = QStringList { QStringLiteral("1,2"), QString(), QString(), QStringLiteral("8") };
    return h;
}

QVector<Record> goldenRecords()
{
    return { rec(positioned(1, 33456789, 22345678, 45.5f), 1700000000123),
        rec(positioned(2, 33456800, 22345700, 50.25f), 1700000011000, true), rec(extRecord()),
        rec(QByteArray::fromHex("b028ff")) };
}

zrktest::ToolRun tool(const QStringList& args, const QByteArray& input = {})
{
    return zrktest::runZrkTool(QStringList { QStringLiteral("tmi") } + args, input);
}

} // namespace

class tst_TmiFile : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // Record times are written as local date and time.
        qputenv("TZ", "UTC0");
        tzset();
        QVERIFY(m_dir.isValid());
        zrk::installCatalogue(QStringLiteral("ru"));
        // GOLDEN_OUT=path writes the golden text anew, after a deliberate change of the format.
        if (qEnvironmentVariableIsSet("GOLDEN_OUT"))
            writeAll(
                qEnvironmentVariable("GOLDEN_OUT"), zrk::tmi::fileBytes(goldenHeader(), goldenRecords()));
    }

    void golden()
    {
        const QByteArray golden = readAll(dataFile("golden.tmi"));
        QVERIFY(!golden.isEmpty());
        QCOMPARE(zrk::tmi::fileBytes(goldenHeader(), goldenRecords()), golden);
        const zrk::tmi::ReadResult r = zrk::tmi::read(dataFile("golden.tmi"));
        QCOMPARE(r.error, QString());
        QCOMPARE(r.records, goldenRecords());
        QCOMPARE(r.header.inTitles.mid(0, 2), goldenHeader().inTitles);
        QCOMPARE(r.header.outTitles.value(0), goldenHeader().outTitles[0]);
        QCOMPARE(r.header.userParamTypes, goldenHeader().userParamTypes);
        QCOMPARE(r.header.timezoneOffset, 10800);
    }

    void roundTrip_data()
    {
        QTest::addColumn<QVector<Record>>("records");
        QVector<Record> versions;
        for (int v : { 1, 2, 3 })
            versions << rec(positioned(quint32(v), -1, 1, -0.5f, v), 1 + v);
        QTest::newRow("versions, times to the millisecond") << versions;
        QByteArray fixed(orba::kFixedPacketBytes, '\x5a');
        fixed[0] = char(orba::kKindFixedPacket);
        QTest::newRow("fixed, extended with items, short and odd") << QVector<Record> { rec(fixed, 0, true),
            rec(extRecord(item(2, 16, QByteArray("<&\">").leftJustified(16, '\0')))),
            rec(QByteArray(1, char(orba::kKindCurrent))), rec(QByteArray(1, '\0')),
            rec(QByteArray::fromHex("b01e") + QByteArray(40, '\xff')) };
        QTest::newRow("none") << QVector<Record>();
    }

    void roundTrip()
    {
        QFETCH(QVector<Record>, records);
        const QString path = m_dir.filePath(QStringLiteral("round.tmi"));
        QString error;
        Header h = goldenHeader();
        h.model = QStringLiteral("\x01<model>");
        QVERIFY(zrk::tmi::write(path, h, records, &error));
        const zrk::tmi::ReadResult r = zrk::tmi::read(path);
        QCOMPARE(r.error, QString());
        QCOMPARE(r.records, records);
        QCOMPARE(r.header.model, h.model);
        QCOMPARE(r.header.inTitles[1], h.inTitles[1]);
    }

    // Every cut of the file reads without a crash, keeps the records whose element is complete
    // (never more, never out of order), and says what is wrong until the end tag is there.
    void everyTruncatedPrefix()
    {
        const QByteArray full = readAll(dataFile("golden.tmi"));
        const QVector<Record> all = goldenRecords();
        const int endTag = full.indexOf("</TMI>");
        const int firstClosed = full.indexOf("</RECORD>") + int(qstrlen("</RECORD>"));
        int kept = 0;
        for (int len = 0; len <= full.size(); ++len) {
            Header h;
            QVector<Record> got;
            const QString error = zrk::tmi::parse(full.constData(), len, QStringLiteral("cut.tmi"), &h,
                [&](const QByteArray& bytes, qint64 ms, bool history) {
                    got << rec(bytes, ms, history);
                    return true;
                });
            QVERIFY2(got.size() >= kept && got == all.mid(0, got.size()), qPrintable(QString::number(len)));
            kept = got.size();
            QCOMPARE(error.isEmpty(), len >= endTag + int(qstrlen("</TMI>")));
            QVERIFY(error.isEmpty() || error.contains(QLatin1String("cut.tmi")));
            if (len == firstClosed)
                QCOMPARE(got.size(), 1);
            if (len == firstClosed - 1)
                QCOMPARE(got.size(), 0);
        }
        QCOMPARE(kept, all.size());
    }

    void damaged_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("kept");
        QTest::addColumn<QString>("message");
        const QByteArray head = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n<TMI model=\"K\">\r\n";
        const QByteArray good = "\t<RECORD n=\"1\" data=\"b01e00\"/>\r\n";
        QTest::newRow("empty") << QByteArray() << 0 << QStringLiteral("это не файл телеметрии");
        QTest::newRow("not xml") << QByteArray("PK\x03\x04") << 0 << QStringLiteral("это не файл телеметрии");
        QTest::newRow("another document") << QByteArray("<?xml version=\"1.0\"?><DEVICE/>") << 0
                                          << QStringLiteral("это не файл телеметрии");
        QTest::newRow("odd hex") << head + good + "\t<RECORD data=\"b01\"/>\r\n</TMI>\r\n"
                                 << 1
                                 << QStringLiteral(
                                        "запись 2 повреждена: байты записи не в шестнадцатеричном виде");
        QTest::newRow("stray character in hex")
            << head + "\t<RECORD data=\"b0-1\"/>" << 0 << QStringLiteral("запись 1 повреждена");
        QTest::newRow("no data") << head + good + good + "\t<RECORD n=\"3\"/>\r\n</TMI>\r\n"
                                 << 2 << QStringLiteral("запись 3 повреждена: нет байтов записи");
        QTest::newRow("empty data") << head + "\t<RECORD data=\"\"/></TMI>" << 0
                                    << QStringLiteral("запись 1 повреждена");
        QTest::newRow("bad time") << head + good + "\t<RECORD received=\"yesterday\" data=\"00\"/></TMI>" << 1
                                  << QStringLiteral("неверное время получения");
        QTest::newRow("unquoted attribute") << head + good + "\t<RECORD data=b0/></TMI>" << 1
                                            << QStringLiteral("запись 2 повреждена: нарушена разметка");
        QTest::newRow("text between records")
            << head + good + "oops" + good << 1 << QStringLiteral("после записи 1 стоит посторонний текст");
        QTest::newRow("record too long") << head + "\t<RECORD data=\"" + QByteArray(2 * 65537, 'a')
                + "\"/></TMI>" << 0 << QStringLiteral("запись длиннее 65536 байт");
        QTest::newRow("open record never closed")
            << head + good + "\t<RECORD data=\"00\">\r\n\t\t<NumPage>1</NumPage>" << 1
            << QStringLiteral("файл обрывается внутри записи 2");
        QTest::newRow("no end tag") << head + good << 1
                                    << QStringLiteral("файл обрывается: нет конца </TMI>");
    }

    void damaged()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, kept);
        QFETCH(QString, message);
        const QString path = m_dir.filePath(QStringLiteral("damaged.tmi"));
        QVERIFY(writeAll(path, text));
        const zrk::tmi::ReadResult r = zrk::tmi::read(path);
        QCOMPARE(r.records.size(), kept);
        QVERIFY2(r.error.contains(message), qPrintable(r.error));
        QVERIFY(r.error.contains(path));
    }

    void hexRule_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes"); // null: rejected
        QTest::addColumn<QString>("why");
        QTest::newRow("spaces between and inside pairs")
            << QStringLiteral(" b0 1E\t0\na\r\n") << QByteArray::fromHex("b01e0a") << QString();
        QTest::newRow("empty") << QString() << QByteArray("") << QString();
        QTest::newRow("odd") << QStringLiteral("b01") << QByteArray()
                             << QStringLiteral("odd number of hex digits (3)");
        QTest::newRow("prefix") << QStringLiteral("0x10") << QByteArray()
                                << QStringLiteral("'x' is not a hex digit");
        QTest::newRow("Cyrillic look-alike")
            << QStringLiteral("b0 а0") << QByteArray() << QStringLiteral("'а' is not a hex digit");
        QTest::newRow("no-break space")
            << QStringLiteral("b0\u00a0a0") << QByteArray() << QStringLiteral("is not a hex digit");
    }

    void hexRule()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, why);
        QByteArray out = "untouched";
        QString reason;
        QCOMPARE(zrk::parseHex(text, out, &reason), !bytes.isNull());
        QCOMPARE(out, bytes.isNull() ? QByteArray("untouched") : bytes);
        QVERIFY(reason.contains(why));
        QByteArray fromBytes;
        QCOMPARE(zrk::parseHex(text.toUtf8(), fromBytes), !bytes.isNull());
    }

    void exports()
    {
        const QVector<Record> records = goldenRecords();
        QString error;
        const QString csv = m_dir.filePath(QStringLiteral("out.csv"));
        QVERIFY(zrk::tmi::exportCsv(csv, records, &error));
        const QList<QByteArray> rows = readAll(csv).mid(3).split('\n');
        QCOMPARE(rows.size(), records.size() + 2); // header, records, the empty rest after the last CR LF
        QCOMPARE(rows[0].trimmed(), zrk::csvLine(orba::csvHeader()).toUtf8());
        QVERIFY(rows[1].startsWith("176,30,"));
        QVERIFY(rows[4].startsWith("176,40,3,unknown,"));

        const QString kml = m_dir.filePath(QStringLiteral("out.kml"));
        QVERIFY(zrk::tmi::exportKml(kml, records, &error));
        const QByteArray k = readAll(kml);
        // The two positioned records and the extended one (its head has a position too).
        QCOMPARE(k.count("<Placemark>"), 1 + 3);
        QVERIFY(k.contains("<coordinates>\n37.242797,55.761315,0\n37.242833,55.761333,0\n"));
        QVERIFY(k.contains("<when>2023-11-14T22:13:21Z</when>"));
        QVERIFY(!zrk::tmi::exportKml(m_dir.filePath(QStringLiteral("missing/out.kml")), records, &error));
        QVERIFY(error.contains(QLatin1String("missing/out.kml")));
    }

    void toolWriteReadExport()
    {
        const QString path = m_dir.filePath(QStringLiteral("tool.tmi"));
        const QByteArray a = positioned(7, 1, 2, 3), b = extRecord();
        auto r = tool(
            { QStringLiteral("write"), path, QStringLiteral("-") }, a.toHex() + "\n\n" + b.toHex(' ') + "\n");
        QCOMPARE(r.code, 0);
        QCOMPARE(zrk::tmi::read(path).records, (QVector<Record> { rec(a), rec(b) }));

        r = tool({ QStringLiteral("read"), path });
        QCOMPARE(r.code, 0);
        const auto decoded = zrktest::runZrkTool(
            { QStringLiteral("decode"), QStringLiteral("-") }, a.toHex() + '\n' + b.toHex());
        QCOMPARE(r.out, decoded.out);

        const QString csv = m_dir.filePath(QStringLiteral("tool.csv"));
        QCOMPARE(tool({ QStringLiteral("export"), path, QStringLiteral("--csv"), csv }).code, 0);
        const auto decodedCsv = zrktest::runZrkTool(
            { QStringLiteral("decode"), QStringLiteral("--csv"), QStringLiteral("-") }, a.toHex());
        QCOMPARE(
            readAll(csv).mid(3).split('\n').mid(0, 2).join('\n').replace('\r', ""), decodedCsv.out.trimmed());
    }

    void toolFailures_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("message");
        const QString out = m_dir.filePath(QStringLiteral("fail.tmi"));
        QTest::newRow("bad hex argument") << QStringList { "write", out, "b0", "b0z1" } << QByteArray() << 1
                                          << QByteArray("bad hex in argument 2: 'z' is not a hex digit");
        QTest::newRow("odd line") << QStringList { "write", out, "-" } << QByteArray("b0\nb01\n") << 1
                                  << QByteArray("bad hex on line 2: odd number");
        QTest::newRow("unreadable") << QStringList { "read", "/nonexistent.tmi" } << QByteArray() << 1
                                    << QByteArray("/nonexistent.tmi");
        QTest::newRow("export without format")
            << QStringList { "export", out, "out.csv" } << QByteArray() << 2 << QByteArray("usage");
        QTest::newRow("no subcommand") << QStringList {} << QByteArray() << 2 << QByteArray("expected write");
    }

    void toolFailures()
    {
        QFETCH(QStringList, args);
        QFETCH(QByteArray, input);
        QFETCH(int, code);
        QFETCH(QByteArray, message);
        const auto r = tool(args, input);
        QCOMPARE(r.code, code);
        QCOMPARE(r.err.count('\n'), 1);
        QVERIFY2(r.err.contains(message), r.err.constData());
    }

    // A damaged file: the good records are printed, the fault fails the command.
    void toolReadsGoodRecordsOfADamagedFile()
    {
        const QByteArray full = readAll(dataFile("golden.tmi"));
        const QString path = m_dir.filePath(QStringLiteral("cut.tmi"));
        QVERIFY(writeAll(path, full.left(full.indexOf("</RECORD>") + 40)));
        const auto r = tool({ QStringLiteral("read"), path });
        QCOMPARE(r.code, 1);
        QCOMPARE(r.out.count('\n'), 1);
        QVERIFY(QString::fromUtf8(r.err).contains(QStringLiteral("обрывается внутри записи 2")));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_TmiFile)
#include "tst_tmi_file.moc"
