#pragma once

#include "zrk/zrk_host_api.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>

class QDockWidget;
class QListWidget;
class ZrkHostDispatcher;

// The simulated terminal's SD card: file name -> bytes. Serves 2400 requests and answers each with
// 2401. A child of the host window (object name "ZrkSimSdCard"), so that demo steps find it.
class ZrkSimSdCard : public QObject
{
    Q_OBJECT

public:
    // Installs the 2400 handler on the dispatcher.
    ZrkSimSdCard(ZrkHostDispatcher& dispatcher, QObject* parent = nullptr);

    // Capacity of the simulated card, bytes.
    static constexpr qint64 kCapacity = 64 * 1024 * 1024;
    void setCapacity(qint64 bytes) { m_capacity = bytes; }

    // Serves one request: fills request.result and returns the 2401 reply.
    QByteArray handle(szSDFile& request);

    const QMap<QString, QByteArray>& files() const { return m_files; }
    QByteArray file(const QString& name) const { return m_files.value(name); }
    // With no card, every request answers ZRK_SD_NO_CARD.
    void setCardPresent(bool present);
    void clear();

    // A small dock listing the card's files with their sizes, kept up to date.
    QDockWidget* createDock();

signals:
    void cardChanged();

private:
    qint64 usedBytes() const;
    void refreshList();

    ZrkHostDispatcher& m_dispatcher;
    QMap<QString, QByteArray> m_files;
    bool m_present = true;
    qint64 m_capacity = kCapacity;
    QListWidget* m_list = nullptr;
};
