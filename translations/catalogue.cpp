#include "translations/catalogue.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

static void initCatalogueResources()
{
    Q_INIT_RESOURCE(zrk_translations);
}

namespace zrk {
namespace {

// Both live until the process ends (never destroyed), so that removeCatalogue() is safe from any
// static destructor of the library, whatever order the statics were made in.
QPointer<QTranslator>& translatorSlot()
{
    static auto* translator = new QPointer<QTranslator>;
    return *translator;
}

QString& languageSlot()
{
    static auto* language = new QString;
    return *language;
}

} // namespace

bool installCatalogue(const QString& language)
{
    if (!QCoreApplication::instance())
        return false;
    static const bool resourcesReady = (initCatalogueResources(), true);
    Q_UNUSED(resourcesReady);
    const QString lang = language == QLatin1String("en") ? QStringLiteral("en") : QStringLiteral("ru");
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(QStringLiteral(":/zrk/i18n/zrk_%1.qm").arg(lang))) {
        delete translator;
        return false;
    }
    removeCatalogue();
    QCoreApplication::installTranslator(translator);
    translatorSlot() = translator;
    languageSlot() = lang;
    return true;
}

void removeCatalogue()
{
    if (QTranslator* old = translatorSlot().data()) {
        QCoreApplication::removeTranslator(old);
        delete old;
    }
    translatorSlot() = nullptr;
    languageSlot().clear();
}

QString installedCatalogueLanguage()
{
    return languageSlot();
}

} // namespace zrk
