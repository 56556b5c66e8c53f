#include "device/zrk_device_k7140.h"

#include "config_model/app_settings.h"
#include "config_ui/zrk_widget_config.h"
#include "device/zrk_form_io_progress.h"
#include "device/zrk_form_param_about.h"
#include "service/zrk_widget_test.h"
#include "telemetry/zrk_widget_tmi_file.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QApplication>
#include <QByteArray>
#include <QDate>
#include <QLocale>

#include <algorithm>
#include <cstring>

quint32 ZRK_VERSION_FIRMWARE = 1;
ZRK_Device_K7140* lpGlobalDevice = nullptr;
void* lpGlobalEventBus = nullptr;

namespace {

const char kDisplayName[] = "Torvin K-7140";
const char kDefaultVendor[] = "ZIRKOMATIC";
// The model text the host's help is keyed by.
const char kHelpModel[] = "K-7140";
const quint32 kProtocolNumber = 196;
const char kLibraryVersion[] = "012";

// Copies text into a fixed buffer: at most size - 1 bytes, always NUL-terminated, rest zeroed.
void copyText(char* buffer, std::size_t size, const QByteArray& text)
{
    std::memset(buffer, 0, size);
    std::memcpy(buffer, text.constData(), std::min<std::size_t>(size - 1, std::size_t(text.size())));
}

ZRK_Device_Windows& defaultWindows()
{
    static ZRK_Device_Windows windows;
    return windows;
}

} // namespace

// ---- window factory ------------------------------------------------------------------------------

ZRK_Device_Windows::~ZRK_Device_Windows() = default;

ZRK_Widget_Config* ZRK_Device_Windows::createConfig()
{
    return new ZRK_Widget_Config();
}

ZRK_Widget_Tmi_View* ZRK_Device_Windows::createTmiView()
{
    return new ZRK_Widget_Tmi_View();
}

ZRK_Widget_Tmi_Page* ZRK_Device_Windows::createTmiPage()
{
    return new ZRK_Widget_Tmi_Page();
}

ZRK_Widget_Tmi_Table* ZRK_Device_Windows::createTmiTable()
{
    return new ZRK_Widget_Tmi_Table();
}

ZRK_Widget_Test* ZRK_Device_Windows::createTest()
{
    return new ZRK_Widget_Test();
}

// ---- the host message table ----------------------------------------------------------------------

// One row per host message id that does something. A row gets the words as they came; it reads
// them through these helpers, which give null for a zero word, and does nothing when an address it
// needs is missing.
struct ZRK_Device_Routes
{
    using Handler = void (*)(ZRK_Device_K7140& d, unsigned long w, unsigned long l);
    struct Route
    {
        int msg;
        Handler handle;
    };

    template <typename T> static T* at(unsigned long word) { return reinterpret_cast<T*>(word); }

    template <typename T> static void write(unsigned long word, T value)
    {
        if (T* p = at<T>(word))
            *p = value;
    }

    static ZRK_Widget_Config* config(ZRK_Device_K7140& d) { return d.m_widgetConfig; }
    static ZRK_Widget_Tmi_View* tmi(ZRK_Device_K7140& d) { return d.m_widgetTmiView; }

    // Config-window rows that forward one record address.
    template <typename T, void (ZRK_Widget_Config::*op)(T*)>
    static void toConfig(ZRK_Device_K7140& d, unsigned long w, unsigned long)
    {
        if (ZRK_Widget_Config* c = config(d); c && at<T>(w))
            (c->*op)(at<T>(w));
    }
    // Config-window rows that forward the value behind one address.
    template <typename T, void (ZRK_Widget_Config::*op)(T)>
    static void toConfigValue(ZRK_Device_K7140& d, unsigned long w, unsigned long)
    {
        if (ZRK_Widget_Config* c = config(d); c && at<T>(w))
            (c->*op)(*at<T>(w));
    }
    template <void (ZRK_Widget_Config::*op)(const QString&)>
    static void toConfigText(ZRK_Device_K7140& d, unsigned long w, unsigned long)
    {
        if (ZRK_Widget_Config* c = config(d); c && at<QString>(w))
            (c->*op)(*at<QString>(w));
    }
    template <typename T, void (ZRK_Widget_Tmi_View::*op)(T*)>
    static void toTmi(ZRK_Device_K7140& d, unsigned long w, unsigned long)
    {
        if (ZRK_Widget_Tmi_View* t = tmi(d); t && at<T>(w))
            (t->*op)(at<T>(w));
    }
    template <typename T, void (ZRK_Widget_Tmi_View::*op)(T)>
    static void toTmiValue(ZRK_Device_K7140& d, unsigned long w, unsigned long)
    {
        if (ZRK_Widget_Tmi_View* t = tmi(d); t && at<T>(w))
            (t->*op)(*at<T>(w));
    }

