// The device object with its windows replaced by recorders: which window operation each host
// message reaches, and when it reaches none.
#include "config_ui/zrk_widget_config.h"
#include "device/zrk_device_k7140.h"
#include "device/zrk_form_io_progress.h"
#include "device/zrk_form_param_about.h"
#include "service/zrk_widget_test.h"
#include "telemetry/zrk_widget_tmi_page.h"
#include "telemetry/zrk_widget_tmi_table.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

namespace {

QStringList* gLog = nullptr;
void record(const QString& entry)
{
    if (gLog)
        gLog->append(entry);
}

class RecConfig : public ZRK_Widget_Config
{
public:
    void deviceConnect() override { ZRK_Widget_Config::deviceConnect(), record("cfg.deviceConnect"); }
    void deviceDisconnect() override
    {
        ZRK_Widget_Config::deviceDisconnect(), record("cfg.deviceDisconnect");
    }
    void translateForm() override { record("cfg.translateForm"); }
    void openConfig(szConfigFile* f, szConfigParam&) override
    {
        record(QStringLiteral("cfg.openConfig(%1,%2,%3)")
                   .arg(f->mode)
                   .arg(f->source)
                   .arg(QString::fromLocal8Bit(f->path)));
    }
    bool closeWidgetConfig() override { return record("cfg.closeWidgetConfig"), refuseClose ? false : true; }
    void saveConfigToDevice() override { record("cfg.saveConfigToDevice"); }
    void readConfigFromDevice() override { record("cfg.readConfigFromDevice"); }
    void openConfigPage(quint32 p) override { record(QStringLiteral("cfg.openConfigPage(%1)").arg(p)); }
    void getFileConfigure(QString& n) override
    {
        n = QStringLiteral("/tmp/c.xml"), record("cfg.getFileConfigure");
    }
    void setCE_ProgramInfo(QByteArray* d) override { record("cfg.setCE_ProgramInfo(" + *d + ")"); }
    void setWindowCEClosed() override { record("cfg.setWindowCEClosed"); }
    void setWindowFocus() override { record("cfg.setWindowFocus"); }
    void addUserParamCE(const QString& n) override { record("cfg.addUserParamCE(" + n + ")"); }
    void addUserParamListCE(const QString& n) override { record("cfg.addUserParamListCE(" + n + ")"); }
    void delUserParamCE(const QString& n) override { record("cfg.delUserParamCE(" + n + ")"); }
    void delUserParamListCE(const QString& n) override { record("cfg.delUserParamListCE(" + n + ")"); }
    void receiveDataTest(QByteArray* d) override { record("cfg.receiveDataTest(" + *d + ")"); }
    void receiveDtpTest(szDtpKRAI*) override { record("cfg.receiveDtpTest"); }
    void receiveDtpProtection(quint8 v) override
    {
        record(QStringLiteral("cfg.receiveDtpProtection(%1)").arg(v));
    }
    void receiveDtpFileRead_V3(bool v) override
    {
        record(QStringLiteral("cfg.receiveDtpFileRead_V3(%1)").arg(v));
    }
    void receiveTM(quint64 c) override { record(QStringLiteral("cfg.receiveTM(%1)").arg(c)); }
    void receiveAnalogValue(szAnalogValue*) override { record("cfg.receiveAnalogValue"); }
    void receiveAdValueFuel(szADValue*) override { record("cfg.receiveAdValueFuel"); }
    void receiveAdValueFuel_UN(szADValue_UN*) override { record("cfg.receiveAdValueFuel_UN"); }
    void receiveAccelParam(szAccelParam*) override { record("cfg.receiveAccelParam"); }
    void receiveAccelBrake(quint8 s, quint8 r) override
    {
        record(QStringLiteral("cfg.receiveAccelBrake(%1,%2)").arg(s).arg(r));
    }
    void receiveAccelReset(szAccelReset*) override { record("cfg.receiveAccelReset"); }
    void receiveAccelAclC(szCmdAccelParam*) override { record("cfg.receiveAccelAclC"); }
    void receiveBluetoothCancelRez(quint8 v) override
    {
        record(QStringLiteral("cfg.receiveBluetoothCancelRez(%1)").arg(v));
    }
    void receiveBluetoothRez(quint8 v) override
    {
        record(QStringLiteral("cfg.receiveBluetoothRez(%1)").arg(v));
    }
    void receiveBluetoothDevice(szBluetoothDevice*) override { record("cfg.receiveBluetoothDevice"); }
    void receiveCurrentDispValue(quint32 v) override
    {
        record(QStringLiteral("cfg.receiveCurrentDispValue(%1)").arg(v));
    }
    void receive_CanlogCurNum(qint32 v) override
    {
        record(QStringLiteral("cfg.receive_CanlogCurNum(%1)").arg(v));
    }
    void receive_TM_File_Info_V3(quint32 s, quint8 t) override
    {
        record(QStringLiteral("cfg.receive_TM_File_Info_V3(%1,%2)").arg(s).arg(t));
    }
    void receive_TM_ReadFile_V3(bool ok, const QString& f) override
    {
        record(QStringLiteral("cfg.receive_TM_ReadFile_V3(%1,%2)").arg(ok).arg(f));
    }
    void receive_TM_WriteFile_V3(bool ok) override
    {
        record(QStringLiteral("cfg.receive_TM_WriteFile_V3(%1)").arg(ok));
    }
    void receive_CurCanFile(QByteArray* d, const QString& n) override
    {
        record("cfg.receive_CurCanFile(" + *d + "," + n + ")");
    }
    void receive_SD_File(QByteArray* d) override { record("cfg.receive_SD_File(" + *d + ")"); }
    void receive_Camera_Info(QByteArray* d) override { record("cfg.receive_Camera_Info(" + *d + ")"); }
    void receive_PhotoInfo_SD_File(QByteArray* d) override
    {
        record("cfg.receive_PhotoInfo_SD_File(" + *d + ")");
    }
    bool refuseClose = false;
};

class RecTmi : public ZRK_Widget_Tmi_View
{
public:
    void deviceConnect() override { ZRK_Widget_Tmi_View::deviceConnect(), record("tmi.deviceConnect"); }
    void deviceDisconnect() override
    {
        ZRK_Widget_Tmi_View::deviceDisconnect(), record("tmi.deviceDisconnect");
    }
    void deviceDisconnectRCS() override { record("tmi.deviceDisconnectRCS"); }
    void translateForm() override { record("tmi.translateForm"); }
    void showForm(const QString& t, const szConfigParam& p) override
    {
        record("tmi.showForm(" + t + "," + QString::fromLatin1(p.text) + ")");
    }
    void closeForm() override { record("tmi.closeForm"); }
    bool isTestMode(QByteArray* d) override { return record("tmi.isTestMode(" + *d + ")"), *d == "test"; }
    void setTmiCur(QByteArray* d) override { record("tmi.setTmiCur(" + *d + ")"); }
    void setTmiCurNumber(QByteArray* d) override { record("tmi.setTmiCurNumber(" + *d + ")"); }
    void setTmiCurLeft(QByteArray* d) override { record("tmi.setTmiCurLeft(" + *d + ")"); }
    void setTmiCurRight(QByteArray* d) override { record("tmi.setTmiCurRight(" + *d + ")"); }
    void setTmiCurExt(QByteArray* d) override { record("tmi.setTmiCurExt(" + *d + ")"); }
    void setReceive_NMEA(QByteArray* d) override { record("tmi.setReceive_NMEA(" + *d + ")"); }
    void setTmiCmndParamValue(QByteArray* d) override { record("tmi.setTmiCmndParamValue(" + *d + ")"); }
    void setTmiCmnd(QByteArray* d) override { record("tmi.setTmiCmnd(" + *d + ")"); }
    void setReceiveFls_UserCommand(QByteArray* d) override
    {
        record("tmi.setReceiveFls_UserCommand(" + *d + ")");
    }
    void getParamFLSFirmwareSensor(QByteArray* d) override
    {
        record("tmi.getParamFLSFirmwareSensor(" + *d + ")");
    }
    void setToucheMemory(quint64 c) override { record(QStringLiteral("tmi.setToucheMemory(%1)").arg(c)); }
    void setCurrentAnalogValue(szADValue_UN*) override { record("tmi.setCurrentAnalogValue"); }
    void receiveCurrentDispValue(quint32 v) override
    {
        record(QStringLiteral("tmi.receiveCurrentDispValue(%1)").arg(v));
    }
    void setRFID(quint64 c, quint8 v) override { record(QStringLiteral("tmi.setRFID(%1,%2)").arg(c).arg(v)); }
    void setReceiveTahoQuest(QByteArray* d) override { record("tmi.setReceiveTahoQuest(" + *d + ")"); }
    void setReceiveTahoFile_Read(bool ok) override
    {
        record(QStringLiteral("tmi.setReceiveTahoFile_Read(%1)").arg(ok));
    }
    void setReceiveFlsDataFile_Quest(QByteArray* d) override
    {
        record("tmi.setReceiveFlsDataFile_Quest(" + *d + ")");
    }
    void setReceiveFlsDataFile_Read(bool ok) override
    {
        record(QStringLiteral("tmi.setReceiveFlsDataFile_Read(%1)").arg(ok));
    }
};

class RecPage : public ZRK_Widget_Tmi_Page
{
public:
    void showForm() override { record("page.showForm"); }
    void setFileTmi(const QString& n) override { record("page.setFileTmi(" + n + ")"); }
    void translateForm() override { record("page.translateForm"); }
};

class RecTable : public ZRK_Widget_Tmi_Table
{
public:
    void showForm() override { record("table.showForm"); }
    void setFileTmi(const QString& n) override { record("table.setFileTmi(" + n + ")"); }
    void translateForm() override { record("table.translateForm"); }
};

class RecTest : public ZRK_Widget_Test
{
public:
    void deviceConnect() override { ZRK_Widget_Test::deviceConnect(), record("test.deviceConnect"); }
    void deviceDisconnect() override { ZRK_Widget_Test::deviceDisconnect(), record("test.deviceDisconnect"); }
    void receive_Device_Test(QByteArray* d) override { record("test.receive_Device_Test(" + *d + ")"); }
};

class RecWindows : public ZRK_Device_Windows
{
public:
    ZRK_Widget_Config* createConfig() override { return record("new.config"), new RecConfig; }
    ZRK_Widget_Tmi_View* createTmiView() override { return record("new.tmi"), new RecTmi; }
    ZRK_Widget_Tmi_Page* createTmiPage() override { return record("new.page"), new RecPage; }
    ZRK_Widget_Tmi_Table* createTmiTable() override { return record("new.table"), new RecTable; }
    ZRK_Widget_Test* createTest() override { return record("new.test"), new RecTest; }
};

// What the host's callback saw.
struct Sent
{
    int msg;
    QString w;
    QString l;
};
QList<Sent>* gSent = nullptr;
unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long l)
{
    Sent s { msg, QString(), QString() };
    if (msg == ZRK_MSG_SHOW_HELP) {
        s.w = *reinterpret_cast<QString*>(w);
        s.l = *reinterpret_cast<QString*>(l);
    } else if (msg == ZRK_MSG_LOOKUP_MODULE_FUNCTIONS) {
        auto* f = reinterpret_cast<szLibraryFunctions*>(l);
        s.w = *reinterpret_cast<QString*>(w);
        s.l = f->moduleName.isEmpty() && !f->handle && !f->receiveMessage ? "zeroed" : "dirty";
        f->moduleName = QStringLiteral("ce_editor");
    }
    if (gSent)
        gSent->append(s);
    return 0;
}

