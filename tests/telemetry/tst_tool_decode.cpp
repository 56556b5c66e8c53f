// zrk-tool decode, run as the built program.
#include "orba_records.h"
#include "tests/common/tool_run.h"

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

QJsonObject object(const QByteArray& line)
{
    return QJsonDocument::fromJson(line).object();
}

QJsonObject field(const QJsonObject& record, int no)
{
    return record[QLatin1String("fields")].toArray()[no - 1].toObject();
}

QByteArray sampleRecord(int version)
{
    RecordBuilder b;
    b.setNumber(orba::F_NumPage, 4242).setNumber(orba::F_Latitude, 33456789);
    if (version >= 3)
        b.setNumber(orba::F_User8Byte3, 0x8000000000000001ULL);
    return b.record(version);
}

QByteArray extRecord()
{
    QByteArray visible = le(99, 4) + le(1, 2) + le(1700000000, 4) + QByteArray(5, '\0') + le(33456789, 4)
        + QByteArray(8, '\0') + QByteArray::fromHex("00004841") + le(90, 2) + le(0, 4);
    QByteArray hidden = le(0x01, 1) + le(0x80, 1) + le(5, 4) + le(6, 4) + le(7, 4);
    QByteArray dynamic
        = QByteArray("\x01\x08", 2) + le(42, 8) + QByteArray("\x02\x10LOG,1\"", 8) + QByteArray(10, '\0');
    QByteArray after = QByteArray("\x01\x25", 2) + visible + QByteArray("\x02\x0e", 2) + hidden + dynamic;
    return QByteArray(1, char(0xB1)) + le(after.size(), 2) + after;
}

} // namespace

class tst_ToolDecode : public QObject
{
    Q_OBJECT
private slots:
    void currentRecords_data();
    void currentRecords();
    void linesOnStandardInput();
    void extendedRecord();
    void fixedPacketFromFile();
    void csv();
    void badInput_data();
    void badInput();
};

void tst_ToolDecode::currentRecords_data()
{
    QTest::addColumn<int>("version");
    for (int v : { 1, 2, 3 })
        QTest::newRow(qPrintable(QString::number(v))) << v;
}

void tst_ToolDecode::currentRecords()
{
    QFETCH(int, version);
    const auto r = decode({ QStringLiteral("--hex"), QString::fromLatin1(sampleRecord(version).toHex()) });
    QCOMPARE(r.code, 0);
    QCOMPARE(lines(r.out).size(), 1);
    const QJsonObject o = object(r.out);
    QCOMPARE(o[QLatin1String("kind")].toInt(), 176);
    QCOMPARE(o[QLatin1String("version")].toInt(), version * 10);
    QCOMPARE(o[QLatin1String("page")].toString(), QStringLiteral("TmiPage_Orba%1").arg(version));
    const int last = orba::kLastField[version];
    QCOMPARE(o[QLatin1String("fields")].toArray().size(), last);
    QCOMPARE(field(o, last)[QLatin1String("name")].toString(), QLatin1String(orba::kFields[last - 1].name));
    QVERIFY(o[QLatin1String("format")].toString().startsWith(QStringLiteral("1000000001000")));
    QCOMPARE(field(o, 1)[QLatin1String("value")].toInt(), 4242);
    QCOMPARE(field(o, 2)[QLatin1String("present")].toBool(), false);
    QCOMPARE(field(o, 2)[QLatin1String("text")].toString(), QStringLiteral("n/a"));
    QCOMPARE(field(o, 10)[QLatin1String("text")].toString(), QStringLiteral("55 45.6789'"));
    if (version >= 3) // beyond a double's precision: the number is written whole
        QVERIFY(r.out.contains("\"name\":\"User8Byte3\",\"present\":true,\"value\":9223372036854775809,"));
}

void tst_ToolDecode::linesOnStandardInput()
{
    const QByteArray input = sampleRecord(2).toHex() + "\n\n" + sampleRecord(3).toHex().toUpper()
        + "\r\nb028ff\n" + "  b0 0a " + sampleRecord(1).mid(2).toHex() + "\n";
    const auto r = decode({}, input);
    QCOMPARE(r.code, 0);
    const QList<QByteArray> l = lines(r.out);
    QCOMPARE(l.size(), 4);
    QCOMPARE(object(l[0])[QLatin1String("page")].toString(), QStringLiteral("TmiPage_Orba2"));
    QCOMPARE(object(l[1])[QLatin1String("page")].toString(), QStringLiteral("TmiPage_Orba3"));
    QCOMPARE(l[2], QByteArray("{\"kind\":176,\"version\":40,\"length\":3,\"page\":\"unknown\"}"));
    QCOMPARE(object(l[3])[QLatin1String("page")].toString(), QStringLiteral("TmiPage_Orba1"));
    QCOMPARE(decode({ QStringLiteral("-") }, "b1\n").out,
        QByteArray("{\"kind\":177,\"version\":null,\"length\":1,\"page\":\"unknown\"}\n"));
}

