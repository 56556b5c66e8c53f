#pragma once

// The published ORBA telemetry record format: what a host needs to build or read the records it
// hands to the plug-in (2301, 2303, 2305, 2307, 2312). The field table is orba_fields.def.
//
// Current record (kind 0xB0), all values little-endian, packed:
//   offset 0   1 byte    kind, 0xB0
//   offset 1   1 byte    format version: 10, 20 or 30
//   offset 2   32 bytes  field mask (zrkOrbaMaskBit)
//   offset 34  ...       the values of the present fields in ascending field number, each at the
//                        width of its row; a version reads only fields up to its last one
// Extended record (kind 0xB1): the fixed head below, then dynamic items (type, size, value:
// types 1 and 3 an 8-byte number, type 2 a 16-byte text). DataSize counts the bytes after
// offset 3; the dynamic data is DataSize - 4 - VisibleSize - HiddenSize bytes at the record's end.
// Fixed packet (kind 0x08, version 1 only): 128 bytes with a fixed field set.

#include <cstddef>

enum : unsigned char
{
    ZRK_ORBA_KIND_CURRENT = 0xB0,
    ZRK_ORBA_KIND_EXTENDED = 0xB1,
    ZRK_ORBA_KIND_FIXED_PACKET = 0x08,

    ZRK_ORBA_VERSION_1 = 10,
    ZRK_ORBA_VERSION_2 = 20,
    ZRK_ORBA_VERSION_3 = 30,
};

enum : int
{
    ZRK_ORBA_FIELD_COUNT = 255,
    ZRK_ORBA_MASK_OFFSET = 2,
    ZRK_ORBA_MASK_BYTES = 32,
    ZRK_ORBA_BODY_OFFSET = 34,
    ZRK_ORBA_FIXED_PACKET_BYTES = 128,
    // Last field of versions 1, 2 and 3.
    ZRK_ORBA_LAST_FIELD_V1 = 69,
    ZRK_ORBA_LAST_FIELD_V2 = 122,
    ZRK_ORBA_LAST_FIELD_V3 = 255,
};

// Last field number of a version byte (10, 20, 30); 0 for any other byte.
constexpr int zrkOrbaLastField(unsigned char versionByte)
{
    return versionByte == ZRK_ORBA_VERSION_1 ? ZRK_ORBA_LAST_FIELD_V1
        : versionByte == ZRK_ORBA_VERSION_2  ? ZRK_ORBA_LAST_FIELD_V2
        : versionByte == ZRK_ORBA_VERSION_3  ? ZRK_ORBA_LAST_FIELD_V3
                                             : 0;
}

// Field no (1..255) is present when bit 7 - ((no - 1) mod 8) of mask byte (no - 1) div 8 is set.
constexpr int zrkOrbaMaskByte(int no)
{
    return (no - 1) >> 3;
}
constexpr unsigned char zrkOrbaMaskBitValue(int no)
{
    return static_cast<unsigned char>(0x80u >> ((no - 1) & 7));
}
constexpr bool zrkOrbaMaskBit(const unsigned char* mask, int no)
{
    return (mask[zrkOrbaMaskByte(no)] & zrkOrbaMaskBitValue(no)) != 0;
}
constexpr void zrkOrbaSetMaskBit(unsigned char* mask, int no, bool present)
{
    if (present)
        mask[zrkOrbaMaskByte(no)] |= zrkOrbaMaskBitValue(no);
    else
        mask[zrkOrbaMaskByte(no)] &= static_cast<unsigned char>(~zrkOrbaMaskBitValue(no));
}

// The extended record's fixed head: offsets from the kind byte (little-endian, packed).
enum : int
{
    ZRK_ORBA_EXT_DATA_SIZE = 1, // u16, bytes after offset 3
    ZRK_ORBA_EXT_VISIBLE_VER = 3, // u8
    ZRK_ORBA_EXT_VISIBLE_SIZE = 4, // u8
    ZRK_ORBA_EXT_NUMBER = 5, // u32 record number
    ZRK_ORBA_EXT_CODE = 9, // u16 event code
    ZRK_ORBA_EXT_EVENT_TIME = 11, // u32 Unix seconds
    ZRK_ORBA_EXT_NGAUGE = 15, // u8 navigation state
    ZRK_ORBA_EXT_LAST_TIME = 16, // u32 Unix seconds of the last fix
    ZRK_ORBA_EXT_LATITUDE = 20, // s32, 1/10000 arc-minute
    ZRK_ORBA_EXT_LONGITUDE = 24, // s32, 1/10000 arc-minute
    ZRK_ORBA_EXT_ALTITUDE = 28, // s32, decimetres
    ZRK_ORBA_EXT_SPEED = 32, // float
    ZRK_ORBA_EXT_COURSE = 36, // u16 degrees
    ZRK_ORBA_EXT_RUN = 38, // float
    ZRK_ORBA_EXT_HIDDEN_VER = 42, // u8
    ZRK_ORBA_EXT_HIDDEN_SIZE = 43, // u8
    ZRK_ORBA_EXT_STATE = 44, // u8 state bits
    ZRK_ORBA_EXT_OUT1 = 45, // u8 outputs 1-8
    ZRK_ORBA_EXT_IMP1 = 46, // u32 pulse counter 1
    ZRK_ORBA_EXT_IMP2 = 50, // u32 pulse counter 2
    ZRK_ORBA_EXT_MOTOCHAS = 54, // u32 engine hours
    ZRK_ORBA_EXT_HEAD_BYTES = 58, // the dynamic data follows
};
