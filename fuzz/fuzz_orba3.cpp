// A received buffer of any bytes given to the version-3 page, and to its decoder directly.
#include "orba_fuzz_common.h"
#include "telemetry/tmipage_orba3.h"

#include <algorithm>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const int len = int(std::min<size_t>(size, 1 << 16));
    TmiPage_Orba3 page(data, len);
    readEverything(page);
    readExtended(page.extTMI());
    // The decoder on the bare input, with the mask the page kept.
    page.setCurrentTMI(data, len);
    readEverything(page);
    return 0;
}
