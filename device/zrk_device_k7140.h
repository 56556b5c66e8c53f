#pragma once

#include "zrk/zrk_host_api.h"

#include <QObject>
#include <QPointer>
#include <QString>

class ZRK_Widget_Config;
namespace zrk {
class ConfigSession;
}
class ZRK_Widget_Tmi_View;
class ZRK_Widget_Tmi_Page;
class ZRK_Widget_Tmi_Table;
class ZRK_Widget_Test;
class ZRK_Form_IO_Progress;
class ZRK_Form_Param_About;
class ZRK_Device_K7140;

// Which window a key code read from the terminal (2241) goes to.
enum ZRK_WaitWidget : int
{
    ZRK_WAIT_CONFIG = 0, // the configuration window
    ZRK_WAIT_TMI_VIEW = 1, // the telemetry view
};

// The firmware version number the plug-in reports (message 2002, library information record).
extern quint32 ZRK_VERSION_FIRMWARE;
// The device object once the host has initialised the plug-in; null before. Every class reaches
// the host through it and checks it for null first.
extern ZRK_Device_K7140* lpGlobalDevice;
// The host's event bus, handed over with message 2346; null until then.
extern void* lpGlobalEventBus;

// Makes the plug-in's top-level windows. The device object uses the default one, which builds
// the real classes; a test installs its own to watch what the device object routes to them.
class ZRK_Device_Windows
{
public:
    virtual ~ZRK_Device_Windows();
    virtual ZRK_Widget_Config* createConfig();
    virtual ZRK_Widget_Tmi_View* createTmiView();
    virtual ZRK_Widget_Tmi_Page* createTmiPage();
    virtual ZRK_Widget_Tmi_Table* createTmiTable();
    virtual ZRK_Widget_Test* createTest();
};

// The device model towards the host: its identity and connection state, the host's callback, the
// data directories, and the plug-in's top-level windows, which it creates on first need and keeps
// while the library is loaded. Used on the GUI thread only.
class ZRK_Device_K7140 : public QObject
{
    Q_OBJECT
    // Read-only state for a host's diagnostics (the handle points to this object).
    Q_PROPERTY(QString deviceType READ getDeviceType)
    Q_PROPERTY(QString deviceVendor READ getDeviceVendor)
    Q_PROPERTY(QString deviceImei READ getDeviceImei)
    Q_PROPERTY(QString deviceFirmware READ getDeviceFirmvareVer)
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)
    Q_PROPERTY(qulonglong deviceBHR READ getDeviceBHR)
    Q_PROPERTY(quint32 connectType READ getConnectType)
    Q_PROPERTY(quint32 configuratorMode READ getConfiguratorMode)
    Q_PROPERTY(QString pathTMI READ getPathTMI)
    Q_PROPERTY(QString pathXML READ getPathXML)
    Q_PROPERTY(QString pathFirmware READ getPathFirmware)
    Q_PROPERTY(QString pathSound READ getPathSound)

