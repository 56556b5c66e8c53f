// zrk-tool config new, lint and diff over the declared keys, run as the built program.
#include "../common/tool_run.h"
#include "config_files.h"
#include "config_model/config_keys.h"
#include "config_model/xml_workdata.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace zrktest;

class tst_ConfigKeysTool : public QObject
{
    Q_OBJECT
private slots:
    void newIsTheGoldenFile();
    void lint_data();
    void lint();
    void diffLabelsDeclaredKeys();
    void wholeValues_data();
    void wholeValues();
    void badArguments_data();
    void badArguments();
};

void tst_ConfigKeysTool::newIsTheGoldenFile()
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("new.xml"));
    const ToolRun r = runZrkTool({ "config", "new", out });
    QCOMPARE(r.code, 0);
    QVERIFY(r.err.isEmpty());
    QCOMPARE(readFile(out), readFile(dataFile("new_config.xml")));
}

void tst_ConfigKeysTool::lint_data()
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

void tst_ConfigKeysTool::lint()
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

void tst_ConfigKeysTool::diffLabelsDeclaredKeys()
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
void tst_ConfigKeysTool::wholeValues_data()
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

void tst_ConfigKeysTool::wholeValues()
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

void tst_ConfigKeysTool::badArguments_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("code");
    QTest::newRow("new without a file") << QStringList { "config", "new" } << 2;
    QTest::newRow("new into a missing folder")
        << QStringList { "config", "new", "/nonexistent/dir/x.xml" } << 1;
    QTest::newRow("lint a missing file") << QStringList { "config", "lint", "/nonexistent.xml" } << 1;
    QTest::newRow("diff with one file") << QStringList { "config", "diff", "a.xml" } << 2;
    QTest::newRow("diff in a third language")
        << QStringList { "config", "diff", "--lang", "de", "a", "b" } << 2;
}

void tst_ConfigKeysTool::badArguments()
{
    QFETCH(QStringList, args);
    QFETCH(int, code);
    const ToolRun r = runZrkTool(args);
    QCOMPARE(r.code, code);
    QVERIFY(r.out.isEmpty());
    QCOMPARE(r.err.count('\n'), 1);
    QVERIFY(r.err.startsWith("zrk-tool: config"));
}

QTEST_MAIN(tst_ConfigKeysTool)
#include "tst_config_keys_tool.moc"