template <typename T> unsigned long addr(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

} // namespace

class tst_DeviceK7140 : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void libraryInfoRecord();
    void libraryInfoCutsLongType();
    void queriesWriteTheirResults_data();
    void queriesWriteTheirResults();
    void foreignHandleChangesNothing();
    void idsWithoutRowDoNothing_data();
    void idsWithoutRowDoNothing();
    void routingTableMatchesHeader();
    void nullAddressesAreIgnored_data();
    void nullAddressesAreIgnored();
    void windowRows_data();
    void windowRows();
    void windowRowsDroppedWithoutWindow();
    void touchMemoryGoesToWaitingWidget_data();
    void touchMemoryGoesToWaitingWidget();
    void hiddenWidgetsAreSkipped();
    void displayValueNeedsActiveTelemetryView();
    void configWriteAndReadNeedConnection();
    void focusNeedsVisibleConfig();
    void connectSequence_data();
    void connectSequence();
    void connectWithOtherTypeDisconnects();
    void disconnectSequence();
    void connectEmptiesConfigParam();
    void setTypeAndVendor();
    void closeByHost_data();
    void closeByHost();
    void pathsDefaultAndFromHost();
    void openFileConfigSends2370();
    void openTelemetryView();
    void openFileTmi_data();
    void openFileTmi();
    void initWidgetConfigFollowsConnection();
    void showHelpOnlyForTopic();
    void libFuncRequest();
    void translateModuleOrder();
    void eventBusStored();
    void testModeCreatesView();
    void waitFormForwarding();
    void waitFormBeforeInitialize();
    void aboutForm();
    void defaultFactoryMakesRealWindows();

