#pragma once

#include "telemetry/orba_page_of.h"

// One decoded record of ORBA version 1: a current record (kind 0xB0) by its own field mask, or
// the fixed 128-byte packet (kind 0x08) with its fixed field set.
class TmiPage_Orba1 : public orba::PageOf<1>
{
    Q_OBJECT
public:
    using PageOf::PageOf;

    // A received buffer, kind byte first. A fixed packet also gets the record body it stands for.
    TmiPage_Orba1(const unsigned char* buf, int len, QObject* parent = nullptr);
    explicit TmiPage_Orba1(const QByteArray& buf, QObject* parent = nullptr);

    // Decodes buf anew: 0xB0 a current record, 0x08 a fixed packet, anything else nothing.
    void setNewTMI(const unsigned char* buf, int len);
    // The fixed packet: at most 128 bytes of it (a shorter one reads as padded with zeros), a
    // version-1 head with the packet's field set, and the packet's values in their fields.
    void setCurrentTMI_From_F8(const unsigned char* packet, int len);
    // Decodes the fixed packet and builds the version-1 record body it stands for (the present
    // fields in field order) as the page's body.
    void setCurrentPacketF8ToOrba(const unsigned char* packet, int len);
    // The version-1 current record (head and body) the page holds: a buffer that a version-1
    // page decodes to the same fields.
    QByteArray currentRecordBuffer() const;

    QString getStrFormatOrba1() const { return formatText(); }

#define ORBA_PAGE_VERSION 1
#include "telemetry/orba_accessors.inc"
};
