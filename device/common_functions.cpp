#include "device/common_functions.h"

#include "config_model/common_routines.h"
#include "config_model/cp1251.h"

#include <cstring>
#include <string.h> // memmem

namespace {

constexpr const char* kCommandTexts[] = {
#define ZRK_COMMAND(name, text) text,
#define ZRK_COMMAND_ARG(name, text) text,
#define ZRK_COMMAND_BYTES(name, text) text,
#include "device/command_texts.def"
};

struct ReplyRow
{
    const char* prefix;
    int length;
    const char* name;
};

constexpr ReplyRow kReplies[] = {
#define ZRK_REPLY(name, prefix) { prefix, int(sizeof(prefix) - 1), #name },
#include "device/reply_prefixes.def"
};

static_assert(
    sizeof(kReplies) / sizeof(kReplies[0]) == commonFunctions::kReplyKindCount, "one kind per reply prefix");

void putLe16(char* p, std::uint16_t v)
{
    p[0] = static_cast<char>(v & 0xFF);
    p[1] = static_cast<char>(v >> 8);
}

void putLe32(char* p, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<char>((v >> (8 * i)) & 0xFF);
}

QByteArray le16(quint16 v)
{
    QByteArray out(2, Qt::Uninitialized);
    putLe16(out.data(), v);
    return out;
}

QByteArray le32(quint32 v)
{
    QByteArray out(4, Qt::Uninitialized);
    putLe32(out.data(), v);
    return out;
}

// Turns payload bytes (already in place after 16 reserved bytes) into a packet. False, with out
// emptied, when the payload does not fit the terminal's receive area.
bool sealEnvelope(QByteArray& out)
{
    const int payloadSize = out.size() - commonFunctions::kHeaderSize;
    if (payloadSize > commonFunctions::kMaxPayload) {
        out.clear();
        return false;
    }
    char* h = out.data();
    std::memcpy(h, commonFunctions::kPreamble, 4);
    putLe32(h + 4, commonFunctions::kFirstAddress);
    putLe32(h + 8, commonFunctions::kSecondAddress);
    putLe16(h + 12, static_cast<std::uint16_t>(payloadSize));
    h[14]
        = static_cast<char>(commonFunctions::getSumDataToByte(h + commonFunctions::kHeaderSize, payloadSize));
    h[15] = static_cast<char>(commonFunctions::getSumDataToByte(h, 15));
    return true;
}

QByteArray textPacket(commonFunctions::Command c)
{
    return commonFunctions::getUsbCommandToDevice(QString::fromLatin1(commonFunctions::commandText(c)));
}

QByteArray argsPacket(commonFunctions::Command c, const QByteArray& args)
{
    return commonFunctions::getUsbCommandToDevice(QString::fromLatin1(commonFunctions::commandText(c)), args);
}

// The command text with a text argument after it, converted to the code page together.
QByteArray suffixPacket(commonFunctions::Command c, const QString& suffix)
{
    return commonFunctions::getUsbCommandToDevice(QLatin1String(commonFunctions::commandText(c)) + suffix);
}

QByteArray numberPacket(commonFunctions::Command c, const QString& number)
{
    return commonFunctions::getUsbCommandToDevice(
        QString::fromLatin1(commonFunctions::commandText(c)).arg(number));
}

} // namespace

const char* commonFunctions::commandText(Command command)
{
    return kCommandTexts[static_cast<int>(command)];
}

const char* commonFunctions::replyPrefix(int kind)
{
    if (kind < 1 || kind > kReplyKindCount)
        return nullptr;
    return kReplies[kind - 1].prefix;
}

const char* commonFunctions::replyKindName(int kind)
{
    if (kind < 1 || kind > kReplyKindCount)
        return "Unknown";
    return kReplies[kind - 1].name;
}