private:
    ZRK_Device_K7140* dev = nullptr;
    RecWindows windows;
    QStringList log;
    QList<Sent> sent;
    QTemporaryDir home;
};

void tst_DeviceK7140::initTestCase()
{
    QVERIFY(home.isValid());
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", (home.path() + "/data").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toLocal8Bit());
    QCoreApplication::setOrganizationName(QStringLiteral("zrk-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_device_k7140"));
    QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
    gLog = &log;
    gSent = &sent;
}

void tst_DeviceK7140::init()
{
    dev = new ZRK_Device_K7140(QStringLiteral("K-7140"), 3, 5, 8, 1, nullptr);
    dev->setWindowFactory(&windows);
    dev->InitConfigurator(&hostCallback);
    log.clear();
    sent.clear();
}

void tst_DeviceK7140::cleanup()
{
    delete dev;
    dev = nullptr;
    QCOMPARE(lpGlobalDevice, nullptr);
}

void tst_DeviceK7140::libraryInfoRecord()
{
    szLibraryInfo info;
    std::memset(&info, 0xAB, sizeof info);
    dev->getModuleInfo(&info);
    const auto* bytes = reinterpret_cast<const unsigned char*>(&info);
    void* handle = nullptr;
    std::memcpy(&handle, bytes, 8);
    QCOMPARE(handle, static_cast<void*>(dev));
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(bytes + 8)), QByteArray("K-7140"));
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(bytes + 263)), QByteArray("Torvin K-7140"));
    // Nothing of the 0xAB fill survives: every unused byte of the texts is zero.
    for (int i = 8 + 6; i < 263; ++i)
        QCOMPARE(int(bytes[i]), 0);
    for (int i = 263 + 13; i < 518; ++i)
        QCOMPARE(int(bytes[i]), 0);
    const qint32 expected[] = { 3, 5, 8, 1 };
    for (int k = 0; k < 4; ++k) {
        qint32 v;
        std::memcpy(&v, bytes + 518 + 4 * k, 4);
        QCOMPARE(v, expected[k]);
    }
    quint32 zero, version;
    std::memcpy(&zero, bytes + 534, 4);
    std::memcpy(&version, bytes + 538, 4);
    QCOMPARE(zero, 0u);
    QCOMPARE(version, ZRK_VERSION_FIRMWARE);
    QCOMPARE(version, 1u);
    dev->getModuleInfo(nullptr); // nothing to write to, nothing happens
}

void tst_DeviceK7140::libraryInfoCutsLongType()
{
    ZRK_Device_K7140 longType(QString(300, QLatin1Char('x')), 0, 0, 0, 0);
    szLibraryInfo info;
    std::memset(&info, 0xAB, sizeof info);
    longType.getModuleInfo(&info);
    QCOMPARE(qstrlen(info.deviceType), 254u);
    QCOMPARE(info.deviceType[254], '\0');
    QCOMPARE(QByteArray(info.displayName), QByteArray("Torvin K-7140"));
}

void tst_DeviceK7140::queriesWriteTheirResults_data()
{
    QTest::addColumn<int>("msg");
    QTest::addColumn<quint32>("expected");
    QTest::newRow("2001 alive") << 2001 << 1u;
    QTest::newRow("2002 firmware") << 2002 << ZRK_VERSION_FIRMWARE;
    QTest::newRow("2003 protocol") << 2003 << 196u;
    QTest::newRow("2010 capability") << 2010 << 1u;
    QTest::newRow("2272 capability") << 2272 << 2u;
    QTest::newRow("2399 capability") << 2399 << 1u;
}

void tst_DeviceK7140::queriesWriteTheirResults()
{
    QFETCH(int, msg);
    QFETCH(quint32, expected);
    quint32 result[2] = { 0xDEADBEEF, 0xDEADBEEF };
    dev->ZRK_ReceiveMessage(dev, msg, addr(result[0]), 0);
    QCOMPARE(result[0], expected);
    QCOMPARE(result[1], 0xDEADBEEFu); // exactly one word written
    QVERIFY(log.isEmpty());
}

void tst_DeviceK7140::foreignHandleChangesNothing()
{
    int other = 0;
    quint32 result = 77;
    dev->ZRK_ReceiveMessage(&other, 2001, addr(result), 0);
    dev->ZRK_ReceiveMessage(nullptr, 2001, addr(result), 0);
    QCOMPARE(result, 77u);
    quint32 mode = 5;
    dev->ZRK_ReceiveMessage(&other, 2004, addr(mode), 0);
    QCOMPARE(dev->getConfiguratorMode(), 0u);
    szDeviceConnect rec { "K-7140", "1", "2", nullptr, 9, 0, 3 };
    dev->ZRK_ReceiveMessage(&other, 2051, addr(rec), 0);
    QVERIFY(!dev->isDeviceConnected());
    QVERIFY(log.isEmpty());
}

void tst_DeviceK7140::idsWithoutRowDoNothing_data()
{
    QTest::addColumn<int>("msg");
    for (int msg : { 0, 2000, 2007, 2008, 2050, 2080, 2135, 2300, 2414, 3001, -2001 })
        QTest::newRow(qPrintable(QString::number(msg))) << msg;
}

void tst_DeviceK7140::idsWithoutRowDoNothing()
{
    QFETCH(int, msg);
    quint32 result = 77;
    dev->ZRK_ReceiveMessage(dev, msg, addr(result), addr(result));
    QCOMPARE(result, 77u);
    QVERIFY(log.isEmpty());
    QVERIFY(sent.isEmpty());
}

