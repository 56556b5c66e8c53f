#include "config_model/geo_file.h"

#include "config_model/app_settings.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>

namespace {

// Node and key names of the geo file.
const char kRoot[] = "AINF";
const char kVer[] = "ver";
const char kVersion[] = "version";
const char kCount[] = "count";
const char kZones[] = "Zones";
const char kZone[] = "Zone";
const char kRoutes[] = "Routes";
const char kRoute[] = "Route";
const char kStop[] = "Stop";
const char kCountStop[] = "countStop";
const char kSpeeds[] = "Speeds";
const char kSpeed[] = "Speed";
const char kSounds[] = "Sounds";
const char kSoundFile[] = "File";
const char kConfig[] = "Config";
const char kOptions[] = "options";
const char kOldMarker[] = "<PARAMAINF>";
const char kNewMarker[] = "<AINF";
// The text "options" of files before integer options.
const char kOptionsTextDefault[] = "000000";
const char kTempListName[] = "write.lst";

enum NodeMode : int
{
    GetOrCreate = 0,
    Append = 1,
    Record = 3,
};

using Node = std::unique_ptr<CXMLWorkData>;

// An empty document in memory, its root named kRoot.
std::unique_ptr<CSerialize> newDocument()
{
    auto doc = std::make_unique<CSerialize>(0, nullptr);
    doc->startSerialize();
    return doc;
}

Node listNode(CXMLWorkData& root, const char* name, int count)
{
    Node n(root.createNode(name, GetOrCreate));
    n->writeInteger(kCount, count);
    n->writeParameters();
    return n;
}

void writeDefaults(CXMLWorkData& config, const coreAinfDefaults& d)
{
    config.writeString("number", d.routeNumber);
    config.writeString("char", d.routeChar);
    config.writeString("begin", d.routeBegin);
    config.writeString("end", d.routeEnd);
    config.writeInteger("setsnd", d.routeSetSnd);
    config.writeInteger("speedmode", d.speedmode);
    config.writeInteger(kOptions, d.packedOptions());
    config.writeParameters();
}

void readDefaults(const CXMLWorkData& config, int version, coreAinfDefaults& d)
{
    const coreAinfDefaults def;
    d.routeNumber = config.readString("number", def.routeNumber);
    d.routeChar = config.readString("char", def.routeChar);
    d.routeBegin = config.readString("begin", def.routeBegin);
    d.routeEnd = config.readString("end", def.routeEnd);
    d.routeSetSnd = config.readInteger("setsnd", def.routeSetSnd);
    d.speedmode = config.readInteger("speedmode", def.speedmode);
    if (version >= kGeoFileIntegerOptionsVersion)
        d.setPackedOptions(config.readInteger(kOptions, def.packedOptions()));
    else
        d.setPackedOptionsStr(config.readString(kOptions, QString::fromLatin1(kOptionsTextDefault)));
}

// Walks the records of one name under a list node; false (with *error) when the node's count
// disagrees with what is there, which is how a cut or hand-damaged file shows.
template <typename Fn>
bool forEachRecord(CXMLWorkData& root, const char* listName, const char* recordName, Fn fn, QString* error)
{
    Node list(root.getFirstNode(listName));
    if (!list)
        return true;
    const int declared = list->readInteger(kCount, 0);
    int seen = 0;
    CXMLWorkData* cursor = list->getFirstNode(recordName);
    while (cursor) {
        if (!fn(*cursor)) {
            delete cursor;
            return false;
        }
        ++seen;
        list->moveToNextNode(cursor);
    }
    if (seen != declared) {
        //% "узел \"%1\" объявляет записей: %2, а содержит: %3"
        *error = qtTrId("geod_020").arg(QLatin1String(listName)).arg(declared).arg(seen);
        return false;
    }
    return true;
}

bool readCoordinate(const CXMLWorkData& n, const char* key, int id, double* out, QString* error)
{
    const QString text = n.readString(key);
    if (!parseGeoCoordinate(text, out)) {
        //% "геозона %1: \"%2\" не является координатой"
        *error = qtTrId("geod_021").arg(id).arg(text);
        return false;
    }
    return true;
}

bool readNew(CSerialize* doc, coreAinfData& out, GeoFileReadInfo& info, QString* reason)
{
    CXMLWorkData root(doc, doc->root());
    info.version = root.readInteger(kVer, 0);
    if (info.version > kGeoFileVersion) {
        //% "версия файла %1 новее, чем читает эта программа (%2)"
        *reason = qtTrId("geod_022").arg(info.version).arg(kGeoFileVersion);
        return false;
    }
    const bool ok = forEachRecord(
                        root, kSounds, kSoundFile,
                        [&](CXMLWorkData& n) {
                            coreGeoSound s;
                            s.id = n.readInteger("id", 0);
                            s.title = n.readString("title");
                            out.sounds.append(s);
                            return true;
                        },
                        reason)
        && forEachRecord(
            root, kSpeeds, kSpeed,
            [&](CXMLWorkData& n) {
                coreSpeedZone s;
                s.id = n.readInteger("id", 0);
                s.title = n.readString("title");
                s.speed = n.readInteger("speed", s.speed);
                s.gap = n.readInteger("gap", s.gap);
                s.limitsnd = n.readInteger("limitsnd", 0);
                s.activesnd = n.readInteger("activesnd", 0);
                s.limitrep = n.readInteger("limitrep", 0);
                s.activerep = n.readInteger("activerep", 0);
                s.delay = n.readInteger("delay", 0);
                s.limitbuzz = n.readInteger("limitbuzz", 0);
                out.speeds.append(s);
                return true;
            },
            reason)
        && forEachRecord(
            root, kZones, kZone,
            [&](CXMLWorkData& n) {
                coreGeoZone z;
                z.id = n.readInteger("id", 0);
                z.name = n.readString("name");
                if (!readCoordinate(n, "lat", z.id, &z.lat, reason)
                    || !readCoordinate(n, "lon", z.id, &z.lon, reason))
                    return false;
                z.size = n.readInteger("size", z.size);
                z.angle = n.readInteger("angle", 0);
                z.gob = n.readInteger("gob", 0);
                z.outputs = n.readString("outputs", QString::fromLatin1(kGeoZoneOutputsDefault));
                z.spdmode = n.readString("spdmode", z.spdmode);
                out.zones.append(z);
                return true;
            },
            reason)
        && forEachRecord(
            root, kRoutes, kRoute,
            [&](CXMLWorkData& n) {
                coreGeoRoute r;
                r.id = n.readInteger("id", 0);
                r.number = n.readString("number");
                r.chr = n.readString("char");
                r.begin = n.readString("begin");
                r.end = n.readString("end");
                r.flags = n.readInteger("flags", 0);
                r.setsnd = n.readInteger("setsnd", 0);
                const int declared = n.readInteger(kCountStop, 0);
                CXMLWorkData* cursor = n.getFirstNode(kStop);
                while (cursor) {
                    coreGeoStop s;
                    s.type = cursor->readInteger("type", 0);
                    s.zoneid = cursor->readInteger("zoneid", 0);
                    s.number = cursor->readInteger("number", 0);
                    s.title = cursor->readString("title");
                    s.soundsids = cursor->readString("soundsids");
                    r.stops.append(s);
                    n.moveToNextNode(cursor);
                }
                if (declared != r.stops.size()) {
                    //% "маршрут %1 объявляет остановок: %2, а содержит: %3"
                    *reason = qtTrId("geod_023").arg(r.id).arg(declared).arg(r.stops.size());
                    return false;
                }
                out.routes.append(r);
                return true;
            },
            reason);
    if (!ok)
        return false;
    Node config(root.getFirstNode(kConfig));
    if (config) {
        readDefaults(*config, info.version, out.defaults);
        info.hasConfig = true;
    }
    return true;
}

QString failure(const QString& name, const QString& reason)
{
    //% "Не удалось открыть файл геоинформации \"%1\": %2."
    return qtTrId("geod_024").arg(name, reason);
}

bool writeWhole(const QString& path, const QByteArray& text, QString* error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return true;
    if (error)
        //% "Не удалось записать файл \"%1\": %2."
        *error = qtTrId("geod_025").arg(QDir::toNativeSeparators(path), file.errorString());
    return false;
}

} // namespace

