// zrk-tool config, run as the built program.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run
{
    int code = -1;
    QByteArray out;
    QByteArray err;
};

Run runTool(const QStringList& args)
{
    QProcess p;
    p.start(QStringLiteral(ZRK_TOOL), args);
    Run r;
    if (!p.waitForFinished(30000))
        return r;
    r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2;
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

const QString kData = QStringLiteral(ZRK_TEST_DATA_DIR);

} // namespace

class tst_ConfigTool : public QObject
{
    Q_OBJECT
private slots:
    void check();
    void normalizeShowsTheFormatsRules();
    void dump();
    void failures_data();
    void failures();
};

void tst_ConfigTool::check()
{
    Run r = runTool(
        { QStringLiteral("config"), QStringLiteral("check"), kData + QStringLiteral("/track_page.xml") });
    QCOMPARE(r.code, 0);
    QCOMPARE(r.out, QByteArray("root DEVICE, 8 elements, 37 attributes\n"));
    QVERIFY(r.err.isEmpty());

    QTemporaryDir dir;
    const QString empty = dir.filePath(QStringLiteral("empty.xml"));
    writeFile(empty, QByteArray());
    r = runTool({ QStringLiteral("config"), QStringLiteral("check"), empty });
    QCOMPARE(r.code, 0);
    QVERIFY(r.out.contains("empty document"));
}

void tst_ConfigTool::normalizeShowsTheFormatsRules()
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("out.xml"));
    Run r = runTool({ QStringLiteral("config"), QStringLiteral("normalize"),
        kData + QStringLiteral("/roundtrip_in.xml"), out });
    QCOMPARE(r.code, 0);
    QVERIFY(r.err.isEmpty());
    QCOMPARE(readFile(out), readFile(kData + QStringLiteral("/roundtrip_out.xml")));
}

void tst_ConfigTool::dump()
{
    QTemporaryDir dir;
    const QString in = dir.filePath(QStringLiteral("in.xml"));
    writeFile(in,
        "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE b=\"2\" a=\"\xC6\">"
        "<T>x \"y\"</T><a_32_b k=\"1\"/></DEVICE>");
    Run r = runTool({ QStringLiteral("config"), QStringLiteral("dump"), in });
    QCOMPARE(r.code, 0);
    QCOMPARE(QString::fromUtf8(r.out),
        QString::fromUtf8("0 1 \"DEVICE\" b=\"2\" a=\"Ж\"\n"
                          "1 2 \"T\" text=\"x \\\"y\\\"\"\n"
                          "1 1 \"a b\" k=\"1\"\n"));
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
    for (QString& a : args) {
        a.replace(QStringLiteral("FILE"), file);
        a.replace(QStringLiteral("DIR"), dir.path());
    }
    const Run r = runTool(args);
    QCOMPARE(r.code, code);
    QVERIFY(r.out.isEmpty());
    QVERIFY2(r.err.contains(message), r.err.constData());
    QCOMPARE(r.err.count('\n'), 1); // one line
    if (content.isNull())
        QVERIFY(!QFile::exists(file));
    else
        QCOMPARE(readFile(file), content); // a file that fails to load is left as it was
}

QTEST_APPLESS_MAIN(tst_ConfigTool)
#include "tst_config_tool.moc"