public:
    ZRK_Device_K7140(const QString& type, int a, int b, int c, int d, QObject* parent = nullptr);
    ~ZRK_Device_K7140() override;

    // ---- host boundary
    void getModuleInfo(szLibraryInfo* info) const;
    void InitConfigurator(ZRK_SendMessageFn send);
    unsigned long SendMessage(void* handle, int msg, unsigned long w, unsigned long l);
    ZRK_SendMessageFn GetFuncSendMessage() const { return m_send; }
    void ZRK_ReceiveMessage(void* handle, int msg, unsigned long wParam, unsigned long lParam);
    // Whether the dispatch has a row for the host message id.
    static bool isRoutedMessage(int msg);

    // ---- identity and state
    QString getDeviceType() const { return m_deviceType; }
    void setDeviceType(const QString& type) { m_deviceType = type; }
    QString getDeviceVendor() const { return m_deviceVendor; }
    void setDeviceVendor(const QString& vendor) { m_deviceVendor = vendor; }
    QString getDeviceImei() const { return m_imei; }
    QString getDeviceFirmvareVer() const { return m_firmwareVersion; }
    quint64 getRevisionVer() const { return m_revision; }
    quint64 getDeviceBHR() const { return m_bhr; }
    quint32 getConnectType() const { return m_connectType; }
    quint32 getConfiguratorMode() const { return m_configuratorMode; }
    bool isDeviceConnected() const { return m_connected; }
    void getConfigParam(szConfigParam& param) const;
    // The window that waits for the next key code (2241): a ZRK_WaitWidget value.
    void setWidgetWaitReceive(int widget) { m_waitReceive = widget; }
    int getWidgetWaitReceive() const { return m_waitReceive; }

    // ---- data directories: the host's entry, or the default below the application data directory
    QString getPathTMI() const;
    QString getPathXML() const;
    QString getPathFirmware() const;
    QString getPathSound() const;

    // ---- windows
    void initWidgetConfig();
    void initWidgetTMI();
    void initWidgetTmiPage();
    void initWidgetTmiTable();
    void initWidgetTest();
    ZRK_Widget_Config* widgetConfig() const;
    // The configuration open in the configuration window, shown or not; null until the window
    // exists (its telemetryTitles() answers false until something was opened).
    const zrk::ConfigSession* configSession() const;
    ZRK_Widget_Tmi_View* widgetTmiView() const;
    ZRK_Widget_Tmi_Page* widgetTmiPage() const;
    ZRK_Widget_Tmi_Table* widgetTmiTable() const;
    ZRK_Widget_Test* widgetTest() const;
    ZRK_Form_IO_Progress* formProgress() const;
    ZRK_Form_Param_About* formAbout() const;
    // Null restores the default factory. The factory must outlive its use.
    void setWindowFactory(ZRK_Device_Windows* factory);

    void openFileConfig(szConfigFile* file);
    void openFileTMI(const QString& name, zrk_type_ViewFileTmi kind);
    // Invokable through the meta-object system as well, for a host's diagnostics.
    Q_INVOKABLE void showFormParamInfo(const QString& title, const QString& text);
    Q_INVOKABLE void showHelp(const QString& topic);
    void translateModule();
    // The about form with the plug-in's own name, version and build, in the current language.
    void showAboutText();
    Q_INVOKABLE szLibraryFunctions getLibFuncForNameModule(const QString& name);

    // ---- the wait form
    void formWait_Show();
    void formWait_Close();
    void formWait_Clear();
    void formWait_Visible_TextValue(bool visible);
    void formWait_Visible_Time(bool visible);
    void formWait_Visible_BtnTime(bool visible);
    void formWait_Set_Title(const QString& title);
    void formWait_Set_Progress_MinMax(int min, int max);
    void formWait_Set_Progress_Value(int value);
    void formWait_Set_Text(const QString& text);
    void formWait_Set_Text_Cur(const QString& text);
    void formWait_Set_Text_All(const QString& text);
    void formWait_Set_Time(const QString& text);

private:
    friend struct ZRK_Device_Routes;

    void deviceConnected(const szDeviceConnect& record);
    void deviceDisconnected();
    void setDirPaths(const szDirPath& paths);

    // Declaration order follows the device's data model.
    szDirPath m_paths;
    szLibraryInfo m_libraryInfo;
    ZRK_SendMessageFn m_send = nullptr;
    int m_waitReceive = ZRK_WAIT_CONFIG;
    QString m_deviceType;
    QString m_deviceVendor;
    bool m_connected = false;
    QString m_imei;
    QString m_firmwareVersion;
    quint64 m_revision = 0;
    quint64 m_bhr = 0;
    quint32 m_connectType = 0;
    QPointer<ZRK_Widget_Config> m_widgetConfig;
    QPointer<ZRK_Widget_Tmi_View> m_widgetTmiView;
    QPointer<ZRK_Widget_Tmi_Page> m_widgetTmiPage;
    QPointer<ZRK_Widget_Tmi_Table> m_widgetTmiTable;
    QPointer<ZRK_Widget_Test> m_widgetTest;
    QPointer<ZRK_Form_IO_Progress> m_formProgress;
    QPointer<ZRK_Form_Param_About> m_formAbout;
    quint32 m_configuratorMode = 0;
    szConfigParam m_configParam;
    ZRK_Device_Windows* m_windows;
};
