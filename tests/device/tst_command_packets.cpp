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

void row(const char* name, const QByteArray& packet, const QByteArray& payload)
{
    QTest::newRow(name) << packet << payload;
}

} // namespace

class tst_CommandPackets : public QObject
{
    Q_OBJECT
private slots:
    void goldenPackets_data();
    void goldenPackets();
    void builderTexts_data();
    void builderTexts();
    void payloadLimit();
    void xorSum_data();
    void xorSum();
    void xorSumCopies();
    void finder_data();
    void finder();
    void finderBackToBack();
    void finderNeverReadsPastTheEnd();
    void classify_data();
    void classify();
    void everyPrefixIsReachable();
};

// Whole packets assembled byte by byte.
void tst_CommandPackets::goldenPackets_data()
{
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<QByteArray>("expected");
    row("ping", CF::getUsbCommand_Ping(), hex("405a524b 00000000 01000000 0800 14 1e") + "*?PING 1");
    // "Я" is 0xDF in the code page, "☺" has no place there and goes as "_".
    row("password", CF::getUsbCommand_DevicePassword(QString::fromUtf8("Я☺1")),
        hex("405a524b 00000000 01000000 0a00 8e 86") + "*>PASS:\xDF_1");
    row("empty payload", CF::getUsbArrCommandToDevice(QByteArray()),
        hex("405a524b 00000000 01000000 0000 00 02"));
    // "*!R" (2a 21 52, XOR 59) then page 0x01020304 little-endian (XOR 04): payload check 5d.
    row("read page", CF::getUsbCommand_ReadPage(0x01020304u),
        hex("405a524b 00000000 01000000 0700 5d 58 2a2152 04030201"));
}

void tst_CommandPackets::goldenPackets()
{
    QFETCH(QByteArray, packet);
    QFETCH(QByteArray, expected);
    QCOMPARE(packet.toHex(), expected.toHex());
}

// Each builder's payload, and an envelope that is consistent with it.
void tst_CommandPackets::builderTexts_data()
{
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<QByteArray>("payload");
    row("Ping", CF::getUsbCommand_Ping(), "*?PING 1");
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
    row("Accel_Break", CF::getUsbCommand_Accel_Break(0x0110, 5), QByteArray("*!ACLI\x10\x01\x05\x00", 10));
    row("Accel_AclC", CF::getUsbCommand_Accel_AclC("\x01\x02"), "*!ACL_C:\x01\x02");
    row("Dtp_Test", CF::getUsbCommand_Dtp_Test(), "*?KRAI");
    row("Dtp_Protection", CF::getUsbCommand_Dtp_Protection(), "*!KRAI");
    row("Dtp_ReadPageFile", CF::getUsbCommand_Dtp_ReadPageFile(7), QByteArray("*!R\x07\0\0\0", 7));
    row("ReadPage", CF::getUsbCommand_ReadPage(0xA0B0C0D0u), "*!R\xD0\xC0\xB0\xA0");
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
    row("DeviceTest", CF::getUsbCommandToDeviceTest(hex("aa00bb")), QByteArray("*?DATA \xAA\x00\xBB", 10));
    row("CE_Debug", CF::getUsbCommand_CE_Debug(), "*?CEVT");
    row("CE_UserCmd", CF::getUsbCommand_CE_UserCmd("GO"), "*!CEVT GO");
    row("CE_ProgramInfo", CF::getUsbCommand_CE_ProgramInfo(), "*?CEVT");
    // Raw bytes go unconverted; 0xC0 read as text would not survive the code page.
    row("raw bytes", CF::getUsbArrCommandToDevice("\xC0\xFF"), "\xC0\xFF");
    row("text bytes and data", CF::getHeaderCommand(QByteArray("*!W"), hex("01")), "*!W\x01");
}

void tst_CommandPackets::builderTexts()
{
    QFETCH(QByteArray, packet);
    QFETCH(QByteArray, payload);
    QCOMPARE(packet.mid(16), payload);
    QCOMPARE(packet.left(12), hex("405a524b 00000000 01000000"));
    QCOMPARE(uchar(packet.at(12)) | (uchar(packet.at(13)) << 8), payload.size());
    QCOMPARE(uchar(packet.at(14)), xorOf(payload, 0, payload.size()));
    QCOMPARE(uchar(packet.at(15)), xorOf(packet, 0, 15));
}