    static const Route kRoutes[];
    static const std::size_t kRouteCount;
};

using R = ZRK_Device_Routes;
using Cfg = ZRK_Widget_Config;
using Tmi = ZRK_Widget_Tmi_View;

const ZRK_Device_Routes::Route ZRK_Device_Routes::kRoutes[] = {
    { ZRK_MSG_LIBRARY_ALIVE_QUERY,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) { R::write<quint32>(w, 1); } },
    { ZRK_MSG_FIRMWARE_VERSION_QUERY,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) {
            R::write<quint32>(w, ZRK_VERSION_FIRMWARE);
        } },
    { ZRK_MSG_PROTOCOL_NUMBER_QUERY,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) { R::write<quint32>(w, kProtocolNumber); } },
    { ZRK_MSG_SET_CONFIGURATOR_MODE,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (const quint32* mode = R::at<quint32>(w))
                d.m_configuratorMode = *mode;
        } },
    { ZRK_MSG_TMI_TEST_MODE_QUERY,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            bool* result = R::at<bool>(w);
            QByteArray* data = R::at<QByteArray>(l);
            if (!result || !data)
                return;
            d.initWidgetTMI();
            *result = d.m_widgetTmiView->isTestMode(data);
        } },
    { ZRK_MSG_LIBRARY_VERSION_QUERY,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) {
            R::write<QString>(w, QString::fromLatin1(kLibraryVersion));
        } },
    { ZRK_MSG_CAPABILITY_QUERY_2010,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) { R::write<quint32>(w, 1); } },
    { ZRK_MSG_SET_DEVICE_TYPE_VENDOR,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (const QString* pair = R::at<QString>(w)) {
                d.setDeviceType(pair[0]);
                d.setDeviceVendor(pair[1]);
            }
        } },
    { ZRK_MSG_LANGUAGE_CHANGED,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            zrk::installCatalogue(programLanguage());
            d.translateModule();
        } },
    { ZRK_MSG_HOST_CLOSES_PLUGIN,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            // Without a place for the answer the host still closes: both windows are asked.
            bool* result = R::at<bool>(w);
            if (ZRK_Widget_Config* c = R::config(d)) {
                const bool closed = c->closeWidgetConfig();
                if (result)
                    *result = closed;
            }
            if (ZRK_Widget_Tmi_View* t = R::tmi(d))
                t->closeForm();
        } },
    { ZRK_MSG_CLOSE_TELEMETRY,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            if (ZRK_Widget_Tmi_View* t = R::tmi(d))
                t->closeForm();
        } },
    { ZRK_MSG_SET_DIRECTORY_PATHS,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (const szDirPath* paths = R::at<szDirPath>(w))
                d.setDirPaths(*paths);
        } },
    { ZRK_MSG_DEVICE_CONNECTED,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (const szDeviceConnect* record = R::at<szDeviceConnect>(w))
                d.deviceConnected(*record);
        } },
    { ZRK_MSG_DEVICE_DISCONNECTED,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) { d.deviceDisconnected(); } },
    { ZRK_MSG_REMOTE_SESSION_ENDED,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            if (ZRK_Widget_Tmi_View* t = R::tmi(d))
                t->deviceDisconnectRCS();
        } },
    { ZRK_MSG_TEST_DATA,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            QByteArray* data = R::at<QByteArray>(w);
            if (!data)
                return;
            if (d.m_widgetTest && !d.m_widgetTest->isHidden())
                d.m_widgetTest->receive_Device_Test(data);
            if (ZRK_Widget_Config* c = R::config(d); c && !c->isHidden())
                c->receiveDataTest(data);
        } },
    { ZRK_MSG_FLS_USER_COMMAND_REPLY, &R::toTmi<QByteArray, &Tmi::setReceiveFls_UserCommand> },
    { ZRK_MSG_OPEN_CONFIGURATION,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (szConfigFile* file = R::at<szConfigFile>(w))
                d.openFileConfig(file);
        } },
    { ZRK_MSG_OPEN_TELEMETRY_VIEW,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            const QString* text = R::at<QString>(w);
            if (!text)
                return;
            d.initWidgetTMI();
            d.m_widgetTmiView->showForm(*text, d.m_configParam);
        } },
    { ZRK_MSG_OPEN_TELEMETRY_FILE,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            const QString* name = R::at<QString>(w);
            const quint32* kind = R::at<quint32>(l);
            if (name && kind)
                d.openFileTMI(*name, static_cast<zrk_type_ViewFileTmi>(*kind));
        } },
    { ZRK_MSG_DTP_TEST_RESULT, &R::toConfig<szDtpKRAI, &Cfg::receiveDtpTest> },
    { ZRK_MSG_DTP_PROTECTION_STATE, &R::toConfigValue<quint8, &Cfg::receiveDtpProtection> },
    { ZRK_MSG_DTP_FILE_READ_RESULT, &R::toConfigValue<bool, &Cfg::receiveDtpFileRead_V3> },
    { ZRK_MSG_FLS_FIRMWARE_PARAMS, &R::toTmi<QByteArray, &Tmi::getParamFLSFirmwareSensor> },
    { ZRK_MSG_TOUCH_MEMORY_CODE,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            const quint64* code = R::at<quint64>(w);
            if (!code)
                return;
            // The widget that asked for the key last gets it; nobody else.
            if (d.m_waitReceive == ZRK_WAIT_CONFIG) {
                if (ZRK_Widget_Config* c = R::config(d))
                    c->receiveTM(*code);
            } else if (d.m_waitReceive == ZRK_WAIT_TMI_VIEW) {
                if (ZRK_Widget_Tmi_View* t = R::tmi(d))
                    t->setToucheMemory(*code);
            }
        } },
    { ZRK_MSG_ANALOG_VALUES, &R::toConfig<szAnalogValue, &Cfg::receiveAnalogValue> },
    { ZRK_MSG_FLS_AD_VALUE, &R::toConfig<szADValue, &Cfg::receiveAdValueFuel> },
    { ZRK_MSG_AD_VALUES_UN,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            szADValue_UN* value = R::at<szADValue_UN>(w);
            if (!value)
                return;
            if (ZRK_Widget_Tmi_View* t = R::tmi(d); t && !t->isHidden())
                t->setCurrentAnalogValue(value);
            if (ZRK_Widget_Config* c = R::config(d); c && !c->isHidden())
                c->receiveAdValueFuel_UN(value);
        } },
    { ZRK_MSG_ACCEL_PARAMS, &R::toConfig<szAccelParam, &Cfg::receiveAccelParam> },
    { ZRK_MSG_ACCEL_BRAKE_CALIBRATION,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            const quint8* step = R::at<quint8>(w);
            const quint8* result = R::at<quint8>(l);
            if (ZRK_Widget_Config* c = R::config(d); c && step && result)
                c->receiveAccelBrake(*step, *result);
        } },
    { ZRK_MSG_ACCEL_RESET_RESULT, &R::toConfig<szAccelReset, &Cfg::receiveAccelReset> },
    { ZRK_MSG_ACCEL_AXIS_CALIBRATION, &R::toConfig<szCmdAccelParam, &Cfg::receiveAccelAclC> },
    { ZRK_MSG_BLUETOOTH_SEARCH_CANCELLED, &R::toConfigValue<quint8, &Cfg::receiveBluetoothCancelRez> },
    { ZRK_MSG_BLUETOOTH_SEARCH_RESULT, &R::toConfigValue<quint8, &Cfg::receiveBluetoothRez> },
    { ZRK_MSG_BLUETOOTH_DEVICE_FOUND, &R::toConfig<szBluetoothDevice, &Cfg::receiveBluetoothDevice> },
    { ZRK_MSG_CURRENT_DISPLAY_VALUE,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            const quint32* value = R::at<quint32>(w);
            if (!value)
                return;
            if (ZRK_Widget_Tmi_View* t = R::tmi(d); t && t->isActiveWindow())
                t->receiveCurrentDispValue(*value);
            if (ZRK_Widget_Config* c = R::config(d))
                c->receiveCurrentDispValue(*value);
        } },
    { ZRK_MSG_RFID_CARD,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            const quint64* code = R::at<quint64>(w);
            const quint8* value = R::at<quint8>(l);
            if (ZRK_Widget_Tmi_View* t = R::tmi(d); t && code && value)
                t->setRFID(*code, *value);
        } },
    { ZRK_MSG_CANLOG_CURRENT_NUMBER, &R::toConfigValue<qint32, &Cfg::receive_CanlogCurNum> },
    { ZRK_MSG_CAPABILITY_QUERY_2272,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) { R::write<quint32>(w, 2); } },
    { ZRK_MSG_TM_FILE_INFO_V3,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            const quint32* size = R::at<quint32>(w);
            const quint8* type = R::at<quint8>(l);
            if (ZRK_Widget_Config* c = R::config(d); c && size && type)
                c->receive_TM_File_Info_V3(*size, *type);
        } },
    { ZRK_MSG_TM_FILE_READ_V3,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            const bool* ok = R::at<bool>(w);
            const QString* file = R::at<QString>(l);
            if (ZRK_Widget_Config* c = R::config(d); c && ok && file)
                c->receive_TM_ReadFile_V3(*ok, *file);
        } },
    { ZRK_MSG_TM_FILE_WRITTEN_V3, &R::toConfigValue<bool, &Cfg::receive_TM_WriteFile_V3> },
    { ZRK_MSG_TMI_CURRENT, &R::toTmi<QByteArray, &Tmi::setTmiCur> },
    { ZRK_MSG_TMI_BY_NUMBER, &R::toTmi<QByteArray, &Tmi::setTmiCurNumber> },
    { ZRK_MSG_TMI_STEP_LEFT, &R::toTmi<QByteArray, &Tmi::setTmiCurLeft> },
    { ZRK_MSG_TMI_STEP_RIGHT, &R::toTmi<QByteArray, &Tmi::setTmiCurRight> },
    { ZRK_MSG_TMI_EXTENDED, &R::toTmi<QByteArray, &Tmi::setTmiCurExt> },
    { ZRK_MSG_NMEA_DATA, &R::toTmi<QByteArray, &Tmi::setReceive_NMEA> },
    { ZRK_MSG_COMMAND_PARAM_VALUE, &R::toTmi<QByteArray, &Tmi::setTmiCmndParamValue> },
    { ZRK_MSG_COMMAND_REPLY, &R::toTmi<QByteArray, &Tmi::setTmiCmnd> },
    { ZRK_MSG_CURRENT_CAN_FILE,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long l) {
            QByteArray* data = R::at<QByteArray>(w);
            const QString* name = R::at<QString>(l);
            if (ZRK_Widget_Config* c = R::config(d); c && data && name)
                c->receive_CurCanFile(data, *name);
        } },
    { ZRK_MSG_EVENT_BUS,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) {
            if (void* bus = R::at<void>(w))
                lpGlobalEventBus = bus;
        } },
    { ZRK_MSG_TACHO_QUERY_REPLY, &R::toTmi<QByteArray, &Tmi::setReceiveTahoQuest> },
    { ZRK_MSG_TACHO_FILE_REPLY, &R::toTmi<QByteArray, &Tmi::setReceiveTahoQuest> },
    { ZRK_MSG_TACHO_FILE_READ, &R::toTmiValue<bool, &Tmi::setReceiveTahoFile_Read> },
    { ZRK_MSG_CONFIG_PARAM_QUERY,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (szConfigParam* param = R::at<szConfigParam>(w))
                d.getConfigParam(*param);
        } },
    { ZRK_MSG_CE_PROGRAM_INFO, &R::toConfig<QByteArray, &Cfg::setCE_ProgramInfo> },
    { ZRK_MSG_FOCUS_CONFIGURATION,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            if (ZRK_Widget_Config* c = R::config(d); c && c->isVisible())
                c->setWindowFocus();
        } },
    { ZRK_MSG_CE_EDITOR_CLOSED,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            if (ZRK_Widget_Config* c = R::config(d))
                c->setWindowCEClosed();
        } },
    { ZRK_MSG_WRITE_CONFIG_TO_DEVICE,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            if (ZRK_Widget_Config* c = R::config(d); c && d.m_connected)
                c->saveConfigToDevice();
        } },
    { ZRK_MSG_READ_CONFIG_FROM_DEVICE,
        [](ZRK_Device_K7140& d, unsigned long, unsigned long) {
            if (ZRK_Widget_Config* c = R::config(d); c && d.m_connected)
                c->readConfigFromDevice();
        } },
    { ZRK_MSG_OPEN_CONFIG_PAGE, &R::toConfigValue<quint32, &Cfg::openConfigPage> },
    { ZRK_MSG_CONFIG_FILE_NAME_QUERY,
        [](ZRK_Device_K7140& d, unsigned long w, unsigned long) {
            if (ZRK_Widget_Config* c = R::config(d); c && R::at<QString>(w))
                c->getFileConfigure(*R::at<QString>(w));
        } },
    { ZRK_MSG_ADD_USER_PARAM, &R::toConfigText<&Cfg::addUserParamCE> },
    { ZRK_MSG_ADD_USER_PARAM_LIST, &R::toConfigText<&Cfg::addUserParamListCE> },
    { ZRK_MSG_DELETE_USER_PARAM, &R::toConfigText<&Cfg::delUserParamCE> },
    { ZRK_MSG_DELETE_USER_PARAM_LIST, &R::toConfigText<&Cfg::delUserParamListCE> },
    { ZRK_MSG_CAPABILITY_QUERY_2399,
        [](ZRK_Device_K7140&, unsigned long w, unsigned long) { R::write<quint32>(w, 1); } },
    { ZRK_MSG_SD_FILE_DATA, &R::toConfig<QByteArray, &Cfg::receive_SD_File> },
    { ZRK_MSG_CAMERA_INFO, &R::toConfig<QByteArray, &Cfg::receive_Camera_Info> },
    { ZRK_MSG_PHOTO_INFO_SD, &R::toConfig<QByteArray, &Cfg::receive_PhotoInfo_SD_File> },
    { ZRK_MSG_FLS_DATA_FILE_REPLY, &R::toTmi<QByteArray, &Tmi::setReceiveFlsDataFile_Quest> },
    { ZRK_MSG_FLS_DATA_FILE_READ, &R::toTmiValue<bool, &Tmi::setReceiveFlsDataFile_Read> },
};
const std::size_t ZRK_Device_Routes::kRouteCount = sizeof(kRoutes) / sizeof(kRoutes[0]);

