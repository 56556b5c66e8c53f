// The built plug-in as a host sees it: loaded with QLibrary, reached through its four exports and
// the callback only. Includes nothing of the plug-in but its public header.
#include "../common/test_support.h"
#include "zrk/zrk_host_api.h"

#include <QApplication>
#include <QLibrary>
#include <QPointer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

#include <cstring>

using zrktest::addr;

namespace {

// What the callback saw, one text per message: the id, then what its words carried.
QStringList seen;
ZRK_ReceiveMessageFn receiveFn = nullptr;
void* pluginHandle = nullptr;
QByteArray reentrantAnswer;

unsigned long hostCallback(void* handle, int msg, unsigned long w, unsigned long l)
{
    QString s = QString::number(msg);
    if (handle != pluginHandle)
        s += QLatin1String(" foreign handle");
    if (msg == ZRK_MSG_SHOW_HELP) {
        s += " " + *reinterpret_cast<QString*>(w) + " " + *reinterpret_cast<QString*>(l);
    } else if (msg == ZRK_MSG_LOOKUP_MODULE_FUNCTIONS) {
        // Answered as the reference host does: with an empty record.
        auto* f = reinterpret_cast<szLibraryFunctions*>(l);
        const bool empty = f->moduleName.isEmpty() && f->moduleFile.isEmpty() && f->moduleVersion.isEmpty()
            && !f->handle && !f->receiveMessage;
        s += " " + *reinterpret_cast<QString*>(w) + (empty ? " empty" : " dirty");
    } else if (msg == ZRK_MSG_CONFIG_WINDOW_OPENED) {
        // A host may answer from inside the callback.
        szConfigParam p;
        std::memset(&p, 0x41, sizeof p);
        receiveFn(pluginHandle, ZRK_MSG_CONFIG_PARAM_QUERY, reinterpret_cast<unsigned long>(&p), 0);
        reentrantAnswer = QByteArray(p.text);
    }
    seen << s;
    return 0;
}

QWidget* topLevel(const char* className)
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (qstrcmp(w->metaObject()->className(), className) == 0)
            return w;
    }
    return nullptr;
}

} // namespace

