#include "device/common_functions.h"

#include <QTemporaryDir>
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
    void configCrc32();
};

// Whole packets assembled byte by byte.
void tst_CommandPackets::goldenPackets_data()
{
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("ping") << CF::getUsbCommand_Ping()
                          << hex("405a524b 00000000 01000000 0800 14 1e") + "*?PING 1";
    // "Я" is 0xDF in the code page, "☺" has no place there and goes as "_".
    QTest::newRow("password") << CF::getUsbCommand_DevicePassword(QString::fromUtf8("Я☺1"))
                              << hex("405a524b 00000000 01000000 0a00 8e 86") + "*>PASS:\xDF_1";
    QTest::newRow("empty payload") << CF::getUsbArrCommandToDevice(QByteArray())
                                   << hex("405a524b 00000000 01000000 0000 00 02");
    // "*!R" (2a 21 52, XOR 59) then page 0x01020304 little-endian (XOR 04): payload check 5d.
    QTest::newRow("read page") << CF::getUsbCommand_ReadPage(0x01020304u)
                               << hex("405a524b 00000000 01000000 0700 5d 58 2a2152 04030201");
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
    QTest::newRow("Ping") << CF::getUsbCommand_Ping() << QByteArray("*?PING 1");
    QTest::newRow("DeviceType") << CF::getUsbCommand_DeviceType() << QByteArray("*?V");
    QTest::newRow("DeviceBhr") << CF::getUsbCommand_DeviceBhr() << QByteArray("*?H");
    QTest::newRow("DeviceImei") << CF::getUsbCommand_DeviceImei() << QByteArray("*?S");
    QTest::newRow("DeviceTestMode") << CF::getUsbCommand_DeviceTestMode() << QByteArray("*!TM");
    QTest::newRow("TM") << CF::getUsbCommand_TM() << QByteArray("*?TM");
    QTest::newRow("SetTime positive") << CF::getUsbCommand_DeviceSetTime(3) << QByteArray("*!SETTIME +3");
    QTest::newRow("SetTime zero") << CF::getUsbCommand_DeviceSetTime(0) << QByteArray("*!SETTIME +0");
    QTest::newRow("SetTime negative") << CF::getUsbCommand_DeviceSetTime(-2) << QByteArray("*!SETTIME -2");
    QTest::newRow("DeviceReset") << CF::getUsbCommand_DeviceReset() << QByteArray("*!DEV_RESET");
    QTest::newRow("ConfigReset") << CF::getUsbCommand_ConfigReset() << QByteArray("*!SETT_RESET");
    QTest::newRow("RCS_DeviceDisconnect") << CF::getUsbCommand_RCS_DeviceDisconnect() << QByteArray("*!DELD");
    QTest::newRow("Out_On") << CF::getUsbCommand_Out_On(2) << QByteArray("*!2Y");
    QTest::newRow("Out_Off") << CF::getUsbCommand_Out_Off(12) << QByteArray("*!12N");
    QTest::newRow("Password ascii") << CF::getUsbCommand_DevicePassword("1234") << QByteArray("*>PASS:1234");
    QTest::newRow("Password euro") << CF::getUsbCommand_DevicePassword(QString::fromUtf8("€ж"))
                                   << QByteArray("*>PASS:\x88\xE6");
    QTest::newRow("Password chinese")
        << CF::getUsbCommand_DevicePassword(QString::fromUtf8("密码")) << QByteArray("*>PASS:__");
    QTest::newRow("GetKey") << CF::getUsbCommand_GetKey() << QByteArray("*?PASS");
    QTest::newRow("TM_Type") << CF::getUsbCommand_TM_Type() << QByteArray("*?DKV");
    QTest::newRow("TM_FileChange") << CF::getUsbCommand_TM_FileChange() << QByteArray("*!DKU");
    QTest::newRow("TM_FileRead") << CF::getUsbCommand_TM_FileRead(0x0102) << QByteArray("*!DKR\x02\x01");
    QTest::newRow("TM_FileWrite") << CF::getUsbCommand_TM_FileWrite(QByteArray("\x00\xFF", 2))
                                  << QByteArray("*!DKW\x00\xFF", 7);
    QTest::newRow("RFID") << CF::getUsbCommand_RFID() << QByteArray("*?ERFT");
    QTest::newRow("AnalogValue") << CF::getUsbCommand_AnalogValue() << QByteArray("*?AN2G");
    QTest::newRow("AD_Value_Fuel") << CF::getUsbCommand_AD_Value_Fuel() << QByteArray("*?FUEL");
    QTest::newRow("AD_Value_Fuel_UN") << CF::getUsbCommand_AD_Value_Fuel_UN() << QByteArray("*?FUEL_UN");
    QTest::newRow("Accel_Param") << CF::getUsbCommand_Accel_Param() << QByteArray("*?ACL2");
    QTest::newRow("Accel_Reset") << CF::getUsbCommand_Accel_Reset() << QByteArray("*!ACL_RESET");
    QTest::newRow("Accel_Break") << CF::getUsbCommand_Accel_Break(0x0110, 0x0005)
                                 << QByteArray("*!ACLI\x10\x01\x05\x00", 10);
    QTest::newRow("Accel_AclC") << CF::getUsbCommand_Accel_AclC("\x01\x02") << QByteArray("*!ACL_C:\x01\x02");
    QTest::newRow("Dtp_Test") << CF::getUsbCommand_Dtp_Test() << QByteArray("*?KRAI");
    QTest::newRow("Dtp_Protection") << CF::getUsbCommand_Dtp_Protection() << QByteArray("*!KRAI");
    QTest::newRow("Dtp_ReadPageFile")
        << CF::getUsbCommand_Dtp_ReadPageFile(7) << QByteArray("*!R\x07\0\0\0", 7);
    QTest::newRow("ReadPage") << CF::getUsbCommand_ReadPage(0xA0B0C0D0u) << QByteArray("*!R\xD0\xC0\xB0\xA0");
    QTest::newRow("WritePage") << CF::getUsbCommand_WritePage("page") << QByteArray("*!Wpage");
    QTest::newRow("File_ReadPage") << CF::getUsbCommand_File_ReadPage("r") << QByteArray("*!FRr");
    QTest::newRow("File_WritePage") << CF::getUsbCommand_File_WritePage("w") << QByteArray("*!FWw");
    QTest::newRow("File_Info") << CF::getUsbCommand_File_Info("i") << QByteArray("*?FVi");
    QTest::newRow("File_Update") << CF::getUsbCommand_File_Update("u") << QByteArray("*!FUu");
    QTest::newRow("ChangeFirmware") << CF::getUsbCommand_ChangeFirmware() << QByteArray("*!U");
    QTest::newRow("ChangeConfig") << CF::getUsbCommand_ChangeConfig() << QByteArray("*!P");
    QTest::newRow("Bluetooth_List") << CF::getUsbCommand_Bluetooth_List() << QByteArray("*?BTDEV1");
    QTest::newRow("Bluetooth_Cancel") << CF::getUsbCommand_Bluetooth_Cancel() << QByteArray("*!BTDEV0");
    QTest::newRow("Disp_Value") << CF::getUsbCommand_Disp_Value() << QByteArray("*?DISP");
    QTest::newRow("Canlog_Ver") << CF::getUsbCommand_Canlog_Ver(2) << QByteArray("*!CANLOG2");
    QTest::newRow("Canlog_CurVer") << CF::getUsbCommand_Canlog_CurVer() << QByteArray("*?CANLOG");
    QTest::newRow("ClearServerToDevice")
        << CF::getUsbCommand_ClearServerToDevice(1) << QByteArray("*!SYNC:1");
    QTest::newRow("SetRun") << CF::getUsbCommand_SetRun(123456) << QByteArray("*!MLG:123456");
    QTest::newRow("SetParamValue") << CF::getUsbCommand_SetParamValue("a=1") << QByteArray("*!SETP a=1");
    QTest::newRow("Taho_Quest") << CF::getUsbCommand_Taho_Quest("\x01") << QByteArray("*?TACH\x01");
    QTest::newRow("Taho_File") << CF::getUsbCommand_Taho_File("\x02") << QByteArray("*?TACH\x02");
    QTest::newRow("FLS_Data_Quest") << CF::getUsbCommand_FLS_Data_Quest() << QByteArray("*!BTARCH");
    QTest::newRow("Camera_Info") << CF::getUsbCommand_Camera_Info("\x03") << QByteArray("*?DCAM\x03");
    QTest::newRow("SD_Photo_Info") << CF::getUsbCommand_SD_Photo_Info("\x04") << QByteArray("*?DCAM\x04");
    QTest::newRow("SD_File") << CF::getUsbCommand_SD_File() << QByteArray("*!SDFS");
    QTest::newRow("Ainf") << CF::getUsbCommand_Ainf() << QByteArray("*!AINF");
    QTest::newRow("Log") << CF::getUsbCommand_Log(1, 0x100) << QByteArray("*!LOG\x01\0\0\0\0\x01\0\0", 13);
    QTest::newRow("DeviceTest") << CF::getUsbCommandToDeviceTest("\xAA\x00\xBB") << QByteArray("*?DATA \xAA");
    QTest::newRow("DeviceTest binary") << CF::getUsbCommandToDeviceTest(QByteArray("\xAA\x00\xBB", 3))
                                       << QByteArray("*?DATA \xAA\x00\xBB", 10);
    QTest::newRow("CE_Debug") << CF::getUsbCommand_CE_Debug() << QByteArray("*?CEVT");
    QTest::newRow("CE_UserCmd") << CF::getUsbCommand_CE_UserCmd("GO") << QByteArray("*!CEVT GO");
    QTest::newRow("CE_ProgramInfo") << CF::getUsbCommand_CE_ProgramInfo() << QByteArray("*?CEVT");
    QTest::newRow("any text") << CF::getUsbCommandToDevice(QString::fromUtf8("*!Ёё"))
                              << QByteArray("*!\xA8\xB8");
    QTest::newRow("text and args") << CF::getUsbCommandToDevice("*!X", QByteArray("\0\1", 2))
                                   << QByteArray("*!X\0\1", 5);
    QTest::newRow("raw bytes") << CF::getUsbArrCommandToDevice("\xC0\xFF") << QByteArray("\xC0\xFF");
    QTest::newRow("text bytes and data")
        << CF::getHeaderCommand(QByteArray("*!W"), QByteArray("\x01", 1)) << QByteArray("*!W\x01");
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
    QVERIFY(CF::getUsbCommand_WritePage(QByteArray(1005, 'x')).size() == 1024);
    QVERIFY(CF::getUsbCommand_WritePage(QByteArray(1006, 'x')).isEmpty());
    QVERIFY(CF::getUsbArrCommandToDevice(QByteArray(1009, 'x')).isEmpty());
}

