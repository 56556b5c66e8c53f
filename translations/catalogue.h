#pragma once

#include <QString>

// The plug-in's display texts: id-based catalogues embedded in the library, Russian by default.
namespace zrk {

// Installs the catalogue of the language ("ru" or "en"; anything else falls back to "ru") into the
// running application, replacing the one installed before. False when there is no application.
bool installCatalogue(const QString& language);

// Removes our catalogue from the application; called before the library goes away, since the
// translator's data lives in the library's resources.
void removeCatalogue();

// The language of the installed catalogue, empty when none is installed.
QString installedCatalogueLanguage();

} // namespace zrk
