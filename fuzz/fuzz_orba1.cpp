// A received buffer of any bytes given to the version-1 page (current records and fixed packets).
// A fixed packet's record buffer must decode to the same fields again.
#include "orba_fuzz_common.h"
#include "telemetry/tmipage_orba1.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const int len = int(std::min<size_t>(size, 1 << 16));
    TmiPage_Orba1 page(data, len);
    readEverything(page);
    page.setCurrentTMI_From_F8(data, len);
    readEverything(page);
    page.setCurrentPacketF8ToOrba(data, len);
    const QByteArray record = page.currentRecordBuffer();
    TmiPage_Orba1 again(record);
    if (std::memcmp(&again.currentTMI(), &page.currentTMI(), sizeof(szCurrentTMI_ORBA1)) != 0)
        std::abort();
    return 0;
}
