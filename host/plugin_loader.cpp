#include "plugin_loader.h"

#include <QFileInfo>

#include <cstring>

ZrkPluginLoader::~ZrkPluginLoader() = default;

void ZrkPluginLoader::fail(const QString& why)
{
    m_error = why;
    m_isLibrary = nullptr;
    m_getInfo = nullptr;
    m_initialize = nullptr;
    m_receive = nullptr;
    if (m_library.isLoaded())
        m_library.unload();
}

bool ZrkPluginLoader::load(const QString& fileName)
{
    unload();
    m_error.clear();
    if (!QFileInfo::exists(fileName)) {
        fail(
            //% "Файл «%1» не найден."
            qtTrId("host_001").arg(fileName));
        return false;
    }
    m_library.setFileName(fileName);
    if (!m_library.load()) {
        fail(
            //% "Файл «%1» не загружается как библиотека: %2"
            qtTrId("host_002").arg(fileName, m_library.errorString()));
        return false;
    }
    m_isLibrary = reinterpret_cast<ZRK_IsZrkLibraryVFn>(m_library.resolve(ZRK_EXPORT_IS_LIBRARY));
    m_getInfo = reinterpret_cast<ZRK_GetLibraryInfoFn>(m_library.resolve(ZRK_EXPORT_GET_LIBRARY_INFO));
    m_initialize = reinterpret_cast<ZRK_InitializeFn>(m_library.resolve(ZRK_EXPORT_INITIALIZE));
    m_receive = reinterpret_cast<ZRK_ReceiveMessageFn>(m_library.resolve(ZRK_EXPORT_RECEIVE_MESSAGE));
    QStringList missing;
    if (!m_isLibrary)
        missing << QStringLiteral(ZRK_EXPORT_IS_LIBRARY);
    if (!m_getInfo)
        missing << QStringLiteral(ZRK_EXPORT_GET_LIBRARY_INFO);
    if (!m_initialize)
        missing << QStringLiteral(ZRK_EXPORT_INITIALIZE);
    if (!m_receive)
        missing << QStringLiteral(ZRK_EXPORT_RECEIVE_MESSAGE);
    if (!missing.isEmpty()) {
        fail(
            //% "«%1» не является модулем устройства: нет экспорта %2."
            qtTrId("host_003").arg(QFileInfo(fileName).fileName(), missing.join(QStringLiteral(", "))));
        return false;
    }
    const int answer = m_isLibrary();
    if (answer != 1) {
        fail(
            //% "«%1» не является модулем устройства: %2() вернула %3 вместо 1."
            qtTrId("host_004")
                .arg(QFileInfo(fileName).fileName(), QStringLiteral(ZRK_EXPORT_IS_LIBRARY))
                .arg(answer));
        return false;
    }
    std::memset(&m_info, 0, sizeof m_info);
    m_getInfo(&m_info);
    // The texts are NUL-terminated by contract; a broken plug-in must not make us read past them.
    m_info.deviceType[sizeof m_info.deviceType - 1] = '\0';
    m_info.displayName[sizeof m_info.displayName - 1] = '\0';
    if (!m_info.handle) {
        fail(
            //% "«%1»: %2() не сообщила описатель модуля."
            qtTrId("host_005")
                .arg(QFileInfo(fileName).fileName(), QStringLiteral(ZRK_EXPORT_GET_LIBRARY_INFO)));
        return false;
    }
    return true;
}

void ZrkPluginLoader::initialize(ZRK_SendMessageFn callback)
{
    if (!m_initialize || m_initialized)
        return;
    m_initialize(callback);
    m_initialized = true;
}

void ZrkPluginLoader::unload()
{
    m_isLibrary = nullptr;
    m_getInfo = nullptr;
    m_initialize = nullptr;
    m_receive = nullptr;
    m_initialized = false;
    std::memset(&m_info, 0, sizeof m_info);
    if (m_library.isLoaded())
        m_library.unload();
}

void ZrkPluginLoader::send(int msg, unsigned long wParam, unsigned long lParam) const
{
    sendWithHandle(m_info.handle, msg, wParam, lParam);
}

void ZrkPluginLoader::sendWithHandle(void* handle, int msg, unsigned long wParam, unsigned long lParam) const
{
    if (m_receive)
        m_receive(handle, msg, wParam, lParam);
}