namespace {
const ZRK_Device_Routes::Route* findRoute(int msg)
{
    const auto* end = ZRK_Device_Routes::kRoutes + ZRK_Device_Routes::kRouteCount;
    const auto* it
        = std::find_if(ZRK_Device_Routes::kRoutes, end, [msg](const auto& r) { return r.msg == msg; });
    return it == end ? nullptr : it;
}
} // namespace

// ---- the device object ---------------------------------------------------------------------------

ZRK_Device_K7140::ZRK_Device_K7140(const QString& type, int a, int b, int c, int d, QObject* parent)
    : QObject(parent)
    , m_deviceType(type)
    , m_deviceVendor(QString::fromLatin1(kDefaultVendor))
    , m_windows(&defaultWindows())
{
    std::memset(&m_libraryInfo, 0, sizeof m_libraryInfo);
    m_libraryInfo.handle = this;
    copyText(m_libraryInfo.deviceType, sizeof m_libraryInfo.deviceType, type.toUtf8());
    copyText(m_libraryInfo.displayName, sizeof m_libraryInfo.displayName,
        QString::fromLatin1(kDisplayName).toLocal8Bit());
    m_libraryInfo.hostValues[0] = a;
    m_libraryInfo.hostValues[1] = b;
    m_libraryInfo.hostValues[2] = c;
    m_libraryInfo.hostValues[3] = d;
    m_libraryInfo.reserved = 0;
    m_libraryInfo.firmwareVersion = ZRK_VERSION_FIRMWARE;
    std::memset(&m_configParam, 0, sizeof m_configParam);
}

