#include "zrk_map_tiles.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestJob>

namespace {

ZRK_Map_TileHandler* g_handler = nullptr;

// The handler's code is in the plug-in: it leaves the profile when the plug-in is unloaded.
struct HandlerRemoval
{
    ~HandlerRemoval()
    {
        if (!g_handler)
            return;
        if (QCoreApplication::instance())
            QWebEngineProfile::defaultProfile()->removeUrlSchemeHandler(g_handler);
        delete g_handler;
        g_handler = nullptr;
    }
} g_handlerRemoval;

} // namespace

ZRK_Map_TileHandler::ZRK_Map_TileHandler(QObject* parent)
    : QWebEngineUrlSchemeHandler(parent)
{
}

QString ZRK_Map_TileHandler::serveFolder(const QString& folder)
{
    if (!g_handler) {
        QWebEngineProfile* profile = QWebEngineProfile::defaultProfile();
        g_handler = new ZRK_Map_TileHandler(nullptr);
        profile->installUrlSchemeHandler(kScheme, g_handler);
    }
    g_handler->m_folder = folder;
    return QStringLiteral("%1://local/{z}/{x}/{y}").arg(QLatin1String(kScheme));
}

QString ZRK_Map_TileHandler::tileFile(const QString& folder, const QString& path)
{
    // Only three numbers are taken from the request, so nothing outside the folder can be named.
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (parts.size() < 3 || folder.isEmpty())
        return {};
    int numbers[3];
    for (int i = 0; i < 3; ++i) {
        QString part = parts.at(parts.size() - 3 + i);
        if (i == 2)
            part = part.section(QLatin1Char('.'), 0, 0);
        bool ok = false;
        numbers[i] = part.toInt(&ok);
        if (!ok || numbers[i] < 0 || numbers[i] > (1 << 24))
            return {};
    }
    const QDir dir(QDir(folder).filePath(QStringLiteral("%1/%2").arg(numbers[0]).arg(numbers[1])));
    for (const char* ext : { ".png", ".jpg", ".jpeg" }) {
        const QString file = dir.filePath(QString::number(numbers[2]) + QLatin1String(ext));
        if (QFileInfo(file).isFile())
            return file;
    }
    return {};
}

void ZRK_Map_TileHandler::requestStarted(QWebEngineUrlRequestJob* job)
{
    const QString file = tileFile(m_folder, job->requestUrl().path());
    QFile in(file);
    if (file.isEmpty() || !in.open(QIODevice::ReadOnly)) {
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    auto* buffer = new QBuffer(job);
    buffer->setData(in.readAll());
    buffer->open(QIODevice::ReadOnly);
    job->reply(file.endsWith(QLatin1String(".png")) ? QByteArrayLiteral("image/png")
                                                    : QByteArrayLiteral("image/jpeg"),
        buffer);
}