void tst_CommandPackets::xorSum_data()
{
    QTest::addColumn<int>("length");
    for (int n : { -1, 0, 1, 7, 8, 9, 15, 16, 17, 63, 64, 1000 })
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
        QCOMPARE(
            CF::getSumDataToByte(reinterpret_cast<const unsigned char*>(data.constData()) + start, length),
            expected);
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

    QTest::newRow("empty buffer") << QByteArray() << -1 << false << 0 << 0;
    QTest::newRow("15 bytes") << empty.left(15) << -1 << false << 0 << 0;
    QTest::newRow("exactly 16, size 0") << empty << 0 << true << 16 << 1;
    QTest::newRow("ping") << ping << 0 << true << 24 << 1;
    QTest::newRow("ping and a trailing byte") << ping + "x" << 0 << true << 24 << 1;
    QTest::newRow("ping truncated") << ping.left(23) << -1 << false << 0 << 0;
    QTest::newRow("ping header only") << ping.left(16) << -1 << false << 0 << 0;
    QTest::newRow("noise, then ping") << QByteArray("@@ZR") + ping << 4 << true << 24 << 1;
    // The completeness test uses the whole buffer: with one byte of noise in front and the last
    // byte missing, 8 + 15 < 24 and the offset comes back, but the packet is not all there.
    QTest::newRow("offset, last byte missing") << "x" + ping.left(23) << 1 << false << 0 << 0;
    QTest::newRow("offset, two bytes missing") << "xy" + ping.left(22) << 2 << false << 0 << 0;
    QTest::newRow("false preamble skipped") << falsePreamble + ping << 16 << true << 24 << 1;
    QTest::newRow("false preamble overlapping")
        << QByteArray("@ZRK@ZRK") + ping.mid(4) << 4 << true << 24 << 1;
    QTest::newRow("false preamble only") << falsePreamble + "123" << -1 << false << 0 << 0;
    QTest::newRow("corrupted payload") << ping.left(23) + "2" << 0 << true << 24 << 0;
    QTest::newRow("corrupted payload check")
        << ping.left(14) + "\x15" + ping.mid(15) << -1 << false << 0 << 0;
    QTest::newRow("corrupted size") << ping.left(12) + "\x09" + ping.mid(13) << -1 << false << 0 << 0;
    QTest::newRow("corrupted preamble") << "@ZRk" + ping.mid(4) << -1 << false << 0 << 0;
    QTest::newRow("preamble cut at the end") << QByteArray(20, '\0') + "@ZR" << -1 << false << 0 << 0;
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
    QCOMPARE(CF::findFirstPacket(buffer), found);
    QCOMPARE(CF::findPacket(buffer), found);
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
    QCOMPARE(cut.size(), 16);
    const QByteArray ping = handPacket("*#H 12");
    const QByteArray stream = cut + ping + ping;
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
    QCOMPARE(CF::findPacketZRKB(cut), -1);
}