// 1008 payload bytes fit the terminal's receive area, one more does not, text and arguments together.
void tst_CommandPackets::payloadLimit()
{
    QByteArray out("stale");
    QVERIFY(CF::getHeaderCommand(QString(1008, QLatin1Char('a')), out));
    QCOMPARE(out.size(), 16 + 1008);
    QCOMPARE(uchar(out.at(12)) | (uchar(out.at(13)) << 8), 1008);
    QVERIFY(!CF::getHeaderCommand(QString(1009, QLatin1Char('a')), out));
    QVERIFY(out.isEmpty());
    QVERIFY(!CF::getHeaderCommand(QString(1000, QLatin1Char('a')), QByteArray(9, 'b'), out));
    QVERIFY(out.isEmpty());
    QCOMPARE(CF::getUsbArrCommandToDevice(QByteArray(1008, 'x')).size(), 16 + 1008);
    QVERIFY(CF::getUsbArrCommandToDevice(QByteArray(1009, 'x')).isEmpty());
}

// Lengths around the eight-byte steps of the sum, and no length at all.
void tst_CommandPackets::xorSum_data()
{
    QTest::addColumn<int>("length");
    for (int n : { -1, 0, 1, 7, 8, 9, 16, 17 })
        QTest::newRow(qPrintable(QString::number(n))) << n;
}

void tst_CommandPackets::xorSum()
{
    QFETCH(int, length);
    QByteArray data(qMax(length, 0) + 3, Qt::Uninitialized);
    for (int i = 0; i < data.size(); ++i)
        data[i] = static_cast<char>(i * 37 + 11);
    // Bytes beyond the length must not count, whatever alignment the start has.
    for (int start = 0; start < 3; ++start) {
        const unsigned char expected = length < 1 ? 0 : xorOf(data, start, start + length);
        QCOMPARE(CF::getSumDataToByte(data.constData() + start, length), expected);
    }
}

