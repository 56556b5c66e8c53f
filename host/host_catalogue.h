#pragma once

#include <QString>

class QTranslator;

// Loads the host's own display texts ("ru" or "en"; anything else gives "ru") into the translator.
// The catalogue is embedded in the host; the caller installs the translator and keeps it alive.
bool zrkLoadHostCatalogue(QTranslator& translator, const QString& language);
