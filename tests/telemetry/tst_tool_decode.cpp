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

} // namespace

class tst_ToolDecode : public QObject
{
    Q_OBJECT
private slots:
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
        QTest::newRow("odd line on standard input")
            << QStringList { "-" } << QByteArray("b01e\nb01e0\n") << QByteArray("line 2: odd number");
        QTest::newRow("unknown option")
            << QStringList { "--json" } << QByteArray() << QByteArray("unknown option");
    }

    void badInput()
    {
        QFETCH(QStringList, args);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, message);
        const auto r = decode(args, input);
        QVERIFY(r.code > 0);
        QCOMPARE(lines(r.err).size(), 1);
        QVERIFY2(r.err.contains(message), r.err.constData());
    }
};

QTEST_GUILESS_MAIN(tst_ToolDecode)
#include "tst_tool_decode.moc"
