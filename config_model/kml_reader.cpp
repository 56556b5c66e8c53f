#include "config_model/kml_reader.h"

#include "config_model/common_routines.h"
#include "config_model/geo_fields.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

const char kKmlNamespace[] = "http://www.opengis.net/kml/2.2";
// A placemark of our own writer keeps the zone's radius in its ExtendedData, under this name.
const char* const kRadiusKey = findGeoKey(kGeoZoneKeys, "size")->kml;

// Geometry that cannot become a zone; a placemark with only these is counted, not imported.
bool isOtherGeometry(QStringView local)
{
    static const char* const kinds[]
        = { "LineString", "LinearRing", "Polygon", "Model", "Track", "MultiTrack" };
    for (const char* k : kinds) {
        if (local == QLatin1String(k))
            return true;
    }
    return false;
}

// "lon,lat[,alt[,...]]": the first tuple of the text, white space allowed anywhere around the
// commas; values past the altitude are not ours to read. Empty when the point was read, else why not.
QString parseCoordinates(const QString& text, KmlPlacemark* p)
{
    static const QRegularExpression aroundCommas(QStringLiteral("\\s*,\\s*"));
    static const QRegularExpression space(QStringLiteral("\\s"));
    QString t = text.trimmed();
    if (t.isEmpty())
        return QString(); // an empty point is taken as 0.0,0.0
    t.replace(aroundCommas, QStringLiteral(","));
    const int end = t.indexOf(space);
    const QStringList parts = (end < 0 ? t : t.left(end)).split(QLatin1Char(','));
    if (parts.size() < 2)
        //% "нужны долгота и широта через запятую"
        return qtTrId("geod_069");
    bool okLon = false, okLat = false, okAlt = false;
    const QLocale c = QLocale::c();
    const double lon = c.toDouble(parts[0], &okLon);
    const double lat = c.toDouble(parts[1], &okLat);
    const double alt = parts.size() > 2 ? c.toDouble(parts[2], &okAlt) : 0.0;
    if (!okLon || !okLat || !std::isfinite(lat) || !std::isfinite(lon))
        //% "долгота или широта не число"
        return qtTrId("geod_070");
    if (std::fabs(lat) > 90.0 || std::fabs(lon) > 180.0)
        //% "широта вне -90..90 или долгота вне -180..180"
        return qtTrId("geod_071");
    p->lon = lon;
    p->lat = lat;
    p->alt = okAlt && std::isfinite(alt) ? alt : 0.0;
    return QString();
}

QString kmlFailure(const QString& name, const QString& reason)
{
    //% "Не удалось прочитать файл KML \"%1\": %2."
    return qtTrId("geod_040").arg(name, reason);
}

} // namespace

