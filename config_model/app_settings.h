#pragma once

#include <QString>

// Settings of the plug-in that live with the host application rather than in a configuration.

// The host application's writable data directory; the plug-in's data folders default below it.
QString appDataDirectory();

// The user-interface language, "ru" (the default) or "en", kept in the application's settings.
QString programLanguage();
void setProgramLanguage(const QString& language);

// Whether "write to the terminal" first shows what will change there (on unless the user turned
// it off).
bool reviewBeforeWrite();
void setReviewBeforeWrite(bool review);
