#include "device/common_functions.h"

#include <QtTest>

#include <cstring>
#include <memory>

using CF = commonFunctions;

namespace {

QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

// Independent of the code under test: a plain loop.
unsigned char xorOf(const QByteArray& a, int from, int to)
{
    unsigned char x = 0;
    for (int i = from; i < to; ++i)
        x ^= static_cast<unsigned char>(a.at(i));
    return x;
}

// A reply packet with a correct envelope, assembled by hand for the classifier and finder tests.
QByteArray handPacket(const QByteArray& payload)
{
    QByteArray p("@ZRK", 4);
    p += hex("00000000 01000000");
    p += char(payload.size() & 0xFF);
    p += char(payload.size() >> 8);
    p += char(xorOf(payload, 0, payload.size()));
    p += char(xorOf(p, 0, 15));
    return p + payload;
}

void exact(const char* name, const QByteArray& packet, const QByteArray& expected)
{
    QTest::newRow(name) << packet << expected;
}

// A builder's row by the payload it must carry.
void row(const char* name, const QByteArray& packet, const QByteArray& payload)
{
    exact(name, packet, handPacket(payload));
}

// What the finder and the completeness test say about a buffer: "offset" from the finder, then
// "length flag" when the packet is complete. Both must agree on the offset.
QByteArray find(const QByteArray& buffer)
{
    int offset = -7, length = -7, flag = -7;
    const bool good = CF::isGoodPacket(buffer, offset, length, flag);
    QByteArray out = QByteArray::number(CF::findPacketZRKB(buffer));
    if (offset != out.toInt())
        return "offsets differ";
    return good ? out + ' ' + QByteArray::number(length) + ' ' + QByteArray::number(flag)
                : out + (length == 0 && flag == 0 ? "" : " not cleared");
}

// The kind of a reply with this payload, by name.
QByteArray kindOf(const QByteArray& payload)
{
    return CF::replyKindName(CF::getTypeReceivePacket(handPacket(payload)));
}

} // namespace

