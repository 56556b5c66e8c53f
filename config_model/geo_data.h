#pragma once

// Geo-information of the terminal: geo-zones, routes built from them, speed zones, the sound list
// and the defaults the editor proposes. Plain data, no widgets: the page, zrk-tool and the tests
// share it. The file forms are in geo_file.h and kml_reader.h.

#include <QString>
#include <QVector>

#include <cstdint>

// The outputs text of a new zone: one "0"/"1" per output of the terminal, none switched.
inline constexpr char kGeoZoneOutputsDefault[] = "0000000000000000";
constexpr int kGeoZoneOutputsLength = 16;

// Bits of a zone's own option set ("gob") and of the default geo options.
enum GeoOptionBit : int
{
    GeoOpt_EventOnEntry = 0, // the terminal records an event when the vehicle enters the zone
    GeoOpt_EventOnExit = 1, // ... and when it leaves it
    GeoOpt_SoundOnEntry = 2, // announcement on entry
    GeoOpt_SoundOnExit = 3, // announcement on exit
    GeoOpt_OutputsOnEntry = 4, // the zone's outputs text is applied on entry
    GeoOpt_SpeedControl = 5, // the zone's speed mode applies inside it
    GeoOpt_CheckAngle = 6, // the entry counts only when the heading matches "angle"
    GeoOpt_Disabled = 7, // kept in the list but not checked by the terminal
};

// Bits of a route's "flags" and of the default route options.
enum RouteOptionBit : int
{
    RouteOpt_Cyclic = 0, // after the last stop the route starts over
    RouteOpt_AnnounceNext = 1, // announce the next stop when leaving one
    RouteOpt_Reverse = 2, // the return trip runs the stops backwards
    RouteOpt_StrictOrder = 3, // stops must be passed in their order
    RouteOpt_SkipMissed = 4, // a missed stop is skipped rather than waited for
    RouteOpt_DeviationEvent = 5, // event when the vehicle leaves the route's zones
    RouteOpt_Reserved6 = 6,
    RouteOpt_Reserved7 = 7,
};

// Bits of the default speed-zone options.
enum SpeedOptionBit : int
{
    SpeedOpt_SoundOnLimit = 0, // "limitsnd" is played when the speed is exceeded
    SpeedOpt_SoundOnActive = 1, // "activesnd" is played when the zone becomes active
    SpeedOpt_BuzzerOnLimit = 2, // "limitbuzz" applies
    SpeedOpt_RepeatLimit = 3, // "limitrep" applies
    SpeedOpt_RepeatActive = 4, // "activerep" applies
    SpeedOpt_EventOnLimit = 5, // the terminal records an event on exceeding
    SpeedOpt_Reserved6 = 6,
    SpeedOpt_Reserved7 = 7,
};

// Stop "type" values.
enum GeoStopType : int
{
    GeoStop_Stop = 0, // an ordinary stop: announced, counted
    GeoStop_Waypoint = 1, // a zone the route passes without stopping
    GeoStop_Terminal = 2, // the first or last stop of the route
};

struct coreGeoZone
{
    int id = 0;
    QString name;
    double lat = 0.0; // degrees, WGS-84; written as text with six decimals
    double lon = 0.0;
    int size = 100; // radius, metres
    int angle = 0; // heading of entry, degrees 0..359 (checked only with GeoOpt_CheckAngle)
    int gob = 0; // the zone's option set, GeoOptionBit
    QString outputs = QString::fromLatin1(kGeoZoneOutputsDefault);
    QString spdmode = QStringLiteral("0"); // speed mode inside the zone, as the terminal takes it
};

struct coreGeoStop
{
    int type = GeoStop_Stop;
    int zoneid = 0; // a coreGeoZone id
    int number = 0;
    QString title;
    QString soundsids; // sound ids separated by ",", played at the stop
};

struct coreGeoRoute
{
    int id = 0;
    QString number; // the route's number as shown to passengers ("12", "12A")
    QString chr; // the route's letter (key "char")
    QString begin; // title of the first terminal
    QString end; // title of the last terminal
    int flags = 0; // RouteOptionBit
    int setsnd = 0; // sound set used for the announcements
    QVector<coreGeoStop> stops;
};

struct coreSpeedZone
{
    int id = 0;
    QString title;
    int speed = 60; // km/h
    int gap = 5; // km/h tolerated above the limit
    int limitsnd = 0; // sound id played when exceeding
    int activesnd = 0; // sound id played when the zone becomes active
    int limitrep = 0; // repeat period of the exceeding sound, s (0: once)
    int activerep = 0; // repeat period of the active sound, s (0: once)
    int delay = 0; // seconds above the limit before it counts
    int limitbuzz = 0; // buzzer: 0 off, 1 on while exceeding
};

struct coreGeoSound
{
    int id = 0;
    QString title; // file name on the card
};

// What the editor proposes for new records; written to the "Config" node of a full geo file and
// to the card's "GeoZones.cfg".
struct coreAinfDefaults
{
    // Default route parameters.
    QString routeNumber;
    QString routeChar;
    QString routeBegin;
    QString routeEnd;
    int routeSetSnd = 0;
    // Speed defaults.
    int speedmode = 0;