// Every host-to-plug-in row of the public table is routed, and nothing else is.
void tst_DeviceK7140::routingTableMatchesHeader()
{
    QSet<int> inTable;
    for (const ZrkMessageInfo& row : kZrkMessageTable) {
        QVERIFY(row.id >= ZRK_MSG_FIRST && row.id <= ZRK_MSG_LAST);
        QVERIFY(zrkMessageInfo(row.id, row.direction) == &row); // one row per id and direction
        if (row.direction == ZrkMessageDirection::HostToPlugin) {
            inTable.insert(row.id);
            QVERIFY2(ZRK_Device_K7140::isRoutedMessage(row.id), qPrintable(QString::number(row.id)));
        }
    }
    QCOMPARE(inTable.size(), 73);
    for (int id = ZRK_MSG_FIRST - 5; id <= ZRK_MSG_LAST + 5; ++id)
        QCOMPARE(ZRK_Device_K7140::isRoutedMessage(id), inTable.contains(id));
}

// Every row that reads or writes through an address, given zero words with all windows open:
// nothing happens and nothing crashes.
void tst_DeviceK7140::nullAddressesAreIgnored_data()
{
    QTest::addColumn<int>("msg");
    for (const ZrkMessageInfo& row : kZrkMessageTable) {
        if (row.direction == ZrkMessageDirection::HostToPlugin && QByteArray(row.wParam) != "-")
            QTest::newRow(row.name) << row.id;
    }
}

void tst_DeviceK7140::nullAddressesAreIgnored()
{
    QFETCH(int, msg);
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    dev->initWidgetTest();
    dev->widgetConfig()->show();
    dev->widgetTmiView()->show();
    dev->widgetTest()->show();
    log.clear();
    const QString typeBefore = dev->getDeviceType();
    dev->ZRK_ReceiveMessage(dev, msg, 0, 0);
    QVERIFY2(log.isEmpty(), qPrintable(log.join(' ')));
    QVERIFY(sent.isEmpty());
    QCOMPARE(dev->getDeviceType(), typeBefore);
    QCOMPARE(lpGlobalEventBus, nullptr);
}

// Rows that forward one argument to one window operation, with the windows open and visible.
void tst_DeviceK7140::windowRows_data()
{
    QTest::addColumn<int>("msg");
    QTest::addColumn<QString>("expected");
    const struct
    {
        int msg;
        const char* expected;
    } bytes[] = {
        { 2083, "tmi.setReceiveFls_UserCommand(x)" },
        { 2155, "tmi.getParamFLSFirmwareSensor(x)" },
        { 2301, "tmi.setTmiCur(x)" },
        { 2303, "tmi.setTmiCurNumber(x)" },
        { 2305, "tmi.setTmiCurLeft(x)" },
        { 2307, "tmi.setTmiCurRight(x)" },
        { 2312, "tmi.setTmiCurExt(x)" },
        { 2315, "tmi.setReceive_NMEA(x)" },
        { 2317, "tmi.setTmiCmndParamValue(x)" },
        { 2320, "tmi.setTmiCmnd(x)" },
        { 2351, "tmi.setReceiveTahoQuest(x)" },
        { 2353, "tmi.setReceiveTahoQuest(x)" },
        { 2411, "tmi.setReceiveFlsDataFile_Quest(x)" },
        { 2362, "cfg.setCE_ProgramInfo(x)" },
        { 2401, "cfg.receive_SD_File(x)" },
        { 2403, "cfg.receive_Camera_Info(x)" },
        { 2407, "cfg.receive_PhotoInfo_SD_File(x)" },
    };
    for (const auto& r : bytes)
        QTest::newRow(qPrintable(QString::number(r.msg))) << r.msg << QString::fromLatin1(r.expected);
    const struct
    {
        int msg;
        const char* expected;
    } values[] = {
        // The word points to a 64-bit 0x2A (42); each row reads the width it expects.
        { 2126, "cfg.receiveDtpProtection(42)" },
        { 2128, "cfg.receiveDtpFileRead_V3(1)" },
        { 2259, "cfg.receiveBluetoothCancelRez(42)" },
        { 2262, "cfg.receiveBluetoothRez(42)" },
        { 2271, "cfg.receive_CanlogCurNum(42)" },
        { 2295, "cfg.receive_TM_WriteFile_V3(1)" },
        { 2355, "tmi.setReceiveTahoFile_Read(1)" },
        { 2413, "tmi.setReceiveFlsDataFile_Read(1)" },
        { 2383, "cfg.openConfigPage(42)" },
    };
    for (const auto& r : values)
        QTest::newRow(qPrintable(QString::number(r.msg))) << r.msg << QString::fromLatin1(r.expected);
    const struct
    {
        int msg;
        const char* expected;
    } records[] = {
        { 2122, "cfg.receiveDtpTest" },
        { 2243, "cfg.receiveAnalogValue" },
        { 2245, "cfg.receiveAdValueFuel" },
        { 2249, "cfg.receiveAccelParam" },
        { 2253, "cfg.receiveAccelReset" },
        { 2255, "cfg.receiveAccelAclC" },
        { 2263, "cfg.receiveBluetoothDevice" },
        { 2385, "cfg.addUserParamCE(x)" },
        { 2386, "cfg.addUserParamListCE(x)" },
        { 2387, "cfg.delUserParamCE(x)" },
        { 2388, "cfg.delUserParamListCE(x)" },
        { 2380, "cfg.setWindowCEClosed" },
        { 2061, "tmi.deviceDisconnectRCS" },
        { 2039, "tmi.closeForm" },
    };
    for (const auto& r : records)
        QTest::newRow(qPrintable(QString::number(r.msg))) << r.msg << QString::fromLatin1(r.expected);
}

void tst_DeviceK7140::windowRows()
{
    QFETCH(int, msg);
    QFETCH(QString, expected);
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    dev->widgetConfig()->show();
    dev->widgetTmiView()->show();
    log.clear();
    QByteArray bytes("x");
    QString text("x");
    quint64 value = 42;
    char record[64] = {};
    unsigned long w = 0;
    const QByteArray wType = zrkMessageInfo(msg, ZrkMessageDirection::HostToPlugin)->wParam;
    if (wType == "QByteArray*")
        w = addr(bytes);
    else if (wType == "QString*")
        w = addr(text);
    else if (wType.startsWith("sz"))
        w = addr(record);
    else if (wType.startsWith("bool"))
        w = addr(value = 1);
    else if (wType != "-")
        w = addr(value);
    dev->ZRK_ReceiveMessage(dev, msg, w, 0);
    QCOMPARE(log, QStringList { expected });
}

