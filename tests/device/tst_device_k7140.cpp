// The device object with its windows replaced by recorders: which window operation each host
// message reaches, in which order, and when it reaches none. What the host reads back through the
// export is the boundary test's.
#include "../common/test_support.h"
#include "config_ui/zrk_widget_config.h"
#include "device/zrk_device_k7140.h"
#include "device/zrk_form_io_progress.h"
#include "device/zrk_form_param_about.h"
#include "service/zrk_widget_test.h"
#include "telemetry/zrk_widget_tmi_file.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QtTest>

#include <cstring>
#include <type_traits>

using zrktest::addr;

namespace {

// Every window operation lands in one list as "window.operation(arguments)".
QStringList gLog;
QString text(const QString& s)
{
    return s;
}
QString text(const QByteArray* d)
{
    return QString::fromLatin1(*d);
}
template <typename T, typename = std::enable_if_t<std::is_arithmetic_v<T>>> QString text(T v)
{
    return QString::number(v);
}
struct Rec
{
    const char* op;
    template <typename... A> void operator()(const A&... a) const
    {
        const QStringList args { text(a)... };
        gLog << QString::fromLatin1(op) + (sizeof...(a) ? "(" + args.join(',') + ")" : QString());
    }
};
// An override that records its name and the listed arguments, and does nothing else.
#define REC(win, fn, params, args)                                                                           \
    void fn params override                                                                                  \
    {                                                                                                        \
        Rec { #win "." #fn } args;                                                                           \
    }

class RecConfig : public ZRK_Widget_Config
{
public:
    void deviceConnect() override { ZRK_Widget_Config::deviceConnect(), Rec { "cfg.deviceConnect" }(); }
    void deviceDisconnect() override
    {
        ZRK_Widget_Config::deviceDisconnect(), Rec { "cfg.deviceDisconnect" }();
    }
    // Fills the parameter as a configuration read from a file does.
    void openConfig(szConfigFile* f, szConfigParam& p) override
    {
        Rec { "cfg.openConfig" }(f->mode, f->source, QString::fromLocal8Bit(f->path));
        qstrncpy(p.text, "ORBA3;255", sizeof p.text);
    }
    bool closeWidgetConfig() override { return Rec { "cfg.closeWidgetConfig" }(), !refuseClose; }
    void getFileConfigure(QString& n) override
    {
        n = QStringLiteral("/tmp/c.xml"), Rec { "cfg.getFileConfigure" }();
    }
    REC(cfg, translateForm, (), ())
    REC(cfg, saveConfigToDevice, (), ())
    REC(cfg, readConfigFromDevice, (), ())
    REC(cfg, openConfigPage, (quint32 p), (p))
    REC(cfg, setCE_ProgramInfo, (QByteArray * d), (d))
    REC(cfg, setWindowCEClosed, (), ())
    REC(cfg, setWindowFocus, (), ())
    REC(cfg, addUserParamCE, (const QString& n), (n))
    REC(cfg, addUserParamListCE, (const QString& n), (n))
    REC(cfg, delUserParamCE, (const QString& n), (n))
    REC(cfg, delUserParamListCE, (const QString& n), (n))
    REC(cfg, receiveDataTest, (QByteArray * d), (d))
    REC(cfg, receiveDtpTest, (szDtpKRAI*), ())
    REC(cfg, receiveDtpProtection, (quint8 v), (v))
    REC(cfg, receiveDtpFileRead_V3, (bool v), (v))
    REC(cfg, receiveTM, (quint64 c), (c))
    REC(cfg, receiveAnalogValue, (szAnalogValue*), ())
    REC(cfg, receiveAdValueFuel, (szADValue*), ())
    REC(cfg, receiveAdValueFuel_UN, (szADValue_UN*), ())
    REC(cfg, receiveAccelParam, (szAccelParam*), ())
    REC(cfg, receiveAccelBrake, (quint8 s, quint8 r), (s, r))
    REC(cfg, receiveAccelReset, (szAccelReset*), ())
    REC(cfg, receiveAccelAclC, (szCmdAccelParam*), ())
    REC(cfg, receiveBluetoothCancelRez, (quint8 v), (v))
    REC(cfg, receiveBluetoothRez, (quint8 v), (v))
    REC(cfg, receiveBluetoothDevice, (szBluetoothDevice*), ())
    REC(cfg, receiveCurrentDispValue, (quint32 v), (v))
    REC(cfg, receive_CanlogCurNum, (qint32 v), (v))
    REC(cfg, receive_TM_File_Info_V3, (quint32 s, quint8 t), (s, t))
    REC(cfg, receive_TM_ReadFile_V3, (bool ok, const QString& f), (ok, f))
    REC(cfg, receive_TM_WriteFile_V3, (bool ok), (ok))
    REC(cfg, receive_CurCanFile, (QByteArray * d, const QString& n), (d, n))
    REC(cfg, receive_SD_File, (QByteArray * d), (d))
    REC(cfg, receive_Camera_Info, (QByteArray * d), (d))
    REC(cfg, receive_PhotoInfo_SD_File, (QByteArray * d), (d))
    bool refuseClose = false;
};

class RecTmi : public ZRK_Widget_Tmi_View
{
public:
    void deviceConnect() override { ZRK_Widget_Tmi_View::deviceConnect(), Rec { "tmi.deviceConnect" }(); }
    void deviceDisconnect() override
    {
        ZRK_Widget_Tmi_View::deviceDisconnect(), Rec { "tmi.deviceDisconnect" }();
    }
    void showForm(const QString& t, const szConfigParam& p) override
    {
        Rec { "tmi.showForm" }(t, QString::fromLatin1(p.text));
    }
    bool isTestMode(QByteArray* d) override { return Rec { "tmi.isTestMode" }(d), *d == "test"; }
    REC(tmi, deviceDisconnectRCS, (), ())
    REC(tmi, translateForm, (), ())
    REC(tmi, closeForm, (), ())
    REC(tmi, setTmiCur, (QByteArray * d), (d))
    REC(tmi, setTmiCurNumber, (QByteArray * d), (d))
    REC(tmi, setTmiCurLeft, (QByteArray * d), (d))
    REC(tmi, setTmiCurRight, (QByteArray * d), (d))
    REC(tmi, setTmiCurExt, (QByteArray * d), (d))
    REC(tmi, setReceive_NMEA, (QByteArray * d), (d))
    REC(tmi, setTmiCmndParamValue, (QByteArray * d), (d))
    REC(tmi, setTmiCmnd, (QByteArray * d), (d))
    REC(tmi, setReceiveFls_UserCommand, (QByteArray * d), (d))
    REC(tmi, getParamFLSFirmwareSensor, (QByteArray * d), (d))
    REC(tmi, setToucheMemory, (quint64 c), (c))
    REC(tmi, setCurrentAnalogValue, (szADValue_UN*), ())
    REC(tmi, receiveCurrentDispValue, (quint32 v), (v))
    REC(tmi, setRFID, (quint64 c, quint8 v), (c, v))
    REC(tmi, setReceiveTahoQuest, (QByteArray * d), (d))
    REC(tmi, setReceiveTahoFile_Read, (bool ok), (ok))
    REC(tmi, setReceiveFlsDataFile_Quest, (QByteArray * d), (d))
    REC(tmi, setReceiveFlsDataFile_Read, (bool ok), (ok))
};

class RecPage : public ZRK_Widget_Tmi_Page
{
public:
    REC(page, showForm, (), ())
    REC(page, setFileTmi, (const QString& n), (n))
    REC(page, translateForm, (), ())
};

class RecTable : public ZRK_Widget_Tmi_Table
{
public:
    REC(table, showForm, (), ())
    REC(table, setFileTmi, (const QString& n), (n))
    REC(table, translateForm, (), ())
};

class RecTest : public ZRK_Widget_Test
{
public:
    void deviceConnect() override { ZRK_Widget_Test::deviceConnect(), Rec { "test.deviceConnect" }(); }
    void deviceDisconnect() override
    {
        ZRK_Widget_Test::deviceDisconnect(), Rec { "test.deviceDisconnect" }();
    }
    REC(test, receive_Device_Test, (QByteArray * d), (d))
};

class RecWindows : public ZRK_Device_Windows
{
public:
    ZRK_Widget_Config* createConfig() override { return Rec { "new.config" }(), new RecConfig; }
    ZRK_Widget_Tmi_View* createTmiView() override { return Rec { "new.tmi" }(), new RecTmi; }
    ZRK_Widget_Tmi_Page* createTmiPage() override { return Rec { "new.page" }(), new RecPage; }
    ZRK_Widget_Tmi_Table* createTmiTable() override { return Rec { "new.table" }(), new RecTable; }
    ZRK_Widget_Test* createTest() override { return Rec { "new.test" }(), new RecTest; }
};

// What the host's callback saw.
struct Sent
{
    int msg;
    QString w;
    QString l;
};
QList<Sent> gSent;
unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long l)
{
    Sent s { msg, QString(), QString() };
    if (msg == ZRK_MSG_LOOKUP_MODULE_FUNCTIONS) {
        auto* f = reinterpret_cast<szLibraryFunctions*>(l);
        s.w = *reinterpret_cast<QString*>(w);
        s.l = f->moduleName.isEmpty() && !f->handle && !f->receiveMessage ? "zeroed" : "dirty";
        f->moduleName = QStringLiteral("ce_editor");
    }
    gSent.append(s);
    return 0;
}

} // namespace

