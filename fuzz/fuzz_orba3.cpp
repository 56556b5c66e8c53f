// A received buffer of any bytes given to the version-3 page, and to its decoder directly.
#include "orba_fuzz_common.h"
#include "telemetry/tmipage_orba3.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return fuzzCurrentOrExtPage<TmiPage_Orba3>(data, size);
}
