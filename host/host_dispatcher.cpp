#include "host_dispatcher.h"

#include "plugin_loader.h"

#include <QByteArray>

namespace {
ZrkHostDispatcher* gDispatcher = nullptr;
}

ZrkHostDispatcher::ZrkHostDispatcher(ZrkPluginLoader& loader, QObject* parent)
    : QObject(parent)
    , m_loader(loader)
{
    gDispatcher = this;
    qRegisterMetaType<ZrkLoggedMessage>();
    // Another module's functions: this host has no other modules, so the record stays empty.
    setHandler(ZRK_MSG_LOOKUP_MODULE_FUNCTIONS,
        [](unsigned long, unsigned long l, QString& result) -> unsigned long {
            if (auto* functions = reinterpret_cast<szLibraryFunctions*>(l)) {
                *functions = szLibraryFunctions { QString(), QString(), QString(), nullptr, nullptr };
                result =
                    //% "пустая запись"
                    qtTrId("host_006");
            }
            return 0;
        });
}

ZrkHostDispatcher::~ZrkHostDispatcher()
{
    if (gDispatcher == this)
        gDispatcher = nullptr;
}

unsigned long ZrkHostDispatcher::callback(void* handle, int msg, unsigned long wParam, unsigned long lParam)
{
    return gDispatcher ? gDispatcher->receive(handle, msg, wParam, lParam) : 0;
}

void ZrkHostDispatcher::setHandler(int msg, Handler handler)
{
    m_handlers.insert(msg, std::move(handler));
}

QString ZrkHostDispatcher::messageName(int id, ZrkMessageDirection direction)
{
    const ZrkMessageInfo* row = zrkMessageInfo(id, direction);
    return row ? QString::fromLatin1(row->name) : QStringLiteral("?");
}

QString ZrkHostDispatcher::describeWord(const char* type, unsigned long word)
{
    const QByteArray t(type ? type : "-");
    if (t == "-" || (t == "0" && word == 0))
        return word ? QStringLiteral("0x%1").arg(word, 0, 16) : QStringLiteral("0");
    if (word == 0)
        return QStringLiteral("null");
    if (t.startsWith("QString*"))
        return QStringLiteral("«%1»").arg(*reinterpret_cast<const QString*>(word));
    if (t.startsWith("QByteArray*")) {
        const QByteArray& bytes = *reinterpret_cast<const QByteArray*>(word);
        return
            //% "%1 байт: %2%3"
            qtTrId("host_007")
                .arg(bytes.size())
                .arg(QString::fromLatin1(bytes.left(16).toHex(' ')))
                .arg(bytes.size() > 16 ? QStringLiteral(" …") : QString());
    }
    if (t.contains('*'))
        return
            //% "адрес 0x%1"
            qtTrId("host_008").arg(word, 0, 16);
    return QString::number(word);
}

ZrkLoggedMessage ZrkHostDispatcher::newEntry(int msg, ZrkMessageDirection direction)
{
    ZrkLoggedMessage entry;
    entry.sequence = ++m_sequence;
    entry.time = QTime::currentTime();
    entry.direction = direction;
    entry.id = msg;
    entry.name = messageName(msg, direction);
    return entry;
}

void ZrkHostDispatcher::send(int msg, unsigned long wParam, unsigned long lParam, const QString& wText,
    const QString& lText, const std::function<QString()>& describeResult)
{
    ZrkLoggedMessage entry = newEntry(msg, ZrkMessageDirection::HostToPlugin);
    entry.wParam = wText.isEmpty() ? QString::number(wParam) : wText;
    entry.lParam = lText.isEmpty() ? QString::number(lParam) : lText;
    emit messageLogged(entry);
    m_loader.send(msg, wParam, lParam);
    if (describeResult)
        emit resultLogged(entry.sequence, describeResult());
}

unsigned long ZrkHostDispatcher::receive(void* handle, int msg, unsigned long wParam, unsigned long lParam)
{
    ZrkLoggedMessage entry = newEntry(msg, ZrkMessageDirection::PluginToHost);
    const ZrkMessageInfo* row = zrkMessageInfo(msg, ZrkMessageDirection::PluginToHost);
    entry.wParam = describeWord(row ? row->wParam : nullptr, wParam);
    entry.lParam = describeWord(row ? row->lParam : nullptr, lParam);
    if (handle != m_loader.handle()) {
        entry.result =
            //% "чужой описатель, пропущено"
            qtTrId("host_009");
        emit messageLogged(entry);
        emit foreignHandle(msg);
        return 0;
    }
    emit messageLogged(entry);
    unsigned long answer = 0;
    const auto handler = m_handlers.constFind(msg);
    if (handler != m_handlers.constEnd()) {
        QString result;
        answer = (*handler)(wParam, lParam, result);
        if (!result.isEmpty())
            emit resultLogged(entry.sequence, result);
    }
    return answer;
}