void tst_DeviceK7140::windowRowsDroppedWithoutWindow()
{
    QByteArray bytes("x");
    quint64 value = 1;
    QString text("x");
    for (const ZrkMessageInfo& row : kZrkMessageTable) {
        if (row.direction != ZrkMessageDirection::HostToPlugin)
            continue;
        // Rows that make their window, or touch no window at all.
        if (QList<int> { 2001, 2002, 2003, 2004, 2005, 2006, 2010, 2026, 2031, 2049, 2051, 2052, 2101, 2102,
                2103, 2272, 2346, 2356, 2399 }
                .contains(row.id))
            continue;
        const QByteArray wType(row.wParam);
        unsigned long w = wType == "QString*"                                                 ? addr(text)
            : wType == "-"                                                                    ? 0
            : wType.startsWith("uint") || wType.startsWith("int") || wType.startsWith("bool") ? addr(value)
                                                                                              : addr(bytes);
        dev->ZRK_ReceiveMessage(dev, row.id, w, addr(value));
    }
    QVERIFY2(log.isEmpty(), qPrintable(log.join(' ')));
    QVERIFY(!dev->widgetConfig());
    QVERIFY(!dev->widgetTmiView());
    QVERIFY(!dev->widgetTest());
}

void tst_DeviceK7140::touchMemoryGoesToWaitingWidget_data()
{
    QTest::addColumn<int>("waiting");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("configuration") << 0 << QStringList { "cfg.receiveTM(123456789012)" };
    QTest::newRow("telemetry") << 1 << QStringList { "tmi.setToucheMemory(123456789012)" };
    QTest::newRow("2: nobody") << 2 << QStringList();
    QTest::newRow("-1: nobody") << -1 << QStringList();
}

void tst_DeviceK7140::touchMemoryGoesToWaitingWidget()
{
    QFETCH(int, waiting);
    QFETCH(QStringList, expected);
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    log.clear();
    dev->setWidgetWaitReceive(waiting);
    quint64 code = 123456789012ULL;
    dev->ZRK_ReceiveMessage(dev, 2241, addr(code), 0);
    QCOMPARE(log, expected);
}

void tst_DeviceK7140::hiddenWidgetsAreSkipped()
{
    QByteArray data("t");
    char record[16] = {};
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    dev->initWidgetTest();
    log.clear();
    // All three exist but were never shown.
    dev->ZRK_ReceiveMessage(dev, 2081, addr(data), 0);
    dev->ZRK_ReceiveMessage(dev, 2247, addr(record), 0);
    QVERIFY(log.isEmpty());

    dev->widgetTest()->show();
    dev->widgetConfig()->show();
    dev->ZRK_ReceiveMessage(dev, 2081, addr(data), 0);
    QCOMPARE(log, (QStringList { "test.receive_Device_Test(t)", "cfg.receiveDataTest(t)" }));
    log.clear();
    dev->widgetTest()->hide();
    dev->ZRK_ReceiveMessage(dev, 2081, addr(data), 0);
    QCOMPARE(log, QStringList { "cfg.receiveDataTest(t)" });
    log.clear();

    dev->ZRK_ReceiveMessage(dev, 2247, addr(record), 0);
    QCOMPARE(log, QStringList { "cfg.receiveAdValueFuel_UN" });
    log.clear();
    dev->widgetTmiView()->show();
    dev->ZRK_ReceiveMessage(dev, 2247, addr(record), 0);
    QCOMPARE(log, (QStringList { "tmi.setCurrentAnalogValue", "cfg.receiveAdValueFuel_UN" }));
    log.clear();
    dev->widgetConfig()->hide();
    dev->ZRK_ReceiveMessage(dev, 2247, addr(record), 0);
    QCOMPARE(log, QStringList { "tmi.setCurrentAnalogValue" });
}

void tst_DeviceK7140::displayValueNeedsActiveTelemetryView()
{
    quint32 value = 17;
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    log.clear();
    // The configuration window gets it even while hidden; the view only while active.
    dev->ZRK_ReceiveMessage(dev, 2265, addr(value), 0);
    QCOMPARE(log, QStringList { "cfg.receiveCurrentDispValue(17)" });
    log.clear();
    dev->widgetTmiView()->show();
    QApplication::setActiveWindow(dev->widgetTmiView());
    QVERIFY(dev->widgetTmiView()->isActiveWindow());
    dev->ZRK_ReceiveMessage(dev, 2265, addr(value), 0);
    QCOMPARE(log, (QStringList { "tmi.receiveCurrentDispValue(17)", "cfg.receiveCurrentDispValue(17)" }));
}

void tst_DeviceK7140::configWriteAndReadNeedConnection()
{
    dev->initWidgetConfig();
    dev->widgetConfig()->show();
    log.clear();
    dev->ZRK_ReceiveMessage(dev, 2381, 0, 0);
    dev->ZRK_ReceiveMessage(dev, 2382, 0, 0);
    QVERIFY(log.isEmpty());
    szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", nullptr, 5, 0, 1 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    log.clear();
    dev->ZRK_ReceiveMessage(dev, 2381, 0, 0);
    dev->ZRK_ReceiveMessage(dev, 2382, 0, 0);
    QCOMPARE(log, (QStringList { "cfg.saveConfigToDevice", "cfg.readConfigFromDevice" }));
}

void tst_DeviceK7140::focusNeedsVisibleConfig()
{
    dev->ZRK_ReceiveMessage(dev, 2373, 0, 0);
    dev->initWidgetConfig();
    log.clear();
    dev->ZRK_ReceiveMessage(dev, 2373, 0, 0);
    QVERIFY(log.isEmpty());
    dev->widgetConfig()->show();
    dev->ZRK_ReceiveMessage(dev, 2373, 0, 0);
    QCOMPARE(log, QStringList { "cfg.setWindowFocus" });
}