void tst_CommandPackets::xorSumCopies()
{
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

void tst_CommandPackets::finder_data()
{
    QTest::addColumn<QByteArray>("buffer");
    QTest::addColumn<int>("found");
    QTest::addColumn<bool>("good");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("flag");

    const QByteArray ping = hex("405a524b 00000000 01000000 0800 14 1e") + "*?PING 1";
    const QByteArray empty = hex("405a524b 00000000 01000000 0000 00 02");
    // A preamble whose header check does not hold: XOR of bytes 0..14 is 0xFC, byte 15 is 0xFF.
    const QByteArray falsePreamble = QByteArray("@ZRK") + QByteArray(12, '\xFF');
    // A header check that holds over a preamble that is not ours.
    QByteArray otherPreamble = ping;
    otherPreamble[3] = 'k';
    otherPreamble[15] = char(xorOf(otherPreamble, 0, 15));

    QTest::newRow("empty buffer") << QByteArray() << -1 << false << 0 << 0;
    QTest::newRow("15 bytes") << empty.left(15) << -1 << false << 0 << 0;
    QTest::newRow("exactly 16, size 0") << empty << 0 << true << 16 << 1;
    QTest::newRow("ping") << ping << 0 << true << 24 << 1;
    QTest::newRow("ping and a trailing byte") << ping + "x" << 0 << true << 24 << 1;
    QTest::newRow("ping truncated") << ping.left(23) << -1 << false << 0 << 0;
    QTest::newRow("noise, then ping") << QByteArray("@@ZR") + ping << 4 << true << 24 << 1;
    // The completeness test uses the whole buffer: with one byte of noise in front and the last
    // byte missing, 8 + 15 < 24 and the offset comes back, but the packet is not all there.
    QTest::newRow("offset, last byte missing") << "x" + ping.left(23) << 1 << false << 0 << 0;
    QTest::newRow("false preamble skipped") << falsePreamble + ping << 16 << true << 24 << 1;
    QTest::newRow("false preamble overlapping")
        << QByteArray("@ZRK@ZRK") + ping.mid(4) << 4 << true << 24 << 1;
    QTest::newRow("other preamble") << otherPreamble << -1 << false << 0 << 0;
    QTest::newRow("corrupted payload") << ping.left(23) + "2" << 0 << true << 24 << 0;
    QTest::newRow("corrupted size") << ping.left(12) + "\x09" + ping.mid(13) << -1 << false << 0 << 0;
    // A good header that announces more bytes than the buffer holds hides a later packet.
    const QByteArray bigHeader = hex("405a524b 00000000 01000000 e803 00 e9");
    QTest::newRow("long packet pending") << bigHeader + ping << -1 << false << 0 << 0;
}

void tst_CommandPackets::finder()
{
    QFETCH(QByteArray, buffer);
    QFETCH(int, found);
    QFETCH(bool, good);
    QFETCH(int, length);
    QFETCH(int, flag);
    QCOMPARE(CF::findPacketZRKB(buffer), found);
    int offset = -7, len = -7, fl = -7;
    QCOMPARE(CF::isGoodPacket(buffer, offset, len, fl), good);
    QCOMPARE(offset, found);
    QCOMPARE(len, length);
    QCOMPARE(fl, flag);
}

// A receiver's loop over several packets in one buffer.
void tst_CommandPackets::finderBackToBack()
{
    const QByteArray a = handPacket("*#V K-7140");
    const QByteArray b = handPacket(QByteArray());
    const QByteArray c = handPacket("*@SETTIME");
    QByteArray buffer = a + b + "\x01\x02" + c + c.left(5);
    QList<QByteArray> taken;
    int offset = 0, length = 0, flag = 0;
    while (CF::isGoodPacket(buffer, offset, length, flag)) {
        QCOMPARE(flag, 1);
        taken << buffer.mid(offset, length);
        buffer.remove(0, offset + length);
    }
    QCOMPARE(taken, (QList<QByteArray>() << a << b << c));
    QCOMPARE(buffer, c.left(5));
    buffer += c.mid(5);
    QVERIFY(CF::isGoodPacket(buffer, offset, length, flag));
    QCOMPARE(buffer.mid(offset, length), c);
}

// A header whose check byte would be the first byte after the buffer, and every prefix of a
// packet: copied into exactly sized heap blocks so that a read past the end is caught by ASan.
void tst_CommandPackets::finderNeverReadsPastTheEnd()
{
    // "@ZRK" XORs to 03, so "03" and ten zeros make the first 15 header bytes XOR to 0 and the
    // byte after them would match a terminating zero.
    const QByteArray cut = "x" + QByteArray("@ZRK") + hex("03000000000000000000 00");
    const QByteArray stream = cut + handPacket("*#H 12") + handPacket("*#H 12");
    for (int n = 0; n <= stream.size(); ++n) {
        std::unique_ptr<char[]> exact(new char[static_cast<size_t>(qMax(n, 1))]);
        std::memcpy(exact.get(), stream.constData(), static_cast<size_t>(n));
        int offset = 0, length = 0, flag = 0;
        const int found = CF::findPacketZRKB(exact.get(), n);
        const bool good = CF::isGoodPacket(exact.get(), n, offset, length, flag);
        QCOMPARE(offset, found);
        if (n == cut.size())
            QCOMPARE(found, -1);
        if (good)
            QVERIFY(offset + length <= n);
    }
}

void tst_CommandPackets::classify_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("kind");
    QTest::newRow("FUEL_UN over FUEL") << QByteArray("*#FUEL_UN 12,3") << int(CF::Reply_DataFuelUn);
    QTest::newRow("FUEL_U is FUEL") << QByteArray("*#FUEL_U") << int(CF::Reply_DataFuel);
    QTest::newRow("SDFS with space") << QByteArray("*@SDFS 1") << int(CF::Reply_AckSdfsArg);
    QTest::newRow("SDFS other") << QByteArray("*@SDFS:") << int(CF::Reply_AckSdfs);
    QTest::newRow("SDFS more without space") << QByteArray("*&SDFS") << int(CF::Reply_Unknown);
    QTest::newRow("unknown") << QByteArray("*#Z") << int(CF::Reply_Unknown);
    QTest::newRow("too short") << QByteArray("*#") << int(CF::Reply_Unknown);
    QTest::newRow("empty") << QByteArray() << int(CF::Reply_Unknown);
    QTest::newRow("not at start") << QByteArray(" *#V") << int(CF::Reply_Unknown);
}

void tst_CommandPackets::classify()
{
    QFETCH(QByteArray, payload);
    QFETCH(int, kind);
    QCOMPARE(CF::getTypeReceivePacket(handPacket(payload)), kind);
}

// Each prefix, sent alone, comes back as its own kind: no earlier, shorter prefix hides it.
void tst_CommandPackets::everyPrefixIsReachable()
{
    QVERIFY(CF::kReplyKindCount > 0);
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

QTEST_APPLESS_MAIN(tst_CommandPackets)
#include "tst_command_packets.moc"
