// Arbitrary bytes as a KML file: read, import against a few existing zones, write the result back
// as KML and read that again.
#include "config_model/kml_reader.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    QVector<coreGeoZone> existing(2);
    existing[0].id = 1;
    existing[1].id = 3;
    const KmlImportResult r = importKmlText(text, QStringLiteral("fuzz.kml"), 100, 0, 0, existing);
    if (!r.ok())
        return 0;
    coreAinfData d;
    d.zones = existing + r.zones;
    const KmlReadResult back = readKml(renderKml(d));
    if (!back.ok() || back.points.size() != d.zones.size())
        __builtin_trap(); // what we write must read back
    return 0;
}
