#include "config_model/app_settings.h"

#include "zrk/zrk_host_api.h"

#include <QSettings>
#include <QStandardPaths>

namespace {
const char kLanguageKey[] = ZRK_SETTINGS_LANGUAGE_KEY;
}

QString appDataDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString programLanguage()
{
    const QString language = QSettings().value(QLatin1String(kLanguageKey)).toString();
    return language == QLatin1String("en") ? language : QStringLiteral("ru");
}

void setProgramLanguage(const QString& language)
{
    QSettings().setValue(QLatin1String(kLanguageKey),
        language == QLatin1String("en") ? QStringLiteral("en") : QStringLiteral("ru"));
}

namespace {
const char kReviewKey[] = "zrk_k7140/reviewBeforeWrite";
}

bool reviewBeforeWrite()
{
    return QSettings().value(QLatin1String(kReviewKey), true).toBool();
}

void setReviewBeforeWrite(bool review)
{
    QSettings().setValue(QLatin1String(kReviewKey), review);
}
