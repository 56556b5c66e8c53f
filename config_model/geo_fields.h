#pragma once

// The geo file's records declared once, as config_keys declares the configuration's keys: for each
// kind of record where its list lives and, key by key, the member it fills, its type, the values a
// file may carry and its name in a KML placemark. The geo file's reader and writer, the checks run
// before opening, saving and writing to the card, zrk-tool's messages, the speed table's columns
// and the KML writer all walk these rows.

#include "config_model/geo_data.h"

#include <QString>

#include <cstddef>

enum class GeoKeyType
{
    Integer, // "%d"; a value outside min..max makes the record wrong
    Text, // any text
    Coordinate, // degrees as text with six decimals; -limit..limit
};

template <typename Record> struct GeoKey
{
    const char* key;
    GeoKeyType type;
    int Record::*integer;
    QString Record::*text;
    double Record::*coordinate;
    int min; // Integer, Coordinate: the values a file may carry
    int max;
    const char* kml; // the name in a KML placemark's ExtendedData, or null
};

template <typename R>
constexpr GeoKey<R> geoInt(const char* key, int R::*m, int min, int max, const char* kml = nullptr)
{
    return { key, GeoKeyType::Integer, m, nullptr, nullptr, min, max, kml };
}
template <typename R> constexpr GeoKey<R> geoText(const char* key, QString R::*m)
{
    return { key, GeoKeyType::Text, nullptr, m, nullptr, 0, 0, nullptr };
}
template <typename R> constexpr GeoKey<R> geoCoordinate(const char* key, double R::*m, int limit)
{
    return { key, GeoKeyType::Coordinate, nullptr, nullptr, m, -limit, limit, nullptr };
}

// One kind of record: its nodes, how a message names one record, and how many the terminal keeps.
struct GeoRecordKind
{
    const char* list; // the list node under "AINF" with its "count" ("Zones"); null for stops
    const char* record; // one record's node ("Zone")
    const char* nameId; // catalogue id: one record in a message, %1 its number ("Геозона %1")
    int ZRK_Ainf_Caps::*limit; // how many the terminal keeps (a route's stops: per route)
    const char* tooManyId; // catalogue id of the message past the limit: %1 how many, %2 the limit
    const char* toolName; // what zrk-tool geo check calls the list
};

constexpr int kGeoIdMax = 65535; // ids and sound numbers travel to the terminal as 16-bit numbers
constexpr int kGeoByteMax = 255; // option sets, sound sets

// ---- geo-zones
inline constexpr GeoKey<coreGeoZone> kGeoZoneKeys[] = {
    geoInt("id", &coreGeoZone::id, 1, kGeoIdMax, "id"),
    geoText("name", &coreGeoZone::name),
    geoCoordinate("lat", &coreGeoZone::lat, 90),
    geoCoordinate("lon", &coreGeoZone::lon, 180),
    geoInt("size", &coreGeoZone::size, kGeoZoneSizeMin, kGeoZoneSizeMax, "radius"),
    geoInt("angle", &coreGeoZone::angle, 0, 359, "angle"),
    geoInt("gob", &coreGeoZone::gob, 0, kGeoByteMax, "gob"),
    geoText("outputs", &coreGeoZone::outputs),
    geoText("spdmode", &coreGeoZone::spdmode),
};
inline constexpr GeoRecordKind kGeoZoneKind = { "Zones", "Zone",
    //% "Геозона %1"
    QT_TRID_NOOP("geod_060"), &ZRK_Ainf_Caps::maxZones,
    //% "Слишком много геозон: %1 (терминал хранит не более %2)."
    QT_TRID_NOOP("geod_001"), "zones" };

// ---- routes and their stops
inline constexpr GeoKey<coreGeoRoute> kGeoRouteKeys[] = {
    geoInt("id", &coreGeoRoute::id, 1, kGeoIdMax),
    geoText("number", &coreGeoRoute::number),
    geoText("char", &coreGeoRoute::chr),
    geoText("begin", &coreGeoRoute::begin),
    geoText("end", &coreGeoRoute::end),
    geoInt("flags", &coreGeoRoute::flags, 0, kGeoByteMax),
    geoInt("setsnd", &coreGeoRoute::setsnd, 0, kGeoByteMax),
};
inline constexpr GeoRecordKind kGeoRouteKind = { "Routes", "Route",
    //% "Маршрут %1"
    QT_TRID_NOOP("geod_061"), &ZRK_Ainf_Caps::maxRoutes,
    //% "Слишком много маршрутов: %1 (терминал хранит не более %2)."
    QT_TRID_NOOP("geod_002"), "routes" };
// The route's key with the number of its "Stop" children.
constexpr char kGeoRouteStopCountKey[] = "countStop";