GeoFileFormat detectGeoFileFormat(const QByteArray& text)
{
    if (text.contains(kOldMarker))
        return GeoFileFormat::Old;
    if (text.contains(kNewMarker))
        return GeoFileFormat::New;
    return GeoFileFormat::Unknown;
}

QByteArray renderFileParamGeo(const coreAinfData& data, bool full)
{
    auto doc = newDocument();
    CXMLWorkData root(doc.get(), kRoot);
    root.writeInteger(kVer, kGeoFileVersion);
    root.writeParameters();

    {
        Node list = listNode(root, kZones, data.zones.size());
        for (const coreGeoZone& z : data.zones) {
            Node n(list->createNode(kZone, Record));
            n->writeInteger("id", z.id);
            n->writeString("name", z.name);
            n->writeString("lat", formatGeoCoordinate(z.lat));
            n->writeString("lon", formatGeoCoordinate(z.lon));
            n->writeInteger("size", z.size);
            n->writeInteger("angle", z.angle);
            n->writeInteger("gob", z.gob);
            n->writeString("outputs", z.outputs);
            n->writeString("spdmode", z.spdmode);
            n->writeParameters();
        }
    }
    {
        Node list = listNode(root, kRoutes, data.routes.size());
        for (const coreGeoRoute& r : data.routes) {
            // An element with children: a record would drop its stops on writing.
            Node n(list->createNode(kRoute, Append));
            n->writeInteger("id", r.id);
            n->writeString("number", r.number);
            n->writeString("char", r.chr);
            n->writeString("begin", r.begin);
            n->writeString("end", r.end);
            n->writeInteger("flags", r.flags);
            n->writeInteger("setsnd", r.setsnd);
            n->writeInteger(kCountStop, r.stops.size());
            n->writeParameters();
            for (const coreGeoStop& s : r.stops) {
                Node stop(n->createNode(kStop, Record));
                stop->writeInteger("type", s.type);
                stop->writeInteger("zoneid", s.zoneid);
                stop->writeInteger("number", s.number);
                stop->writeString("title", s.title);
                stop->writeString("soundsids", s.soundsids);
                stop->writeParameters();
            }
        }
    }
    {
        Node list = listNode(root, kSpeeds, data.speeds.size());
        for (const coreSpeedZone& s : data.speeds) {
            Node n(list->createNode(kSpeed, Record));
            n->writeInteger("id", s.id);
            n->writeString("title", s.title);
            n->writeInteger("speed", s.speed);
            n->writeInteger("gap", s.gap);
            n->writeInteger("limitsnd", s.limitsnd);
            n->writeInteger("activesnd", s.activesnd);
            n->writeInteger("limitrep", s.limitrep);
            n->writeInteger("activerep", s.activerep);
            n->writeInteger("delay", s.delay);
            n->writeInteger("limitbuzz", s.limitbuzz);
            n->writeParameters();
        }
    }
    if (full) {
        {
            Node list = listNode(root, kSounds, data.sounds.size());
            for (const coreGeoSound& s : data.sounds) {
                Node n(list->createNode(kSoundFile, Record));
                n->writeInteger("id", s.id);
                n->writeString("title", s.title);
                n->writeParameters();
            }
        }
        Node config(root.createNode(kConfig, Record));
        writeDefaults(*config, data.defaults);
    }
    return doc->render();
}

