// zrk-tool geo: the geo-information file and KML through the same reader and writer as the page.
#include "config_model/geo_fields.h"
#include "config_model/geo_file.h"
#include "config_model/kml_reader.h"
#include "tools/commands.h"
#include "translations/catalogue.h"

#include <QFileInfo>

const char* const kGeoUsage
    = "  geo check FILE                  read a geo file, print its format, counts and limits\n"
      "  geo normalize IN OUT [--full]   read IN, write it to OUT in the current format, keeping\n"
      "                                  its Sounds and Config; --full adds them when it has none\n"
      "  geo from-kml KML OUT            the zones a KML import makes (radius 100 m, angle 0,\n"
      "                                  default options), written as a full geo file\n"
      "  geo to-kml GEO OUT              zones as placemarks with their radius, routes as lines\n"
      "                                  (add --lang en to any of them for English messages)\n";

namespace {

const char* formatName(GeoFileFormat f)
{
    switch (f) {
    case GeoFileFormat::Old:
        return "old (PARAMAINF)";
    case GeoFileFormat::New:
        return "AINF";
    case GeoFileFormat::Unknown:
        break;
    }
    return "unknown";
}

int check(const QString& path, QTextStream& out, QTextStream& err)
{
    coreAinfData data;
    GeoFileReadInfo info;
    QString error;
    if (!readFileParamGeo(path, &data, &error, &info)) {
        err << "zrk-tool geo check: " << error << '\n';
        return 1;
    }
    const ZRK_Ainf_Caps caps = zrkAinfCaps();
    int stops = 0, maxStops = 0;
    for (const coreGeoRoute& r : data.routes) {
        stops += r.stops.size();
        maxStops = qMax(maxStops, r.stops.size());
    }
    out << "format: " << formatName(info.format) << " ver " << info.version
        << (info.hasConfig ? " (full)" : " (lists only)") << '\n';
    const auto count = [&](const GeoRecordKind& kind, int n) -> QTextStream& {
        return out << kind.toolName << ": " << n << " of " << caps.*kind.limit;
    };
    count(kGeoZoneKind, data.zones.size()) << '\n';
    count(kGeoRouteKind, data.routes.size())
        << ", " << kGeoStopKind.toolName << ' ' << stops << " (at most " << maxStops << " in a route, limit "
        << caps.*kGeoStopKind.limit << ")\n";
    count(kGeoSpeedKind, data.speeds.size()) << '\n';
    count(kGeoSoundKind, data.sounds.size()) << '\n';
    if (info.hasConfig)
        out << "options: " << data.defaults.packedOptions() << " (routes "
            << data.defaults.getDefRouteOptionsStr() << ", speeds " << data.defaults.getDefSpeedsOptionsStr()
            << ", zones " << data.defaults.getDefGeoOptionsStr() << ")\n";
    return 0;
}

bool writeGeo(const QString& sub, const QString& path, const coreAinfData& data, bool full, QTextStream& err)
{
    QString error;
    if (!writeFileParamGeo(path, data, full, &error)) {
        err << "zrk-tool geo " << sub << ": " << error << '\n';
        return false;
    }
    return true;
}

} // namespace

int runGeoCommand(const QString& name, const QStringList& argsIn, QTextStream& out, QTextStream& err)
{
    QStringList args;
    QString language = QStringLiteral("ru");
    bool full = false;
    for (int i = 0; i < argsIn.size(); ++i) {
        const QString& a = argsIn[i];
        if (a == QLatin1String("--full")) {
            full = true;
        } else if (a == QLatin1String("--lang") && i + 1 < argsIn.size()) {
            language = argsIn[++i];
        } else if (a.startsWith(QLatin1String("--"))) {
            err << "zrk-tool " << name << ": unknown option '" << a << "'\n";
            return 2;
        } else {
            args.append(a);
        }
    }
    zrk::installCatalogue(language);
    const QString sub = args.value(0);
    const int want = sub == QLatin1String("check") ? 2 : 3;
    if (args.size() != want || (full && sub != QLatin1String("normalize"))) {
        err << "zrk-tool " << name << ": usage:\n" << kGeoUsage;
        return 2;
    }
    if (sub == QLatin1String("check"))
        return check(args[1], out, err);
    if (sub == QLatin1String("normalize")) {
        coreAinfData data;
        QString error;
        GeoFileReadInfo info;
        if (!readFileParamGeo(args[1], &data, &error, &info)) {
            err << "zrk-tool geo normalize: " << error << '\n';
            return 1;
        }
        // What the file had stays; --full only adds.
        return writeGeo(sub, args[2], data, full || info.isFull(), err) ? 0 : 1;
    }
    if (sub == QLatin1String("from-kml")) {
        const KmlImportResult r = importKml(args[1], kKmlDefaultSize, kKmlDefaultAngle, kmlDefaultGob());
        if (!r.ok()) {
            err << "zrk-tool geo from-kml: " << r.error << '\n';
            return 1;
        }
        coreAinfData data;
        data.zones = r.zones;
        if (!writeGeo(sub, args[2], data, true, err))
            return 1;
        out << "zones: " << r.zones.size() << '\n';
        if (r.nonPoints)
            out << "not points (skipped): " << r.nonPoints << " ("
                << r.nonPointNames.join(QStringLiteral(", ")) << ")\n";
        if (!r.badPlacemarks.isEmpty()) {
            out << "bad coordinates (skipped): " << r.badPlacemarks.size() << '\n';
            for (const QString& line : r.badPlacemarks)
                out << "  " << line << '\n';
        }
        if (!r.damage.isEmpty())
            out << "damaged: " << r.damage << '\n';
        return 0;
    }
    if (sub == QLatin1String("to-kml")) {
        coreAinfData data;
        QString error;
        if (!readFileParamGeo(args[1], &data, &error) || !writeKml(args[2], data, &error)) {
            err << "zrk-tool geo to-kml: " << error << '\n';
            return 1;
        }
        out << "placemarks: " << data.zones.size() << ", lines: " << data.routes.size() << '\n';
        return 0;
    }
    err << "zrk-tool " << name << ": unknown subcommand '" << sub
        << "' (check, normalize, from-kml, to-kml)\n";
    return 2;
}
