// Geo file of 10,000 zones: our load into the data lists against the serializer's own load of the
// same text; KML of 10,000 placemarks: our import against a libxml2 parse of the same bytes.
// Each ratio is against a reference measured in the same run. Prints plain lines.
#include "best_times.h"
#include "config_model/geo_file.h"
#include "config_model/kml_reader.h"
#include "config_model/serialize.h"
#include "translations/catalogue.h"

#include <QCoreApplication>

#include <libxml/parser.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

namespace {

constexpr int kZones = 10000;

coreAinfData zones()
{
    coreAinfData d;
    d.zones.reserve(kZones);
    for (int i = 0; i < kZones; ++i)
        addGeoZone(d.zones, QStringLiteral("Зона %1").arg(i), 100 + i % 500, i % 360, i & 0xFF,
            55.0 + (i % 1000) * 0.001, 37.0 + (i / 1000) * 0.01);
    return d;
}

void report(const char* what, double ours, const char* refName, double ref, double limit)
{
    std::printf("%-34s %8.2f ms   %-26s %8.2f ms   ratio %.2f (goal <= %.1f)\n", what, ours * 1e3, refName,
        ref * 1e3, ours / ref, limit);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    zrk::installCatalogue(QStringLiteral("ru")); // the KML descriptions are catalogue texts
    const coreAinfData data = zones();
    const int runs = 5;

    const QByteArray geo = renderFileParamGeo(data, true);
    std::printf("geo file: %d zones, %d bytes\n", kZones, int(geo.size()));
    const double serializer = bestSeconds(runs, [&] {
        CSerialize doc(geo.size(), reinterpret_cast<const unsigned char*>(geo.constData()));
        if (!doc.startSerialize())
            std::printf("serializer load failed\n");
    });
    const double lists = bestSeconds(runs, [&] {
        coreAinfData d;
        QString error;
        if (!readFileParamGeoText(geo, QStringLiteral("bench"), &d, &error) || d.zones.size() != kZones)
            std::printf("geo load failed: %s\n", qPrintable(error));
    });
    report("geo file -> data lists", lists, "serializer load", serializer, 3.0);

    const QByteArray kml = renderKml(data);
    std::printf("KML: %d placemarks, %d bytes\n", kZones, int(kml.size()));
    xmlInitParser();
    const double libxml = bestSeconds(runs, [&] {
        xmlDocPtr doc = xmlReadMemory(kml.constData(), kml.size(), "bench.kml", nullptr, XML_PARSE_NONET);
        if (!doc)
            std::printf("libxml2 parse failed\n");
        xmlFreeDoc(doc);
    });
    const double import = bestSeconds(runs, [&] {
        const KmlImportResult r = importKmlText(kml, QStringLiteral("bench.kml"), 100, 0, 0);
        if (!r.ok() || r.zones.size() != kZones)
            std::printf("KML import failed: %s\n", qPrintable(r.error));
    });
    report("KML import -> zones", import, "libxml2 tree parse", libxml, 3.0);
    xmlCleanupParser();
    return 0;
}