class tst_DeviceK7140 : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(zrktest::useOwnHome(home, "tst_device_k7140"));
        QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
    }

    void init()
    {
        dev = new ZRK_Device_K7140(QStringLiteral("K-7140"), 3, 5, 8, 1, nullptr);
        dev->setWindowFactory(&windows);
        dev->InitConfigurator(&hostCallback);
        gLog.clear();
        gSent.clear();
    }

    void cleanup()
    {
        delete dev;
        dev = nullptr;
        QCOMPARE(lpGlobalDevice, nullptr);
    }

    void libraryInfoCutsLongType()
    {
        ZRK_Device_K7140 longType(QString(300, QLatin1Char('x')), 0, 0, 0, 0);
        szLibraryInfo info;
        std::memset(&info, 0xAB, sizeof info);
        longType.getModuleInfo(&info);
        QCOMPARE(qstrlen(info.deviceType), 254u);
        QCOMPARE(info.deviceType[254], '\0');
        QCOMPARE(QByteArray(info.displayName), QByteArray("Torvin K-7140"));
    }

    // Every host-to-plug-in row of the public table is routed, and nothing else is.
    void routingTableMatchesHeader()
    {
        QSet<int> inTable;
        for (const ZrkMessageInfo& row : kZrkMessageTable) {
            QVERIFY(row.id >= ZRK_MSG_FIRST && row.id <= ZRK_MSG_LAST);
            QVERIFY(zrkMessageInfo(row.id, row.direction) == &row); // one row per id and direction
            if (row.direction == ZrkMessageDirection::HostToPlugin)
                inTable.insert(row.id);
        }
        for (int id = ZRK_MSG_FIRST - 5; id <= ZRK_MSG_LAST + 5; ++id)
            QVERIFY2(ZRK_Device_K7140::isRoutedMessage(id) == inTable.contains(id),
                qPrintable(QString::number(id)));
    }

    // Rows that forward their arguments to one window operation, with the windows open and shown.
    void nothingReached_data()
    {
        QTest::addColumn<int>("msg");
        for (const ZrkMessageInfo& row : kZrkMessageTable) {
            if (row.direction == ZrkMessageDirection::HostToPlugin)
                QTest::newRow(row.name) << row.id;
        }
    }

    // A row whose window does not exist yet is dropped, and one given zero words where it expects an
    // address is ignored even with all windows open and shown: no window operation, nothing sent.
    void nothingReached()
    {
        QFETCH(int, msg);
        const ZrkMessageInfo* row = zrkMessageInfo(msg, ZrkMessageDirection::HostToPlugin);
        // Rows that make their window, or touch no window at all.
        if (!QList<int> { 2001, 2002, 2003, 2004, 2005, 2006, 2010, 2026, 2031, 2049, 2051, 2052, 2101, 2102,
                2103, 2272, 2346, 2356, 2399 }
                 .contains(msg)) {
            dev->ZRK_ReceiveMessage(dev, msg, word(row->wParam), word(row->lParam));
            QVERIFY(!dev->widgetConfig() && !dev->widgetTmiView() && !dev->widgetTest());
        }
        if (QByteArray(row->wParam) != "-") {
            openWindows(true);
            dev->ZRK_ReceiveMessage(dev, msg, 0, 0);
            QCOMPARE(dev->getDeviceType(), QStringLiteral("K-7140"));
            QCOMPARE(lpGlobalEventBus, nullptr);
        }
        // The host closing the plug-in closes both windows even without a place for the answer.
        const QStringList expected = msg == ZRK_MSG_HOST_CLOSES_PLUGIN && QByteArray(row->wParam) != "-"
            ? QStringList { "cfg.closeWidgetConfig", "tmi.closeForm" }
            : QStringList();
        QCOMPARE(gLog, expected);
        QVERIFY(gSent.isEmpty());
    }

    // One row for each way a reply's words are read (an address of bytes or text, a number of each
    // width, two arguments, a result, none); every routed id takes one of these ways.
    void windowRows_data()
    {
        QTest::addColumn<int>("msg");
        QTest::addColumn<QString>("expected");
        const std::pair<int, const char*> rows[] = {
            { 2301, "tmi.setTmiCur(x)" },
            { 2351, "tmi.setReceiveTahoQuest(x)" },
            { 2353, "tmi.setReceiveTahoQuest(x)" },
            // The word points to a 64-bit 42; each row reads the width it expects.
            { 2126, "cfg.receiveDtpProtection(42)" },
            { 2128, "cfg.receiveDtpFileRead_V3(1)" },
            { 2271, "cfg.receive_CanlogCurNum(42)" },
            { 2383, "cfg.openConfigPage(42)" },
            // Two arguments, one from each word.
            { 2251, "cfg.receiveAccelBrake(42,42)" },
            { 2267, "tmi.setRFID(42,42)" },
            { 2291, "cfg.receive_TM_File_Info_V3(42,42)" },
            { 2293, "cfg.receive_TM_ReadFile_V3(1,x)" },
            { 2343, "cfg.receive_CurCanFile(x,x)" },
            { 2384, "cfg.getFileConfigure" },
            { 2122, "cfg.receiveDtpTest" },
            { 2385, "cfg.addUserParamCE(x)" },
            { 2380, "cfg.setWindowCEClosed" },
            { 2039, "tmi.closeForm" },
        };
        for (const auto& [msg, expected] : rows)
            QTest::newRow(qPrintable(QString::number(msg))) << msg << QString::fromLatin1(expected);
    }

    void windowRows()
    {
        QFETCH(int, msg);
        QFETCH(QString, expected);
        openWindows(true);
        const ZrkMessageInfo* row = zrkMessageInfo(msg, ZrkMessageDirection::HostToPlugin);
        const unsigned long w = word(row->wParam);
        dev->ZRK_ReceiveMessage(dev, msg, w, word(row->lParam));
        QCOMPARE(gLog, QStringList { expected });
    }

    // Rows whose target depends on state. The state letters: c, t, s the configuration, telemetry and
    // test windows shown; a the telemetry view active; n connected; 0, 1, 2 the widget waiting for a key.
    void conditionalRows_data()
    {
        QTest::addColumn<int>("msg");
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<QStringList>("expected");
        const QStringList both { "tmi.setCurrentAnalogValue", "cfg.receiveAdValueFuel_UN" };
        QTest::newRow("2381 not connected") << 2381 << QByteArray("c") << QStringList();
        QTest::newRow("2381 connected")
            << 2381 << QByteArray("n") << QStringList { "cfg.saveConfigToDevice" };
        QTest::newRow("2382 not connected") << 2382 << QByteArray("c") << QStringList();
        QTest::newRow("2382 connected")
            << 2382 << QByteArray("n") << QStringList { "cfg.readConfigFromDevice" };
        QTest::newRow("2373 hidden") << 2373 << QByteArray("ts") << QStringList();
        QTest::newRow("2373 shown") << 2373 << QByteArray("c") << QStringList { "cfg.setWindowFocus" };
        QTest::newRow("2081 hidden") << 2081 << QByteArray("t") << QStringList();
        QTest::newRow("2081 test, cfg")
            << 2081 << QByteArray("sc")
            << QStringList { "test.receive_Device_Test(x)", "cfg.receiveDataTest(x)" };
        QTest::newRow("2081 cfg") << 2081 << QByteArray("c") << QStringList { "cfg.receiveDataTest(x)" };
        QTest::newRow("2247 hidden") << 2247 << QByteArray("s") << QStringList();
        QTest::newRow("2247 cfg") << 2247 << QByteArray("c") << QStringList(both.mid(1));
        QTest::newRow("2247 both") << 2247 << QByteArray("ct") << both;
        QTest::newRow("2247 tmi") << 2247 << QByteArray("t") << QStringList(both.mid(0, 1));
        // The configuration window gets 2265 even while hidden; the view only while active.
        QTest::newRow("2265 hidden") << 2265 << QByteArray("")
                                     << QStringList { "cfg.receiveCurrentDispValue(42)" };
        QTest::newRow("2265 active") << 2265 << QByteArray("ta")
                                     << QStringList { "tmi.receiveCurrentDispValue(42)",
                                            "cfg.receiveCurrentDispValue(42)" };
        QTest::newRow("2241 for cfg") << 2241 << QByteArray("0") << QStringList { "cfg.receiveTM(42)" };
        QTest::newRow("2241 for tmi") << 2241 << QByteArray("1") << QStringList { "tmi.setToucheMemory(42)" };
        QTest::newRow("2241 for 2") << 2241 << QByteArray("2ct") << QStringList();
    }

    void conditionalRows()
    {
        QFETCH(int, msg);
        QFETCH(QByteArray, state);
        QFETCH(QStringList, expected);
        if (state.contains('n'))
            connect();
        openWindows(false);
        dev->widgetConfig()->setVisible(state.contains('c') || state.contains('n'));
        dev->widgetTmiView()->setVisible(state.contains('t'));
        dev->widgetTest()->setVisible(state.contains('s'));
        if (state.contains('a')) {
            QApplication::setActiveWindow(dev->widgetTmiView());
            QVERIFY(dev->widgetTmiView()->isActiveWindow());
        }
        dev->setWidgetWaitReceive(QByteArray("012").contains(state[0]) ? state[0] - '0' : -1);
        const ZrkMessageInfo* row = zrkMessageInfo(msg, ZrkMessageDirection::HostToPlugin);
        dev->ZRK_ReceiveMessage(dev, msg, word(row->wParam), 0);
        QCOMPARE(gLog, expected);
    }

    void connectionSequence_data()
    {
        QTest::addColumn<quint32>("mode");
        QTest::addColumn<bool>("windowsOpen");
        QTest::addColumn<QByteArray>("type"); // the type connected; empty: a disconnect (2052)
        QTest::addColumn<QStringList>("expected");
        const QStringList allConnect { "cfg.deviceConnect", "tmi.deviceConnect", "test.deviceConnect" };
        const QStringList allDisconnect { "cfg.deviceDisconnect", "tmi.deviceDisconnect",
            "test.deviceDisconnect" };
        QTest::newRow("no windows, mode 0")
            << 0u << false << QByteArray("K-7140") << QStringList { "new.test" };
        QTest::newRow("no windows, mode 5")
            << 5u << false << QByteArray("K-7140") << QStringList { "new.test", "test.deviceConnect" };
        QTest::newRow("windows, mode 0")
            << 0u << true << QByteArray("K-7140") << QStringList(allConnect.mid(0, 2));
        QTest::newRow("windows, mode 5") << 5u << true << QByteArray("K-7140") << allConnect;
        // Connected before: another type runs the full disconnect; the test window only in mode 5.
        QTest::newRow("other type, mode 5") << 5u << true << QByteArray("K-7150") << allDisconnect;
        QTest::newRow("disconnect, mode 5") << 5u << true << QByteArray() << allDisconnect;
        QTest::newRow("disconnect, mode 1")
            << 1u << true << QByteArray() << QStringList(allDisconnect.mid(0, 2));
    }

    void connectionSequence()
    {
        QFETCH(quint32, mode);
        QFETCH(bool, windowsOpen);
        QFETCH(QByteArray, type);
        QFETCH(QStringList, expected);
        setMode(mode);
        const bool disconnecting = type != "K-7140";
        if (disconnecting)
            connect();
        if (windowsOpen)
            openWindows(false);
        if (type.isEmpty())
            dev->ZRK_ReceiveMessage(dev, 2052, 0, 0);
        else
            connect(type.constData());
        QCOMPARE(gLog, expected);
        QCOMPARE(dev->isDeviceConnected(), !disconnecting);
        QCOMPARE(dev->getDeviceImei(), disconnecting ? QString() : QStringLiteral("861234567890123"));
        QCOMPARE(dev->getDeviceFirmvareVer(), disconnecting ? QString() : QStringLiteral("3.5.8"));
        QCOMPARE(dev->getDeviceBHR(), disconnecting ? 0ULL : 0x1122334455667788ULL);
        QCOMPARE(dev->getConnectType(), 4u); // kept from the last connect of this type
        QCOMPARE(dev->getConfiguratorMode(), mode);
    }

    void connectEmptiesConfigParam()
    {
        szConfigFile file {};
        dev->openFileConfig(&file);
        szConfigParam out;
        std::memset(&out, 0x55, sizeof out);
        dev->ZRK_ReceiveMessage(dev, 2356, addr(out), 0);
        QCOMPARE(QByteArray(out.text), QByteArray("ORBA3;255"));
        QCOMPARE(out.text[sizeof out.text - 1], '\0');
        connect();
        dev->getConfigParam(out);
        QCOMPARE(QByteArray(out.text), QByteArray());
        dev->openFileConfig(&file);
        dev->ZRK_ReceiveMessage(dev, 2052, 0, 0);
        dev->getConfigParam(out);
        QCOMPARE(QByteArray(out.text), QByteArray());
    }

    void setTypeAndVendor()
    {
        QCOMPARE(dev->getDeviceVendor(), QStringLiteral("ZIRKOMATIC"));
        QString pair[2] = { QStringLiteral("K-7141"), QStringLiteral("Vendor B") };
        dev->ZRK_ReceiveMessage(dev, 2026, addr(pair[0]), 0);
        QCOMPARE(dev->getDeviceType(), QStringLiteral("K-7141"));
        QCOMPARE(dev->getDeviceVendor(), QStringLiteral("Vendor B"));
        // A connect record now has to carry the new type.
        connect();
        QVERIFY(!dev->isDeviceConnected());
        connect("K-7141");
        QVERIFY(dev->isDeviceConnected());
    }

    void closeByHost_data()
    {
        QTest::addColumn<bool>("withConfig");
        QTest::addColumn<bool>("refuse");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("no windows") << false << false << true << QStringList();
        QTest::newRow("config closes")
            << true << false << true << QStringList { "cfg.closeWidgetConfig", "tmi.closeForm" };
        QTest::newRow("config refuses")
            << true << true << false << QStringList { "cfg.closeWidgetConfig", "tmi.closeForm" };
    }

    void closeByHost()
    {
        QFETCH(bool, withConfig);
        QFETCH(bool, refuse);
        QFETCH(bool, result);
        QFETCH(QStringList, expected);
        if (withConfig) {
            openWindows(false);
            static_cast<RecConfig*>(dev->widgetConfig())->refuseClose = refuse;
        }
        bool answer = true; // untouched when there is no configuration window
        dev->ZRK_ReceiveMessage(dev, 2037, addr(answer), 0);
        QCOMPARE(answer, result);
        QCOMPARE(gLog, expected);
        // Without a place for the answer both windows are still closed.
        gLog.clear();
        dev->ZRK_ReceiveMessage(dev, 2037, 0, 0);
        QCOMPARE(gLog, expected);
    }

    // 2101, 2102 and 2005 make their window once and then reuse it; 2101 tells the host with 2370.
    void windowsMadeOnFirstNeed()
    {
        szConfigFile file {};
        file.mode = 1;
        file.source = 1;
        qstrncpy(file.path, "/tmp/a.xml", sizeof file.path);
        dev->ZRK_ReceiveMessage(dev, 2101, addr(file), 0);
        QCOMPARE(gSent.size(), 1);
        QCOMPARE(gSent[0].msg, 2370);
        QString text("hello");
        dev->ZRK_ReceiveMessage(dev, 2102, addr(text), 0);
        dev->ZRK_ReceiveMessage(dev, 2102, addr(text), 0);
        bool result = false;
        QByteArray data("test");
        dev->ZRK_ReceiveMessage(dev, 2005, addr(result), addr(data));
        QVERIFY(result);
        data = "no";
        dev->ZRK_ReceiveMessage(dev, 2005, addr(result), addr(data));
        QVERIFY(!result);
        QCOMPARE(gLog,
            (QStringList { "new.config", "cfg.deviceDisconnect", "cfg.openConfig(1,1,/tmp/a.xml)", "new.tmi",
                "tmi.showForm(hello,ORBA3;255)", "tmi.showForm(hello,ORBA3;255)", "tmi.isTestMode(test)",
                "tmi.isTestMode(no)" }));
    }

    void openFileTmi_data()
    {
        QTest::addColumn<quint32>("kind");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("page") << 0u
                              << QStringList { "new.page", "page.showForm", "page.setFileTmi(/t/a.tmi)" };
        QTest::newRow("table") << 1u
                               << QStringList { "new.table", "table.showForm", "table.setFileTmi(/t/a.tmi)" };
        QTest::newRow("2") << 2u << QStringList();
    }

    void openFileTmi()
    {
        QFETCH(quint32, kind);
        QFETCH(QStringList, expected);
        QString name("/t/a.tmi");
        dev->ZRK_ReceiveMessage(dev, 2103, addr(name), addr(kind));
        QCOMPARE(gLog, expected);
        QCOMPARE(bool(dev->widgetTmiPage()), kind == 0);
        QCOMPARE(bool(dev->widgetTmiTable()), kind == 1);
        dev->ZRK_ReceiveMessage(dev, 2103, addr(name), 0); // no kind, nothing opened
        QCOMPARE(gLog, expected);
    }

    void initWidgetConfigFollowsConnection()
    {
        dev->initWidgetConfig();
        dev->initWidgetConfig();
        QCOMPARE(gLog, (QStringList { "new.config", "cfg.deviceDisconnect", "cfg.deviceDisconnect" }));
        connect();
        gLog.clear();
        dev->initWidgetConfig();
        QCOMPARE(gLog, QStringList { "cfg.deviceConnect" });
    }

    void withAndWithoutInitialize()
    {
        const szLibraryFunctions f = dev->getLibFuncForNameModule(QStringLiteral("complex_events"));
        QCOMPARE(gSent.size(), 1);
        QCOMPARE(gSent[0].msg, 2135);
        QCOMPARE(gSent[0].w, QStringLiteral("complex_events"));
        QCOMPARE(gSent[0].l, QStringLiteral("zeroed"));
        QCOMPARE(f.moduleName, QStringLiteral("ce_editor"));
        // Before Initialize: no callback, so the record comes back empty; no forms, so their calls
        // do nothing.
        ZRK_Device_K7140 bare(QStringLiteral("K-7140"), 3, 5, 8, 1);
        const szLibraryFunctions g = bare.getLibFuncForNameModule(QStringLiteral("x"));
        QVERIFY(g.moduleName.isEmpty() && !g.handle && !g.receiveMessage);
        QCOMPARE(bare.SendMessage(&bare, 2001, 0, 0), 0ul);
        bare.formWait_Show();
        bare.formWait_Set_Progress_MinMax(1, 2);
        bare.formWait_Set_Title(QStringLiteral("x"));
        bare.showFormParamInfo(QStringLiteral("t"), QStringLiteral("x"));
        bare.translateModule();
        QVERIFY(!bare.formProgress() && !bare.formAbout());
    }

    void translateModuleOrder()
    {
        dev->initWidgetTest();
        dev->initWidgetTmiTable();
        dev->initWidgetTmiPage();
        dev->initWidgetTMI();
        dev->initWidgetConfig();
        gLog.clear();
        dev->ZRK_ReceiveMessage(dev, 2031, 0, 0);
        // The forms first (they are real here), then the windows in fixed order; never the test window.
        QCOMPARE(gLog,
            (QStringList {
                "cfg.translateForm", "tmi.translateForm", "page.translateForm", "table.translateForm" }));
    }

    void eventBusStored()
    {
        int bus = 0;
        dev->ZRK_ReceiveMessage(dev, 2346, addr(bus), 0);
        QCOMPARE(lpGlobalEventBus, static_cast<void*>(&bus));
        dev->ZRK_ReceiveMessage(dev, 2346, 0, 0);
        QCOMPARE(lpGlobalEventBus, static_cast<void*>(&bus));
        lpGlobalEventBus = nullptr;
    }

    void waitFormTitleAndClear()
    {
        ZRK_Form_IO_Progress* form = dev->formProgress();
        QVERIFY(form);
        const QString defaultTitle = form->title();
        QVERIFY(!defaultTitle.isEmpty());
        dev->formWait_Set_Title(QStringLiteral("Чтение файла"));
        dev->formWait_Set_Progress_MinMax(10, 500);
        dev->formWait_Set_Progress_Value(250);
        dev->formWait_Set_Text(QStringLiteral("config.xml"));
        dev->formWait_Show();
        QVERIFY(form->isVisible());
        // A custom title survives a language change; the default one follows the catalogue.
        dev->translateModule();
        QCOMPARE(form->title(), QStringLiteral("Чтение файла"));
        dev->formWait_Clear();
        QCOMPARE(form->title(), defaultTitle);
        QCOMPARE(form->progressValue(), 0);
        QCOMPARE(form->textFileLeft(), QString());
        dev->formWait_Close();
        QVERIFY(!form->isVisible());
    }

    void aboutForm()
    {
        ZRK_Form_Param_About* about = dev->formAbout();
        QVERIFY(about && !about->isVisible());
        dev->showFormParamInfo(QStringLiteral("Параметр"), QStringLiteral("Описание параметра"));
        QVERIFY(about->isVisible());
        QCOMPARE(about->paramInfoTitle(), QStringLiteral("Параметр"));
        QCOMPARE(about->paramInfoText(), QStringLiteral("Описание параметра"));
        QVERIFY(!about->windowTitle().isEmpty() && !about->windowTitle().contains(QLatin1String("abou_")));
    }

    void defaultFactoryMakesRealWindows()
    {
        dev->setWindowFactory(nullptr);
        openWindows(false);
        dev->initWidgetTmiPage();
        dev->initWidgetTmiTable();
        // Top-level windows of the real classes, titled from the catalogue.
        const std::pair<QWidget*, const char*> made[] = { { dev->widgetConfig(), "ZRK_Widget_Config" },
            { dev->widgetTmiView(), "ZRK_Widget_Tmi_View" }, { dev->widgetTmiPage(), "ZRK_Widget_Tmi_Page" },
            { dev->widgetTmiTable(), "ZRK_Widget_Tmi_Table" }, { dev->widgetTest(), "ZRK_Widget_Test" } };
        for (const auto& [w, className] : made) {
            QCOMPARE(w->metaObject()->className(), className);
            QVERIFY(w->isWindow() && !w->parent());
            QVERIFY2(!w->windowTitle().isEmpty() && !w->windowTitle().contains(QLatin1Char('_')),
                qPrintable(w->windowTitle()));
        }
        QVERIFY(!dynamic_cast<RecConfig*>(dev->widgetConfig()));
        // The real windows follow the connection too.
        connect();
        QVERIFY(dev->widgetConfig()->isDeviceConnected());
        QVERIFY(dev->widgetTmiView()->isDeviceConnected());
        dev->setWindowFactory(&windows);
    }

