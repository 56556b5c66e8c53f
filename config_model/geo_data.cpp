#include "config_model/geo_data.h"

#include <QLocale>
#include <QSet>

#include <cmath>

int coreAinfDefaults::packedOptions() const
{
    return (routeOptions & 0xFF) | ((speedsOptions & 0xFF) << 8) | ((geoOptions & 0xFF) << 16);
}

void coreAinfDefaults::setPackedOptions(int packed)
{
    setDefRouteOptions(packed);
    setDefSpeedsOptions(packed >> 8);
    setDefGeoOptions(packed >> 16);
}

QString coreAinfDefaults::packedOptionsStr() const
{
    return getDefRouteOptionsStr() + getDefSpeedsOptionsStr() + getDefGeoOptionsStr();
}

void coreAinfDefaults::setPackedOptionsStr(const QString& text)
{
    setDefRouteOptionsStr(text.mid(0, 8));
    setDefSpeedsOptionsStr(text.mid(8, 8));
    setDefGeoOptionsStr(text.mid(16, 8));
}

QString coreAinfDefaults::optionsToStr(int bits)
{
    QString s(8, QLatin1Char('0'));
    for (int i = 0; i < 8; ++i) {
        if (bits & (1 << i))
            s[i] = QLatin1Char('1');
    }
    return s;
}

int coreAinfDefaults::optionsFromStr(const QString& text)
{
    int bits = 0;
    for (int i = 0; i < 8 && i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('1'))
            bits |= 1 << i;
    }
    return bits;
}

ZRK_Ainf_Caps zrkAinfCaps()
{
    return ZRK_Ainf_Caps();
}

int getFirstFreeGeoZoneId(const QVector<coreGeoZone>& zones, int maxZoneId)
{
    // A bitmap over the ids that can matter: with n zones the answer is at most n + 1.
    const int limit = qMin(zones.size() + 1, maxZoneId);
    QVector<bool> used(limit + 1, false);
    for (const coreGeoZone& z : zones) {
        if (z.id >= 1 && z.id <= limit)
            used[z.id] = true;
    }
    for (int id = 1; id <= limit; ++id) {
        if (!used[id])
            return id;
    }
    return 0;
}

int addGeoZone(QVector<coreGeoZone>& zones, const QString& name, int size, int angle, int gob, double lat,
               double lon, const ZRK_Ainf_Caps& caps)
{
    if (zones.size() >= caps.maxZones)
        return 0;
    const int id = getFirstFreeGeoZoneId(zones, caps.maxZoneId);
    if (id == 0)
        return 0;
    coreGeoZone z;
    z.id = id;
    z.name = name;
    z.lat = lat;
    z.lon = lon;
    z.size = size;
    z.angle = angle;
    z.gob = gob & 0xFF;
    zones.append(z);
    return id;
}

QString checkAinfLimits(const coreAinfData& data, const ZRK_Ainf_Caps& caps)
{
    if (data.zones.size() > caps.maxZones)
        //% "Too many geo-zones: %1 (this terminal keeps at most %2)."
        return qtTrId("ainf_001").arg(data.zones.size()).arg(caps.maxZones);
    if (data.routes.size() > caps.maxRoutes)
        //% "Too many routes: %1 (this terminal keeps at most %2)."
        return qtTrId("ainf_002").arg(data.routes.size()).arg(caps.maxRoutes);
    for (const coreGeoRoute& r : data.routes) {
        if (r.stops.size() > caps.maxStopsPerRoute)
            //% "Route %1 has %2 stops (at most %3 per route)."
            return qtTrId("ainf_003").arg(r.id).arg(r.stops.size()).arg(caps.maxStopsPerRoute);
    }
    if (data.speeds.size() > caps.maxSpeedZones)
        //% "Too many speed zones: %1 (this terminal keeps at most %2)."
        return qtTrId("ainf_004").arg(data.speeds.size()).arg(caps.maxSpeedZones);
    if (data.sounds.size() > caps.maxSounds)
        //% "Too many sound files: %1 (at most %2)."
        return qtTrId("ainf_005").arg(data.sounds.size()).arg(caps.maxSounds);
    for (const coreGeoZone& z : data.zones) {
        if (z.id < 1 || z.id > caps.maxZoneId)
            //% "Geo-zone \"%1\": id %2 is outside 1..%3."
            return qtTrId("ainf_006").arg(z.name).arg(z.id).arg(caps.maxZoneId);
        if (z.size < caps.minZoneSize || z.size > caps.maxZoneSize)
            //% "Geo-zone %1: radius %2 m is outside %3..%4 m."
            return qtTrId("ainf_007").arg(z.id).arg(z.size).arg(caps.minZoneSize).arg(caps.maxZoneSize);
    }
    return QString();
}

QString checkAinfData(const coreAinfData& data)
{
    QSet<int> ids;
    ids.reserve(data.zones.size());
    for (const coreGeoZone& z : data.zones) {
        if (!std::isfinite(z.lat) || !std::isfinite(z.lon) || std::fabs(z.lat) > 90.0 || std::fabs(z.lon) > 180.0)
            //% "Geo-zone %1: coordinates %2, %3 are off the globe."
            return qtTrId("ainf_008").arg(z.id).arg(z.lat).arg(z.lon);
        if (ids.contains(z.id))
            //% "Geo-zone id %1 is used twice."
            return qtTrId("ainf_009").arg(z.id);
        ids.insert(z.id);
    }
    for (const coreGeoRoute& r : data.routes) {
        for (const coreGeoStop& s : r.stops) {
            if (!ids.contains(s.zoneid))
                //% "Route %1: a stop refers to geo-zone %2, which does not exist."
                return qtTrId("ainf_010").arg(r.id).arg(s.zoneid);
        }
    }
    return QString();
}

QString formatGeoCoordinate(double degrees)
{
    return QString::number(degrees, 'f', 6);
}

bool parseGeoCoordinate(const QString& text, double* degrees)
{
    QString t = text.trimmed();
    t.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double v = QLocale::c().toDouble(t, &ok);
    if (!ok || !std::isfinite(v))
        return false;
    if (degrees)
        *degrees = v;
    return true;
}
