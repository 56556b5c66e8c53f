#pragma once

// The geo-information file (root "AINF", the node tree of the configuration file) and the card's
// "GeoZones.cfg". One reader and one writer for the page and zrk-tool.

#include "config_model/geo_data.h"

#include <QByteArray>
#include <QString>

// Version written to "ver" of the geo file and "version" of GeoZones.cfg.
constexpr int kGeoFileVersion = 3;
// Up to this version "options" is a text of "0"/"1"; from it on an integer.
constexpr int kGeoFileIntegerOptionsVersion = 3;
// Geo files larger than this are refused before parsing (10,000 zones take about 2 MB).
constexpr qint64 kGeoFileMaxSize = 32 * 1024 * 1024;

// The name of the configuration file on the terminal's card.
inline constexpr char kGeoCardConfigName[] = "GeoZones.cfg";

enum class GeoFileFormat
{
    Unknown, // neither marker: nothing is read
    Old, // "<PARAMAINF>": recognised, not read
    New, // "<AINF"
};

// Which format a file's text is in, by the markers the reader looks for.
GeoFileFormat detectGeoFileFormat(const QByteArray& text);

// Writes the whole file or nothing: "AINF" "ver"=3, "Zones", "Routes" with "Stop" children and
// "Speeds"; "Sounds" and "Config" only when full. false and *error (Russian, names the file) when
// the file cannot be written.
bool writeFileParamGeo(const QString& path, const coreAinfData& data, bool full, QString* error = nullptr);

// The file's text, as writeFileParamGeo would write it.
QByteArray renderFileParamGeo(const coreAinfData& data, bool full);

struct GeoFileReadInfo
{
    GeoFileFormat format = GeoFileFormat::Unknown;
    int version = 0; // "ver" of a new-format file
    bool hasConfig = false; // the file carried "Config" (so *data's defaults were replaced)
    bool hasSounds = false; // the file carried "Sounds"
    // A file with either section is a full one: writing it again keeps them.
    bool isFull() const { return hasConfig || hasSounds; }
};

// Reads a geo file into *data. On any failure (missing, too large, old format, not XML, unknown
// format, version newer than ours, a record that makes no sense, a limit of zrkAinfCaps broken)
// returns false with a Russian *error naming the file and the reason, and leaves *data as it was.
// Defaults are replaced only when the file has "Config"; the lists always are.
bool readFileParamGeo(
    const QString& path, coreAinfData* data, QString* error = nullptr, GeoFileReadInfo* info = nullptr);
// The same on text in memory; name is used in messages.
bool readFileParamGeoText(const QByteArray& text, const QString& name, coreAinfData* data,
    QString* error = nullptr, GeoFileReadInfo* info = nullptr);

// Where the card files are prepared: appDataDirectory() + "/Localization/Temp".
QString geoTempDirectory();

// Text of the card's "GeoZones.cfg": root "AINF" with integer "version", node "Config" with the
// defaults and "options".
QByteArray renderFileCFG(const coreAinfDefaults& defaults);

// Writes "GeoZones.cfg" into dir (default geoTempDirectory()), preparing it in the temporary list
// file "<dir>/write.lst", which is deleted whatever happens. Returns the file's path, or empty with
// *error.
QString createFileCFG(
    const coreAinfDefaults& defaults, QString* error = nullptr, const QString& dir = QString());