ZRK_Device_K7140::~ZRK_Device_K7140()
{
    // The windows live as long as the library. When the library goes away under a running
    // application they must go with it, since their code does; after the application has ended
    // there is nothing left to delete them safely with.
    if (qApp) {
        delete m_widgetConfig.data();
        delete m_widgetTmiView.data();
        delete m_widgetTmiPage.data();
        delete m_widgetTmiTable.data();
        delete m_widgetTest.data();
        delete m_formProgress.data();
        delete m_formAbout.data();
    }
    if (lpGlobalDevice == this)
        lpGlobalDevice = nullptr;
}

void ZRK_Device_K7140::getModuleInfo(szLibraryInfo* info) const
{
    if (info)
        std::memcpy(info, &m_libraryInfo, sizeof m_libraryInfo);
}

void ZRK_Device_K7140::InitConfigurator(ZRK_SendMessageFn send)
{
    m_send = send;
    lpGlobalDevice = this;
    if (!m_formAbout)
        m_formAbout = new ZRK_Form_Param_About();
    if (!m_formProgress)
        m_formProgress = new ZRK_Form_IO_Progress();
    showAboutText();
}

// The compiler's date of this build ("Nov  2 2026"), as a date.
static QDate buildDate()
{
    return QLocale::c().toDate(QString::fromLatin1(__DATE__).simplified(), QStringLiteral("MMM d yyyy"));
}

