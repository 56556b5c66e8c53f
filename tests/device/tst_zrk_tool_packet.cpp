// zrk-tool's packet and check-sum commands, run as the built program.
#include "device/common_functions.h"
#include "tests/common/tool_run.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

void row(const char* name, const QStringList& args, int code, const QByteArray& out = QByteArray())
{
    QTest::newRow(name) << args << code << out;
}

} // namespace

class tst_ZrkToolPacket : public QObject
{
    Q_OBJECT
private slots:
    void commands_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("out");
        const auto write = [this](const char* name, const QByteArray& bytes) {
            QFile f(path(name));
            QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
        };
        write("digits", "123456789");
        write("empty", QByteArray());
        // "*#H" (payload check 41, header check 40), an empty packet, the same reply with its payload
        // changed to "*#I" behind the old payload check, and a packet cut after ten bytes.
        write("capture",
            "zz"
                + QByteArray::fromHex("405a524b000000000100000003004140 2a2348"
                                      "405a524b000000000100000000000002"
                                      "405a524b000000000100000003004140 2a2349"
                                      "405a524b000000000100"));

        row("build code page", { "packet", "build", QString::fromUtf8("*>PASS:Я☺1") }, 0,
            "405a524b00000000010000000a008e862a3e504153533adf5f31\n");
        row("build with args", { "packet", "build", "*!R", "--args", "04030201" }, 0,
            "405a524b000000000100000007005d582a215204030201\n");
        row("build with no args", { "packet", "build", "", "--args", "" }, 0,
            "405a524b000000000100000000000002\n");
        const QString h = QString::number(commonFunctions::Reply_DataH);
        const QString i = QString::number(commonFunctions::Reply_DataI);
        row("find", { "packet", "find", path("capture") }, 0,
            QString("2\t19\tok\t" + h + "\tDataH\t*#H\n" + "21\t16\tok\t0\tUnknown\t\n" + "37\t19\tbad\t" + i
                + "\tDataI\t*#I\n")
                .toUtf8());
        row("find in empty file", { "packet", "find", path("empty") }, 0);
        row("crc8", { "crc8", path("digits") }, 0, "f7\n");
        row("crc16", { "crc16", path("digits") }, 0, "29b1\n");
        row("crc32", { "crc32", path("digits") }, 0, "cbf43926\n");
        row("crc32 empty", { "crc32", path("empty") }, 0, "00000000\n");

        // Bad input: a non-zero code, nothing on stdout and one line on stderr.
        row("odd hex", { "packet", "build", "*!R", "--args", "123" }, 1);
        row("not hex", { "packet", "build", "*!R", "--args", "zz" }, 1);
        row("too long", { "packet", "build", QString(1009, 'a') }, 1);
        row("stray option", { "packet", "build", "x", "--hex", "00" }, 2);
        row("no packet command", { "packet" }, 2);
        row("unknown packet command", { "packet", "send" }, 2);
        row("find missing file", { "packet", "find", path("missing") }, 1);
        row("find a folder", { "packet", "find", m_dir.path() }, 1);
        row("crc missing file", { "crc32", path("missing") }, 1);
        row("crc two files", { "crc8", path("digits"), path("digits") }, 2);
    }

    void commands()
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

    void helpNamesTheCommands()
    {
        const zrktest::ToolRun r = zrktest::runZrkTool({ "--help" });
        QCOMPARE(r.code, 0);
        QVERIFY(r.out.contains("packet build TEXT") && r.out.contains("crc8|crc16|crc32 FILE"));
    }

private:
    QTemporaryDir m_dir;
    QString path(const char* name) const { return m_dir.filePath(QLatin1String(name)); }
};

QTEST_GUILESS_MAIN(tst_ZrkToolPacket)
#include "tst_zrk_tool_packet.moc"