bool writeFileParamGeo(const QString& path, const coreAinfData& data, bool full, QString* error)
{
    return writeWhole(path, renderFileParamGeo(data, full), error);
}

bool readFileParamGeoText(
    const QByteArray& text, const QString& name, coreAinfData* data, QString* error, GeoFileReadInfo* info)
{
    GeoFileReadInfo local;
    GeoFileReadInfo& inf = info ? *info : local;
    inf = GeoFileReadInfo();
    auto fail = [&](const QString& reason) {
        if (error)
            *error = failure(name, reason);
        return false;
    };
    inf.format = detectGeoFileFormat(text);
    if (inf.format == GeoFileFormat::Old)
        //% "файл записан в старом формате геоинформации (PARAMAINF), который программа распознаёт, "
        //% "но не читает; сохраните данные заново в новом формате"
        return fail(qtTrId("geod_026"));
    if (inf.format == GeoFileFormat::Unknown)
        //% "это не файл геоинформации (нет корня \"AINF\")"
        return fail(qtTrId("geod_027"));
    if (text.size() > kGeoFileMaxSize)
        //% "файл больше %1 МБ"
        return fail(qtTrId("geod_028").arg(kGeoFileMaxSize / (1024 * 1024)));

    CSerialize doc(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    if (!doc.startSerialize() || !doc.root())
        //% "текст не является правильным XML (%1)"
        return fail(qtTrId("geod_029").arg(doc.lastError()));
    if (doc.root()->name != QLatin1String(kRoot))
        return fail(qtTrId("geod_027"));

    coreAinfData read;
    read.defaults = data ? data->defaults : coreAinfDefaults();
    QString reason;
    if (!readNew(&doc, read, inf, &reason))
        return fail(reason);
    QString problem = checkAinfData(read);
    if (problem.isEmpty())
        problem = checkAinfLimits(read);
    if (!problem.isEmpty())
        return fail(problem);
    if (data)
        *data = std::move(read);
    return true;
}

bool readFileParamGeo(const QString& path, coreAinfData* data, QString* error, GeoFileReadInfo* info)
{
    const QString name = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = failure(name, file.errorString());
        return false;
    }
    if (file.size() > kGeoFileMaxSize) {
        if (error)
            *error = failure(name, qtTrId("geod_028").arg(kGeoFileMaxSize / (1024 * 1024)));
        return false;
    }
    return readFileParamGeoText(file.readAll(), name, data, error, info);
}