void ZRK_Device_K7140::showAboutText()
{
    if (!m_formAbout)
        return;
    m_formAbout->setParamInfo_Title(QString::fromLatin1(kDisplayName));
    //% "Модуль терминала %1\nВерсия %2.%3.%4, сборка %5\nВерсия библиотеки %6\nСобран %7"
    m_formAbout->setParamInfo_Text(qtTrId("abou_003")
                                       .arg(m_deviceType)
                                       .arg(m_libraryInfo.hostValues[0])
                                       .arg(m_libraryInfo.hostValues[1])
                                       .arg(m_libraryInfo.hostValues[2])
                                       .arg(m_libraryInfo.hostValues[3])
                                       .arg(QString::fromLatin1(kLibraryVersion))
                                       .arg(buildDate().toString(QStringLiteral("dd.MM.yyyy"))));
}

unsigned long ZRK_Device_K7140::SendMessage(void* handle, int msg, unsigned long w, unsigned long l)
{
    return m_send ? m_send(handle, msg, w, l) : 0;
}

void ZRK_Device_K7140::ZRK_ReceiveMessage(void* handle, int msg, unsigned long wParam, unsigned long lParam)
{
    if (handle != this || msg < ZRK_MSG_FIRST || msg > ZRK_MSG_LAST)
        return;
    if (const ZRK_Device_Routes::Route* route = findRoute(msg))
        route->handle(*this, wParam, lParam);
}

