// zrk-tool config (check, normalize, dump, new, lint, diff, fieldset), run as the built program.
#include "../common/tool_run.h"
#include "config_files.h"
#include "config_model/config_keys.h"
#include "config_model/orba_fieldset.h"
#include "config_model/xml_workdata.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace zrktest;
using namespace zrk::fieldset;

class tst_ConfigTool : public QObject
{
    Q_OBJECT
private slots:
    void checkNormalizeDump();
    void failures_data();
    void failures();
    void newIsTheGoldenFile();
    void lint_data();
    void lint();
    void diffLabelsDeclaredKeys();
    void wholeValues_data();
    void wholeValues();
    void fieldSetAndLint_data();
    void fieldSetAndLint();

private:
    QTemporaryDir m_dir;
};

void tst_ConfigTool::checkNormalizeDump()
{
    const QStringList config { QStringLiteral("config") };
    ToolRun r = runZrkTool(config + QStringList { "check", dataFile("track_page.xml") });
    QCOMPARE(r.code, 0);
    QCOMPARE(r.out, QByteArray("root DEVICE, 8 elements, 37 attributes\n"));
    QVERIFY(r.err.isEmpty());

    QTemporaryDir dir;
    const QString empty = dir.filePath(QStringLiteral("empty.xml"));
    writeFile(empty, QByteArray());
    r = runZrkTool(config + QStringList { "check", empty });
    QCOMPARE(r.code, 0);
    QVERIFY(r.out.contains("empty document"));

    const QString out = dir.filePath(QStringLiteral("out.xml"));
    r = runZrkTool(config + QStringList { "normalize", dataFile("roundtrip_in.xml"), out });
    QCOMPARE(r.code, 0);
    QVERIFY(r.err.isEmpty());
    QCOMPARE(readFile(out), readFile(dataFile("roundtrip_out.xml")));

    const QString in = dir.filePath(QStringLiteral("in.xml"));
    writeFile(in, kDecl + "<DEVICE b=\"2\" a=\"\xC6\"><T>x \"y\"</T><a_32_b k=\"1\"/></DEVICE>");
    r = runZrkTool(config + QStringList { "dump", in });
    QCOMPARE(r.code, 0);
    QCOMPARE(QString::fromUtf8(r.out),
        QString::fromUtf8(
            "0 1 \"DEVICE\" b=\"2\" a=\"Ж\"\n1 2 \"T\" text=\"x \\\"y\\\"\"\n1 1 \"a b\" k=\"1\"\n"));
}

void tst_ConfigTool::failures_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QByteArray>("content"); // written to the file named "FILE" first, if not null
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("no subcommand") << QStringList { "config" } << QByteArray() << 2 << QByteArray("expected");
    QTest::newRow("unknown subcommand")
        << QStringList { "config", "frob", "FILE" } << QByteArray() << 2 << QByteArray("expected");
    QTest::newRow("normalize without OUT")
        << QStringList { "config", "normalize", "FILE" } << QByteArray("") << 2 << QByteArray("expected");
    QTest::newRow("missing file is not created")
        << QStringList { "config", "check", "FILE" } << QByteArray() << 1 << QByteArray("no such file");
    QTest::newRow("not well-formed") << QStringList { "config", "check", "FILE" } << QByteArray("<a><b></a>")
                                     << 1 << QByteArray("does not load: line 1");
    QTest::newRow("too deep") << QStringList { "config", "dump", "FILE" } << QByteArray("<a>").repeated(300)
                              << 1 << QByteArray("nested deeper");
    QTest::newRow("unwritable target") << QStringList { "config", "normalize", "FILE", "DIR/no/such/out.xml" }
                                       << QByteArray("<a/>") << 1 << QByteArray("cannot write");
    QTest::newRow("directory") << QStringList { "config", "check", "DIR" } << QByteArray() << 1
                               << QByteArray("not a regular file");
    QTest::newRow("new without a file")
        << QStringList { "config", "new" } << QByteArray() << 2 << QByteArray("zrk-tool: config");
    QTest::newRow("new into a missing folder") << QStringList { "config", "new", "DIR/no/such/x.xml" }
                                               << QByteArray() << 1 << QByteArray("zrk-tool: config");
    QTest::newRow("lint a missing file")
        << QStringList { "config", "lint", "FILE" } << QByteArray() << 1 << QByteArray("zrk-tool: config");
    QTest::newRow("diff with one file")
        << QStringList { "config", "diff", "FILE" } << QByteArray() << 2 << QByteArray("zrk-tool: config");
    QTest::newRow("diff in a third language") << QStringList { "config", "diff", "--lang", "de", "a", "b" }
                                              << QByteArray() << 2 << QByteArray("zrk-tool: config");
}