void tst_ToolDecode::extendedRecord()
{
    const auto r = decode({ QStringLiteral("--hex"), QString::fromLatin1(extRecord().toHex()) });
    QCOMPARE(r.code, 0);
    const QJsonObject o = object(r.out);
    QCOMPARE(o[QLatin1String("kind")].toInt(), 177);
    QCOMPARE(o[QLatin1String("page")].toString(), QStringLiteral("TmiPage_Orba3"));
    const QJsonObject head = o[QLatin1String("head")].toObject();
    QCOMPARE(head[QLatin1String("NumberTmiPage")].toInt(), 99);
    QCOMPARE(head[QLatin1String("Latitude")].toInt(), 33456789);
    QCOMPARE(head[QLatin1String("Speed")].toDouble(), 12.5);
    QCOMPARE(head[QLatin1String("Motochas")].toInt(), 7);
    QCOMPARE(o[QLatin1String("dynamicSize")].toInt(), 28);
    const QJsonArray items = o[QLatin1String("dynamic")].toArray();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items[0].toObject()[QLatin1String("value")].toInt(), 42);
    QCOMPARE(items[1].toObject()[QLatin1String("value")].toString(), QStringLiteral("LOG,1\""));
    QVERIFY(o[QLatin1String("xml")].toString().contains(
        QStringLiteral("\t\t<Dynamic type=\"2\" size=\"16\" value=\"LOG,1&quot;\"/>\r\n")));
}

void tst_ToolDecode::fixedPacketFromFile()
{
    QByteArray packet(128, '\0');
    packet[0] = char(0x08);
    packet.replace(1, 4, le(7, 4));
    packet.replace(65, 4, le(33456789, 4));
    QTemporaryDir dir;
    QFile f(dir.filePath(QStringLiteral("packet.bin")));
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(packet) == 128);
    f.close();
    const auto r = decode({ f.fileName() });
    QCOMPARE(r.code, 0);
    const QJsonObject o = object(r.out);
    QCOMPARE(o[QLatin1String("kind")].toInt(), 8);
    QCOMPARE(o[QLatin1String("page")].toString(), QStringLiteral("TmiPage_Orba1"));
    QCOMPARE(field(o, 1)[QLatin1String("value")].toInt(), 7);
    QCOMPARE(field(o, 6)[QLatin1String("text")].toString(), QStringLiteral("n/a"));
    QCOMPARE(field(o, 10)[QLatin1String("text")].toString(), QStringLiteral("55 45.6789'"));
}

void tst_ToolDecode::csv()
{
    const auto r = decode(
        { QStringLiteral("--csv") }, sampleRecord(1).toHex() + "\n" + extRecord().toHex() + "\nff\n");
    QCOMPARE(r.code, 0);
    const QList<QByteArray> l = lines(r.out);
    QCOMPARE(l.size(), 4);
    const QList<QByteArray> header = l[0].split(',');
    QCOMPARE(header.size(), 5 + 255);
    QCOMPARE(header[5], QByteArray("NumPage"));
    QVERIFY(l[1].startsWith("176,10,"));
    QVERIFY(l[1].contains(",4242,"));
    QVERIFY(l[1].contains(",55 45.6789',"));
    QVERIFY(l[2].contains(",TmiPage_Orba3,,99,1,14.11.2023 22:13:20,"));
    QCOMPARE(l[3], QByteArray("255,,1,unknown,") + QByteArray(255, ','));
}

void tst_ToolDecode::badInput_data()
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
    QTest::newRow("odd line on standard input")
        << QStringList { "-" } << QByteArray("b01e\nb01e0\n") << QByteArray("line 2: odd number");
    QTest::newRow("unknown option") << QStringList { "--json" } << QByteArray()
                                    << QByteArray("unknown option");
}

void tst_ToolDecode::badInput()
{
    QFETCH(QStringList, args);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, message);
    const auto r = decode(args, input);
    QVERIFY(r.code > 0);
    QCOMPARE(lines(r.err).size(), 1);
    QVERIFY2(r.err.contains(message), r.err.constData());
}

QTEST_GUILESS_MAIN(tst_ToolDecode)
#include "tst_tool_decode.moc"
