#include "config_ui/zrk_widget_config.h"

#include "device/zrk_device_k7140.h"

ZRK_Widget_Config::ZRK_Widget_Config(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("ZRK_Widget_Config"));
    resize(900, 640);
    translateForm();
}

ZRK_Widget_Config::~ZRK_Widget_Config() = default;

void ZRK_Widget_Config::deviceConnect()
{
    m_connected = true;
}

void ZRK_Widget_Config::deviceDisconnect()
{
    m_connected = false;
}

void ZRK_Widget_Config::translateForm()
{
    //% "Конфигурация"
    setWindowTitle(qtTrId("wcfg_001"));
}

bool ZRK_Widget_Config::closeWidgetConfig()
{
    // The complex-event editor's veto joins here once that page exists.
    close();
    if (lpGlobalDevice)
        lpGlobalDevice->SendMessage(lpGlobalDevice, ZRK_MSG_CONFIG_WINDOW_CLOSED, 0, 0);
    return true;
}

// The editor itself (pages, document, device transfer) is built by the configuration-editor work;
// until then the operations below accept their message and do nothing.
void ZRK_Widget_Config::openConfig(szConfigFile*, szConfigParam&) { }
void ZRK_Widget_Config::saveConfigToDevice() { }
void ZRK_Widget_Config::readConfigFromDevice() { }
void ZRK_Widget_Config::openConfigPage(quint32) { }
void ZRK_Widget_Config::getFileConfigure(QString&) { }
void ZRK_Widget_Config::setCE_ProgramInfo(QByteArray*) { }
void ZRK_Widget_Config::setWindowCEClosed() { }
void ZRK_Widget_Config::setWindowFocus() { }
void ZRK_Widget_Config::addUserParamCE(const QString&) { }
void ZRK_Widget_Config::addUserParamListCE(const QString&) { }
void ZRK_Widget_Config::delUserParamCE(const QString&) { }
void ZRK_Widget_Config::delUserParamListCE(const QString&) { }
void ZRK_Widget_Config::receiveDataTest(QByteArray*) { }
void ZRK_Widget_Config::receiveDtpTest(szDtpKRAI*) { }
void ZRK_Widget_Config::receiveDtpProtection(quint8) { }
void ZRK_Widget_Config::receiveDtpFileRead_V3(bool) { }
void ZRK_Widget_Config::receiveTM(quint64) { }
void ZRK_Widget_Config::receiveAnalogValue(szAnalogValue*) { }
void ZRK_Widget_Config::receiveAdValueFuel(szADValue*) { }
void ZRK_Widget_Config::receiveAdValueFuel_UN(szADValue_UN*) { }
void ZRK_Widget_Config::receiveAccelParam(szAccelParam*) { }
void ZRK_Widget_Config::receiveAccelBrake(quint8, quint8) { }
void ZRK_Widget_Config::receiveAccelReset(szAccelReset*) { }
void ZRK_Widget_Config::receiveAccelAclC(szCmdAccelParam*) { }
void ZRK_Widget_Config::receiveBluetoothCancelRez(quint8) { }
void ZRK_Widget_Config::receiveBluetoothRez(quint8) { }
void ZRK_Widget_Config::receiveBluetoothDevice(szBluetoothDevice*) { }
void ZRK_Widget_Config::receiveCurrentDispValue(quint32) { }
void ZRK_Widget_Config::receive_CanlogCurNum(qint32) { }
void ZRK_Widget_Config::receive_TM_File_Info_V3(quint32, quint8) { }
void ZRK_Widget_Config::receive_TM_ReadFile_V3(bool, const QString&) { }
void ZRK_Widget_Config::receive_TM_WriteFile_V3(bool) { }
void ZRK_Widget_Config::receive_CurCanFile(QByteArray*, const QString&) { }
void ZRK_Widget_Config::receive_SD_File(QByteArray*) { }
void ZRK_Widget_Config::receive_Camera_Info(QByteArray*) { }
void ZRK_Widget_Config::receive_PhotoInfo_SD_File(QByteArray*) { }
