#pragma once

#include "zrk/zrk_host_api.h"

#include <QLibrary>
#include <QString>

// Loads a device plug-in the way the configurator host does: the file, then the four exports by
// name, then IsZrkLibraryV, GetLibraryInfo and Initialize in that order. Says exactly why a file is
// not a plug-in of this family.
class ZrkPluginLoader
{
public:
    ZrkPluginLoader() = default;
    ~ZrkPluginLoader();
    ZrkPluginLoader(const ZrkPluginLoader&) = delete;
    ZrkPluginLoader& operator=(const ZrkPluginLoader&) = delete;

    // Loads the file and resolves the exports; identifies the library and reads its information
    // record. False with errorString() set when any step fails; nothing stays loaded then.
    bool load(const QString& fileName);
    // Hands the callback over (Initialize). Call once after load().
    void initialize(ZRK_SendMessageFn callback);
    // Unloads the library; the plug-in's windows and texts go with it.
    void unload();

    bool isLoaded() const { return m_receive != nullptr; }
    bool isInitialized() const { return m_initialized; }
    QString fileName() const { return m_library.fileName(); }
    QString errorString() const { return m_error; }
    const szLibraryInfo& info() const { return m_info; }
    void* handle() const { return m_info.handle; }

    // One host message, with the plug-in's own handle.
    void send(int msg, unsigned long wParam = 0, unsigned long lParam = 0) const;
    // One host message with any handle, as a host with several plug-ins might get wrong.
    void sendWithHandle(void* handle, int msg, unsigned long wParam, unsigned long lParam) const;

private:
    void fail(const QString& why);

    QLibrary m_library;
    ZRK_IsZrkLibraryVFn m_isLibrary = nullptr;
    ZRK_GetLibraryInfoFn m_getInfo = nullptr;
    ZRK_InitializeFn m_initialize = nullptr;
    ZRK_ReceiveMessageFn m_receive = nullptr;
    szLibraryInfo m_info {};
    bool m_initialized = false;
    QString m_error;
};
