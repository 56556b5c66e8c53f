// zrk-tool config new, lint and diff over the declared keys, run as the built program.
#include "../common/tool_run.h"
#include "config_files.h"

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
