#pragma once

#include "zrk/zrk_host_api.h"

#include <QDialog>

class QByteArray;

// The configuration window: one per plug-in, created hidden by the device object and never
// deleted while the library is loaded. The device object routes the host's configuration
// messages to the operations below.
//
// Filled by the configuration-editor work: openConfig, saveConfigToDevice, readConfigFromDevice,
// openConfigPage, getFileConfigure, the complex-event operations and every receive... operation
// have empty bodies in this shell; the operations are virtual so that the routing can be watched.
class ZRK_Widget_Config : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)

public:
    explicit ZRK_Widget_Config(QWidget* parent = nullptr);
    ~ZRK_Widget_Config() override;

    bool isDeviceConnected() const { return m_connected; }

    virtual void deviceConnect();
    virtual void deviceDisconnect();
    virtual void translateForm();

    virtual void openConfig(szConfigFile* file, szConfigParam& configParam);
    // Closes the window and tells the host; false when the user refused to close.
    virtual bool closeWidgetConfig();
    virtual void saveConfigToDevice();
    virtual void readConfigFromDevice();
    virtual void openConfigPage(quint32 page);
    virtual void getFileConfigure(QString& name);
    virtual void setCE_ProgramInfo(QByteArray* data);
    virtual void setWindowCEClosed();
    virtual void setWindowFocus();
    virtual void addUserParamCE(const QString& name);
    virtual void addUserParamListCE(const QString& name);
    virtual void delUserParamCE(const QString& name);
    virtual void delUserParamListCE(const QString& name);

    // Device replies, forwarded to the page that asked.
    virtual void receiveDataTest(QByteArray* data);
    virtual void receiveDtpTest(szDtpKRAI* result);
    virtual void receiveDtpProtection(quint8 value);
    virtual void receiveDtpFileRead_V3(bool ok);
    virtual void receiveTM(quint64 code);
    virtual void receiveAnalogValue(szAnalogValue* value);
    virtual void receiveAdValueFuel(szADValue* value);
    virtual void receiveAdValueFuel_UN(szADValue_UN* value);
    virtual void receiveAccelParam(szAccelParam* param);
    virtual void receiveAccelBrake(quint8 step, quint8 result);
    virtual void receiveAccelReset(szAccelReset* result);
    virtual void receiveAccelAclC(szCmdAccelParam* param);
    virtual void receiveBluetoothCancelRez(quint8 value);
    virtual void receiveBluetoothRez(quint8 value);
    virtual void receiveBluetoothDevice(szBluetoothDevice* device);
    virtual void receiveCurrentDispValue(quint32 value);
    virtual void receive_CanlogCurNum(qint32 value);
    virtual void receive_TM_File_Info_V3(quint32 size, quint8 type);
    virtual void receive_TM_ReadFile_V3(bool ok, const QString& file);
    virtual void receive_TM_WriteFile_V3(bool ok);
    virtual void receive_CurCanFile(QByteArray* data, const QString& name);
    virtual void receive_SD_File(QByteArray* data);
    virtual void receive_Camera_Info(QByteArray* data);
    virtual void receive_PhotoInfo_SD_File(QByteArray* data);

private:
    bool m_connected = false;
};