KmlReadResult readKml(const QByteArray& text, const QString& name)
{
    KmlReadResult result;
    bool sawRoot = false;
    auto fail = [&](const QString& reason) {
        result = KmlReadResult();
        result.error = kmlFailure(name, reason);
        return result;
    };
    // A damaged file keeps the placemarks read before the damage; only a file that is not KML at
    // all (or declares entities) is refused whole.
    auto damaged = [&](const QString& reason) {
        if (!sawRoot)
            return fail(reason);
        //% "файл повреждён (%1); метки после этого места не прочитаны"
        result.damage = qtTrId("geod_072").arg(reason);
        return result;
    };
    if (text.size() > kKmlMaxFileSize)
        //% "файл больше %1 МБ"
        return fail(qtTrId("geod_041").arg(kKmlMaxFileSize / (1024 * 1024)));

    if (text.trimmed().isEmpty())
        return fail(qtTrId("geod_047"));

    QXmlStreamReader xml(text);
    int depth = 0;
    // The placemark being read: its depth, and what geometry it carried.
    int placemarkDepth = 0;
    KmlPlacemark pm;
    bool hasPoint = false, hasOther = false, inPoint = false;
    QString badPoint; // why the placemark's point could not be read
    int pointDepth = 0;
    QString dataName; // the "name" attribute of the ExtendedData item being read

    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::DTD || token == QXmlStreamReader::EntityReference)
            // Entity declarations are how a small file grows into a huge one; KML needs none.
            //% "файл объявляет DTD или сущности, которые в KML не используются"
            return fail(qtTrId("geod_042"));
        if (token == QXmlStreamReader::EndElement) {
            --depth;
            const QStringRef local = xml.name();
            if (inPoint && depth < pointDepth)
                inPoint = false;
            if (placemarkDepth && depth < placemarkDepth && local == QLatin1String("Placemark")) {
                if (!badPoint.isEmpty()) {
                    result.badPlacemarks.append(badPoint);
                } else if (hasPoint || !hasOther) {
                    result.points.append(pm);
                } else {
                    ++result.nonPoints;
                    result.nonPointNames.append(pm.name);
                }
                placemarkDepth = 0;
            }
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        ++depth;
        if (depth > kKmlMaxDepth)
            //% "вложенность элементов глубже %1 уровней"
            return damaged(qtTrId("geod_043").arg(kKmlMaxDepth));
        const QStringRef local = xml.name();
        if (!sawRoot) {
            sawRoot = true;
            if (local != QLatin1String("kml"))
                //% "корневой элемент \"%1\", а не \"kml\""
                return fail(qtTrId("geod_044").arg(xml.qualifiedName().toString()));
            continue;
        }
        if (local == QLatin1String("Placemark")) {
            if (placemarkDepth)
                continue; // a placemark inside a placemark is not KML; its parts go to the outer one
            placemarkDepth = depth;
            pm = KmlPlacemark();
            hasPoint = hasOther = inPoint = false;
            badPoint.clear();
            continue;
        }
        if (!placemarkDepth)
            continue;
        // readElementText consumes the end tag, so these branches close their own level.
        if (local == QLatin1String("name") && depth == placemarkDepth + 1) {
            pm.name = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
            --depth;
        } else if (local == QLatin1String("description") && depth == placemarkDepth + 1) {
            pm.description = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
            --depth;
        } else if (local == QLatin1String("Point")) {
            if (!hasPoint) {
                inPoint = true;
                pointDepth = depth;
            }
            hasPoint = true;
        } else if (local == QLatin1String("coordinates") && inPoint) {
            const QString coords = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            --depth;
            if (xml.hasError())
                break;
            const QString why = parseCoordinates(coords, &pm);
            if (!why.isEmpty() && badPoint.isEmpty())
                //% "метка \"%1\": координаты \"%2\" не прочитаны: %3"
                badPoint = qtTrId("geod_045").arg(pm.name, coords.simplified().left(80), why);
            inPoint = false;
        } else if (isOtherGeometry(local)) {
            hasOther = true;
        } else if (local == QLatin1String("Data") || local == QLatin1String("SimpleData")) {
            dataName = xml.attributes().value(QLatin1String("name")).toString();
            if (local == QLatin1String("SimpleData") && dataName == QLatin1String(kRadiusKey)) {
                pm.radius = xml.readElementText().trimmed().toInt();
                --depth;
            }
        } else if (local == QLatin1String("value") && dataName == QLatin1String(kRadiusKey)) {
            pm.radius = xml.readElementText().trimmed().toInt();
            --depth;
            dataName.clear();
        }
    }
    if (xml.hasError()) {
        QString why = xml.errorString();
        while (why.endsWith(QLatin1Char('.')))
            why.chop(1);
        //% "строка %1: %2"
        return damaged(qtTrId("geod_046").arg(xml.lineNumber()).arg(why));
    }
    if (!sawRoot)
        //% "файл пуст"
        return fail(qtTrId("geod_047"));
    return result;
}

KmlReadResult readKmlFile(const QString& path)
{
    const QString name = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        KmlReadResult r;
        r.error = kmlFailure(name, file.errorString());
        return r;
    }
    if (file.size() > kKmlMaxFileSize) {
        KmlReadResult r;
        r.error = kmlFailure(name, qtTrId("geod_041").arg(kKmlMaxFileSize / (1024 * 1024)));
        return r;
    }
    return readKml(file.readAll(), name);
}

KmlImportResult importKmlText(const QByteArray& text, const QString& name, int size, int angle, int gob,
    const QVector<coreGeoZone>& existing, const ZRK_Ainf_Caps& caps)
{
    KmlImportResult result;
    const KmlReadResult read = readKml(text, name);
    result.nonPoints = read.nonPoints;
    result.nonPointNames = read.nonPointNames;
    result.badPlacemarks = read.badPlacemarks;
    result.damage = read.damage;
    if (!read.ok()) {
        result.error = read.error;
        return result;
    }
    if (existing.size() + read.points.size() > caps.maxZones) {
        //% "В файле \"%1\" точек: %2; вместе с %3 геозонами списка это больше %4, "
        //% "которые хранит терминал. Ничего не добавлено."
        result.error
            = qtTrId("geod_048").arg(name).arg(read.points.size()).arg(existing.size()).arg(caps.maxZones);
        return result;
    }
    // Ids as addGeoZone hands them out, one pass instead of a scan per zone.
    const int limit = qMin(existing.size() + read.points.size() + 1, caps.maxZoneId);
    QVector<bool> used(limit + 1, false);
    for (const coreGeoZone& z : existing) {
        if (z.id >= 1 && z.id <= limit)
            used[z.id] = true;
    }
    int next = 1;
    result.zones.reserve(read.points.size());
    for (const KmlPlacemark& p : read.points) {
        while (next <= limit && used[next])
            ++next;
        if (next > limit) {
            //% "Номера геозон 1..%1 все заняты. Ничего не добавлено."
            result.error = qtTrId("geod_049").arg(caps.maxZoneId);
            result.zones.clear();
            return result;
        }
        coreGeoZone z;
        z.id = next++;
        z.name = p.name.left(caps.maxNameLength);
        z.lat = p.lat;
        z.lon = p.lon;
        z.size = (p.radius >= caps.minZoneSize && p.radius <= caps.maxZoneSize) ? p.radius : size;
        z.angle = angle;
        z.gob = gob & 0xFF;
        result.zones.append(z);
    }
    return result;
}