private:
    void openWindows(bool shown)
    {
        dev->initWidgetConfig();
        dev->initWidgetTMI();
        dev->initWidgetTest();
        for (QWidget* w : { static_cast<QWidget*>(dev->widgetConfig()),
                 static_cast<QWidget*>(dev->widgetTmiView()), static_cast<QWidget*>(dev->widgetTest()) })
            w->setVisible(shown);
        gLog.clear();
    }
    // Another type comes with another connection type, which must not be taken.
    void connect(const char* type = "K-7140")
    {
        szDeviceConnect rec { type, "861234567890123", "3.5.8", nullptr, 0x1122334455667788ULL, 0xFFFFFFFF,
            qstrcmp(type, "K-7140") ? 9u : 4u };
        dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    }
    void setMode(quint32 mode) { dev->ZRK_ReceiveMessage(dev, 2004, addr(mode), 0); }
    // A word of the shape a row names: "x" for texts and bytes, 42 for numbers, 1 for flags.
    unsigned long word(const QByteArray& type)
    {
        if (type == "-")
            return 0;
        if (type.startsWith("QByteArray"))
            return addr(bytes = "x");
        if (type.startsWith("QString"))
            return addr(text = "x");
        if (type.startsWith("sz"))
            return addr(record);
        return addr(value = type.startsWith("bool") ? 1 : 42);
    }
    QByteArray bytes;
    QString text;
    quint64 value = 0;
    alignas(8) char record[64] = {};

    ZRK_Device_K7140* dev = nullptr;
    RecWindows windows;
    QTemporaryDir home;
};

QTEST_MAIN(tst_DeviceK7140)
#include "tst_device_k7140.moc"