void tst_CommandPackets::classify_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("kind");
    QTest::newRow("FUEL_UN over FUEL") << QByteArray("*#FUEL_UN 12,3") << int(CF::Reply_DataFuelUn);
    QTest::newRow("FUEL") << QByteArray("*#FUEL 12") << int(CF::Reply_DataFuel);
    QTest::newRow("FUEL_U is FUEL") << QByteArray("*#FUEL_U") << int(CF::Reply_DataFuel);
    QTest::newRow("BTDEV over BT") << QByteArray("*#BTDEV:1") << int(CF::Reply_DataBtdev);
    QTest::newRow("BT") << QByteArray("*#BTX") << int(CF::Reply_DataBt);
    QTest::newRow("EDITS over EDIT") << QByteArray("*@EDITS") << int(CF::Reply_AckEdits);
    QTest::newRow("EDIT") << QByteArray("*@EDIT 3") << int(CF::Reply_AckEdit);
    QTest::newRow("SDFS with space") << QByteArray("*@SDFS 1") << int(CF::Reply_AckSdfsArg);
    QTest::newRow("SDFS without space") << QByteArray("*@SDFS") << int(CF::Reply_AckSdfs);
    QTest::newRow("SDFS other") << QByteArray("*@SDFS:") << int(CF::Reply_AckSdfs);
    QTest::newRow("SDFS more") << QByteArray("*&SDFS 2") << int(CF::Reply_MoreSdfsArg);
    QTest::newRow("SDFS more without space") << QByteArray("*&SDFS") << int(CF::Reply_Unknown);
    QTest::newRow("VGPS over V") << QByteArray("*#VGPS 1") << int(CF::Reply_DataVgps);
    QTest::newRow("V") << QByteArray("*#V1.2") << int(CF::Reply_DataV);
    QTest::newRow("ES over E") << QByteArray("*#ES") << int(CF::Reply_DataEs);
    QTest::newRow("ERFT over E") << QByteArray("*#ERFT") << int(CF::Reply_DataErft);
    QTest::newRow("E") << QByteArray("*#E1") << int(CF::Reply_DataE);
    QTest::newRow("UC over U") << QByteArray("*@UC") << int(CF::Reply_AckUc);
    QTest::newRow("U") << QByteArray("*@U") << int(CF::Reply_AckU);
    QTest::newRow("READ over R") << QByteArray("*@READ") << int(CF::Reply_AckRead);
    QTest::newRow("R") << QByteArray("*@REA") << int(CF::Reply_AckR);
    QTest::newRow("CANLOG over C") << QByteArray("*@CANLOG") << int(CF::Reply_AckCanlog);
    QTest::newRow("CEVT over C") << QByteArray("*@CEVT") << int(CF::Reply_AckCevt);
    QTest::newRow("C") << QByteArray("*@CX") << int(CF::Reply_AckC);
    QTest::newRow("RCSC over R") << QByteArray("*#RCSC") << int(CF::Reply_DataRcsc);
    QTest::newRow("data R") << QByteArray("*#R") << int(CF::Reply_DataR);
    QTest::newRow("SETT_RESET echo") << QByteArray("*!SETT_RESET") << int(CF::Reply_OrderSettReset);
    QTest::newRow("password value") << QByteArray("*>LOG") << int(CF::Reply_ValueLog);
    QTest::newRow("query pass") << QByteArray("*?PASS") << int(CF::Reply_QueryPass);
    QTest::newRow("unknown") << QByteArray("*#Z") << int(CF::Reply_Unknown);
    QTest::newRow("lower case") << QByteArray("*#v") << int(CF::Reply_Unknown);
    QTest::newRow("too short") << QByteArray("*#") << int(CF::Reply_Unknown);
    QTest::newRow("empty") << QByteArray() << int(CF::Reply_Unknown);
    QTest::newRow("not at start") << QByteArray(" *#V") << int(CF::Reply_Unknown);
    QTest::newRow("cyrillic after") << QByteArray("*#DISP \xC0\xC1") << int(CF::Reply_DataDisp);
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
        QCOMPARE(CF::getTypeReceivePacket(handPacket(prefix)), kind);
        QCOMPARE(CF::getTypeReceivePacket(handPacket(prefix + "123")), kind);
        // A packet cut inside the prefix is not taken for it.
        QVERIFY(CF::getTypeReceivePacket(handPacket(prefix).left(16 + prefix.size() - 1)) != kind);
    }
    QCOMPARE(CF::replyPrefix(0), nullptr);
    QCOMPARE(CF::replyPrefix(CF::kReplyKindCount + 1), nullptr);
    QCOMPARE(CF::getTypeReceivePacket(QByteArray("*#V")), int(CF::Reply_Unknown));
}

void tst_CommandPackets::configCrc32()
{
    QTemporaryDir dir;
    const QString path = dir.filePath("config.xml");
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("123456789");
    f.close();
    QCOMPARE(CF::getConfigCRC32(path), 0xCBF43926u);
    QCOMPARE(CF::getConfigCRC32(dir.filePath("missing.xml")), 0u);
}

QTEST_APPLESS_MAIN(tst_CommandPackets)
#include "tst_command_packets.moc"