void tst_ConfigTool::failures()
{
    QFETCH(QStringList, args);
    QFETCH(QByteArray, content);
    QFETCH(int, code);
    QFETCH(QByteArray, message);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("f.xml"));
    if (!content.isNull())
        writeFile(file, content);
    for (QString& a : args)
        a.replace(QStringLiteral("FILE"), file).replace(QStringLiteral("DIR"), dir.path());
    const ToolRun r = runZrkTool(args);
    QCOMPARE(r.code, code);
    QVERIFY(r.out.isEmpty());
    QVERIFY2(r.err.contains(message), r.err.constData());
    QCOMPARE(r.err.count('\n'), 1); // one line
    // A file that fails to load is left as it was, and a missing one is not created.
    if (content.isNull())
        QVERIFY(!QFile::exists(file));
    else
        QCOMPARE(readFile(file), content);
}

void tst_ConfigTool::newIsTheGoldenFile()
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("new.xml"));
    const ToolRun r = runZrkTool({ "config", "new", out });
    QCOMPARE(r.code, 0);
    QVERIFY(r.err.isEmpty());
    QCOMPARE(readFile(out), readFile(dataFile("new_config.xml")));
}

void tst_ConfigTool::lint_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("out");
    QTest::newRow("new is clean") << readFile(dataFile("new_config.xml")) << 0 << QByteArray();
    QTest::newRow("crafted") << readFile(dataFile("lint_bad.xml")) << 1
                             << readFile(dataFile("lint_bad.expected"));
    // Missing keys read as their defaults; branches no page owns are not looked at.
    QTest::newRow("sparse and unowned") << kDecl
            + "<DEVICE><TRACK page=\"TRACK\"><POINTS dist=\"7\"/></TRACK>"
              "<CAN page=\"CAN\"><X y=\"z\"/></CAN></DEVICE>"
                                        << 0 << QByteArray();
    QTest::newRow("flags of other digits")
        << kDecl
            + "<DEVICE><LOCATOR page=\"LOCATOR\"><TLM source=\"12\" moveSens=\"00001\"/></LOCATOR></DEVICE>"
        << 1
        << QByteArray("LOCATOR/TLM source=12: expected 2 flags of 0/1\n"
                      "LOCATOR/TLM moveSens=00001: expected 4 flags of 0/1\n");
    QTest::newRow("stop timer below its minimum")
        << kDecl + "<DEVICE><LOCATOR page=\"LOCATOR\"><GLOBAL stopTimer=\"10\"/><GLOBAL/></LOCATOR></DEVICE>"
        << 1
        << QByteArray("LOCATOR/GLOBAL stopTimer=10: expected 0 or an integer 20..65535\n"
                      "LOCATOR/GLOBAL: expected one node of this name\n");
    QTest::newRow("hdop and text")
        << kDecl
            + "<DEVICE><TRACK page=\"TRACK\"><COORDFLT maxHDOP=\".5\"/><GNSS mode=\"any "
              "text\"/></TRACK></DEVICE>"
        << 1 << QByteArray("TRACK/COORDFLT maxHDOP=.5: expected a number with one decimal, 0.1..100.0\n");
    // The generation is one of three texts; the mask is reported once, by its own rule.
    QTest::newRow("protocol") << kDecl
            + "<DEVICE><PROTOCOL page=\"PROTOCOL\"><ORBA format=\"010\" mask=\"111\" x=\"1\"/><CAN/>"
              "</PROTOCOL></DEVICE>"
                              << 1
                              << QByteArray("PROTOCOL/ORBA format=010: expected one of 10, 20, 30\n"
                                            "PROTOCOL/ORBA x=1: expected a declared key\n"
                                            "PROTOCOL/CAN: expected a declared node\n"
                                            "PROTOCOL/ORBA mask=111: expected 255 characters (found 3)\n");
    QTest::newRow("generation 40") << kDecl
            + "<DEVICE><PROTOCOL page=\"PROTOCOL\"><ORBA format=\"40\"/></PROTOCOL></DEVICE>"
                                   << 1
                                   << QByteArray("PROTOCOL/ORBA format=40: expected one of 10, 20, 30\n");
}

