// Arbitrary bytes as a geo file: read; a file that is accepted must write and read back. (Texts
// need not come back equal: attribute values pass an extra entity decoding on every load.)
#include "config_model/geo_file.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    coreAinfData d;
    if (!readFileParamGeoText(text, QStringLiteral("fuzz.xml"), &d))
        return 0;
    const QByteArray once = renderFileParamGeo(d, true);
    coreAinfData again;
    if (!readFileParamGeoText(once, QStringLiteral("again.xml"), &again)
        || again.zones.size() != d.zones.size())
        __builtin_trap();
    return 0;
}
