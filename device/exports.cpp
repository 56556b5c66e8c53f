// The four exports of the plug-in, each handing off to the one device object. Everything else in
// the library is hidden.
#include "config_model/app_settings.h"
#include "device/zrk_device_k7140.h"
#include "translations/catalogue.h"

#include "zrk/zrk_host_api.h"

#include <QCoreApplication>

namespace {

// The catalogue goes in with the first export call that finds an application, and out again
// when the library is unloaded, since its data lives in the library.
struct CatalogueGuard
{
    bool installed = false;
    void ensure()
    {
        if (!installed && QCoreApplication::instance())
            installed = zrk::installCatalogue(programLanguage());
    }
    ~CatalogueGuard()
    {
        if (installed)
            zrk::removeCatalogue();
    }
};

CatalogueGuard catalogue;

} // namespace

ZRK_Device_K7140 deviceLib(QStringLiteral("K-7140"), 3, 5, 8, 1, nullptr);

extern "C" ZRK_PLUGIN_EXPORT int IsZrkLibraryV()
{
    catalogue.ensure();
    return 1;
}

extern "C" ZRK_PLUGIN_EXPORT void GetLibraryInfo(szLibraryInfo* info)
{
    catalogue.ensure();
    deviceLib.getModuleInfo(info);
}

extern "C" ZRK_PLUGIN_EXPORT void Initialize(ZRK_SendMessageFn send)
{
    catalogue.ensure();
    deviceLib.InitConfigurator(send);
}

extern "C" ZRK_PLUGIN_EXPORT void ReceiveMessage(void* handle, int msg, unsigned long wParam, unsigned long lParam)
{
    catalogue.ensure();
    deviceLib.ZRK_ReceiveMessage(handle, msg, wParam, lParam);
}
