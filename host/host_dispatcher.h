#pragma once

#include "zrk/zrk_host_api.h"

#include <QHash>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QTime>

#include <functional>

class ZrkPluginLoader;

// One message as the log shows it.
struct ZrkLoggedMessage
{
    int sequence = 0;
    QTime time;
    ZrkMessageDirection direction = ZrkMessageDirection::HostToPlugin;
    int id = 0;
    QString name; // from the public message table; "?" when the id has no row in that direction
    QString wParam;
    QString lParam;
    QString result;
};

Q_DECLARE_METATYPE(ZrkLoggedMessage)

// The host's side of the message exchange: sends host messages through the loader, receives the
// plug-in's messages through the callback, answers those it can, and reports both directions for
// the log. A later terminal simulator plugs in with setHandler for the request ids it serves.
class ZrkHostDispatcher : public QObject
{
    Q_OBJECT

public:
    // Answers one plug-in message; returns the callback's result.
    using Handler = std::function<unsigned long(unsigned long wParam, unsigned long lParam, QString& result)>;

    explicit ZrkHostDispatcher(ZrkPluginLoader& loader, QObject* parent = nullptr);
    ~ZrkHostDispatcher() override;

    // The callback handed to Initialize. It reaches the one dispatcher of the process.
    static unsigned long callback(void* handle, int msg, unsigned long wParam, unsigned long lParam);

    void setHandler(int msg, Handler handler);

    // Sends one host message and logs it with the host's own description of its words;
    // describeResult, when given, is asked afterwards what the plug-in wrote back.
    void send(int msg, unsigned long wParam, unsigned long lParam, const QString& wText = QString(),
        const QString& lText = QString(), const std::function<QString()>& describeResult = {});

    // The name of an id in one direction, from the public table.
    static QString messageName(int id, ZrkMessageDirection direction);
    // A plug-in message's word, described by what its row says it carries.
    static QString describeWord(const char* type, unsigned long word);

signals:
    void messageLogged(const ZrkLoggedMessage& message);
    void resultLogged(int sequence, const QString& result);
    // A plug-in message arrived with a handle other than the plug-in's.
    void foreignHandle(int msg);

private:
    // The next entry of the log: numbered in the order of both directions together.
    ZrkLoggedMessage newEntry(int msg, ZrkMessageDirection direction);
    unsigned long receive(void* handle, int msg, unsigned long wParam, unsigned long lParam);

    ZrkPluginLoader& m_loader;
    QHash<int, Handler> m_handlers;
    int m_sequence = 0;
};
