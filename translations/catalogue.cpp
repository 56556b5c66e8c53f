#include "translations/catalogue.h"

#include <QCoreApplication>
#include <QTranslator>

static void initCatalogueResources()
{
    Q_INIT_RESOURCE(zrk_translations);
}

namespace zrk {
namespace {

// A plain pointer, owned here and not by the application: it has no destructor of its own, so
// removeCatalogue() is safe from any static destructor of the library, in whatever order the
// statics were made, and nothing is left behind when the library is unloaded.
QTranslator* g_translator = nullptr;

} // namespace

bool installCatalogue(const QString& language)
{
    if (!QCoreApplication::instance())
        return false;
    static const bool resourcesReady = (initCatalogueResources(), true);
    Q_UNUSED(resourcesReady);
    const QString lang = language == QLatin1String("en") ? QStringLiteral("en") : QStringLiteral("ru");
    auto* translator = new QTranslator;
    if (!translator->load(QStringLiteral(":/zrk/i18n/zrk_%1.qm").arg(lang))) {
        delete translator;
        return false;
    }
    translator->setObjectName(lang);
    removeCatalogue();
    QCoreApplication::installTranslator(translator);
    g_translator = translator;
    return true;
}

void removeCatalogue()
{
    if (!g_translator)
        return;
    QCoreApplication::removeTranslator(g_translator);
    delete g_translator;
    g_translator = nullptr;
}

QString installedCatalogueLanguage()
{
    return g_translator ? g_translator->objectName() : QString();
}

} // namespace zrk