bool ZRK_Device_K7140::isRoutedMessage(int msg)
{
    return findRoute(msg) != nullptr;
}

void ZRK_Device_K7140::getConfigParam(szConfigParam& param) const
{
    std::memcpy(&param, &m_configParam, sizeof param);
    param.text[sizeof param.text - 1] = '\0';
}

void ZRK_Device_K7140::setDirPaths(const szDirPath& paths)
{
    m_paths = paths;
}

// ---- connection ----------------------------------------------------------------------------------

void ZRK_Device_K7140::deviceConnected(const szDeviceConnect& record)
{
    if (record.deviceType != m_deviceType) {
        deviceDisconnected();
        return;
    }
    m_imei = record.imei;
    m_firmwareVersion = record.firmwareVersion;
    m_bhr = record.bhr;
    m_connectType = record.connectType;
    m_connected = true;
    std::memset(&m_configParam, 0, sizeof m_configParam);
    if (m_widgetConfig)
        m_widgetConfig->deviceConnect();
    if (m_widgetTmiView)
        m_widgetTmiView->deviceConnect();
    if (!m_widgetTest)
        initWidgetTest();
    if (m_configuratorMode == ZRK_CONFIGURATOR_MODE_SERVICE && m_widgetTest)
        m_widgetTest->deviceConnect();
}