QString geoTempDirectory()
{
    return appDataDirectory() + QStringLiteral("/Localization/Temp");
}

QByteArray renderFileCFG(const coreAinfDefaults& defaults)
{
    auto doc = newDocument();
    CXMLWorkData root(doc.get(), kRoot);
    root.writeInteger(kVersion, kGeoFileVersion);
    root.writeParameters();
    Node config(root.createNode(kConfig, Record));
    writeDefaults(*config, defaults);
    return doc->render();
}

QString createFileCFG(const coreAinfDefaults& defaults, QString* error, const QString& dir)
{
    const QString folder = dir.isEmpty() ? geoTempDirectory() : dir;
    if (!QDir().mkpath(folder)) {
        if (error)
            //% "Не удалось создать папку \"%1\"."
            *error = qtTrId("geod_030").arg(QDir::toNativeSeparators(folder));
        return QString();
    }
    // The document is built in the list file first, so that a card file is never half written;
    // the list file goes whatever happens.
    const QString listPath = folder + QLatin1Char('/') + QLatin1String(kTempListName);
    const QString cfgPath = folder + QLatin1Char('/') + QLatin1String(kGeoCardConfigName);
    const bool ok = writeWhole(listPath, renderFileCFG(defaults), error);
    QByteArray text;
    if (ok) {
        QFile list(listPath);
        if (list.open(QIODevice::ReadOnly))
            text = list.readAll();
    }
    QFile::remove(listPath);
    if (!ok || text.isEmpty() || !writeWhole(cfgPath, text, error))
        return QString();
    return cfgPath;
}