class tst_CommandPackets : public QObject
{
    Q_OBJECT
private slots:
    // Each row: bytes made by the code, the bytes they must be. Sent packets: a few written out byte by
    // byte, which also pins handPacket(), the rest as their payload in the envelope handPacket() makes.
    void packets_data()
    {
        QTest::addColumn<QByteArray>("actual");
        QTest::addColumn<QByteArray>("expected");
        exact("ping", CF::getUsbCommand_Ping(), hex("405a524b 00000000 01000000 0800 14 1e") + "*?PING 1");
        // "Я" is 0xDF in the code page, "☺" has no place there and goes as "_".
        exact("password", CF::getUsbCommand_DevicePassword(QString::fromUtf8("Я☺1")),
            hex("405a524b 00000000 01000000 0a00 8e 86") + "*>PASS:\xDF_1");
        exact("empty payload", CF::getUsbArrCommandToDevice(QByteArray()),
            hex("405a524b 00000000 01000000 0000 00 02"));
        // "*!R" (2a 21 52, XOR 59) then page 0x01020304 little-endian (XOR 04): payload check 5d.
        exact("read page", CF::getUsbCommand_ReadPage(0x01020304u),
            hex("405a524b 00000000 01000000 0700 5d 58 2a2152 04030201"));
        row("DeviceType", CF::getUsbCommand_DeviceType(), "*?V");
        row("DeviceBhr", CF::getUsbCommand_DeviceBhr(), "*?H");
        row("DeviceImei", CF::getUsbCommand_DeviceImei(), "*?S");
        row("DeviceTestMode", CF::getUsbCommand_DeviceTestMode(), "*!TM");
        row("TM", CF::getUsbCommand_TM(), "*?TM");
        row("SetTime positive", CF::getUsbCommand_DeviceSetTime(3), "*!SETTIME +3");
        row("SetTime zero", CF::getUsbCommand_DeviceSetTime(0), "*!SETTIME +0");
        row("SetTime negative", CF::getUsbCommand_DeviceSetTime(-2), "*!SETTIME -2");
        row("DeviceReset", CF::getUsbCommand_DeviceReset(), "*!DEV_RESET");
        row("ConfigReset", CF::getUsbCommand_ConfigReset(), "*!SETT_RESET");
        row("RCS_DeviceDisconnect", CF::getUsbCommand_RCS_DeviceDisconnect(), "*!DELD");
        row("Out_On", CF::getUsbCommand_Out_On(2), "*!2Y");
        row("Out_Off", CF::getUsbCommand_Out_Off(12), "*!12N");
        row("DevicePassword", CF::getUsbCommand_DevicePassword("1234"), "*>PASS:1234");
        row("GetKey", CF::getUsbCommand_GetKey(), "*?PASS");
        row("TM_Type", CF::getUsbCommand_TM_Type(), "*?DKV");
        row("TM_FileChange", CF::getUsbCommand_TM_FileChange(), "*!DKU");
        row("TM_FileRead", CF::getUsbCommand_TM_FileRead(0x0102), "*!DKR\x02\x01");
        row("TM_FileWrite", CF::getUsbCommand_TM_FileWrite(hex("00ff")), QByteArray("*!DKW\x00\xFF", 7));
        row("RFID", CF::getUsbCommand_RFID(), "*?ERFT");
        row("AnalogValue", CF::getUsbCommand_AnalogValue(), "*?AN2G");
        row("AD_Value_Fuel", CF::getUsbCommand_AD_Value_Fuel(), "*?FUEL");
        row("AD_Value_Fuel_UN", CF::getUsbCommand_AD_Value_Fuel_UN(), "*?FUEL_UN");
        row("Accel_Param", CF::getUsbCommand_Accel_Param(), "*?ACL2");
        row("Accel_Reset", CF::getUsbCommand_Accel_Reset(), "*!ACL_RESET");
        row("Accel_Break", CF::getUsbCommand_Accel_Break(0x0110, 5),
            QByteArray("*!ACLI\x10\x01\x05\x00", 10));
        row("Accel_AclC", CF::getUsbCommand_Accel_AclC("\x01\x02"), "*!ACL_C:\x01\x02");
        row("Dtp_Test", CF::getUsbCommand_Dtp_Test(), "*?KRAI");
        row("Dtp_Protection", CF::getUsbCommand_Dtp_Protection(), "*!KRAI");
        row("Dtp_ReadPageFile", CF::getUsbCommand_Dtp_ReadPageFile(7), QByteArray("*!R\x07\0\0\0", 7));
        row("WritePage", CF::getUsbCommand_WritePage("page"), "*!Wpage");
        row("File_ReadPage", CF::getUsbCommand_File_ReadPage("r"), "*!FRr");
        row("File_WritePage", CF::getUsbCommand_File_WritePage("w"), "*!FWw");
        row("File_Info", CF::getUsbCommand_File_Info("i"), "*?FVi");
        row("File_Update", CF::getUsbCommand_File_Update("u"), "*!FUu");
        row("ChangeFirmware", CF::getUsbCommand_ChangeFirmware(), "*!U");
        row("ChangeConfig", CF::getUsbCommand_ChangeConfig(), "*!P");
        row("Bluetooth_List", CF::getUsbCommand_Bluetooth_List(), "*?BTDEV1");
        row("Bluetooth_Cancel", CF::getUsbCommand_Bluetooth_Cancel(), "*!BTDEV0");
        row("Disp_Value", CF::getUsbCommand_Disp_Value(), "*?DISP");
        row("Canlog_Ver", CF::getUsbCommand_Canlog_Ver(2), "*!CANLOG2");
        row("Canlog_CurVer", CF::getUsbCommand_Canlog_CurVer(), "*?CANLOG");
        row("ClearServerToDevice", CF::getUsbCommand_ClearServerToDevice(1), "*!SYNC:1");
        row("SetRun", CF::getUsbCommand_SetRun(123456), "*!MLG:123456");
        row("SetParamValue", CF::getUsbCommand_SetParamValue("a=1"), "*!SETP a=1");
        row("Taho_Quest", CF::getUsbCommand_Taho_Quest("\x01"), "*?TACH\x01");
        row("Taho_File", CF::getUsbCommand_Taho_File("\x02"), "*?TACH\x02");
        row("FLS_Data_Quest", CF::getUsbCommand_FLS_Data_Quest(), "*!BTARCH");
        row("Camera_Info", CF::getUsbCommand_Camera_Info("\x03"), "*?DCAM\x03");
        row("SD_Photo_Info", CF::getUsbCommand_SD_Photo_Info("\x04"), "*?DCAM\x04");
        row("SD_File", CF::getUsbCommand_SD_File(), "*!SDFS");
        row("Ainf", CF::getUsbCommand_Ainf(), "*!AINF");
        row("Log", CF::getUsbCommand_Log(1, 0x100), QByteArray("*!LOG\x01\0\0\0\0\x01\0\0", 13));
        row("DeviceTest", CF::getUsbCommandToDeviceTest(hex("aa00bb")),
            QByteArray("*?DATA \xAA\x00\xBB", 10));
        row("CE_Debug", CF::getUsbCommand_CE_Debug(), "*?CEVT");
        row("CE_UserCmd", CF::getUsbCommand_CE_UserCmd("GO"), "*!CEVT GO");
        row("CE_ProgramInfo", CF::getUsbCommand_CE_ProgramInfo(), "*?CEVT");
        // Raw bytes go unconverted; 0xC0 read as text would not survive the code page.
        row("raw bytes", CF::getUsbArrCommandToDevice("\xC0\xFF"), "\xC0\xFF");
        row("text bytes and data", CF::getHeaderCommand(QByteArray("*!W"), hex("01")), "*!W\x01");
        // 1008 payload bytes fit the terminal's receive area, one more does not, text and arguments together.
        row("1008 text", CF::getUsbCommandToDevice(QString(1008, 'a')), QByteArray(1008, 'a'));
        // A payload that does not fit leaves nothing of what was there before.
        QByteArray out("stale");
        CF::getHeaderCommand(QString(1009, 'a'), out);
        exact("1009 text", out, QByteArray());
        exact("1000+9", CF::getUsbCommandToDevice(QString(1000, 'a'), QByteArray(9, 'b')), QByteArray());
        row("1008 raw", CF::getUsbArrCommandToDevice(QByteArray(1008, 'x')), QByteArray(1008, 'x'));
        exact("1009 raw", CF::getUsbArrCommandToDevice(QByteArray(1009, 'x')), QByteArray());

        // Received bytes: where the finder puts the first packet (see find()), and the kind of a reply.
        const QByteArray ping = handPacket("*?PING 1");
        const QByteArray empty = handPacket(QByteArray());
        // A preamble whose header check does not hold: XOR of bytes 0..14 is 0xFC, byte 15 is 0xFF.
        const QByteArray falsePreamble = QByteArray("@ZRK") + QByteArray(12, '\xFF');
        // A header check that holds over a preamble that is not ours.
        QByteArray otherPreamble = ping;
        otherPreamble[3] = 'k';
        otherPreamble[15] = char(xorOf(otherPreamble, 0, 15));
        // A good header that announces 1000 bytes more than the buffer holds.
        const QByteArray bigHeader = hex("405a524b 00000000 01000000 e803 00 e9");

        exact("empty buffer", find(QByteArray()), "-1");
        exact("exactly 16, size 0", find(empty), "0 16 1");
        exact("ping and a trailing byte", find(ping + "x"), "0 24 1");
        exact("ping truncated", find(ping.left(23)), "-1");
        exact("noise, then ping", find("@@ZR" + ping), "4 24 1");
        // The finder's completeness test uses the whole buffer: with one byte of noise in front and the
        // last byte missing, 8 + 15 < 24 and the offset comes back, but the packet is not all there.
        exact("offset, last byte missing", find("x" + ping.left(23)), "1");
        exact("false preamble skipped", find(falsePreamble + ping), "16 24 1");
        exact("false preamble overlapping", find("@ZRK@ZRK" + ping.mid(4)), "4 24 1");
        exact("other preamble", find(otherPreamble), "-1");
        exact("corrupted payload", find(ping.left(23) + "2"), "0 24 0");
        exact("corrupted size", find(ping.left(12) + "\x09" + ping.mid(13)), "-1");
        exact("long packet pending hides the next", find(bigHeader + ping), "-1");

        exact("FUEL_UN over FUEL", kindOf("*#FUEL_UN 12,3"), "DataFuelUn");
        exact("FUEL_U is FUEL", kindOf("*#FUEL_U"), "DataFuel");
        exact("SDFS more without space", kindOf("*&SDFS"), "Unknown");
        exact("unknown", kindOf("*#Z"), "Unknown");
        exact("too short", kindOf("*#"), "Unknown");
        exact("empty", kindOf(QByteArray()), "Unknown");
        exact("not at start", kindOf(" *#V"), "Unknown");
    }

