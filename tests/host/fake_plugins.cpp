// Libraries that look like plug-ins of the family but are not, one per build definition:
// ZRK_FAKE_PARTIAL exports only the first two functions; ZRK_FAKE_DENIES has all four but says 0;
// ZRK_FAKE_NO_HANDLE has all four and says 1 but gives no handle.
#include "zrk/zrk_host_api.h"

#include <cstring>

extern "C" ZRK_PLUGIN_EXPORT int IsZrkLibraryV()
{
#ifdef ZRK_FAKE_DENIES
    return 0;
#else
    return 1;
#endif
}

extern "C" ZRK_PLUGIN_EXPORT void GetLibraryInfo(szLibraryInfo* info)
{
    std::memset(info, 0, sizeof *info);
}

#if defined(ZRK_FAKE_DENIES) || defined(ZRK_FAKE_NO_HANDLE)
extern "C" ZRK_PLUGIN_EXPORT void Initialize(ZRK_SendMessageFn) { }
extern "C" ZRK_PLUGIN_EXPORT void ReceiveMessage(void*, int, unsigned long, unsigned long) { }
#endif