    // The three 8-bit option sets.
    int getDefGeoOptions() const { return geoOptions; }
    int getDefRouteOptions() const { return routeOptions; }
    int getDefSpeedsOptions() const { return speedsOptions; }
    void setDefGeoOptions(int v) { geoOptions = v & 0xFF; }
    void setDefRouteOptions(int v) { routeOptions = v & 0xFF; }
    void setDefSpeedsOptions(int v) { speedsOptions = v & 0xFF; }

    // Text forms: eight "0"/"1", bit 0 first. Parsing takes the first eight characters; a missing
    // character or anything but "1" is a clear bit.
    QString getDefGeoOptionsStr() const { return optionsToStr(geoOptions); }
    QString getDefRouteOptionsStr() const { return optionsToStr(routeOptions); }
    QString getDefSpeedsOptionsStr() const { return optionsToStr(speedsOptions); }
    void setDefGeoOptionsStr(const QString& s) { geoOptions = optionsFromStr(s); }
    void setDefRouteOptionsStr(const QString& s) { routeOptions = optionsFromStr(s); }
    void setDefSpeedsOptionsStr(const QString& s) { speedsOptions = optionsFromStr(s); }

    // The integer "options" of the files: route bits 0..7, speed bits 8..15, geo bits 16..23.
    int packedOptions() const;
    void setPackedOptions(int packed);
    // The text "options" of files before version 3: route, speed and geo sets, eight "0"/"1" each,
    // in that order; a shorter text leaves the rest clear (the old default "000000" clears all).
    QString packedOptionsStr() const;
    void setPackedOptionsStr(const QString& text);

    static QString optionsToStr(int bits);
    static int optionsFromStr(const QString& text);

    int geoOptions = (1 << GeoOpt_EventOnEntry) | (1 << GeoOpt_EventOnExit);
    int routeOptions = 1 << RouteOpt_AnnounceNext;
    int speedsOptions = (1 << SpeedOpt_SoundOnLimit) | (1 << SpeedOpt_EventOnLimit);
};

// Everything the geo file holds.
struct coreAinfData
{
    QVector<coreGeoSound> sounds;
    QVector<coreSpeedZone> speeds;
    QVector<coreGeoZone> zones;
    QVector<coreGeoRoute> routes;
    coreAinfDefaults defaults;
};

// A zone's radius, metres.
constexpr int kGeoZoneSizeMin = 10;
constexpr int kGeoZoneSizeMax = 100000;

// What this model keeps. The terminal's geo table holds 10,000 zones; routes, stops and speed
// zones live in smaller tables beside it.
struct ZRK_Ainf_Caps
{
    int maxZones = 10000;
    int maxRoutes = 100;
    int maxStopsPerRoute = 200;
    int maxSpeedZones = 100;
    int maxSounds = 500;
    int minZoneSize = kGeoZoneSizeMin;
    int maxZoneSize = kGeoZoneSizeMax;
    int maxZoneId = 65535; // ids travel to the terminal as 16-bit numbers
    int maxNameLength = 64; // characters of a zone name or a title
};

ZRK_Ainf_Caps zrkAinfCaps();

// The smallest positive id no zone in the list uses: 1 for an empty list, else the first gap
// (the list need not be sorted). 0 when every id up to maxZoneId is taken.
int getFirstFreeGeoZoneId(const QVector<coreGeoZone>& zones, int maxZoneId = zrkAinfCaps().maxZoneId);

// Appends a zone the way the page's "add" does: the first free id, outputs "0000000000000000",
// the zone's spdmode "0". The three integers are the radius (m), the heading of entry (degrees)
// and the zone's option set. Returns the new zone's id, or 0 when the list is full.
int addGeoZone(QVector<coreGeoZone>& zones, const QString& name, int size, int angle, int gob, double lat,
    double lon, const ZRK_Ainf_Caps& caps = zrkAinfCaps());

// The first limit on the number of records the data breaks, as a Russian message for the user;
// empty when it fits.
QString checkAinfLimits(const coreAinfData& data, const ZRK_Ainf_Caps& caps = zrkAinfCaps());

// The first record that makes no sense (a value outside the range its key allows, a coordinate off
// the globe, a duplicate zone id, a stop naming no zone), as a Russian message naming the record
// (a stop by its route and position); empty when all is well.
QString checkAinfData(const coreAinfData& data);

// Everything opening a geo file checks once it has been read: the limits, then the records. Saving
// and writing to the card run it too, so that what the page writes always opens again.
QString checkAinf(const coreAinfData& data, const ZRK_Ainf_Caps& caps = zrkAinfCaps());

// Coordinates as the files write them: six decimals, "." separator whatever the locale.
QString formatGeoCoordinate(double degrees);
// Reads "55.75", "55,75" or " 55.75 "; false for anything else.
bool parseGeoCoordinate(const QString& text, double* degrees);
