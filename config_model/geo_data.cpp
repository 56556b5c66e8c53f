#include "config_model/geo_data.h"

#include "config_model/geo_fields.h"

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
    const auto tooMany = [&caps](const GeoRecordKind& kind, int count) {
        const int limit = caps.*kind.limit;
        return count > limit ? qtTrId(kind.tooManyId).arg(count).arg(limit) : QString();
    };
    QString problem = tooMany(kGeoZoneKind, data.zones.size());
    if (problem.isEmpty())
        problem = tooMany(kGeoRouteKind, data.routes.size());
    for (int i = 0; problem.isEmpty() && i < data.routes.size(); ++i) {
        problem = tooMany(kGeoStopKind, data.routes.at(i).stops.size());
        if (!problem.isEmpty())
            problem = problem.arg(data.routes.at(i).id); // the stops' message names its route third
    }
    if (problem.isEmpty())
        problem = tooMany(kGeoSpeedKind, data.speeds.size());
    if (problem.isEmpty())
        problem = tooMany(kGeoSoundKind, data.sounds.size());
    return problem;
}

namespace {

// Each record of a list against its kind's rows.
template <typename R, std::size_t N>
QString checkList(const QVector<R>& list, const GeoKey<R> (&keys)[N], const GeoRecordKind& kind)
{
    for (const R& r : list) {
        const QString problem = checkGeoRecord(r, keys, geoRecordName(kind, r.id));
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

} // namespace

QString checkAinfData(const coreAinfData& data)
{
    QString problem = checkList(data.zones, kGeoZoneKeys, kGeoZoneKind);
    if (!problem.isEmpty())
        return problem;
    QSet<int> ids;
    ids.reserve(data.zones.size());
    for (const coreGeoZone& z : data.zones) {
        if (ids.contains(z.id))
            //% "Номер геозоны %1 встречается дважды."
            return qtTrId("geod_009").arg(z.id);
        ids.insert(z.id);
    }
    problem = checkList(data.routes, kGeoRouteKeys, kGeoRouteKind);
    for (int i = 0; problem.isEmpty() && i < data.routes.size(); ++i) {
        const coreGeoRoute& r = data.routes.at(i);
        for (int n = 0; problem.isEmpty() && n < r.stops.size(); ++n) {
            const QString who = geoRecordName(kGeoStopKind, r.id, n + 1);
            problem = checkGeoRecord(r.stops.at(n), kGeoStopKeys, who);
            if (problem.isEmpty() && !ids.contains(r.stops.at(n).zoneid))
                //% "%1 ссылается на несуществующую геозону %2."
                problem = qtTrId("geod_065").arg(who).arg(r.stops.at(n).zoneid);
        }
    }
    if (problem.isEmpty())
        problem = checkList(data.speeds, kGeoSpeedKeys, kGeoSpeedKind);
    if (problem.isEmpty())
        problem = checkList(data.sounds, kGeoSoundKeys, kGeoSoundKind);
    return problem;
}

QString checkAinf(const coreAinfData& data, const ZRK_Ainf_Caps& caps)
{
    const QString limits = checkAinfLimits(data, caps);
    return limits.isEmpty() ? checkAinfData(data) : limits;
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
