#include "host_catalogue.h"

#include <QTranslator>

// The resource lives in a static library: without a reference from here the linker drops it.
static void initHostCatalogueResources()
{
    Q_INIT_RESOURCE(zrk_host_translations);
}

bool zrkLoadHostCatalogue(QTranslator& translator, const QString& language)
{
    static const bool resourcesReady = (initHostCatalogueResources(), true);
    Q_UNUSED(resourcesReady);
    const QString lang = language == QLatin1String("en") ? QStringLiteral("en") : QStringLiteral("ru");
    return translator.load(QStringLiteral(":/zrk-host/i18n/zrk-host_%1.qm").arg(lang));
}
