#pragma once

#include "zrk/zrk_host_api.h"

#include <QWidget>

class QByteArray;

// The telemetry view: asks the host for records, decodes and shows them. One per plug-in,
// created on first need by the device object and never deleted while the library is loaded.
//
// Filled by the telemetry-view work: showForm, isTestMode, deviceDisconnectRCS and every record
// and reply operation (setTmi..., setReceive..., setToucheMemory, setRFID, setCurrentAnalogValue,
// receiveCurrentDispValue, getParamFLSFirmwareSensor) have empty bodies in this shell; the
// operations are virtual so that the routing can be watched.
class ZRK_Widget_Tmi_View : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)

public:
    explicit ZRK_Widget_Tmi_View(QWidget* parent = nullptr);
    ~ZRK_Widget_Tmi_View() override;

    bool isDeviceConnected() const { return m_connected; }

    virtual void deviceConnect();
    virtual void deviceDisconnect();
    virtual void deviceDisconnectRCS();
    virtual void translateForm();
    virtual void showForm(const QString& text, const szConfigParam& configParam);
    virtual void closeForm();
    virtual bool isTestMode(QByteArray* data);

    virtual void setTmiCur(QByteArray* buf);
    virtual void setTmiCurNumber(QByteArray* buf);
    virtual void setTmiCurLeft(QByteArray* buf);
    virtual void setTmiCurRight(QByteArray* buf);
    virtual void setTmiCurExt(QByteArray* buf);
    virtual void setReceive_NMEA(QByteArray* data);
    virtual void setTmiCmndParamValue(QByteArray* data);
    virtual void setTmiCmnd(QByteArray* data);
    virtual void setReceiveFls_UserCommand(QByteArray* data);
    virtual void getParamFLSFirmwareSensor(QByteArray* data);
    virtual void setToucheMemory(quint64 code);
    virtual void setCurrentAnalogValue(szADValue_UN* value);
    virtual void receiveCurrentDispValue(quint32 value);
    virtual void setRFID(quint64 code, quint8 value);
    virtual void setReceiveTahoQuest(QByteArray* data);
    virtual void setReceiveTahoFile_Read(bool ok);
    virtual void setReceiveFlsDataFile_Quest(QByteArray* data);
    virtual void setReceiveFlsDataFile_Read(bool ok);

private:
    bool m_connected = false;
};