void tst_ConfigTool::lint()
{
    QFETCH(QByteArray, text);
    QFETCH(int, code);
    QFETCH(QByteArray, out);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("in.xml"));
    writeFile(path, text);
    const ToolRun r = runZrkTool({ "config", "lint", path });
    QCOMPARE(r.code, code);
    QCOMPARE(r.out, out);
    QVERIFY(r.err.isEmpty());
}

void tst_ConfigTool::diffLabelsDeclaredKeys()
{
    QTemporaryDir dir;
    const QString a = dir.filePath(QStringLiteral("a.xml"));
    const QString b = dir.filePath(QStringLiteral("b.xml"));
    writeFile(a,
        kDecl
            + "<DEVICE model=\"K-7140\"><TRACK page=\"TRACK\"><POINTS dist=\"500\" angle=\"5\"/></TRACK>"
              "<PHONES><P n=\"1\"/><P n=\"2\"/></PHONES><LOCATOR page=\"LOCATOR\"><BLIST "
              "bm7=\"vivo\"/></LOCATOR></DEVICE>");
    writeFile(b,
        kDecl
            + "<DEVICE model=\"K-7140\"><TRACK page=\"TRACK\"><POINTS dist=\"90\" angle=\"5\"/></TRACK>"
              "<PHONES><P n=\"1\"/><P n=\"3\"/></PHONES><LOCATOR page=\"LOCATOR\"><BLIST bm7=\"my "
              "phone\"/></LOCATOR>"
              "<CAN page=\"CAN\"/></DEVICE>");
    ToolRun r = runZrkTool({ "config", "diff", "--lang", "en", a, b });
    QCOMPARE(r.code, 1);
    QCOMPARE(QString::fromUtf8(r.out),
        QStringLiteral("TRACK/POINTS dist (Distance, m): 500 -> 90\n"
                       "PHONES/P[2] n: 2 -> 3\n"
                       "LOCATOR/BLIST bm7 (Black list, row 7): vivo -> \"my phone\"\n"
                       "CAN page: - -> CAN\n"));
    r = runZrkTool({ "config", "diff", a, a });
    QCOMPARE(r.code, 0);
    QVERIFY(r.out.isEmpty());

    // The record field set: labelled, and the mask compared and shown whole (its last flag differs).
    const QByteArray mask(255, '0');
    QByteArray other = mask;
    other[254] = '1';
    writeFile(a,
        kDecl + "<DEVICE><PROTOCOL page=\"PROTOCOL\"><ORBA format=\"10\" mask=\"" + mask
            + "\"/></PROTOCOL></DEVICE>");
    writeFile(b,
        kDecl + "<DEVICE><PROTOCOL page=\"PROTOCOL\"><ORBA format=\"30\" mask=\"" + other
            + "\"/></PROTOCOL></DEVICE>");
    r = runZrkTool({ "config", "diff", "--lang", "en", a, b });
    QCOMPARE(r.code, 1);
    QCOMPARE(r.out,
        "PROTOCOL/ORBA format (ORBA protocol generation): 10 -> 30\n"
        "PROTOCOL/ORBA mask (Record fields (mask)): "
            + mask + " -> " + other + "\n");
}

// Text values past what the parameter list holds (254 bytes) go through the branch walkers whole.
void tst_ConfigTool::wholeValues_data()
{
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("mask, 255 flags") << "PROTOCOL"
                                     << "ORBA"
                                     << "mask" << QString(254, QLatin1Char('0')) + QLatin1Char('1');
    QTest::newRow("text of 254 bytes") << "LOCATOR"
                                       << "GLOBAL"
                                       << "key" << QString(254, QLatin1Char('k'));
    QTest::newRow("text of 255 bytes") << "LOCATOR"
                                       << "GLOBAL"
                                       << "key" << QString(254, QLatin1Char('k')) + QLatin1Char('z');
    QTest::newRow("Cyrillic, 300 bytes") << "LOCATOR"
                                         << "GLOBAL"
                                         << "key" << QString(300, QChar(0x0416)); // "Ж"
}

