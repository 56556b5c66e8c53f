#pragma once

// KML as people's tools write it: placemarks with points become zones, zones and routes go out as
// placemarks and lines.

#include "config_model/geo_data.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

// Refused before parsing.
constexpr qint64 kKmlMaxFileSize = 64 * 1024 * 1024;
// Deeper element nesting is refused: real files nest folders a handful of levels.
constexpr int kKmlMaxDepth = 64;

struct KmlPlacemark
{
    QString name;
    QString description;
    double lat = 0.0;
    double lon = 0.0;
    double alt = 0.0;
    int radius = 0; // from ExtendedData "radius" (our own writer's), 0 when absent
};

struct KmlReadResult
{
    QVector<KmlPlacemark> points; // placemarks with a Point (or none at all: taken as 0.0,0.0)
    int nonPoints = 0; // placemarks carrying only lines, polygons or other geometry
    QStringList nonPointNames;
    // Placemarks whose point could not be read (not numbers, fewer than two values, off the
    // globe): one Russian line each, naming the placemark and the reason. They give no point.
    QStringList badPlacemarks;
    // Set when the file is damaged past its start (not well-formed further on, nested too deep):
    // Russian, where and why; the placemarks before it are read.
    QString damage;
    QString error; // Russian; set when the file is not KML at all, and then nothing was read
    bool ok() const { return error.isEmpty(); }
};

// Reads placemarks from KML text, matching elements by local name (default namespace, "kml:" or
// any other prefix) anywhere under Document/Folder. Every placemark that can be read is; a point
// with values past the altitude takes the first two. Text that is not KML (empty, another root,
// not XML before the root) and any DTD or entity are refused with an error and no points.
KmlReadResult readKml(const QByteArray& text, const QString& name = QString());
KmlReadResult readKmlFile(const QString& path);

// The dialog's defaults for the three integers.
constexpr int kKmlDefaultSize = 100;
constexpr int kKmlDefaultAngle = 0;
inline int kmlDefaultGob()
{
    return coreAinfDefaults().getDefGeoOptions();
}

struct KmlImportResult
{
    QVector<coreGeoZone> zones; // new zones with their ids, to be appended to the list
    int nonPoints = 0;
    QStringList nonPointNames;
    QStringList badPlacemarks; // as KmlReadResult
    QString damage;
    QString error; // Russian; when set, zones is empty
    bool ok() const { return error.isEmpty(); }
};

// One zone per point placemark, as addGeoZone makes them: the first free id after the existing
// zones, outputs "0000000000000000"; size (radius, m), angle and gob are the dialog's three
// integers, except that a placemark carrying its own radius keeps it. Nothing is returned when the
// file fails or the zones would not fit in caps.
KmlImportResult importKml(const QString& path, int size, int angle, int gob,
    const QVector<coreGeoZone>& existing = {}, const ZRK_Ainf_Caps& caps = zrkAinfCaps());
KmlImportResult importKmlText(const QByteArray& text, const QString& name, int size, int angle, int gob,
    const QVector<coreGeoZone>& existing = {}, const ZRK_Ainf_Caps& caps = zrkAinfCaps());

// Zones as point placemarks (radius, angle, id in ExtendedData), routes as LineStrings through
// their stops' zones, in one Document. UTF-8.
QByteArray renderKml(const coreAinfData& data);
bool writeKml(const QString& path, const coreAinfData& data, QString* error = nullptr);
