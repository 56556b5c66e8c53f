#include "telemetry/tmipage_orba1.h"

#include <algorithm>

namespace {

// The fixed packet's fields in packet order; each follows the one before it at its table width,
// after the kind byte.
constexpr int kFixedPacketFields[] = {
    orba::F_NumPage,
    orba::F_Code,
    orba::F_Time,
    orba::F_State,
    orba::F_Module1,
    orba::F_GSM,
    orba::F_Out1,
    orba::F_In1,
    orba::F_Power,
    orba::F_Reserv,
    orba::F_StateU_Ain1,
    orba::F_StateU_Ain2,
    orba::F_StateU_Ain3,
    orba::F_In_Imp1,
    orba::F_In_Imp2,
    orba::F_Frequency1,
    orba::F_Frequency2,
    orba::F_Motochas,
    orba::F_RS485_1,
    orba::F_RS485_2,
    orba::F_RS485_3,
    orba::F_RS485_4,
    orba::F_RS485_5,
    orba::F_RS485_6,
    orba::F_RS232,
    orba::F_Temp1,
    orba::F_Temp2,
    orba::F_Temp3,
    orba::F_Temp4,
    orba::F_StateNGauge,
    orba::F_LastTime,
    orba::F_Latitude,
    orba::F_Longitude,
    orba::F_Altitude,
    orba::F_Speed,
    orba::F_Course,
    orba::F_Run,
    orba::F_Way,
    orba::F_AllSeconds,
    orba::F_SecondsLast,
    orba::F_CanFuelLevel,
    orba::F_CanFuelConsumption,
    orba::F_CanEngineTurns,
    orba::F_CanTemp,
    orba::F_CanFullRun,
    orba::F_CanAxleLoad1,
    orba::F_CanAxleLoad2,
    orba::F_CanAxleLoad3,
    orba::F_CanAxleLoad4,
    orba::F_CanAxleLoad5,
    orba::F_CanPedalAccel,
    orba::F_CanPedalStop,
    orba::F_CanEngineLoad,
    orba::F_CanEngineTime,
    orba::F_CanTimeTO,
    orba::F_CanSpeed,
};

// The head a fixed packet becomes: a version-1 current record with the packet's field set.
constexpr unsigned char kFixedPacketHead[]
    = { orba::kKindCurrent, 10, 0xFB, 0xFF, 0xFE, 0x0A, 0xFF, 0xFF, 0x0F, 0xFF, 0xB8 };

constexpr bool fixedPacketIsConsistent()
{
    int bytes = 1;
    unsigned char mask[9] = {};
    for (int no : kFixedPacketFields) {
        bytes += orba::kFields[no - 1].width;
        zrkOrbaSetMaskBit(mask, no, true);
    }
    for (int i = 0; i < 9; ++i) {
        if (mask[i] != kFixedPacketHead[2 + i])
            return false;
    }
    return bytes == orba::kFixedPacketBytes;
}
static_assert(fixedPacketIsConsistent(), "the fixed packet's fields fill its 128 bytes and match its mask");

} // namespace

TmiPage_Orba1::TmiPage_Orba1(const unsigned char* buf, int len, QObject* parent)
    : PageOf(parent)
{
    keepBody(buf, len);
    if (buf && len > 0 && buf[0] == orba::kKindFixedPacket) {
        startNewRecord(buf, len);
        setExtendedFlag(0);
        setCurrentPacketF8ToOrba(buf, len);
    } else {
        setNewTMI(buf, len);
    }
}

TmiPage_Orba1::TmiPage_Orba1(const QByteArray& buf, QObject* parent)
    : TmiPage_Orba1(reinterpret_cast<const unsigned char*>(buf.constData()), buf.size(), parent)
{
}

void TmiPage_Orba1::setNewTMI(const unsigned char* buf, int len)
{
    const unsigned char kind = startNewRecord(buf, len);
    if (kind == orba::kKindFixedPacket) {
        setExtendedFlag(0);
        setCurrentTMI_From_F8(buf, len);
    } else if (kind == orba::kKindCurrent) {
        setExtendedFlag(0);
        setCurrentRecord(buf, len);
    }
}

void TmiPage_Orba1::setCurrentTMI_From_F8(const unsigned char* packet, int len)
{
    unsigned char area[orba::kFixedPacketBytes] = {};
    if (packet && len > 0)
        std::memcpy(area, packet, size_t(std::min(len, orba::kFixedPacketBytes)));
    std::memcpy(headForWriting(), kFixedPacketHead, sizeof kFixedPacketHead);
    recordForWriting() = {};
    unsigned char* rec = reinterpret_cast<unsigned char*>(&recordForWriting());
    int at = 1;
    for (int no : kFixedPacketFields) {
        const int width = orba::kFields[no - 1].width;
        std::memcpy(rec + orba::kOffsets[no], area + at, size_t(width));
        at += width;
    }
}

void TmiPage_Orba1::setCurrentPacketF8ToOrba(const unsigned char* packet, int len)
{
    setCurrentTMI_From_F8(packet, len);
    setBody(currentRecordBuffer().mid(orba::kBodyOffset));
}

QByteArray TmiPage_Orba1::currentRecordBuffer() const
{
    QByteArray out(orba::kBodyOffset, '\0');
    out[0] = char(orba::kKindCurrent);
    out[1] = char(orba::kVersionByte[1]);
    const unsigned char* rec = recordBytes();
    for (int no = 1; no <= lastField(); ++no) {
        if (!isUsed(no))
            continue;
        zrkOrbaSetMaskBit(reinterpret_cast<unsigned char*>(out.data()) + orba::kMaskOffset, no, true);
        out.append(reinterpret_cast<const char*>(rec + orba::kOffsets[no]), orba::kFields[no - 1].width);
    }
    return out;
}
