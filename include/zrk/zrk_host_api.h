#pragma once

// The host boundary of the Torvin K-7140 device plug-in: everything a configurator host needs to
// load the library and talk to it. Depends on QtCore only; includes nothing of the plug-in.
//
// Loading, in this order (each export is a plain C symbol, resolve it by its name):
//   1. IsZrkLibraryV()            returns 1 for a plug-in of this family.
//   2. GetLibraryInfo(&info)      fills the 542-byte szLibraryInfo; info.handle is the value to
//                                 pass back as the first argument of every ReceiveMessage call.
//   3. Initialize(callback)       hands over the host's callback; the plug-in sends its messages
//                                 through it from then on, always with the same handle.
//   4. ReceiveMessage(handle, id, wParam, lParam), as often as the host likes.
// Everything runs on the host's GUI thread (a QApplication must exist before Initialize, since the
// plug-in creates windows). Messages are synchronous: results are written through the addresses
// passed in wParam/lParam before the call returns, and either side may call the other from inside
// a call. A message with a foreign handle, an id outside 2001..2413, an id the plug-in does not
// route or a null address where a record is expected is ignored.
//
// For diagnostics, the handle of this plug-in points to a QObject (the device object) whose
// read-only properties describe its state; other plug-ins of the family need not do so.

#include <QString>
#include <QtGlobal>

#include <cstddef>

// ---- callback and export signatures ----------------------------------------------------------

// The host's callback: (handle, message id, wParam, lParam) -> result.
typedef unsigned long (*ZRK_SendMessageFn)(void* handle, int msg, unsigned long wParam, unsigned long lParam);

struct szLibraryInfo;

typedef int (*ZRK_IsZrkLibraryVFn)();
typedef void (*ZRK_GetLibraryInfoFn)(szLibraryInfo* info);
typedef void (*ZRK_InitializeFn)(ZRK_SendMessageFn send);
typedef void (*ZRK_ReceiveMessageFn)(void* handle, int msg, unsigned long wParam, unsigned long lParam);

// The exported symbol names, in the order the host calls them.
#define ZRK_EXPORT_IS_LIBRARY "IsZrkLibraryV"
#define ZRK_EXPORT_GET_LIBRARY_INFO "GetLibraryInfo"
#define ZRK_EXPORT_INITIALIZE "Initialize"
#define ZRK_EXPORT_RECEIVE_MESSAGE "ReceiveMessage"

#define ZRK_PLUGIN_EXPORT __attribute__((visibility("default")))

extern "C" {
// Returns 1: the library is a device plug-in of this family.
ZRK_PLUGIN_EXPORT int IsZrkLibraryV();
// Copies the library information record into *info (nothing happens for null).
ZRK_PLUGIN_EXPORT void GetLibraryInfo(szLibraryInfo* info);
// Stores the host's callback and creates the plug-in's resident forms.
ZRK_PLUGIN_EXPORT void Initialize(ZRK_SendMessageFn send);
// One host message; see the table in zrk_messages.def.
ZRK_PLUGIN_EXPORT void ReceiveMessage(void* handle, int msg, unsigned long wParam, unsigned long lParam);
}

// ---- message ids -----------------------------------------------------------------------------

enum : int
{
    ZRK_MSG_FIRST = 2001,
    ZRK_MSG_LAST = 2413,
};

// Host -> plug-in (ReceiveMessage).
enum ZrkHostToPluginMessage : int
{
#define ZRK_MSG_IN(id, name, w, l, text) ZRK_MSG_##name = id,
#include "zrk/zrk_messages.def"
};

// Plug-in -> host (the callback).
enum ZrkPluginToHostMessage : int
{
#define ZRK_MSG_OUT(id, name, w, l, text) ZRK_MSG_##name = id,
#include "zrk/zrk_messages.def"
};

enum class ZrkMessageDirection
{
    HostToPlugin,
    PluginToHost
};

// One row of the message table, for logs and tools.
struct ZrkMessageInfo
{
    int id;
    ZrkMessageDirection direction;
    const char* name; // the constant's name without "ZRK_MSG_"
    const char* wParam;
    const char* lParam;
    const char* meaning;
};

inline constexpr ZrkMessageInfo kZrkMessageTable[] = {
#define ZRK_MSG_IN(id, name, w, l, text) { id, ZrkMessageDirection::HostToPlugin, #name, w, l, text },
#define ZRK_MSG_OUT(id, name, w, l, text) { id, ZrkMessageDirection::PluginToHost, #name, w, l, text },
#include "zrk/zrk_messages.def"
};

// The row of a message id in one direction, or null when the id has none.
inline const ZrkMessageInfo* zrkMessageInfo(int id, ZrkMessageDirection direction)
{
    for (const ZrkMessageInfo& row : kZrkMessageTable) {
        if (row.id == id && row.direction == direction)
            return &row;
    }
    return nullptr;
}