void tst_DeviceK7140::connectSequence_data()
{
    QTest::addColumn<quint32>("mode");
    QTest::addColumn<bool>("windowsOpen");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("no windows, mode 0") << 0u << false << QStringList { "new.test" };
    QTest::newRow("no windows, mode 5") << 5u << false << QStringList { "new.test", "test.deviceConnect" };
    QTest::newRow("windows, mode 0") << 0u << true
                                     << QStringList { "cfg.deviceConnect", "tmi.deviceConnect" };
    QTest::newRow("windows, mode 5") << 5u << true
                                     << QStringList { "cfg.deviceConnect", "tmi.deviceConnect",
                                            "test.deviceConnect" };
}

void tst_DeviceK7140::connectSequence()
{
    QFETCH(quint32, mode);
    QFETCH(bool, windowsOpen);
    QFETCH(QStringList, expected);
    dev->ZRK_ReceiveMessage(dev, 2004, addr(mode), 0);
    if (windowsOpen) {
        dev->initWidgetConfig();
        dev->initWidgetTMI();
        dev->initWidgetTest();
    }
    log.clear();
    szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", reinterpret_cast<void*>(0x1),
        0x1122334455667788ULL, 0xFFFFFFFF, 4 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    QCOMPARE(log, expected);
    QVERIFY(dev->isDeviceConnected());
    QCOMPARE(dev->getDeviceImei(), QStringLiteral("861234567890123"));
    QCOMPARE(dev->getDeviceFirmvareVer(), QStringLiteral("3.5.8"));
    QCOMPARE(dev->getDeviceBHR(), 0x1122334455667788ULL);
    QCOMPARE(dev->getConnectType(), 4u);
    QCOMPARE(dev->getConfiguratorMode(), mode);
}

void tst_DeviceK7140::connectWithOtherTypeDisconnects()
{
    szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", nullptr, 99, 0, 2 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    log.clear();
    szDeviceConnect other { "K-7150", "000000000000001", "9.9", nullptr, 1234, 0, 7 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(other), 0);
    QCOMPARE(log, (QStringList { "cfg.deviceDisconnect", "tmi.deviceDisconnect" }));
    QVERIFY(!dev->isDeviceConnected());
    QCOMPARE(dev->getDeviceImei(), QString());
    QCOMPARE(dev->getDeviceFirmvareVer(), QString());
    QCOMPARE(dev->getDeviceBHR(), 0ULL);
    QCOMPARE(dev->getConnectType(), 2u); // the connection type stays as it was
}

void tst_DeviceK7140::disconnectSequence()
{
    quint32 mode = 5;
    dev->ZRK_ReceiveMessage(dev, 2004, addr(mode), 0);
    szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", nullptr, 99, 0, 3 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    log.clear();
    dev->ZRK_ReceiveMessage(dev, 2052, 0, 0);
    QCOMPARE(log, (QStringList { "cfg.deviceDisconnect", "tmi.deviceDisconnect", "test.deviceDisconnect" }));
    QVERIFY(!dev->isDeviceConnected());
    QCOMPARE(dev->getDeviceImei(), QString());
    QCOMPARE(dev->getDeviceBHR(), 0ULL);
    QCOMPARE(dev->getConnectType(), 3u);

    // Outside the service mode the test window is left alone.
    mode = 1;
    dev->ZRK_ReceiveMessage(dev, 2004, addr(mode), 0);
    log.clear();
    dev->ZRK_ReceiveMessage(dev, 2052, 0, 0);
    QCOMPARE(log, (QStringList { "cfg.deviceDisconnect", "tmi.deviceDisconnect" }));
}

void tst_DeviceK7140::connectEmptiesConfigParam()
{
    class Filling : public RecWindows
    {
    public:
        ZRK_Widget_Config* createConfig() override
        {
            class C : public RecConfig
            {
            public:
                void openConfig(szConfigFile*, szConfigParam& p) override
                {
                    qstrncpy(p.text, "ORBA3;255", sizeof p.text);
                }
            };
            return new C;
        }
    } filling;
    dev->setWindowFactory(&filling);
    szConfigFile file {};
    file.mode = 1;
    dev->openFileConfig(&file);
    szConfigParam out;
    std::memset(&out, 0x55, sizeof out);
    dev->ZRK_ReceiveMessage(dev, 2356, addr(out), 0);
    QCOMPARE(QByteArray(out.text), QByteArray("ORBA3;255"));
    QCOMPARE(out.text[sizeof out.text - 1], '\0');

    szDeviceConnect rec { "K-7140", "1", "2", nullptr, 0, 0, 0 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    std::memset(&out, 0x55, sizeof out);
    dev->ZRK_ReceiveMessage(dev, 2356, addr(out), 0);
    QCOMPARE(QByteArray(out.text), QByteArray());

    dev->openFileConfig(&file);
    dev->ZRK_ReceiveMessage(dev, 2052, 0, 0);
    dev->getConfigParam(out);
    QCOMPARE(QByteArray(out.text), QByteArray());
    dev->setWindowFactory(&windows);
}

void tst_DeviceK7140::setTypeAndVendor()
{
    QCOMPARE(dev->getDeviceVendor(), QStringLiteral("ZIRKOMATIC"));
    QString pair[2] = { QStringLiteral("K-7141"), QStringLiteral("Vendor B") };
    dev->ZRK_ReceiveMessage(dev, 2026, addr(pair[0]), 0);
    QCOMPARE(dev->getDeviceType(), QStringLiteral("K-7141"));
    QCOMPARE(dev->getDeviceVendor(), QStringLiteral("Vendor B"));
    // A connect record now has to carry the new type.
    szDeviceConnect rec { "K-7140", "1", "2", nullptr, 0, 0, 0 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    QVERIFY(!dev->isDeviceConnected());
    rec.deviceType = QStringLiteral("K-7141");
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    QVERIFY(dev->isDeviceConnected());
}

void tst_DeviceK7140::closeByHost_data()
{
    QTest::addColumn<bool>("withConfig");
    QTest::addColumn<bool>("refuse");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("no windows") << false << false << true << QStringList();
    QTest::newRow("config closes") << true << false << true
                                   << QStringList { "cfg.closeWidgetConfig", "tmi.closeForm" };
    QTest::newRow("config refuses") << true << true << false
                                    << QStringList { "cfg.closeWidgetConfig", "tmi.closeForm" };
}

void tst_DeviceK7140::closeByHost()
{
    QFETCH(bool, withConfig);
    QFETCH(bool, refuse);
    QFETCH(bool, result);
    QFETCH(QStringList, expected);
    if (withConfig) {
        dev->initWidgetConfig();
        dev->initWidgetTMI();
        static_cast<RecConfig*>(dev->widgetConfig())->refuseClose = refuse;
    }
    log.clear();
    bool answer = true; // untouched when there is no configuration window
    dev->ZRK_ReceiveMessage(dev, 2037, addr(answer), 0);
    QCOMPARE(answer, result);
    QCOMPARE(log, expected);
}

void tst_DeviceK7140::pathsDefaultAndFromHost()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY(base.startsWith(home.path()));
    QCOMPARE(dev->getPathTMI(), base + "/Data/TMI/");
    QCOMPARE(dev->getPathXML(), base + "/Data/XML/");
    QCOMPARE(dev->getPathFirmware(), base + "/Data/Firmware/");
    QCOMPARE(dev->getPathSound(), base + "/Data/Sounds/");
    szDirPath paths { "/srv/tmi", "", "/srv/fw/", "/srv/snd" };
    dev->ZRK_ReceiveMessage(dev, 2049, addr(paths), 0);
    QCOMPARE(dev->getPathTMI(), QStringLiteral("/srv/tmi"));
    QCOMPARE(dev->getPathXML(), base + "/Data/XML/");
    QCOMPARE(dev->getPathFirmware(), QStringLiteral("/srv/fw/"));
    QCOMPARE(dev->getPathSound(), QStringLiteral("/srv/snd"));
    // A later 2049 replaces all four, empty ones included.
    szDirPath again { "", "/x", "", "" };
    dev->ZRK_ReceiveMessage(dev, 2049, addr(again), 0);
    QCOMPARE(dev->getPathTMI(), base + "/Data/TMI/");
    QCOMPARE(dev->getPathXML(), QStringLiteral("/x"));
}

void tst_DeviceK7140::openFileConfigSends2370()
{
    szConfigFile file {};
    file.mode = 1;
    file.source = 1;
    qstrncpy(file.path, "/tmp/a.xml", sizeof file.path);
    dev->ZRK_ReceiveMessage(dev, 2101, addr(file), 0);
    QCOMPARE(log, (QStringList { "new.config", "cfg.deviceDisconnect", "cfg.openConfig(1,1,/tmp/a.xml)" }));
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent[0].msg, 2370);
}