class tst_PluginBoundary : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(zrktest::useOwnHome(home, "tst_plugin_boundary"));
        library.setFileName(QStringLiteral(ZRK_PLUGIN_FILE));
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        isLibrary = reinterpret_cast<ZRK_IsZrkLibraryVFn>(library.resolve(ZRK_EXPORT_IS_LIBRARY));
        getInfo = reinterpret_cast<ZRK_GetLibraryInfoFn>(library.resolve(ZRK_EXPORT_GET_LIBRARY_INFO));
        initialize = reinterpret_cast<ZRK_InitializeFn>(library.resolve(ZRK_EXPORT_INITIALIZE));
        receiveFn = reinterpret_cast<ZRK_ReceiveMessageFn>(library.resolve(ZRK_EXPORT_RECEIVE_MESSAGE));
        QVERIFY(isLibrary && getInfo && initialize && receiveFn);
        // Nothing of the inside is reachable by name.
        QVERIFY(!library.resolve("deviceLib"));
        QVERIFY(!library.resolve("lpGlobalDevice"));

        // The host's order.
        QCOMPARE(isLibrary(), 1);
        szLibraryInfo info;
        getInfo(&info);
        pluginHandle = info.handle;
        QVERIFY(pluginHandle);
        QVERIFY(!topLevel("ZRK_Form_Param_About"));
        initialize(&hostCallback);
        QVERIFY(topLevel("ZRK_Form_Param_About"));
        QVERIFY(topLevel("ZRK_Form_IO_Progress"));
        QVERIFY(!topLevel("ZRK_Widget_Config"));
    }

    void cleanupTestCase()
    {
        QPointer<QWidget> about = topLevel("ZRK_Form_Param_About");
        QVERIFY(about);
        QVERIFY(qtTrId("iopr_001") != QLatin1String("iopr_001"));
        // Unloading takes the plug-in's windows and its catalogue with it.
        QVERIFY(library.unload());
        QVERIFY(!about);
        QVERIFY(!topLevel("ZRK_Form_IO_Progress"));
        QCOMPARE(qtTrId("iopr_001"), QStringLiteral("iopr_001"));
    }

    void init() { seen.clear(); }

    void libraryInfoThroughExport()
    {
        // The record with a guard on both sides: exactly 542 bytes are written.
        unsigned char buffer[4 + 542 + 4];
        std::memset(buffer, 0xEE, sizeof buffer);
        getInfo(reinterpret_cast<szLibraryInfo*>(buffer + 4));
        const unsigned char* r = buffer + 4;
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(int(buffer[i]), 0xEE);
            QCOMPARE(int(buffer[4 + 542 + i]), 0xEE);
        }
        void* handle;
        std::memcpy(&handle, r, 8);
        QCOMPARE(handle, pluginHandle);
        QByteArray type(reinterpret_cast<const char*>(r + 8), 255);
        QCOMPARE(type, QByteArray("K-7140") + QByteArray(255 - 6, '\0'));
        QByteArray name(reinterpret_cast<const char*>(r + 263), 255);
        QCOMPARE(name, QByteArray("Torvin K-7140") + QByteArray(255 - 13, '\0'));
        const unsigned char tail[]
            = { 3, 0, 0, 0, 5, 0, 0, 0, 8, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0 };
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(r + 518), 24),
            QByteArray(reinterpret_cast<const char*>(tail), 24));
        getInfo(nullptr);
    }

    void queriesWriteTheirResults_data()
    {
        QTest::addColumn<int>("msg");
        QTest::addColumn<quint32>("expected");
        QTest::newRow("2001") << 2001 << 1u;
        QTest::newRow("2002") << 2002 << 1u;
        QTest::newRow("2003") << 2003 << 196u;
        QTest::newRow("2010") << 2010 << 1u;
        QTest::newRow("2272") << 2272 << 2u;
        QTest::newRow("2399") << 2399 << 1u;
    }

    void queriesWriteTheirResults()
    {
        QFETCH(int, msg);
        QFETCH(quint32, expected);
        quint32 out[2] = { 0xA5A5A5A5, 0xA5A5A5A5 };
        send(msg, addr(out[0]));
        QCOMPARE(out[0], expected);
        QCOMPARE(out[1], 0xA5A5A5A5u);
        QVERIFY(seen.isEmpty());
    }

    void ignoredMessages_data()
    {
        QTest::addColumn<bool>("foreignHandle");
        QTest::addColumn<int>("msg");
        QTest::newRow("foreign handle, 2001") << true << 2001;
        QTest::newRow("foreign handle, 2051") << true << 2051;
        QTest::newRow("2000") << false << 2000;
        QTest::newRow("2414") << false << 2414;
        QTest::newRow("negative") << false << -2001;
        QTest::newRow("no row 2007") << false << 2007;
        QTest::newRow("no row 2135") << false << 2135;
    }

    void ignoredMessages()
    {
        QFETCH(bool, foreignHandle);
        QFETCH(int, msg);
        const quint32 modeBefore = device()->property("configuratorMode").toUInt();
        const bool connectedBefore = device()->property("deviceConnected").toBool();
        // A record that means something to every row that reads one.
        alignas(8) quint32 out[16] = { 77 };
        int other = 0;
        receiveFn(foreignHandle ? static_cast<void*>(&other) : pluginHandle, msg, addr(out), addr(out));
        QCOMPARE(out[0], 77u);
        QCOMPARE(device()->property("configuratorMode").toUInt(), modeBefore);
        QCOMPARE(device()->property("deviceConnected").toBool(), connectedBefore);
        QVERIFY(seen.isEmpty());
    }

    void pathsBeforeAndAfter2049()
    {
        const QString base = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/Data/";
        QVERIFY(base.startsWith(home.path()));
        const auto paths = [this] {
            QStringList p;
            for (const char* name : { "pathTMI", "pathXML", "pathFirmware", "pathSound" })
                p << device()->property(name).toString();
            return p;
        };
        QCOMPARE(
            paths(), (QStringList { base + "TMI/", base + "XML/", base + "Firmware/", base + "Sounds/" }));
        // An empty path from the host falls back to the default one.
        szDirPath fromHost { "/data/tmi/", "", "/data/fw/", "/data/snd/" };
        send(2049, addr(fromHost));
        QCOMPARE(paths(), (QStringList { "/data/tmi/", base + "XML/", "/data/fw/", "/data/snd/" }));
        // A later 2049 replaces all four.
        szDirPath again { "", "/x", "", "" };
        send(2049, addr(again));
        QCOMPARE(paths(), (QStringList { base + "TMI/", "/x", base + "Firmware/", base + "Sounds/" }));
    }

    void connectAndDisconnect()
    {
        quint32 mode = ZRK_CONFIGURATOR_MODE_SERVICE;
        send(2004, addr(mode));
        QCOMPARE(device()->property("configuratorMode").toUInt(), 5u);
        szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", nullptr, 0xABCDEF0123ULL, 0, 2 };
        send(2051, addr(rec));
        QVERIFY(device()->property("deviceConnected").toBool());
        QCOMPARE(device()->property("deviceBHR").toULongLong(), 0xABCDEF0123ULL);
        // The first connect makes the test window; in the service mode it is told of the connection.
        QWidget* test = topLevel("ZRK_Widget_Test");
        QVERIFY(test);
        QVERIFY(test->property("deviceConnected").toBool());

        send(2052);
        QVERIFY(!device()->property("deviceConnected").toBool());
        QVERIFY(!test->property("deviceConnected").toBool());

        mode = 0;
        send(2004, addr(mode));
    }

    void openingWindows()
    {
        QVERIFY(!topLevel("ZRK_Widget_Tmi_View"));
        bool testMode = true;
        QByteArray data("record");
        send(2005, addr(testMode), addr(data));
        QVERIFY(topLevel("ZRK_Widget_Tmi_View"));
        QVERIFY(!testMode); // the shell view is never in test mode

        szConfigFile file {};
        file.mode = 1;
        send(2101, addr(file));
        QWidget* config = topLevel("ZRK_Widget_Config");
        QVERIFY(config);
        QVERIFY(!config->property("deviceConnected").toBool());
        QCOMPARE(seen, QStringList { "2370" });
        QCOMPARE(reentrantAnswer, QByteArray()); // the re-entrant 2356 answered inside the callback

        // The host closes the plug-in: the configuration window agrees and says so.
        bool closed = false;
        config->show();
        seen.clear();
        send(2037, addr(closed));
        QVERIFY(closed);
        QVERIFY(config->isHidden());
        QCOMPARE(seen, QStringList { "2371" });
    }

    void requestsSeenByTheCallback()
    {
        QVERIFY(QMetaObject::invokeMethod(device(), "showHelp", Q_ARG(QString, QString())));
        QVERIFY(seen.isEmpty());
        // The help model is the plug-in's own, whatever type the host set.
        QString pair[2] = { QStringLiteral("K-7141"), QStringLiteral("ZIRKOMATIC") };
        send(2026, addr(pair[0]));
        QVERIFY(QMetaObject::invokeMethod(device(), "showHelp", Q_ARG(QString, QStringLiteral("track"))));
        pair[0] = QStringLiteral("K-7140");
        send(2026, addr(pair[0]));
        QVERIFY(QMetaObject::invokeMethod(
            device(), "getLibFuncForNameModule", Q_ARG(QString, QStringLiteral("ce"))));
        QCOMPARE(seen, (QStringList { "2007 K-7140 track", "2135 ce empty" }));
    }

    // Every routed id with a record of the shape its row names, windows open: the plug-in's side of
    // each row runs to its end.
    void everyRoutedIdWithRecords()
    {
        int rows = 0;
        for (const ZrkMessageInfo& row : kZrkMessageTable) {
            if (row.direction != ZrkMessageDirection::HostToPlugin)
                continue;
            ++rows;
            QByteArray bytes(200, '\x01');
            QString texts[2] = { QStringLiteral("K-7140"), QStringLiteral("ZIRKOMATIC") };
            quint64 number = 1;
            quint32 kind = 9; // a view kind that opens nothing
            alignas(8) char record[1100] = {};
            szDirPath paths;
            szDeviceConnect connect { "K-7140", "1", "2", nullptr, 0, 0, 0 };
            const QByteArray w(row.wParam);
            unsigned long wp = 0;
            if (w.startsWith("QByteArray"))
                wp = addr(bytes);
            else if (w.startsWith("QString"))
                wp = addr(texts[0]);
            else if (w == "szDirPath*")
                wp = addr(paths);
            else if (w == "szDeviceConnect*")
                wp = addr(connect);
            else if (w.startsWith("sz") || w == "event bus pointer")
                wp = addr(record);
            else if (w != "-")
                wp = addr(number);
            const QByteArray l(row.lParam);
            unsigned long lp = l == "-"      ? 0
                : l.startsWith("QByteArray") ? addr(bytes)
                : l.startsWith("QString")    ? addr(texts[1])
                : row.id == 2103             ? addr(kind)
                                             : addr(number);
            send(row.id, wp, lp);
        }
        QCOMPARE(rows, 73);
        // 2026 took the pair, 2051 connected and 2052 disconnected again, 2101 opened the
        // configuration window and said so, 2037 closed it and said so.
        QCOMPARE(device()->property("deviceType").toString(), QStringLiteral("K-7140"));
        QCOMPARE(device()->property("deviceVendor").toString(), QStringLiteral("ZIRKOMATIC"));
        QVERIFY(!device()->property("deviceConnected").toBool());
        QCOMPARE(seen, (QStringList { "2371", "2370" }));
    }

    void languageSwitch()
    {
        QWidget* progress = topLevel("ZRK_Form_IO_Progress");
        QVERIFY(progress);
        const QString russian = progress->windowTitle();
        QVERIFY(russian != QLatin1String("iopr_001"));
        QSettings().setValue(QStringLiteral(ZRK_SETTINGS_LANGUAGE_KEY), QStringLiteral("en"));
        send(2031);
        const QString english = progress->windowTitle();
        QVERIFY(english != russian);
        QVERIFY(english != QLatin1String("iopr_001"));
        QVERIFY(topLevel("ZRK_Widget_Config")->windowTitle() != QLatin1String("wcfg_001"));
        QSettings().setValue(QStringLiteral(ZRK_SETTINGS_LANGUAGE_KEY), QStringLiteral("ru"));
        send(2031);
        QCOMPARE(progress->windowTitle(), russian);
    }

private:
    void send(int msg, unsigned long w = 0, unsigned long l = 0) { receiveFn(pluginHandle, msg, w, l); }
    QObject* device() const { return static_cast<QObject*>(pluginHandle); }

    QLibrary library;
    ZRK_IsZrkLibraryVFn isLibrary = nullptr;
    ZRK_GetLibraryInfoFn getInfo = nullptr;
    ZRK_InitializeFn initialize = nullptr;
    QTemporaryDir home;
};

QTEST_MAIN(tst_PluginBoundary)
#include "tst_plugin_boundary.moc"