unsigned char commonFunctions::getSumDataToByte(const unsigned char* data, int len)
{
    if (len < 1)
        return 0;
    // Eight bytes at a time: XOR is bytewise, so folding the word at the end gives the same sum.
    std::uint64_t wide = 0;
    int i = 0;
    for (; i + 8 <= len; i += 8) {
        std::uint64_t w;
        std::memcpy(&w, data + i, 8);
        wide ^= w;
    }
    wide ^= wide >> 32;
    wide ^= wide >> 16;
    wide ^= wide >> 8;
    unsigned char sum = static_cast<unsigned char>(wide);
    for (; i < len; ++i)
        sum ^= data[i];
    return sum;
}

unsigned char commonFunctions::getSumDataToByte(const char* data, int len)
{
    return getSumDataToByte(reinterpret_cast<const unsigned char*>(data), len);
}

unsigned char commonFunctions::getSumDataToByte(
    const char* a, int lenA, const unsigned char* b, int lenB, unsigned char* out)
{
    lenA = qMax(lenA, 0);
    lenB = qMax(lenB, 0);
    if (lenA > 0)
        std::memcpy(out, a, static_cast<size_t>(lenA));
    if (lenB > 0)
        std::memcpy(out + lenA, b, static_cast<size_t>(lenB));
    return getSumDataToByte(out, lenA + lenB);
}

std::uint32_t commonFunctions::getConfigCRC32(const QString& path)
{
    ::crc32 crc;
    return crc.FileCRC(path);
}

bool commonFunctions::getHeaderCommand(const QString& text, QByteArray& out)
{
    return getHeaderCommand(text, QByteArray(), out);
}

bool commonFunctions::getHeaderCommand(const QString& text, const QByteArray& binaryArgs, QByteArray& out)
{
    out.clear();
    if (text.size() + binaryArgs.size() > kMaxPayload)
        return false;
    out.reserve(kHeaderSize + text.size() + binaryArgs.size());
    out.resize(kHeaderSize);
    zrk::appendWindows1251(out, text);
    out.append(binaryArgs);
    return sealEnvelope(out);
}

QByteArray commonFunctions::getHeaderCommand(const QByteArray& header, const QByteArray& data)
{
    if (header.size() + data.size() > kMaxPayload)
        return QByteArray();
    QByteArray out;
    out.reserve(kHeaderSize + header.size() + data.size());
    out.resize(kHeaderSize);
    out.append(header);
    out.append(data);
    sealEnvelope(out);
    return out;
}

QByteArray commonFunctions::getUsbCommandToDevice(const QString& text)
{
    QByteArray out;
    getHeaderCommand(text, out);
    return out;
}

QByteArray commonFunctions::getUsbCommandToDevice(const QString& text, const QByteArray& args)
{
    QByteArray out;
    getHeaderCommand(text, args, out);
    return out;
}

QByteArray commonFunctions::getUsbArrCommandToDevice(const QByteArray& bytes)
{
    return getHeaderCommand(bytes, QByteArray());
}

int commonFunctions::findPacketZRKB(const QByteArray& buffer)
{
    return findPacketZRKB(buffer.constData(), buffer.size());
}

int commonFunctions::findPacketZRKB(const char* data, int size)
{
    if (size < kHeaderSize)
        return -1;
    int from = 0;
    for (;;) {
        const void* hit = memmem(data + from, static_cast<size_t>(size - from), kPreamble, 4);
        if (!hit)
            return -1;
        const int offset = static_cast<int>(static_cast<const char*>(hit) - data);
        // The header check is the 16th byte; a header cut short by the end of the buffer is not
        // a packet yet.
        if (offset + 15 >= size)
            return -1;
        const unsigned char* h = reinterpret_cast<const unsigned char*>(data + offset);
        if (getSumDataToByte(h, 15) != h[15]) {
            from = offset + 1;
            continue;
        }
        const int payloadSize = h[12] | (h[13] << 8);
        if (payloadSize + 15 >= size)
            return -1;
        return offset;
    }
}

bool commonFunctions::isGoodPacket(const QByteArray& buffer, int& offset, int& length, int& flag)
{
    return isGoodPacket(buffer.constData(), buffer.size(), offset, length, flag);
}

