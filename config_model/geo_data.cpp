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
        //% "Слишком много геозон: %1 (терминал хранит не более %2)."
        return qtTrId("geod_001").arg(data.zones.size()).arg(caps.maxZones);
    if (data.routes.size() > caps.maxRoutes)
        //% "Слишком много маршрутов: %1 (терминал хранит не более %2)."
        return qtTrId("geod_002").arg(data.routes.size()).arg(caps.maxRoutes);
    for (const coreGeoRoute& r : data.routes) {
        if (r.stops.size() > caps.maxStopsPerRoute)
            //% "В маршруте %1 остановок: %2 (не более %3 на маршрут)."
            return qtTrId("geod_003").arg(r.id).arg(r.stops.size()).arg(caps.maxStopsPerRoute);
    }
    if (data.speeds.size() > caps.maxSpeedZones)
        //% "Слишком много скоростных зон: %1 (терминал хранит не более %2)."
        return qtTrId("geod_004").arg(data.speeds.size()).arg(caps.maxSpeedZones);
    if (data.sounds.size() > caps.maxSounds)
        //% "Слишком много звуковых файлов: %1 (не более %2)."
        return qtTrId("geod_005").arg(data.sounds.size()).arg(caps.maxSounds);
    for (const coreGeoZone& z : data.zones) {
        if (z.id < 1 || z.id > caps.maxZoneId)
            //% "Геозона \"%1\": номер %2 вне диапазона 1..%3."
            return qtTrId("geod_006").arg(z.name).arg(z.id).arg(caps.maxZoneId);
        if (z.size < caps.minZoneSize || z.size > caps.maxZoneSize)
            //% "Геозона %1: радиус %2 м вне диапазона %3..%4 м."
            return qtTrId("geod_007").arg(z.id).arg(z.size).arg(caps.minZoneSize).arg(caps.maxZoneSize);
    }
    return QString();
}

QString checkAinfData(const coreAinfData& data)
{
    QSet<int> ids;
    ids.reserve(data.zones.size());
    for (const coreGeoZone& z : data.zones) {
        if (!std::isfinite(z.lat) || !std::isfinite(z.lon) || std::fabs(z.lat) > 90.0
            || std::fabs(z.lon) > 180.0)
            //% "Геозона %1: координаты %2, %3 вне земного шара."
            return qtTrId("geod_008").arg(z.id).arg(z.lat).arg(z.lon);
        if (ids.contains(z.id))
            //% "Номер геозоны %1 встречается дважды."
            return qtTrId("geod_009").arg(z.id);
        ids.insert(z.id);
    }
    for (const coreGeoRoute& r : data.routes) {
        for (const coreGeoStop& s : r.stops) {
            if (!ids.contains(s.zoneid))
                //% "Маршрут %1: остановка ссылается на несуществующую геозону %2."
                return qtTrId("geod_010").arg(r.id).arg(s.zoneid);
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