// ---- values carried by messages --------------------------------------------------------------

// Configurator mode (message 2004) in which the host runs the service/test tools.
enum : quint32
{
    ZRK_CONFIGURATOR_MODE_SERVICE = 5
};

// View kind of message 2103 (lParam points to it as a uint32).
enum class zrk_type_ViewFileTmi : quint32
{
    Page = 0,
    Table = 1
};

// The application setting (QSettings of the host application) that holds the plug-in's
// user-interface language, "ru" or "en". A host that changes it sends 2031 afterwards.
#define ZRK_SETTINGS_LANGUAGE_KEY "zrk_k7140/language"

// Sizes of the fixed text buffers.
enum : int
{
    ZRK_LIBRARY_TEXT_SIZE = 255,
    ZRK_CONFIG_PATH_SIZE = 1024,
    ZRK_CONFIG_PARAM_SIZE = 255,
};

// ---- records passed by address ---------------------------------------------------------------

#pragma pack(push, 1)
// Filled by GetLibraryInfo; exactly 542 bytes, no padding.
struct szLibraryInfo
{
    void* handle; // 0: the value the host passes back with every message
    char deviceType[ZRK_LIBRARY_TEXT_SIZE]; // 8: UTF-8, NUL-terminated ("K-7140")
    char displayName[ZRK_LIBRARY_TEXT_SIZE]; // 263: local 8-bit encoding, NUL-terminated
    qint32 hostValues[4]; // 518: four values whose meaning belongs to the host (3, 5, 8, 1)
    quint32 reserved; // 534: always 0
    quint32 firmwareVersion; // 538: the plug-in's firmware version number
};
#pragma pack(pop)
static_assert(sizeof(void*) == 8, "the library information record is laid out for 64-bit hosts");
static_assert(sizeof(szLibraryInfo) == 542, "szLibraryInfo is 542 bytes");
static_assert(offsetof(szLibraryInfo, deviceType) == 8, "szLibraryInfo layout");
static_assert(offsetof(szLibraryInfo, displayName) == 263, "szLibraryInfo layout");
static_assert(offsetof(szLibraryInfo, hostValues) == 518, "szLibraryInfo layout");
static_assert(offsetof(szLibraryInfo, reserved) == 534, "szLibraryInfo layout");
static_assert(offsetof(szLibraryInfo, firmwareVersion) == 538, "szLibraryInfo layout");

// wParam of 2101 (open configuration): 1032 bytes.
struct szConfigFile
{
    qint32 mode; // 1 = full editor, any other value = light editor
    qint32 source; // 1 = opened from a file
    char path[ZRK_CONFIG_PATH_SIZE]; // local 8-bit encoding, NUL-terminated; empty = new configuration
};
static_assert(sizeof(szConfigFile) == 8 + ZRK_CONFIG_PATH_SIZE, "szConfigFile layout");

// The configuration's parameter text (wParam of 2356, result): NUL-terminated, at most 254 bytes
// of text in a 255-byte buffer.
struct szConfigParam
{
    char text[ZRK_CONFIG_PARAM_SIZE];
};
static_assert(sizeof(szConfigParam) == ZRK_CONFIG_PARAM_SIZE, "szConfigParam layout");

// wParam of 2049: the four data directories. An empty entry keeps the plug-in's default.
struct szDirPath
{
    QString pathTMI;
    QString pathXML;
    QString pathFirmware;
    QString pathSound;
};

// wParam of 2051 (device connected).
struct szDeviceConnect
{
    QString deviceType; // compared with the plug-in's type; another type means "disconnected"
    QString imei;
    QString firmwareVersion;
    void* unused1; // not read
    quint64 bhr;
    quint32 unused2; // not read
    quint32 connectType;
};

// lParam of 2135 (result): another module's entry, filled by the host. The plug-in zeroes it
// before asking.
struct szLibraryFunctions
{
    QString moduleName;
    QString moduleFile;
    QString moduleVersion;
    void* handle;
    ZRK_ReceiveMessageFn receiveMessage;
};

// Records of the device's services, laid out by the host; the plug-in parts that read them
// declare them fully.
struct szDtpKRAI;
struct szAnalogValue;
struct szADValue;
struct szADValue_UN;
struct szAccelParam;
struct szAccelReset;
struct szCmdAccelParam;
struct szBluetoothDevice;
struct szSDFile;
struct szCmndAINF;

// wParam of 2352 (tachograph file request): which file and the period it covers.
struct szQueryTaho
{
    qint32 fileKind = 0; // 1 = vehicle unit file, 2 = driver card file
    qint64 fromUnix = 0; // Unix seconds, UTC
    qint64 toUnix = 0;
};

// wParam of 2410 (request fuel-sensor data): the sensor and the query, as two texts.
struct szQueryFlsData
{
    QString sensor;
    QString query;
};