void ZRK_Device_K7140::deviceDisconnected()
{
    m_imei = QString();
    m_firmwareVersion = QString();
    m_connected = false;
    m_bhr = 0;
    std::memset(&m_configParam, 0, sizeof m_configParam);
    if (m_widgetConfig)
        m_widgetConfig->deviceDisconnect();
    if (m_widgetTmiView)
        m_widgetTmiView->deviceDisconnect();
    if (m_configuratorMode == ZRK_CONFIGURATOR_MODE_SERVICE && m_widgetTest)
        m_widgetTest->deviceDisconnect();
}

// ---- paths ---------------------------------------------------------------------------------------

namespace {
QString pathOr(const QString& hostPath, const char* suffix)
{
    return hostPath.isEmpty() ? appDataDirectory() + QLatin1String(suffix) : hostPath;
}
} // namespace

QString ZRK_Device_K7140::getPathTMI() const
{
    return pathOr(m_paths.pathTMI, "/Data/TMI/");
}

QString ZRK_Device_K7140::getPathXML() const
{
    return pathOr(m_paths.pathXML, "/Data/XML/");
}

QString ZRK_Device_K7140::getPathFirmware() const
{
    return pathOr(m_paths.pathFirmware, "/Data/Firmware/");
}

QString ZRK_Device_K7140::getPathSound() const
{
    return pathOr(m_paths.pathSound, "/Data/Sounds/");
}

// ---- windows -------------------------------------------------------------------------------------

ZRK_Widget_Config* ZRK_Device_K7140::widgetConfig() const
{
    return m_widgetConfig;
}

const zrk::ConfigSession* ZRK_Device_K7140::configSession() const
{
    return m_widgetConfig ? &m_widgetConfig->session() : nullptr;
}

ZRK_Widget_Tmi_View* ZRK_Device_K7140::widgetTmiView() const
{
    return m_widgetTmiView;
}

ZRK_Widget_Tmi_Page* ZRK_Device_K7140::widgetTmiPage() const
{
    return m_widgetTmiPage;
}

ZRK_Widget_Tmi_Table* ZRK_Device_K7140::widgetTmiTable() const
{
    return m_widgetTmiTable;
}

ZRK_Widget_Test* ZRK_Device_K7140::widgetTest() const
{
    return m_widgetTest;
}

ZRK_Form_IO_Progress* ZRK_Device_K7140::formProgress() const
{
    return m_formProgress;
}

ZRK_Form_Param_About* ZRK_Device_K7140::formAbout() const
{
    return m_formAbout;
}

void ZRK_Device_K7140::setWindowFactory(ZRK_Device_Windows* factory)
{
    m_windows = factory ? factory : &defaultWindows();
}

void ZRK_Device_K7140::initWidgetConfig()
{
    if (!m_widgetConfig)
        m_widgetConfig = m_windows->createConfig();
    if (m_connected)
        m_widgetConfig->deviceConnect();
    else
        m_widgetConfig->deviceDisconnect();
}

void ZRK_Device_K7140::initWidgetTMI()
{
    if (!m_widgetTmiView)
        m_widgetTmiView = m_windows->createTmiView();
}

void ZRK_Device_K7140::initWidgetTmiPage()
{
    if (!m_widgetTmiPage)
        m_widgetTmiPage = m_windows->createTmiPage();
}

void ZRK_Device_K7140::initWidgetTmiTable()
{
    if (!m_widgetTmiTable)
        m_widgetTmiTable = m_windows->createTmiTable();
}

void ZRK_Device_K7140::initWidgetTest()
{
    if (!m_widgetTest)
        m_widgetTest = m_windows->createTest();
}

void ZRK_Device_K7140::openFileConfig(szConfigFile* file)
{
    if (!file)
        return;
    initWidgetConfig();
    m_widgetConfig->openConfig(file, m_configParam);
    SendMessage(this, ZRK_MSG_CONFIG_WINDOW_OPENED, 0, 0);
}