void tst_DeviceK7140::openTelemetryView()
{
    QString text("hello");
    dev->ZRK_ReceiveMessage(dev, 2102, addr(text), 0);
    dev->ZRK_ReceiveMessage(dev, 2102, addr(text), 0);
    QCOMPARE(log, (QStringList { "new.tmi", "tmi.showForm(hello,)", "tmi.showForm(hello,)" }));
}

void tst_DeviceK7140::openFileTmi_data()
{
    QTest::addColumn<quint32>("kind");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("page") << 0u << QStringList { "new.page", "page.showForm", "page.setFileTmi(/t/a.tmi)" };
    QTest::newRow("table") << 1u
                           << QStringList { "new.table", "table.showForm", "table.setFileTmi(/t/a.tmi)" };
    QTest::newRow("2") << 2u << QStringList();
    QTest::newRow("max") << 0xFFFFFFFFu << QStringList();
}

void tst_DeviceK7140::openFileTmi()
{
    QFETCH(quint32, kind);
    QFETCH(QStringList, expected);
    QString name("/t/a.tmi");
    dev->ZRK_ReceiveMessage(dev, 2103, addr(name), addr(kind));
    QCOMPARE(log, expected);
    QCOMPARE(bool(dev->widgetTmiPage()), kind == 0);
    QCOMPARE(bool(dev->widgetTmiTable()), kind == 1);
    dev->ZRK_ReceiveMessage(dev, 2103, addr(name), 0);
    QCOMPARE(log, expected);
}

void tst_DeviceK7140::initWidgetConfigFollowsConnection()
{
    dev->initWidgetConfig();
    dev->initWidgetConfig();
    QCOMPARE(log, (QStringList { "new.config", "cfg.deviceDisconnect", "cfg.deviceDisconnect" }));
    szDeviceConnect rec { "K-7140", "1", "2", nullptr, 0, 0, 0 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    log.clear();
    dev->initWidgetConfig();
    QCOMPARE(log, QStringList { "cfg.deviceConnect" });
}

void tst_DeviceK7140::showHelpOnlyForTopic()
{
    dev->showHelp(QString());
    QVERIFY(sent.isEmpty());
    dev->setDeviceType(QStringLiteral("other")); // the help model is the plug-in's own
    dev->showHelp(QStringLiteral("page_track"));
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent[0].msg, 2007);
    QCOMPARE(sent[0].w, QStringLiteral("K-7140"));
    QCOMPARE(sent[0].l, QStringLiteral("page_track"));
}

void tst_DeviceK7140::libFuncRequest()
{
    const szLibraryFunctions f = dev->getLibFuncForNameModule(QStringLiteral("complex_events"));
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent[0].msg, 2135);
    QCOMPARE(sent[0].w, QStringLiteral("complex_events"));
    QCOMPARE(sent[0].l, QStringLiteral("zeroed"));
    QCOMPARE(f.moduleName, QStringLiteral("ce_editor"));
    // Without a callback the record comes back empty.
    ZRK_Device_K7140 bare(QStringLiteral("K-7140"), 3, 5, 8, 1);
    const szLibraryFunctions g = bare.getLibFuncForNameModule(QStringLiteral("x"));
    QVERIFY(g.moduleName.isEmpty() && !g.handle && !g.receiveMessage);
    QCOMPARE(bare.SendMessage(&bare, 2001, 0, 0), 0ul);
}

void tst_DeviceK7140::translateModuleOrder()
{
    dev->initWidgetTest();
    dev->initWidgetTmiTable();
    dev->initWidgetTmiPage();
    dev->initWidgetTMI();
    dev->initWidgetConfig();
    log.clear();
    dev->ZRK_ReceiveMessage(dev, 2031, 0, 0);
    // The forms first (they are real here), then the windows in fixed order; never the test window.
    QCOMPARE(log,
        (QStringList {
            "cfg.translateForm", "tmi.translateForm", "page.translateForm", "table.translateForm" }));
}

