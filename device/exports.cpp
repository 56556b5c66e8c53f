// The four exports of the plug-in, each handing off to the one device object. Everything else in
// the library is hidden.
#include "config_model/app_settings.h"
#include "device/zrk_device_k7140.h"
#include "translations/catalogue.h"

#include "zrk/zrk_host_api.h"

#include <QCoreApplication>

namespace {

// Takes the catalogue out again when the library is unloaded, since its data lives in the library.
struct CatalogueRemover
{
    ~CatalogueRemover() { zrk::removeCatalogue(); }
};

// The catalogue goes in with the first export call that finds an application.
void ensureCatalogue()
{
    static bool installed = false;
    if (installed || !QCoreApplication::instance())
        return;
    installed = zrk::installCatalogue(programLanguage());
    if (installed) {
        // Made after the catalogue's own statics, so it is destroyed before them.
        static const CatalogueRemover remover;
        Q_UNUSED(remover);
    }
}

} // namespace

ZRK_Device_K7140 deviceLib(QStringLiteral("K-7140"), 3, 5, 8, 1, nullptr);

extern "C" ZRK_PLUGIN_EXPORT int IsZrkLibraryV()
{
    ensureCatalogue();
    return 1;
}

extern "C" ZRK_PLUGIN_EXPORT void GetLibraryInfo(szLibraryInfo* info)
{
    ensureCatalogue();
    deviceLib.getModuleInfo(info);
}

extern "C" ZRK_PLUGIN_EXPORT void Initialize(ZRK_SendMessageFn send)
{
    ensureCatalogue();
    deviceLib.InitConfigurator(send);
}

extern "C" ZRK_PLUGIN_EXPORT void ReceiveMessage(
    void* handle, int msg, unsigned long wParam, unsigned long lParam)
{
    ensureCatalogue();
    deviceLib.ZRK_ReceiveMessage(handle, msg, wParam, lParam);
}