void ZRK_Device_K7140::openFileTMI(const QString& name, zrk_type_ViewFileTmi kind)
{
    switch (kind) {
    case zrk_type_ViewFileTmi::Page:
        initWidgetTmiPage();
        m_widgetTmiPage->showForm();
        m_widgetTmiPage->setFileTmi(name);
        break;
    case zrk_type_ViewFileTmi::Table:
        initWidgetTmiTable();
        m_widgetTmiTable->showForm();
        m_widgetTmiTable->setFileTmi(name);
        break;
    }
}

void ZRK_Device_K7140::showFormParamInfo(const QString& title, const QString& text)
{
    if (!m_formAbout)
        return;
    m_formAbout->setParamInfo_Title(title);
    m_formAbout->setParamInfo_Text(text);
    m_formAbout->show();
    m_formAbout->raise();
}

void ZRK_Device_K7140::showHelp(const QString& topic)
{
    if (topic.isEmpty())
        return;
    QString model = QString::fromLatin1(kHelpModel);
    QString topicCopy = topic;
    SendMessage(this, ZRK_MSG_SHOW_HELP, reinterpret_cast<unsigned long>(&model),
        reinterpret_cast<unsigned long>(&topicCopy));
}

void ZRK_Device_K7140::translateModule()
{
    if (m_formProgress)
        m_formProgress->translateForm();
    if (m_formAbout) {
        m_formAbout->translateForm();
        showAboutText();
    }
    if (m_widgetConfig)
        m_widgetConfig->translateForm();
    if (m_widgetTmiView)
        m_widgetTmiView->translateForm();
    if (m_widgetTmiPage)
        m_widgetTmiPage->translateForm();
    if (m_widgetTmiTable)
        m_widgetTmiTable->translateForm();
}

szLibraryFunctions ZRK_Device_K7140::getLibFuncForNameModule(const QString& name)
{
    szLibraryFunctions functions { QString(), QString(), QString(), nullptr, nullptr };
    QString moduleName = name;
    SendMessage(this, ZRK_MSG_LOOKUP_MODULE_FUNCTIONS, reinterpret_cast<unsigned long>(&moduleName),
        reinterpret_cast<unsigned long>(&functions));
    return functions;
}

// ---- the wait form: each call forwards to the progress form once Initialize has made it ----------

void ZRK_Device_K7140::formWait_Show()
{
    if (m_formProgress)
        m_formProgress->showForm();
}

void ZRK_Device_K7140::formWait_Close()
{
    if (m_formProgress)
        m_formProgress->closeForm();
}

void ZRK_Device_K7140::formWait_Clear()
{
    if (m_formProgress)
        m_formProgress->clearForm();
}

void ZRK_Device_K7140::formWait_Visible_TextValue(bool visible)
{
    if (m_formProgress)
        m_formProgress->setTextValue_Visible(visible);
}

void ZRK_Device_K7140::formWait_Visible_Time(bool visible)
{
    if (m_formProgress)
        m_formProgress->setTextTime_Visible(visible);
}

void ZRK_Device_K7140::formWait_Visible_BtnTime(bool visible)
{
    if (m_formProgress)
        m_formProgress->setBtnTextTime_Visible(visible);
}

void ZRK_Device_K7140::formWait_Set_Title(const QString& title)
{
    if (m_formProgress)
        m_formProgress->setText_Title(title);
}

void ZRK_Device_K7140::formWait_Set_Progress_MinMax(int min, int max)
{
    if (!m_formProgress)
        return;
    m_formProgress->setProgress_Min(min);
    m_formProgress->setProgress_Max(max);
}

void ZRK_Device_K7140::formWait_Set_Progress_Value(int value)
{
    if (m_formProgress)
        m_formProgress->setProgress_Value(value);
}

void ZRK_Device_K7140::formWait_Set_Text(const QString& text)
{
    if (m_formProgress)
        m_formProgress->setText_FileLeft(text);
}

void ZRK_Device_K7140::formWait_Set_Text_Cur(const QString& text)
{
    if (m_formProgress)
        m_formProgress->setText_Value_Cur(text);
}

void ZRK_Device_K7140::formWait_Set_Text_All(const QString& text)
{
    if (m_formProgress)
        m_formProgress->setText_Value_All(text);
}

void ZRK_Device_K7140::formWait_Set_Time(const QString& text)
{
    if (m_formProgress)
        m_formProgress->setText_Time(text);
}
