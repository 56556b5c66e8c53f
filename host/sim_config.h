#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class ZrkHostDispatcher;

// The simulated terminal's configuration memory. A configuration the plug-in writes (2151 with
// lParam 0) is copied and stored; a read request (2153) is answered as a real host does, by handing
// the stored file back with 2101 (full editor, source "device"). Firmware writes (lParam 6) are only
// logged. It starts with a configuration a terminal in the field would hold, branches the editor
// has no page for among them. A child of the host window (object name "ZrkSimConfig").
class ZrkSimConfig : public QObject
{
    Q_OBJECT

public:
    // Installs the 2151 and 2153 handlers on the dispatcher.
    explicit ZrkSimConfig(ZrkHostDispatcher& dispatcher, QObject* parent = nullptr);

    QByteArray storedConfiguration() const { return m_stored; }
    void setStoredConfiguration(const QByteArray& bytes) { m_stored = bytes; }
    // The configuration a fresh simulated terminal holds (windows-1251 XML).
    static QByteArray factoryConfiguration();
    // Where the stored configuration is put for the plug-in to read.
    QString readFilePath() const;
    int writesReceived() const { return m_writes; }

    // Hands the stored configuration to the plug-in: 2101, full editor, as read from the device.
    void sendStoredConfiguration();

signals:
    void configurationWritten(const QByteArray& fileBytes);
    void firmwareWritten(const QString& path);

private:
    unsigned long writeFile(unsigned long wParam, unsigned long lParam, QString& result);

    ZrkHostDispatcher& m_dispatcher;
    QByteArray m_stored;
    int m_writes = 0;
};
