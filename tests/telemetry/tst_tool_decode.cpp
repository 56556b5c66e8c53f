// zrk-tool decode, run as the built program.
#include "orba_records.h"
#include "telemetry/orba_writer.h"
#include "telemetry/tmi_file.h"
#include "tests/common/tool_run.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace orbatest;

namespace {

zrktest::ToolRun decode(QStringList args, const QByteArray& input = {})
{
    args.prepend(QStringLiteral("decode"));
    return zrktest::runZrkTool(args, input);
}

QList<QByteArray> lines(const QByteArray& out)
{
    QList<QByteArray> l = out.split('\n');
    if (!l.isEmpty() && l.last().isEmpty())
        l.removeLast();
    return l;
}

// The value at a path of object keys and array indexes, "fields/10/text", as text.
QString at(const QByteArray& json, const QString& path)
{
    QJsonValue v = QJsonDocument::fromJson(json).object();
    for (const QString& step : path.split(QLatin1Char('/'))) {
        bool isIndex = false;
        const int i = step.toInt(&isIndex);
        v = isIndex ? v.toArray()[i] : v.toObject()[step];
    }
    return v.isArray() ? QString::number(v.toArray().size()) : v.toVariant().toString();
}

QByteArray sampleRecord(int version)
{
    RecordBuilder b;
    b.setNumber(orba::F_NumPage, 4242).setNumber(orba::F_Latitude, 33456789);
    // The last field of the version; in version 3 beyond a double's precision.
    b.setNumber(orba::kLastField[version], version == 3 ? 0x8000000000000001ULL : 1);
    return b.record(version);
}

QByteArray extRecordWithItems()
{
    return extRecord(item(1, 8, le(42, 8)) + item(2, 16, QByteArray("LOG,1\"") + QByteArray(10, '\0')));
}

// Records of every kind, numbered from first: current records of the three versions with field
// sets that change, extended records, fixed packets and unknown kinds.
QList<QByteArray> manyRecords(int first, int count)
{
    QList<QByteArray> records;
    for (int i = first; i < first + count; ++i) {
        switch (i % 7) {
        case 0:
            records << extRecordWithItems();
            break;
        case 1: {
            QByteArray packet(128, char(i));
            packet[0] = char(orba::kKindFixedPacket);
            records << packet;
            break;
        }
        case 2:
            records << QByteArray::fromHex("c3") + le(i, 4);
            break;
        default: {
            RecordBuilder b;
            b.setNumber(orba::F_NumPage, quint64(i)).setNumber(orba::F_Time, 1700000000 + i);
            b.setNumber(orba::F_Latitude, 33456789 + i).setPattern(1 + i % 200);
            records << b.record(1 + i % 3);
        }
        }
    }
    return records;
}

QByteArray hexLines(const QList<QByteArray>& records)
{
    QByteArray text;
    for (const QByteArray& r : records)
        text += r.toHex() + '\n';
    return text;
}

// The lines of the records as the record writer makes them in this process (tst_orba_writer holds
// it to the shapes it replaced).
QByteArray expectedLines(const QList<QByteArray>& records, bool csv)
{
    orba::RecordWriter w(csv ? orba::RecordWriter::Format::Csv : orba::RecordWriter::Format::JsonLines);
    zrk::TextBuffer out;
    w.writeHeader(out);
    for (const QByteArray& r : records)
        w.write(r, out);
    return QByteArray(out.data(), int(out.size()));
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

QString tmiFile(const QString& path, const QList<QByteArray>& records)
{
    QVector<zrk::tmi::Record> rs;
    for (const QByteArray& r : records)
        rs << zrk::tmi::Record { r, QDateTime(), false };
    QString error;
    return zrk::tmi::write(path, zrk::tmi::Header(), rs, &error) ? path : error;
}

} // namespace

class tst_ToolDecode : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // The expected lines are made here, with the tool's zone and catalogue.
        qputenv("TZ", "UTC0");
        QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
        QVERIFY(m_dir.isValid());
    }

    void records_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QString>("source"); // hex or file
        QTest::addColumn<QStringList>("expected"); // "path=text" (fields/0 is field 1)
        for (int v : { 1, 2, 3 }) {
            const int last = orba::kLastField[v];
            QString format(last, QLatin1Char('0'));
            format[0] = format[9] = format[last - 1] = QLatin1Char('1');
            QTest::newRow(qPrintable(QStringLiteral("version %1").arg(v)))
                << sampleRecord(v) << QStringLiteral("hex")
                << QStringList { "kind=176", QStringLiteral("version=%1").arg(v * 10),
                       QStringLiteral("page=TmiPage_Orba%1").arg(v), QStringLiteral("fields=%1").arg(last),
                       QStringLiteral("fields/%1/name=%2").arg(last - 1).arg(orba::kFields[last - 1].name),
                       "format=" + format, "fields/0/value=4242", "fields/1/present=false",
                       "fields/1/text=n/a", "fields/9/text=55 45.6789'" };
        }
        QByteArray packet(128, '\0');
        packet[0] = char(0x08);
        packet.replace(1, 4, le(7, 4));
        packet.replace(65, 4, le(33456789, 4));
        QTest::newRow("fixed packet from a file")
            << packet << QStringLiteral("file")
            << QStringList { "kind=8", "page=TmiPage_Orba1", "fields/0/value=7", "fields/5/text=n/a",
                   "fields/9/text=55 45.6789'" };
        QTest::newRow("extended record")
            << extRecordWithItems() << QStringLiteral("hex")
            << QStringList { "kind=177", "page=TmiPage_Orba3", "head/NumberTmiPage=12",
                   "head/Latitude=33456789", "head/Speed=12.5", "head/Motochas=3600", "dynamicSize=28",
                   "dynamic=2", "dynamic/0/value=42", "dynamic/1/value=LOG,1\"" };
    }

    void records()
    {
        QFETCH(QByteArray, record);
        QFETCH(QString, source);
        QFETCH(QStringList, expected);
        QTemporaryDir dir;
        QFile f(dir.filePath(QStringLiteral("record.bin")));
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write(record) == record.size());
        f.close();
        const auto r = source == QLatin1String("hex")
            ? decode({ QStringLiteral("--hex"), QString::fromLatin1(record.toHex()) })
            : decode({ f.fileName() });
        QCOMPARE(r.code, 0);
        QCOMPARE(lines(r.out).size(), 1);
        for (const QString& e : expected) {
            const int eq = e.indexOf(QLatin1Char('='));
            QCOMPARE(at(r.out, e.left(eq)), e.mid(eq + 1));
        }
        if (record.size() > 34
            && record[1] == char(30)) // beyond a double's precision: written whole, as text
            QVERIFY(r.out.contains("\"value\":\"9223372036854775809\""));
        if (record[0] == char(0xB1))
            QVERIFY(at(r.out, "xml")
                        .contains(QStringLiteral(
                            "\t\t<Dynamic type=\"2\" size=\"16\" value=\"LOG,1&quot;\"/>\r\n")));
    }

    void linesOnStandardInput()
    {
        const QByteArray input = sampleRecord(2).toHex() + "\n\n" + sampleRecord(3).toHex().toUpper()
            + "\r\nb028ff\n" + "  b0 0a " + sampleRecord(1).mid(2).toHex() + "\n";
        const auto r = decode({}, input);
        QCOMPARE(r.code, 0);
        const QList<QByteArray> l = lines(r.out);
        QCOMPARE(l.size(), 4);
        QCOMPARE(at(l[0], "page"), QStringLiteral("TmiPage_Orba2"));
        QCOMPARE(at(l[1], "page"), QStringLiteral("TmiPage_Orba3"));
        QCOMPARE(l[2], QByteArray("{\"kind\":176,\"length\":3,\"page\":\"unknown\",\"version\":40}"));
        QCOMPARE(at(l[3], "page"), QStringLiteral("TmiPage_Orba1"));
        QCOMPARE(decode({ QStringLiteral("-") }, "b1\n").out,
            QByteArray("{\"kind\":177,\"length\":1,\"page\":\"unknown\",\"version\":null}\n"));
    }

    void csv()
    {
        const auto r = decode({ QStringLiteral("--csv") },
            sampleRecord(1).toHex() + "\n" + extRecordWithItems().toHex() + "\nff\n");
        QCOMPARE(r.code, 0);
        const QList<QByteArray> l = lines(r.out);
        QCOMPARE(l.size(), 4);
        const QList<QByteArray> header = l[0].split(',');
        QCOMPARE(header.size(), 5 + 255);
        QCOMPARE(header[5], QByteArray("NumPage"));
        QVERIFY(l[1].startsWith("176,10,"));
        QVERIFY(l[1].contains(",4242,"));
        QVERIFY(l[1].contains(",55 45.6789',"));
        QVERIFY(l[2].contains(",TmiPage_Orba3,,12,258,14.11.2023 22:13:20,"));
        QCOMPARE(l[3], QByteArray("255,,1,unknown,") + QByteArray(255, ','));
    }

    void filesInInputOrder_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("one thread") << QStringList { "-j", "1" };
        QTest::newRow("two threads") << QStringList { "-j2" };
        QTest::newRow("more threads than cores") << QStringList { "--jobs", "5" };
        QTest::newRow("CSV, two threads") << QStringList { "--csv", "-j", "2" };
    }

    // Files of every kind, each larger than a block the reader takes at once, decoded by one thread
    // or several: the records come out in input order, as the writer before wrote them.
    void filesInInputOrder()
    {
        QFETCH(QStringList, options);
        const bool csv = options.contains(QStringLiteral("--csv"));
        const QList<QByteArray> a = manyRecords(0, 3000), b = manyRecords(3000, 2500),
                                c = manyRecords(5500, 1), d = manyRecords(5501, 40),
                                e = manyRecords(5541, 700);
        QVERIFY(writeFile(m_dir.filePath("a.hex"), hexLines(a)));
        QCOMPARE(tmiFile(m_dir.filePath("b.tmi"), b), m_dir.filePath("b.tmi"));
        QVERIFY(writeFile(m_dir.filePath("c.bin"), c.first()));
        QCOMPARE(tmiFile(m_dir.filePath("d.xml"), d), m_dir.filePath("d.xml")); // told by its content
        QVERIFY(writeFile(m_dir.filePath("e"), "\n  \r\n" + hexLines(e).toUpper()));
        const QStringList files { m_dir.filePath("a.hex"), m_dir.filePath("b.tmi"), m_dir.filePath("c.bin"),
            QStringLiteral("-"), m_dir.filePath("d.xml"), m_dir.filePath("e") };
        const QList<QByteArray> onStdin = manyRecords(9000, 30);
        const auto r = decode(options + files, hexLines(onStdin));
        QCOMPARE(r.err, QByteArray());
        QCOMPARE(r.code, 0);
        const QByteArray expected = expectedLines(a + b + c + onStdin + d + e, csv);
        QCOMPARE(r.out.size(), expected.size());
        QVERIFY(r.out == expected);
    }

    // A line longer than the reader's block, and inputs with no record at all.
    void longLinesAndEmptyInputs()
    {
        const QByteArray huge = QByteArray(1, '\xC3') + QByteArray(200000, '\x5A');
        auto r = decode({ QStringLiteral("-") }, "\n" + huge.toHex() + "\n");
        QCOMPARE(r.code, 0);
        QCOMPARE(r.out, QByteArray("{\"kind\":195,\"length\":200001,\"page\":\"unknown\",\"version\":90}\n"));
        r = decode({}, QByteArray());
        QCOMPARE(r.code, 0);
        QCOMPARE(r.out, QByteArray());
        r = decode({ QStringLiteral("--csv") }, " \n\n");
        QCOMPARE(r.code, 0);
        QCOMPARE(r.out, expectedLines({}, true));
    }

    // What a file holds is told by its content unless --input says it.
    void inputKinds_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QList<QByteArray>>("records");
        const QByteArray hexText = "b01e" + QByteArray(64, '0') + "\n";
        QTest::newRow("hex by content")
            << hexText << QStringList() << QList<QByteArray> { QByteArray::fromHex(hexText) };
        QTest::newRow("the same bytes as one binary record")
            << hexText << QStringList { "--input", "binary" } << QList<QByteArray> { hexText };
        QTest::newRow("binary by content")
            << sampleRecord(3) << QStringList() << QList<QByteArray> { sampleRecord(3) };
        QTest::newRow("empty file: one empty record")
            << QByteArray() << QStringList() << QList<QByteArray> { QByteArray() };
    }

    void inputKinds()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, options);
        QFETCH(QList<QByteArray>, records);
        const QString path = m_dir.filePath(QStringLiteral("kind.dat"));
        QVERIFY(writeFile(path, content));
        const auto r = decode(options + QStringList { path });
        QCOMPARE(r.code, 0);
        QCOMPARE(r.out, expectedLines(records, false));
    }

    // The records before a bad line or a damaged file are written; the fault fails the command
    // and names where it is.
    void faultsAfterGoodRecords_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("good");
        QTest::addColumn<QString>("message");
        const QList<QByteArray> records = manyRecords(0, 3000);
        QTest::newRow("bad hex after a few blocks")
            << QStringLiteral("bad.hex") << hexLines(records) + "b0 1e\nb0 zz\n"
            << 3001 << QStringLiteral("bad hex in %1 on line 3002: 'z' is not a hex digit");
        QTest::newRow("odd digits on the first line") << QStringLiteral(
            "odd.hex") << QByteArray("b01e0\n") << 0 << QStringLiteral("bad hex in %1 on line 1: odd number");
        QByteArray tmi;
        {
            const QString path = m_dir.filePath(QStringLiteral("whole.tmi"));
            QCOMPARE(tmiFile(path, records.mid(0, 2200)), path);
            QFile f(path);
            QVERIFY(f.open(QIODevice::ReadOnly));
            tmi = f.readAll();
        }
        const int cut = tmi.lastIndexOf("<RECORD") + 20;
        QTest::newRow("damaged saved file") << QStringLiteral("cut.tmi") << tmi.left(cut) << 2199
                                            << QStringLiteral("обрывается внутри записи 2200");
    }

    void faultsAfterGoodRecords()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(int, good);
        QFETCH(QString, message);
        const QString path = m_dir.filePath(name);
        QVERIFY(writeFile(path, content));
        for (const char* jobs : { "1", "2" }) {
            const auto r = decode({ QStringLiteral("-j"), QLatin1String(jobs), path });
            QCOMPARE(r.code, 1);
            QCOMPARE(r.out.count('\n'), good);
            QCOMPARE(lines(r.err).size(), 1);
            QVERIFY2(QString::fromUtf8(r.err).contains(message.arg(path)), r.err.constData());
        }
    }

    void progress()
    {
        const QByteArray input = hexLines(manyRecords(0, 50));
        const auto quiet = decode({ QStringLiteral("-") }, input);
        const auto shown = decode({ QStringLiteral("--progress"), QStringLiteral("-") }, input);
        QCOMPARE(quiet.err, QByteArray());
        QCOMPARE(shown.out, quiet.out);
        // Not a terminal: whole lines, the last with the count.
        QVERIFY2(shown.err.startsWith("zrk-tool decode: 50 records, ") && shown.err.endsWith(" records/s\n"),
            shown.err.constData());
    }

    void badInput_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("odd hex") << QStringList { "--hex", "b01e0" } << QByteArray()
                                 << QByteArray("odd number of hex digits");
        QTest::newRow("not hex") << QStringList { "--hex", "b0zz" } << QByteArray()
                                 << QByteArray("'z' is not a hex digit");
        QTest::newRow("--hex without value")
            << QStringList { "--hex" } << QByteArray() << QByteArray("--hex needs");
        QTest::newRow("unreadable file") << QStringList { "/nonexistent/record.bin" } << QByteArray()
                                         << QByteArray("cannot read /nonexistent/record.bin");
        QTest::newRow("odd line on standard input, after a good one")
            << QStringList { "-" } << QByteArray("b01e\nb01e0\n") << QByteArray("line 2: odd number");
        QTest::newRow("unknown option")
            << QStringList { "--json" } << QByteArray() << QByteArray("unknown option");
        QTest::newRow("no threads") << QStringList { "-j", "0" } << QByteArray()
                                    << QByteArray("-j needs a number");
        QTest::newRow("threads not a number")
            << QStringList { "-jx" } << QByteArray() << QByteArray("from 1 to 256, not 'x'");
        QTest::newRow("-j last") << QStringList { "-j" } << QByteArray() << QByteArray("-j needs");
        QTest::newRow("unknown input kind") << QStringList { "--input", "csv", "-" } << QByteArray()
                                            << QByteArray("--input is hex, binary or tmi");
        QTest::newRow("standard input twice")
            << QStringList { "-", "-" } << QByteArray() << QByteArray("more than once");
        QTest::newRow("a missing file after a good one: nothing written") << QStringList { "-",
            "/nonexistent/2.hex" } << QByteArray("b01e\n") << QByteArray("cannot read /nonexistent/2.hex");
    }

    void badInput()
    {
        QFETCH(QStringList, args);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, message);
        const auto r = decode(args, input);
        QVERIFY(r.code > 0);
        QCOMPARE(lines(r.err).size(), 1);
        // Only a record before a bad line is written.
        QCOMPARE(
            lines(r.out).size(), QByteArray(QTest::currentDataTag()).endsWith("after a good one") ? 1 : 0);
        QVERIFY2(r.err.contains(message), r.err.constData());
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_ToolDecode)
#include "tst_tool_decode.moc"
