#pragma once

#include <QWidget>

class QByteArray;

// The terminal test window of the service mode (configurator mode 5). One per plug-in, created
// by the device object at the first connect and never deleted while the library is loaded.
//
// Filled by the service-tools work: receive_Device_Test has an empty body in this shell.
class ZRK_Widget_Test : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)

public:
    explicit ZRK_Widget_Test(QWidget* parent = nullptr);
    ~ZRK_Widget_Test() override;

    bool isDeviceConnected() const { return m_connected; }

    virtual void deviceConnect();
    virtual void deviceDisconnect();
    virtual void receive_Device_Test(QByteArray* data);

private:
    bool m_connected = false;
};