inline constexpr GeoKey<coreGeoStop> kGeoStopKeys[] = {
    geoInt("type", &coreGeoStop::type, GeoStop_Stop, GeoStop_Terminal),
    geoInt("zoneid", &coreGeoStop::zoneid, 1, kGeoIdMax),
    geoInt("number", &coreGeoStop::number, 0, kGeoIdMax),
    geoText("title", &coreGeoStop::title),
    geoText("soundsids", &coreGeoStop::soundsids),
};
inline constexpr GeoRecordKind kGeoStopKind = { nullptr, "Stop",
    //% "Маршрут %1, остановка %2"
    QT_TRID_NOOP("geod_062"), &ZRK_Ainf_Caps::maxStopsPerRoute,
    //% "В маршруте %3 остановок: %1 (не более %2 на маршрут)."
    QT_TRID_NOOP("geod_066"), "stops" };

// ---- speed zones
inline constexpr GeoKey<coreSpeedZone> kGeoSpeedKeys[] = {
    geoInt("id", &coreSpeedZone::id, 1, kGeoIdMax),
    geoText("title", &coreSpeedZone::title),
    geoInt("speed", &coreSpeedZone::speed, 0, kGeoIdMax),
    geoInt("gap", &coreSpeedZone::gap, 0, kGeoIdMax),
    geoInt("limitsnd", &coreSpeedZone::limitsnd, 0, kGeoIdMax),
    geoInt("activesnd", &coreSpeedZone::activesnd, 0, kGeoIdMax),
    geoInt("limitrep", &coreSpeedZone::limitrep, 0, kGeoIdMax),
    geoInt("activerep", &coreSpeedZone::activerep, 0, kGeoIdMax),
    geoInt("delay", &coreSpeedZone::delay, 0, kGeoIdMax),
    geoInt("limitbuzz", &coreSpeedZone::limitbuzz, 0, kGeoIdMax),
};
inline constexpr GeoRecordKind kGeoSpeedKind = { "Speeds", "Speed",
    //% "Скоростная зона %1"
    QT_TRID_NOOP("geod_063"), &ZRK_Ainf_Caps::maxSpeedZones,
    //% "Слишком много скоростных зон: %1 (терминал хранит не более %2)."
    QT_TRID_NOOP("geod_004"), "speed zones" };

// ---- sound files (full files only)
inline constexpr GeoKey<coreGeoSound> kGeoSoundKeys[] = {
    geoInt("id", &coreGeoSound::id, 1, kGeoIdMax),
    geoText("title", &coreGeoSound::title),
};
inline constexpr GeoRecordKind kGeoSoundKind = { "Sounds", "File",
    //% "Звуковой файл %1"
    QT_TRID_NOOP("geod_064"), &ZRK_Ainf_Caps::maxSounds,
    //% "Слишком много звуковых файлов: %1 (не более %2)."
    QT_TRID_NOOP("geod_005"), "sounds" };

// ---- "Config": the defaults of new records (full files and the card's GeoZones.cfg). Its
// "options" is no row: an integer from version 3 on, a text of "0"/"1" before (geo_file.cpp).
inline constexpr GeoKey<coreAinfDefaults> kGeoConfigKeys[] = {
    geoText("number", &coreAinfDefaults::routeNumber),
    geoText("char", &coreAinfDefaults::routeChar),
    geoText("begin", &coreAinfDefaults::routeBegin),
    geoText("end", &coreAinfDefaults::routeEnd),
    geoInt("setsnd", &coreAinfDefaults::routeSetSnd, 0, kGeoByteMax),
    geoInt("speedmode", &coreAinfDefaults::speedmode, 0, kGeoByteMax),
};
constexpr char kGeoConfigNode[] = "Config";
constexpr char kGeoOptionsKey[] = "options";
constexpr char kGeoCountKey[] = "count";

// The row of a key, or null.
template <typename R, std::size_t N> const GeoKey<R>* findGeoKey(const GeoKey<R> (&keys)[N], const char* key)
{
    for (const GeoKey<R>& k : keys) {
        if (qstrcmp(k.key, key) == 0)
            return &k;
    }
    return nullptr;
}

// How a message names one record: the kind's name with its number (a stop: route id and position).
QString geoRecordName(const GeoRecordKind& kind, int number, int second = 0);

// The first value of the record outside its row's range, as a Russian message beginning with
// who; empty when every value fits.
template <typename R, std::size_t N>
QString checkGeoRecord(const R& record, const GeoKey<R> (&keys)[N], const QString& who);

// The message for a value outside its range (shared by every kind).
QString geoRangeMessage(const QString& who, const char* key, const QString& value, int min, int max);

template <typename R, std::size_t N>
QString checkGeoRecord(const R& record, const GeoKey<R> (&keys)[N], const QString& who)
{
    for (const GeoKey<R>& k : keys) {
        if (k.type == GeoKeyType::Integer) {
            const int v = record.*k.integer;
            if (v < k.min || v > k.max)
                return geoRangeMessage(who, k.key, QString::number(v), k.min, k.max);
        } else if (k.type == GeoKeyType::Coordinate) {
            const double v = record.*k.coordinate;
            if (!(v >= k.min && v <= k.max)) // NaN fails too
                return geoRangeMessage(who, k.key, QString::number(v), k.min, k.max);
        }
    }
    return QString();
}
