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

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <cstring>

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
struct szQueryTaho;
struct szCmndAINF;

// ---- SD-card files (2400 -> 2401) -------------------------------------------------------------
//
// The plug-in writes files to the terminal's SD card (the geo-information page: "GeoZones.cfg" and
// its companions) one request at a time. It sends 2400 with wParam = szSDFile*; the host carries
// the request to the terminal, fills `result` before returning, and answers every request it
// accepted with 2401 (wParam = QByteArray*, the reply below), possibly from inside the 2400 call.
// A request is complete in itself (it names its file), so a host may serve it without keeping
// state between calls; "open" and "close" bracket a transfer for terminals that need it.
//
// Sequence the plug-in uses to write one file: open (size 1) -> write (offset 0, 4 KB at most per
// request) ... -> close; "delete" and "list" stand alone.

enum zrk_SDFileOperation : quint32
{
    ZRK_SD_OPEN = 1, // size 0: open for reading (the file must exist); 1: create or truncate for writing
    ZRK_SD_READ = 2, // size bytes from offset (fewer at the end of the file)
    ZRK_SD_WRITE = 3, // data at offset; the file grows as needed, a gap reads as zeros
    ZRK_SD_DELETE = 4,
    ZRK_SD_CLOSE = 5,
    ZRK_SD_LIST = 6, // fileName ignored: every file on the card
};

enum zrk_SDFileResult : qint32
{
    ZRK_SD_OK = 0,
    ZRK_SD_NOT_FOUND = 1, // read, delete, or open for reading of a file that is not there
    ZRK_SD_NO_CARD = 2, // no terminal or no card
    ZRK_SD_CARD_FULL = 3, // the write would pass the card's capacity; nothing was written
    ZRK_SD_BAD_REQUEST = 4, // unknown operation, empty or too long name, size above the limit
};

// Longest file name (UTF-8 bytes) and the most bytes one read or write may carry.
enum : int
{
    ZRK_SD_NAME_MAX = 255,
    ZRK_SD_CHUNK_MAX = 4096,
};

// wParam of 2400. Owned by the plug-in; valid only during the call. It carries Qt values rather
// than a fixed layout: plug-in and host share one process and one Qt, as with szDirPath, and a
// file's bytes need not be copied into a fixed buffer.
struct szSDFile
{
    quint32 operation = 0; // zrk_SDFileOperation
    QString fileName; // path on the card, "/" separated, no leading "/" ("GeoZones.cfg")
    QByteArray data; // write: the bytes; other operations: empty
    quint32 offset = 0; // read, write: position in the file
    quint32 size = 0; // read: bytes wanted; open: 0 read, 1 write
    qint32 result = ZRK_SD_NO_CARD; // filled by the host: zrk_SDFileResult
};

// wParam of 2401: a QByteArray holding this fixed header (little-endian, packed, 16 bytes), then
// the file name (nameLength bytes of UTF-8), then the payload: read: the bytes read; list: one line
// per file, "<name>\t<size in decimal>\n" in UTF-8, sorted by name; other operations: nothing.
#pragma pack(push, 1)
struct szSDFileReplyHeader
{
    quint8 operation; // 0: echo of the request's operation
    qint8 result; // 1: zrk_SDFileResult
    quint16 nameLength; // 2
    quint32 offset; // 4: echo of the request's offset
    quint32 fileSize; // 8: the file's size after the operation (list: number of files)
    quint32 payloadLength; // 12
};
#pragma pack(pop)
static_assert(sizeof(szSDFileReplyHeader) == 16, "szSDFileReplyHeader is 16 bytes");
static_assert(offsetof(szSDFileReplyHeader, fileSize) == 8, "szSDFileReplyHeader layout");

// Splits a 2401 reply; false (outputs untouched) when it is shorter than its header says.
inline bool zrkParseSDFileReply(const QByteArray& reply, szSDFileReplyHeader* header, QString* name,
                                QByteArray* payload)
{
    szSDFileReplyHeader h;
    if (reply.size() < int(sizeof h))
        return false;
    memcpy(&h, reply.constData(), sizeof h);
    const qint64 need = qint64(sizeof h) + h.nameLength + h.payloadLength;
    if (need > reply.size())
        return false;
    if (header)
        *header = h;
    if (name)
        *name = QString::fromUtf8(reply.constData() + sizeof h, h.nameLength);
    if (payload)
        *payload = reply.mid(int(sizeof h) + h.nameLength, int(h.payloadLength));
    return true;
}
