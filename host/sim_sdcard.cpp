#include "sim_sdcard.h"

#include "host_dispatcher.h"

#include <QDockWidget>
#include <QListWidget>

namespace {

QByteArray reply(
    const szSDFile& request, qint32 result, quint32 fileSize, const QByteArray& payload = QByteArray())
{
    const QByteArray name = request.fileName.toUtf8().left(ZRK_SD_NAME_MAX);
    szSDFileReplyHeader h;
    h.operation = quint8(request.operation);
    h.result = qint8(result);
    h.nameLength = quint16(name.size());
    h.offset = request.offset;
    h.fileSize = fileSize;
    h.payloadLength = quint32(payload.size());
    QByteArray out(reinterpret_cast<const char*>(&h), int(sizeof h));
    return out + name + payload;
}

} // namespace

ZrkSimSdCard::ZrkSimSdCard(ZrkHostDispatcher& dispatcher, QObject* parent)
    : QObject(parent)
    , m_dispatcher(dispatcher)
{
    setObjectName(QStringLiteral("ZrkSimSdCard"));
    m_dispatcher.setHandler(
        ZRK_MSG_SD_FILE_OPERATION, [this](unsigned long w, unsigned long, QString& result) {
            auto* request = reinterpret_cast<szSDFile*>(w);
            if (!request) {
                result = QStringLiteral("null");
                return 0UL;
            }
            QByteArray answer = handle(*request);
            result = QStringLiteral("%1 %2 -> %3")
                         .arg(request->operation)
                         .arg(request->fileName)
                         .arg(request->result);
            m_dispatcher.send(ZRK_MSG_SD_FILE_DATA, reinterpret_cast<unsigned long>(&answer), 0,
                QStringLiteral("QByteArray[%1]").arg(answer.size()));
            return 0UL;
        });
}

qint64 ZrkSimSdCard::usedBytes() const
{
    qint64 used = 0;
    for (const QByteArray& f : m_files)
        used += f.size();
    return used;
}

QByteArray ZrkSimSdCard::handle(szSDFile& r)
{
    auto answer = [&](qint32 result, quint32 size, const QByteArray& payload = QByteArray()) {
        r.result = result;
        return reply(r, result, size, payload);
    };
    if (!m_present)
        return answer(ZRK_SD_NO_CARD, 0);
    // A copy of its own: the plug-in's text may be a literal in its library, gone once it unloads.
    const QString name = QString::fromUtf8(r.fileName.toUtf8());
    const bool nameOk = !name.isEmpty() && name.toUtf8().size() <= ZRK_SD_NAME_MAX;
    const auto it = m_files.constFind(name);
    const quint32 size = it == m_files.cend() ? 0 : quint32(it->size());
    switch (r.operation) {
    case ZRK_SD_OPEN:
        if (!nameOk || r.size > 1)
            return answer(ZRK_SD_BAD_REQUEST, 0);
        if (r.size == 1) {
            m_files[name].clear();
            refreshList();
            return answer(ZRK_SD_OK, 0);
        }
        return answer(it == m_files.cend() ? ZRK_SD_NOT_FOUND : ZRK_SD_OK, size);
    case ZRK_SD_READ:
        if (!nameOk || r.size > quint32(ZRK_SD_CHUNK_MAX))
            return answer(ZRK_SD_BAD_REQUEST, size);
        if (it == m_files.cend())
            return answer(ZRK_SD_NOT_FOUND, 0);
        return answer(ZRK_SD_OK, size, r.offset >= size ? QByteArray() : it->mid(int(r.offset), int(r.size)));
    case ZRK_SD_WRITE: {
        if (!nameOk || r.data.size() > ZRK_SD_CHUNK_MAX || r.offset > quint32(m_capacity))
            return answer(ZRK_SD_BAD_REQUEST, size);
        const qint64 end = qint64(r.offset) + r.data.size();
        if (usedBytes() - size + qMax<qint64>(end, size) > m_capacity)
            return answer(ZRK_SD_CARD_FULL, size);
        QByteArray& f = m_files[name];
        if (f.size() < end)
            f.append(QByteArray(int(end - f.size()), '\0'));
        f.replace(int(r.offset), r.data.size(), r.data);
        refreshList();
        return answer(ZRK_SD_OK, quint32(f.size()));
    }
    case ZRK_SD_DELETE:
        if (!nameOk)
            return answer(ZRK_SD_BAD_REQUEST, 0);
        if (it == m_files.cend())
            return answer(ZRK_SD_NOT_FOUND, 0);
        m_files.remove(name);
        refreshList();
        return answer(ZRK_SD_OK, 0);
    case ZRK_SD_CLOSE:
        return answer(nameOk ? ZRK_SD_OK : ZRK_SD_BAD_REQUEST, size);
    case ZRK_SD_LIST: {
        QByteArray lines;
        for (auto f = m_files.cbegin(); f != m_files.cend(); ++f)
            lines += f.key().toUtf8() + '\t' + QByteArray::number(f->size()) + '\n';
        return answer(ZRK_SD_OK, quint32(m_files.size()), lines);
    }
    default:
        return answer(ZRK_SD_BAD_REQUEST, 0);
    }
}

void ZrkSimSdCard::setCardPresent(bool present)
{
    m_present = present;
    refreshList();
}

void ZrkSimSdCard::clear()
{
    m_files.clear();
    refreshList();
}

QDockWidget* ZrkSimSdCard::createDock()
{
    //% "SD-карта терминала"
    auto* dock = new QDockWidget(qtTrId("host_500"));
    dock->setObjectName(QStringLiteral("SdCardDock"));
    m_list = new QListWidget;
    m_list->setObjectName(QStringLiteral("SdCardFiles"));
    //% "Файлы, записанные модулем на SD-карту имитируемого терминала (сообщение 2400)"
    m_list->setToolTip(qtTrId("host_501"));
    dock->setWidget(m_list);
    connect(m_list, &QObject::destroyed, this, [this] { m_list = nullptr; });
    refreshList();
    return dock;
}

void ZrkSimSdCard::refreshList()
{
    emit cardChanged();
    if (!m_list)
        return;
    m_list->clear();
    if (!m_present) {
        //% "(карты нет)"
        m_list->addItem(qtTrId("host_502"));
        return;
    }
    if (m_files.isEmpty()) {
        //% "(пусто)"
        m_list->addItem(qtTrId("host_503"));
        return;
    }
    for (auto f = m_files.cbegin(); f != m_files.cend(); ++f)
        //% "%1 — %2 байт"
        m_list->addItem(qtTrId("host_504").arg(f.key()).arg(f->size()));
}