    void packets()
    {
        QFETCH(QByteArray, actual);
        QFETCH(QByteArray, expected);
        QCOMPARE(actual.toHex(), expected.toHex());
    }

    // Lengths around the eight-byte steps of the sum, and no length at all; bytes beyond the length
    // must not count, whatever alignment the start has.
    void xorSums()
    {
        QByteArray data(20, Qt::Uninitialized);
        for (int i = 0; i < data.size(); ++i)
            data[i] = static_cast<char>(i * 37 + 11);
        for (int length : { -1, 0, 1, 7, 8, 9, 16, 17 }) {
            for (int start = 0; start < 3; ++start) {
                const unsigned char expected = length < 1 ? 0 : xorOf(data, start, start + length);
                QCOMPARE(CF::getSumDataToByte(data.constData() + start, length), expected);
            }
        }
        // The two-part form copies both parts one after the other; a negative length counts as none.
        unsigned char out[8];
        std::memset(out, 0xEE, sizeof out);
        const unsigned char b[] = { 0x0F, 0xF0 };
        QCOMPARE(int(CF::getSumDataToByte("\x01\x02\x04", 3, b, 2, out)), 0x01 ^ 0x02 ^ 0x04 ^ 0x0F ^ 0xF0);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(out), 6), QByteArray("\x01\x02\x04\x0F\xF0\xEE"));
        std::memset(out, 0xEE, sizeof out);
        QCOMPARE(int(CF::getSumDataToByte("\x55", -4, b, 1, out)), 0x0F);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(out), 2), QByteArray("\x0F\xEE"));
        QCOMPARE(int(CF::getSumDataToByte(nullptr, 0, nullptr, 0, out)), 0);
    }

    // A header whose check byte would be the first byte after the buffer, and every prefix of a
    // packet: copied into exactly sized heap blocks so that a read past the end is caught by ASan.
    void finderNeverReadsPastTheEnd()
    {
        // "@ZRK" XORs to 03, so "03" and ten zeros make the first 15 header bytes XOR to 0 and the
        // byte after them would match a terminating zero.
        const QByteArray cut = "x" + QByteArray("@ZRK") + hex("03000000000000000000 00");
        const QByteArray stream = cut + handPacket("*#H 12") + handPacket("*#H 12");
        for (int n = 0; n <= stream.size(); ++n) {
            std::unique_ptr<char[]> block(new char[static_cast<size_t>(qMax(n, 1))]);
            std::memcpy(block.get(), stream.constData(), static_cast<size_t>(n));
            int offset = 0, length = 0, flag = 0;
            const int found = CF::findPacketZRKB(block.get(), n);
            const bool good = CF::isGoodPacket(block.get(), n, offset, length, flag);
            QCOMPARE(offset, found);
            if (n == cut.size())
                QCOMPARE(found, -1);
            if (good)
                QVERIFY(offset + length <= n);
        }
    }

    // Each prefix, sent alone, comes back as its own kind: no earlier, shorter prefix hides it.
    void everyPrefixIsReachable()
    {
        for (int kind = 1; kind <= CF::kReplyKindCount; ++kind) {
            const QByteArray prefix(CF::replyPrefix(kind));
            const QByteArray whole = handPacket(prefix);
            QCOMPARE(CF::getTypeReceivePacket(whole), kind);
            QCOMPARE(CF::getTypeReceivePacket(handPacket(prefix + "123")), kind);
            // A packet that ends inside the prefix is not taken for it, whatever lies after its end.
            const QByteArray cut = QByteArray::fromRawData(whole.constData(), whole.size() - 1);
            QVERIFY(CF::getTypeReceivePacket(cut) != kind);
        }
        QCOMPARE(CF::replyPrefix(0), nullptr);
        QCOMPARE(CF::replyPrefix(CF::kReplyKindCount + 1), nullptr);
        QCOMPARE(CF::getTypeReceivePacket(QByteArray("*#V")), int(CF::Reply_Unknown));
    }
};

QTEST_APPLESS_MAIN(tst_CommandPackets)
#include "tst_command_packets.moc"
