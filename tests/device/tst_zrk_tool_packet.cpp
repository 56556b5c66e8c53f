// zrk-tool's packet and check-sum commands, run as the built program.
#include "device/common_functions.h"
#include "tests/common/tool_run.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_ZrkToolPacket : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void commands_data();
    void commands();

private:
    QTemporaryDir m_dir;
    QString path(const char* name) const { return m_dir.filePath(QLatin1String(name)); }
};

void tst_ZrkToolPacket::initTestCase()
{
    QVERIFY(m_dir.isValid());
    const auto write = [this](const char* name, const QByteArray& bytes) {
        QFile f(path(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    };
    write("digits", "123456789");
    write("empty", QByteArray());
    // "*#H" (payload check 41, header check 40), an empty packet, the same reply with its payload
    // changed to "*#I" behind the old payload check, and a packet cut after ten bytes.
    write("capture",
        "zz"
            + QByteArray::fromHex("405a524b000000000100000003004140"
                                  "2a2348")
            + QByteArray::fromHex("405a524b000000000100000000000002")
            + QByteArray::fromHex("405a524b000000000100000003004140"
                                  "2a2349")
            + QByteArray::fromHex("405a524b000000000100000003004140").left(10));
}

void tst_ZrkToolPacket::commands_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("out");

    QTest::newRow("build ping") << QStringList { "packet", "build", "*?PING 1" } << 0
                                << QByteArray("405a524b00000000010000000800141e2a3f50494e472031\n");
    QTest::newRow("build code page") << QStringList { "packet", "build", QString::fromUtf8("*>PASS:Я☺1") }
                                     << 0
                                     << QByteArray("405a524b00000000010000000a008e862a3e504153533adf5f31\n");
    QTest::newRow("build with args") << QStringList { "packet", "build", "*!R", "--args", "04030201" } << 0
                                     << QByteArray("405a524b000000000100000007005d582a215204030201\n");
    QTest::newRow("build with no args") << QStringList { "packet", "build", "", "--args", "" } << 0
                                        << QByteArray("405a524b000000000100000000000002\n");
    const QString h = QString::number(commonFunctions::Reply_DataH);
    const QString i = QString::number(commonFunctions::Reply_DataI);
    QTest::newRow("find") << QStringList { "packet", "find", path("capture") } << 0
                          << QString("2\t19\tok\t" + h + "\tDataH\t*#H\n" + "21\t16\tok\t0\tUnknown\t\n"
                                 + "37\t19\tbad\t" + i + "\tDataI\t*#I\n")
                                 .toUtf8();
    QTest::newRow("find in empty file")
        << QStringList { "packet", "find", path("empty") } << 0 << QByteArray();
    QTest::newRow("crc8") << QStringList { "crc8", path("digits") } << 0 << QByteArray("f7\n");
    QTest::newRow("crc16") << QStringList { "crc16", path("digits") } << 0 << QByteArray("29b1\n");
    QTest::newRow("crc32") << QStringList { "crc32", path("digits") } << 0 << QByteArray("cbf43926\n");
    QTest::newRow("crc32 empty") << QStringList { "crc32", path("empty") } << 0 << QByteArray("00000000\n");

    // Bad input: a non-zero code, nothing on stdout and one line on stderr.
    QTest::newRow("odd hex") << QStringList { "packet", "build", "*!R", "--args", "123" } << 1
                             << QByteArray();
    QTest::newRow("not hex") << QStringList { "packet", "build", "*!R", "--args", "zz" } << 1 << QByteArray();
    QTest::newRow("too long") << QStringList { "packet", "build", QString(1009, 'a') } << 1 << QByteArray();
    QTest::newRow("stray option") << QStringList { "packet", "build", "x", "--hex", "00" } << 2
                                  << QByteArray();
    QTest::newRow("no packet command") << QStringList { "packet" } << 2 << QByteArray();
    QTest::newRow("unknown packet command") << QStringList { "packet", "send" } << 2 << QByteArray();
    QTest::newRow("find missing file")
        << QStringList { "packet", "find", path("missing") } << 1 << QByteArray();
    QTest::newRow("find a folder") << QStringList { "packet", "find", m_dir.path() } << 1 << QByteArray();
    QTest::newRow("crc missing file") << QStringList { "crc32", path("missing") } << 1 << QByteArray();
    QTest::newRow("crc two files") << QStringList { "crc8", path("digits"), path("digits") } << 2
                                   << QByteArray();
}

void tst_ZrkToolPacket::commands()
{
    QFETCH(QStringList, args);
    QFETCH(int, code);
    QFETCH(QByteArray, out);
    const zrktest::ToolRun r = zrktest::runZrkTool(args);
    QCOMPARE(r.code, code);
    QCOMPARE(r.out, out);
    if (code == 0) {
        QVERIFY(r.err.isEmpty());
    } else {
        QVERIFY(r.err.startsWith("zrk-tool: "));
        QVERIFY(r.err.endsWith('\n'));
        QCOMPARE(r.err.count('\n'), 1);
    }
}

QTEST_GUILESS_MAIN(tst_ZrkToolPacket)
#include "tst_zrk_tool_packet.moc"
