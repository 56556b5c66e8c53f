// zrk-tool config, run as the built program.
#include "../common/tool_run.h"
#include "config_files.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace zrktest;

class tst_ConfigTool : public QObject
{
    Q_OBJECT
private slots:
    void checkNormalizeDump();
    void failures_data();
    void failures();
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

QTEST_APPLESS_MAIN(tst_ConfigTool)
#include "tst_config_tool.moc"
