#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

// The terminal's command packets: a 16-byte envelope followed by the command text in the
// Windows-1251 code page, optionally followed by a block of binary arguments.
//
//   offset 0  "@ZRK"            offset 12  payload size (16 bits, little-endian)
//   offset 4  first address 0   offset 14  XOR of the payload
//   offset 8  second address 1  offset 15  XOR of bytes 0..14
//
// Builders return the complete packet, or an empty array when the payload would exceed
// kMaxPayload. The finder and classifier read received bytes and never read past them.
class commonFunctions
{
public:
    static constexpr int kHeaderSize = 16;
    // The terminal's receive area for one payload.
    static constexpr int kMaxPayload = 1008;
    static constexpr char kPreamble[] = "@ZRK";
    static constexpr std::uint32_t kFirstAddress = 0;
    static constexpr std::uint32_t kSecondAddress = 1;

    enum class Command
    {
#define ZRK_COMMAND(name, text) name,
#define ZRK_COMMAND_ARG(name, text) name,
#define ZRK_COMMAND_BYTES(name, text) name,
#include "device/command_texts.def"
    };
    // The command's text as sent (before the argument is filled in or appended).
    static const char* commandText(Command command);

    // Kinds of reply, numbered from 1 in the order of reply_prefixes.def; 0 matches no prefix.
    enum ReplyKind : int
    {
        Reply_Unknown = 0,
#define ZRK_REPLY(name, prefix) Reply_##name,
#include "device/reply_prefixes.def"
        Reply_End
    };
    static constexpr int kReplyKindCount = Reply_End - 1;
    // The prefix of a kind, or nullptr for Reply_Unknown and values outside the list.
    static const char* replyPrefix(int kind);
    // The kind's name without "Reply_" ("DataFuelUn"), "Unknown" for anything else.
    static const char* replyKindName(int kind);

    // XOR of all bytes; 0 for len below 1.
    static unsigned char getSumDataToByte(const unsigned char* data, int len);
    static unsigned char getSumDataToByte(const char* data, int len);
    // Copies a and then b into out, consecutively, and returns the XOR of all the bytes copied.
    // A negative length counts as 0.
    static unsigned char getSumDataToByte(
        const char* a, int lenA, const unsigned char* b, int lenB, unsigned char* out);

    // CRC-32 of a configuration file; 0 when it cannot be opened.
    static std::uint32_t getConfigCRC32(const QString& path);

    // The envelope and payload of a text command, into out (cleared first). False, with out
    // empty, when the payload would be longer than kMaxPayload.
    static bool getHeaderCommand(const QString& text, QByteArray& out);
    // The same with binaryArgs appended to the converted text inside the payload.
    static bool getHeaderCommand(const QString& text, const QByteArray& binaryArgs, QByteArray& out);
    // header: command text bytes already in the code page; data: the binary block after it.
    static QByteArray getHeaderCommand(const QByteArray& header, const QByteArray& data);

    static QByteArray getUsbCommandToDevice(const QString& text);
    static QByteArray getUsbCommandToDevice(const QString& text, const QByteArray& args);
    // Sends bytes as the payload without any conversion.
    static QByteArray getUsbArrCommandToDevice(const QByteArray& bytes);

    // Offset of the first packet with a good header check that the buffer holds completely, or -1.
    // The completeness test compares with the length of the whole buffer, not with the bytes after
    // the offset: receivers drop consumed bytes, so a packet normally starts at offset 0. The
    // payload check is not verified here.
    static int findPacketZRKB(const QByteArray& buffer);
    static int findPacketZRKB(const char* data, int size);
    static int findFirstPacket(const QByteArray& buffer)
    {
        return findPacketZRKB(buffer);
    }
    static int findPacket(const QByteArray& buffer)
    {
        return findPacketZRKB(buffer);
    }

    // True when the packet found by findPacketZRKB lies completely inside the buffer; then offset
    // is where it starts, length is its payload size + 16 and flag is 1 when the payload check
    // matches, 0 when it does not. Otherwise offset is findPacketZRKB's answer, length and flag 0.
    static bool isGoodPacket(const QByteArray& buffer, int& offset, int& length, int& flag);
    static bool isGoodPacket(const char* data, int size, int& offset, int& length, int& flag);

    // The kind of a reply packet (header included) by the text at the start of its payload.
    static int getTypeReceivePacket(const QByteArray& packet);

    // Commands sent as their text alone, and those whose text a block of bytes follows unchanged.
#define ZRK_COMMAND(name, text) static QByteArray getUsbCommand_##name();
#define ZRK_COMMAND_ARG(name, text)
#define ZRK_COMMAND_BYTES(name, text) static QByteArray getUsbCommand_##name(const QByteArray& bytes);
#include "device/command_texts.def"

    // Sets the clock by a signed shift; the number is always sent with its sign ("+3", "-2").
    static QByteArray getUsbCommand_DeviceSetTime(int t);
    static QByteArray getUsbCommand_Out_On(int output);
    static QByteArray getUsbCommand_Out_Off(int output);
    static QByteArray getUsbCommand_DevicePassword(const QString& password);
    // File number, 16 bits little-endian.
    static QByteArray getUsbCommand_TM_FileRead(quint16 file);
    // Threshold and duration, 16 bits little-endian each.
    static QByteArray getUsbCommand_Accel_Break(quint16 threshold, quint16 duration);
    // Page numbers, 32 bits little-endian.
    static QByteArray getUsbCommand_Dtp_ReadPageFile(quint32 page);
    static QByteArray getUsbCommand_ReadPage(quint32 page);
    static QByteArray getUsbCommand_Canlog_Ver(int version);
    // Server number and mileage in decimal text.
    static QByteArray getUsbCommand_ClearServerToDevice(int server);
    static QByteArray getUsbCommand_SetRun(quint32 km);
    // First and last log entry, 32 bits little-endian each.
    static QByteArray getUsbCommand_Log(quint32 first, quint32 last);
    static QByteArray getUsbCommandToDeviceTest(const QByteArray& bytes);
    static QByteArray getUsbCommand_CE_UserCmd(const QString& command);
};