void tst_DeviceK7140::eventBusStored()
{
    int bus = 0;
    dev->ZRK_ReceiveMessage(dev, 2346, addr(bus), 0);
    QCOMPARE(lpGlobalEventBus, static_cast<void*>(&bus));
    dev->ZRK_ReceiveMessage(dev, 2346, 0, 0);
    QCOMPARE(lpGlobalEventBus, static_cast<void*>(&bus));
    lpGlobalEventBus = nullptr;
}

void tst_DeviceK7140::testModeCreatesView()
{
    bool result = false;
    QByteArray data("test");
    dev->ZRK_ReceiveMessage(dev, 2005, addr(result), addr(data));
    QVERIFY(result);
    data = "no";
    dev->ZRK_ReceiveMessage(dev, 2005, addr(result), addr(data));
    QVERIFY(!result);
    QCOMPARE(log, (QStringList { "new.tmi", "tmi.isTestMode(test)", "tmi.isTestMode(no)" }));
}

void tst_DeviceK7140::waitFormForwarding()
{
    ZRK_Form_IO_Progress* form = dev->formProgress();
    QVERIFY(form);
    QVERIFY(!form->title().isEmpty());
    const QString defaultTitle = form->title();
    dev->formWait_Set_Title(QStringLiteral("Чтение файла"));
    dev->formWait_Set_Progress_MinMax(10, 500);
    dev->formWait_Set_Progress_Value(250);
    dev->formWait_Set_Text(QStringLiteral("config.xml"));
    dev->formWait_Set_Text_Cur(QStringLiteral("250"));
    dev->formWait_Set_Text_All(QStringLiteral("500"));
    dev->formWait_Set_Time(QStringLiteral("00:01:05"));
    dev->formWait_Visible_TextValue(false);
    dev->formWait_Visible_Time(false);
    dev->formWait_Visible_BtnTime(false);
    QCOMPARE(form->title(), QStringLiteral("Чтение файла"));
    QCOMPARE(form->progressMin(), 10);
    QCOMPARE(form->progressMax(), 500);
    QCOMPARE(form->progressValue(), 250);
    QCOMPARE(form->textFileLeft(), QStringLiteral("config.xml"));
    QCOMPARE(form->textValueCur(), QStringLiteral("250"));
    QCOMPARE(form->textValueAll(), QStringLiteral("500"));
    QCOMPARE(form->textTime(), QStringLiteral("00:01:05"));
    QVERIFY(!form->isTextValueVisible() && !form->isTextTimeVisible() && !form->isBtnTextTimeVisible());
    dev->formWait_Visible_Time(true);
    QVERIFY(!form->isTextValueVisible() && form->isTextTimeVisible() && !form->isBtnTextTimeVisible());
    dev->formWait_Visible_BtnTime(true);
    dev->formWait_Visible_TextValue(true);
    QVERIFY(form->isTextValueVisible() && form->isTextTimeVisible() && form->isBtnTextTimeVisible());

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

void tst_DeviceK7140::waitFormBeforeInitialize()
{
    ZRK_Device_K7140 bare(QStringLiteral("K-7140"), 3, 5, 8, 1);
    QVERIFY(!bare.formProgress() && !bare.formAbout());
    bare.formWait_Show();
    bare.formWait_Set_Progress_MinMax(1, 2);
    bare.formWait_Set_Title(QStringLiteral("x"));
    bare.showFormParamInfo(QStringLiteral("t"), QStringLiteral("x"));
    bare.translateModule();
    QVERIFY(!bare.formProgress() && !bare.formAbout());
}

void tst_DeviceK7140::aboutForm()
{
    ZRK_Form_Param_About* about = dev->formAbout();
    QVERIFY(about);
    QVERIFY(!about->isVisible());
    dev->showFormParamInfo(QStringLiteral("Параметр"), QStringLiteral("Описание параметра"));
    QVERIFY(about->isVisible());
    QCOMPARE(about->paramInfoTitle(), QStringLiteral("Параметр"));
    QCOMPARE(about->paramInfoText(), QStringLiteral("Описание параметра"));
    QVERIFY(!about->windowTitle().isEmpty());
    QVERIFY(!about->windowTitle().contains(QLatin1String("abou_")));
}

void tst_DeviceK7140::defaultFactoryMakesRealWindows()
{
    dev->setWindowFactory(nullptr);
    dev->initWidgetConfig();
    dev->initWidgetTMI();
    dev->initWidgetTmiPage();
    dev->initWidgetTmiTable();
    dev->initWidgetTest();
    QCOMPARE(dev->widgetConfig()->metaObject()->className(), "ZRK_Widget_Config");
    QVERIFY(!dynamic_cast<RecConfig*>(dev->widgetConfig()));
    QCOMPARE(dev->widgetTmiView()->metaObject()->className(), "ZRK_Widget_Tmi_View");
    QCOMPARE(dev->widgetTmiPage()->metaObject()->className(), "ZRK_Widget_Tmi_Page");
    QCOMPARE(dev->widgetTmiTable()->metaObject()->className(), "ZRK_Widget_Tmi_Table");
    QCOMPARE(dev->widgetTest()->metaObject()->className(), "ZRK_Widget_Test");
    // Top-level windows, titled from the catalogue.
    for (QWidget* w : std::initializer_list<QWidget*> { dev->widgetConfig(), dev->widgetTmiView(),
             dev->widgetTmiPage(), dev->widgetTmiTable(), dev->widgetTest() }) {
        QVERIFY(w->isWindow());
        QVERIFY(!w->parent());
        QVERIFY(!w->windowTitle().isEmpty());
        QVERIFY2(!w->windowTitle().contains(QLatin1Char('_')), qPrintable(w->windowTitle()));
    }
    // The real windows follow the connection too.
    szDeviceConnect rec { "K-7140", "1", "2", nullptr, 0, 0, 0 };
    dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
    QVERIFY(dev->widgetConfig()->isDeviceConnected());
    QVERIFY(dev->widgetTmiView()->isDeviceConnected());
    dev->setWindowFactory(&windows);
}

QTEST_MAIN(tst_DeviceK7140)
#include "tst_device_k7140.moc"