KmlImportResult importKml(const QString& path, int size, int angle, int gob,
    const QVector<coreGeoZone>& existing, const ZRK_Ainf_Caps& caps)
{
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kKmlMaxFileSize) {
        KmlImportResult r;
        r.error = file.isOpen() ? kmlFailure(name, qtTrId("geod_041").arg(kKmlMaxFileSize / (1024 * 1024)))
                                : kmlFailure(name, file.errorString());
        return r;
    }
    return importKmlText(file.readAll(), name, size, angle, gob, existing, caps);
}

namespace {

QString kmlPoint(double lat, double lon)
{
    return formatGeoCoordinate(lon) + QLatin1Char(',') + formatGeoCoordinate(lat) + QLatin1String(",0");
}

void writeData(QXmlStreamWriter& w, const char* key, int value)
{
    w.writeStartElement(QStringLiteral("Data"));
    w.writeAttribute(QStringLiteral("name"), QLatin1String(key));
    w.writeTextElement(QStringLiteral("value"), QString::number(value));
    w.writeEndElement();
}

} // namespace

QByteArray renderKml(const coreAinfData& data)
{
    QByteArray out;
    QXmlStreamWriter w(&out);
    w.setAutoFormatting(true);
    w.setAutoFormattingIndent(1);
    w.writeStartDocument();
    w.writeDefaultNamespace(QLatin1String(kKmlNamespace));
    w.writeStartElement(QStringLiteral("kml"));
    w.writeStartElement(QStringLiteral("Document"));
    w.writeTextElement(QStringLiteral("name"), QStringLiteral("AINF"));

    w.writeStartElement(QStringLiteral("Folder"));
    //% "Геозоны"
    w.writeTextElement(QStringLiteral("name"), qtTrId("geod_050"));
    for (const coreGeoZone& z : data.zones) {
        w.writeStartElement(QStringLiteral("Placemark"));
        w.writeTextElement(QStringLiteral("name"), z.name);
        //% "Геозона %1, радиус %2 м"
        w.writeTextElement(QStringLiteral("description"), qtTrId("geod_051").arg(z.id).arg(z.size));
        w.writeStartElement(QStringLiteral("ExtendedData"));
        for (const GeoKey<coreGeoZone>& k : kGeoZoneKeys) {
            if (k.kml)
                writeData(w, k.kml, z.*k.integer);
        }
        w.writeEndElement();
        w.writeStartElement(QStringLiteral("Point"));
        w.writeTextElement(QStringLiteral("coordinates"), kmlPoint(z.lat, z.lon));
        w.writeEndElement();
        w.writeEndElement();
    }
    w.writeEndElement();

    QHash<int, const coreGeoZone*> byId;
    for (const coreGeoZone& z : data.zones)
        byId.insert(z.id, &z);
    w.writeStartElement(QStringLiteral("Folder"));
    //% "Маршруты"
    w.writeTextElement(QStringLiteral("name"), qtTrId("geod_052"));
    for (const coreGeoRoute& r : data.routes) {
        QStringList coords;
        for (const coreGeoStop& s : r.stops) {
            if (const coreGeoZone* z = byId.value(s.zoneid))
                coords.append(kmlPoint(z->lat, z->lon));
        }
        w.writeStartElement(QStringLiteral("Placemark"));
        w.writeTextElement(QStringLiteral("name"),
            (r.number + r.chr + QLatin1Char(' ') + r.begin + QStringLiteral(" - ") + r.end).trimmed());
        w.writeStartElement(QStringLiteral("LineString"));
        w.writeTextElement(QStringLiteral("tessellate"), QStringLiteral("1"));
        w.writeTextElement(QStringLiteral("coordinates"), coords.join(QLatin1Char(' ')));
        w.writeEndElement();
        w.writeEndElement();
    }
    w.writeEndElement();

    w.writeEndElement(); // Document
    w.writeEndElement(); // kml
    w.writeEndDocument();
    return out;
}

bool writeKml(const QString& path, const coreAinfData& data, QString* error)
{
    QString reason;
    if (saveWholeFile(path, renderKml(data), &reason))
        return true;
    if (error)
        //% "Не удалось записать файл \"%1\": %2."
        *error = qtTrId("geod_025").arg(QDir::toNativeSeparators(path), reason);
    return false;
}
