#include "config_model/geo_file.h"

#include "config_model/app_settings.h"
#include "config_model/common_routines.h"
#include "config_model/geo_fields.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>

namespace {

// Node and key names of the geo file beyond the record rows of geo_fields.h.
const char kRoot[] = "AINF";
const char kVer[] = "ver";
const char kVersion[] = "version";
const char kOldMarker[] = "<PARAMAINF>";
const char kNewMarker[] = "<AINF";
// The text "options" of files before integer options.
const char kOptionsTextDefault[] = "000000";
const char kTempListName[] = "write.lst";

using Node = std::unique_ptr<CXMLWorkData>;

// An empty document in memory, its root named kRoot.
std::unique_ptr<CSerialize> newDocument()
{
    auto doc = std::make_unique<CSerialize>(0, nullptr);
    doc->startSerialize();
    return doc;
}

template <typename R, std::size_t N> void writeKeys(CXMLWorkData& n, const GeoKey<R> (&keys)[N], const R& r)
{
    for (const GeoKey<R>& k : keys) {
        switch (k.type) {
        case GeoKeyType::Integer:
            n.writeInteger(k.key, r.*k.integer);
            break;
        case GeoKeyType::Text:
            n.writeString(k.key, r.*k.text);
            break;
        case GeoKeyType::Coordinate:
            n.writeString(k.key, formatGeoCoordinate(r.*k.coordinate));
            break;
        }
    }
}

// A missing integer or text keeps the record's own default; a coordinate must be there and be one.
// who() names the record in the message.
template <typename R, std::size_t N, typename Who>
bool readKeys(const CXMLWorkData& n, const GeoKey<R> (&keys)[N], R& r, Who who, QString* error)
{
    for (const GeoKey<R>& k : keys) {
        switch (k.type) {
        case GeoKeyType::Integer:
            r.*k.integer = n.readInteger(k.key, r.*k.integer);
            break;
        case GeoKeyType::Text:
            r.*k.text = n.readString(k.key, r.*k.text);
            break;
        case GeoKeyType::Coordinate: {
            const QString text = n.readString(k.key);
            if (!parseGeoCoordinate(text, &(r.*k.coordinate))) {
                //% "%1: \"%2\" = \"%3\" не является координатой"
                *error = qtTrId("geod_068").arg(who(), QLatin1String(k.key), text);
                return false;
            }
            break;
        }
        }
    }
    return true;
}

// One list node with its "count" and a record per item; children(node, item) adds what a record
// holds below it (a route's stops), which makes the record an element rather than a leaf.
template <typename R, std::size_t N, typename Children>
void writeList(CXMLWorkData& root, const GeoRecordKind& kind, const GeoKey<R> (&keys)[N],
    const QVector<R>& list, bool withChildren, Children children)
{
    Node node(root.createNode(kind.list, NodeFindOrCreate));
    node->writeInteger(kGeoCountKey, list.size());
    node->writeParameters();
    for (const R& r : list) {
        // A record would drop children on writing.
        Node n(node->createNode(kind.record, withChildren ? NodeAppend : NodeRecord));
        writeKeys(*n, keys, r);
        children(*n, r);
    }
}

template <typename R, std::size_t N>
void writeList(
    CXMLWorkData& root, const GeoRecordKind& kind, const GeoKey<R> (&keys)[N], const QVector<R>& list)
{
    writeList(root, kind, keys, list, false, [](CXMLWorkData& n, const R&) { n.writeParameters(); });
}

void writeDefaults(CXMLWorkData& config, const coreAinfDefaults& d)
{
    writeKeys(config, kGeoConfigKeys, d);
    config.writeInteger(kGeoOptionsKey, d.packedOptions());
    config.writeParameters();
}

// Missing keys take the model's defaults, not what was there before.
void readDefaults(const CXMLWorkData& config, int version, coreAinfDefaults& d)
{
    coreAinfDefaults read;
    QString unused;
    readKeys(
        config, kGeoConfigKeys, read, [] { return QString(); }, &unused);
    if (version >= kGeoFileIntegerOptionsVersion)
        read.setPackedOptions(config.readInteger(kGeoOptionsKey, coreAinfDefaults().packedOptions()));
    else
        read.setPackedOptionsStr(config.readString(kGeoOptionsKey, QString::fromLatin1(kOptionsTextDefault)));
    d = read;
}

// Reads the records of one kind under its list node; false (with *error) when a record is wrong or
// the node's count disagrees with what is there, which is how a cut or hand-damaged file shows.
// children(node, item) reads what a record holds below it.
template <typename R, std::size_t N, typename Children>
bool readList(CXMLWorkData& root, const GeoRecordKind& kind, const GeoKey<R> (&keys)[N], QVector<R>& out,
    QString* error, Children children)
{
    Node list(root.getFirstNode(kind.list));
    if (!list)
        return true;
    const int declared = list->readInteger(kGeoCountKey, 0);
    int seen = 0;
    CXMLWorkData* cursor = list->getFirstNode(kind.record);
    while (cursor) {
        R r;
        if (!readKeys(
                *cursor, keys, r, [&] { return geoRecordName(kind, r.id); }, error)
            || !children(*cursor, r)) {
            delete cursor;
            return false;
        }
        out.append(r);
        ++seen;
        list->moveToNextNode(cursor);
    }
    if (seen != declared) {
        //% "узел \"%1\" объявляет записей: %2, а содержит: %3"
        *error = qtTrId("geod_020").arg(QLatin1String(kind.list)).arg(declared).arg(seen);
        return false;
    }
    return true;
}

template <typename R, std::size_t N>
bool readList(CXMLWorkData& root, const GeoRecordKind& kind, const GeoKey<R> (&keys)[N], QVector<R>& out,
    QString* error)
{
    return readList(root, kind, keys, out, error, [](CXMLWorkData&, R&) { return true; });
}

bool readStops(CXMLWorkData& n, coreGeoRoute& r, QString* error)
{
    const int declared = n.readInteger(kGeoRouteStopCountKey, 0);
    CXMLWorkData* cursor = n.getFirstNode(kGeoStopKind.record);
    while (cursor) {
        coreGeoStop s;
        const int position = r.stops.size() + 1;
        // Stops have no coordinates, so reading one cannot fail.
        readKeys(
            *cursor, kGeoStopKeys, s, [&] { return geoRecordName(kGeoStopKind, r.id, position); }, error);
        r.stops.append(s);
        n.moveToNextNode(cursor);
    }
    if (declared != r.stops.size()) {
        //% "маршрут %1 объявляет остановок: %2, а содержит: %3"
        *error = qtTrId("geod_023").arg(r.id).arg(declared).arg(r.stops.size());
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
    {
        Node sounds(root.getFirstNode(kGeoSoundKind.list));
        info.hasSounds = sounds != nullptr;
    }
    const bool ok = readList(root, kGeoSoundKind, kGeoSoundKeys, out.sounds, reason)
        && readList(root, kGeoSpeedKind, kGeoSpeedKeys, out.speeds, reason)
        && readList(root, kGeoZoneKind, kGeoZoneKeys, out.zones, reason)
        && readList(root, kGeoRouteKind, kGeoRouteKeys, out.routes, reason,
            [reason](CXMLWorkData& n, coreGeoRoute& r) { return readStops(n, r, reason); });
    if (!ok)
        return false;
    Node config(root.getFirstNode(kGeoConfigNode));
    if (config) {
        readDefaults(*config, info.version, out.defaults);
        info.hasConfig = true;
    }
    return true;
}

QString failure(const QString& name, const QString& reason)
{
    QString why = reason;
    while (why.endsWith(QLatin1Char('.')))
        why.chop(1); // the reasons that are sentences of their own end with one
    //% "Не удалось открыть файл геоинформации \"%1\": %2."
    return qtTrId("geod_024").arg(name, why);
}

bool writeWhole(const QString& path, const QByteArray& text, QString* error)
{
    QString reason;
    if (saveWholeFile(path, text, &reason))
        return true;
    if (error)
        //% "Не удалось записать файл \"%1\": %2."
        *error = qtTrId("geod_025").arg(QDir::toNativeSeparators(path), reason);
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
    writeList(root, kGeoZoneKind, kGeoZoneKeys, data.zones);
    writeList(
        root, kGeoRouteKind, kGeoRouteKeys, data.routes, true, [](CXMLWorkData& n, const coreGeoRoute& r) {
            n.writeInteger(kGeoRouteStopCountKey, r.stops.size());
            n.writeParameters();
            for (const coreGeoStop& s : r.stops) {
                Node stop(n.createNode(kGeoStopKind.record, NodeRecord));
                writeKeys(*stop, kGeoStopKeys, s);
                stop->writeParameters();
            }
        });
    writeList(root, kGeoSpeedKind, kGeoSpeedKeys, data.speeds);
    if (full) {
        writeList(root, kGeoSoundKind, kGeoSoundKeys, data.sounds);
        Node config(root.createNode(kGeoConfigNode, NodeRecord));
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
    const QString problem = checkAinf(read);
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
    Node config(root.createNode(kGeoConfigNode, NodeRecord));
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