void tst_ConfigTool::wholeValues()
{
    QFETCH(QString, top);
    QFETCH(QString, group);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const zrk::cfg::BranchDecl* branch = zrk::cfg::declaredBranch(top);
    QVERIFY(branch);
    const int i = branch->indexOf(group, key);
    QVERIFY(i >= 0);
    zrk::cfg::Values values = zrk::cfg::resetValues(*branch);
    values[i] = value;
    const auto doc = parsed();
    {
        CXMLWorkData root(doc.get(), zrk::cfg::kRootNode);
        zrk::cfg::writeBranch(&root, *branch, values);
        root.writeParameters();
    }
    const auto again = parsed(rendered(*doc));
    QVERIFY(again);
    CXMLWorkData root(again.get(), zrk::cfg::kRootNode);
    QCOMPARE(zrk::cfg::readBranch(&root, *branch), values);
}

void tst_ConfigTool::fieldSetAndLint_data()
{
    QTest::addColumn<bool>("stored"); // whether the file has the branch at all
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("fieldSetLine"); // a line `config fieldset` prints
    QTest::addColumn<int>("fieldSetCode");
    QTest::addColumn<QString>("lintText"); // what `config lint` reports; empty: nothing
    const QString all(kMaskLength, QLatin1Char('1'));
    QTest::newRow("default, ORBA 1") << true << "10" << defaultMask(true) << "record 51 bytes of 512" << 0
                                     << "";
    QTest::newRow("default, ORBA 3") << true << "30" << defaultMask(true) << "206 Моточасы без нагрузки (4)"
                                     << 0 << "";
    QTest::newRow("no branch") << false << ""
                               << ""
                               << "generation 10 (no field set stored: defaults)" << 0 << "";
    QTest::newRow("short") << true << "30"
                           << "111"
                           << "record 10 bytes of 512" << 0 << "255 characters (found 3)";
    QTest::newRow("long") << true << "10" << all + "1"
                          << "record 146 bytes of 512" << 0 << "255 characters (found 256)";
    QTest::newRow("letter") << true << "10" << QStringLiteral("11x") + QString(252, QLatin1Char('0'))
                            << "record 6 bytes of 512" << 0 << "only 0 and 1 (position 2 is not)";
    QTest::newRow("no time") << true << "10" << QStringLiteral("110") + QString(252, QLatin1Char('0'))
                             << "record 6 bytes of 512" << 0 << "111 first";
    QTest::newRow("over the limit") << true << "30" << all << "10 Широта (4)" << 1
                                    << "a record of at most 512 bytes";
}

void tst_ConfigTool::fieldSetAndLint()
{
    QFETCH(bool, stored);
    QFETCH(QString, format);
    QFETCH(QString, mask);
    QFETCH(QString, fieldSetLine);
    QFETCH(int, fieldSetCode);
    QFETCH(QString, lintText);
    const QString path = m_dir.filePath(QStringLiteral("%1.xml").arg(QTest::currentDataTag()));
    {
        CXMLWorkData root(path, QStringLiteral("DEVICE"));
        QVERIFY(root.serializer());
        if (stored)
            writeFieldSet(&root, { format, mask });
        root.writeString("model", "K-7140");
        root.writeParameters();
        closeFile(root, true);
    }
    const zrktest::ToolRun set = zrktest::runZrkTool({ "config", "fieldset", path });
    QCOMPARE(set.code, fieldSetCode);
    const QStringList lines = QString::fromUtf8(set.out).split(QLatin1Char('\n'));
    QVERIFY2(lines.contains(fieldSetLine), set.out.constData());
    QVERIFY(lines.first().startsWith(QLatin1String("generation ")));

    const zrktest::ToolRun lint = zrktest::runZrkTool({ "config", "lint", path });
    QCOMPARE(lint.code, lintText.isEmpty() ? 0 : 1);
    QVERIFY2(QString::fromUtf8(lint.out).contains(lintText), lint.out.constData());
}

QTEST_GUILESS_MAIN(tst_ConfigTool)
#include "tst_config_tool.moc"