bool commonFunctions::isGoodPacket(const char* data, int size, int& offset, int& length, int& flag)
{
    offset = findPacketZRKB(data, size);
    length = 0;
    flag = 0;
    if (offset < 0)
        return false;
    const unsigned char* h = reinterpret_cast<const unsigned char*>(data + offset);
    const int payloadSize = h[12] | (h[13] << 8);
    // The finder compares with the whole buffer, so a packet found after the start may still run
    // past the end.
    if (payloadSize + kHeaderSize > size - offset)
        return false;
    length = payloadSize + kHeaderSize;
    flag = getSumDataToByte(h + kHeaderSize, payloadSize) == h[14] ? 1 : 0;
    return true;
}

int commonFunctions::getTypeReceivePacket(const QByteArray& packet)
{
    const int textSize = packet.size() - kHeaderSize;
    if (textSize <= 0)
        return Reply_Unknown;
    const char* text = packet.constData() + kHeaderSize;
    for (int i = 0; i < kReplyKindCount; ++i) {
        const ReplyRow& row = kReplies[i];
        if (row.length <= textSize && std::memcmp(text, row.prefix, static_cast<size_t>(row.length)) == 0)
            return i + 1;
    }
    return Reply_Unknown;
}

#define ZRK_COMMAND(name, text)                                                                              \
    QByteArray commonFunctions::getUsbCommand_##name()                                                       \
    {                                                                                                        \
        return textPacket(Command::name);                                                                    \
    }
#define ZRK_COMMAND_ARG(name, text)
#define ZRK_COMMAND_BYTES(name, text)                                                                        \
    QByteArray commonFunctions::getUsbCommand_##name(const QByteArray& bytes)                                \
    {                                                                                                        \
        return argsPacket(Command::name, bytes);                                                             \
    }
#include "device/command_texts.def"

QByteArray commonFunctions::getUsbCommand_DeviceSetTime(int t)
{
    if (t >= 0)
        return numberPacket(Command::DeviceSetTimePlus, QString::number(t));
    return numberPacket(Command::DeviceSetTime, QString::number(t));
}

QByteArray commonFunctions::getUsbCommand_Out_On(int output)
{
    return numberPacket(Command::Out_On, QString::number(output));
}

QByteArray commonFunctions::getUsbCommand_Out_Off(int output)
{
    return numberPacket(Command::Out_Off, QString::number(output));
}

QByteArray commonFunctions::getUsbCommand_DevicePassword(const QString& password)
{
    return suffixPacket(Command::DevicePassword, password);
}

QByteArray commonFunctions::getUsbCommand_TM_FileRead(quint16 file)
{
    return argsPacket(Command::TM_FileRead, le16(file));
}

QByteArray commonFunctions::getUsbCommand_Accel_Break(quint16 threshold, quint16 duration)
{
    return argsPacket(Command::Accel_Break, le16(threshold) + le16(duration));
}

QByteArray commonFunctions::getUsbCommand_Dtp_ReadPageFile(quint32 page)
{
    return argsPacket(Command::Dtp_ReadPageFile, le32(page));
}

QByteArray commonFunctions::getUsbCommand_ReadPage(quint32 page)
{
    return argsPacket(Command::ReadPage, le32(page));
}

QByteArray commonFunctions::getUsbCommand_Canlog_Ver(int version)
{
    return numberPacket(Command::Canlog_Ver, QString::number(version));
}

QByteArray commonFunctions::getUsbCommand_ClearServerToDevice(int server)
{
    return suffixPacket(Command::ClearServerToDevice, QString::number(server));
}

QByteArray commonFunctions::getUsbCommand_SetRun(quint32 km)
{
    return suffixPacket(Command::SetRun, QString::number(km));
}

QByteArray commonFunctions::getUsbCommand_Log(quint32 first, quint32 last)
{
    return argsPacket(Command::Log, le32(first) + le32(last));
}

QByteArray commonFunctions::getUsbCommandToDeviceTest(const QByteArray& bytes)
{
    return argsPacket(Command::DeviceTest, bytes);
}

QByteArray commonFunctions::getUsbCommand_CE_UserCmd(const QString& command)
{
    return suffixPacket(Command::CE_UserCmd, command);
}
