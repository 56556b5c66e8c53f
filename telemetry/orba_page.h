#pragma once

#include "telemetry/orba_record.h"

#include <QObject>

// What the pages of the three record versions have in common: the head and raw copies, the
// workstation's UTC offset, the extended record, the body, and the decoder over the version's
// all-fields structure (owned by the derived page, which hands its address and version over).
class OrbaPage : public QObject
{
    Q_OBJECT
public:
    int version() const { return m_version; }
    int lastField() const { return orba::kLastField[m_version]; }

    // Field no is present: its mask bit is set and the version has it.
    bool isUsed(int no) const;
    // Display text of field no, "n/a" when absent.
    QString fieldText(int no) const;
    // Display text of a sub-value, "n/a" when its field is absent or beyond the version.
    QString subValueText(int id) const;
    // The all-fields structure, orba::recordSize(version()) bytes.
    const unsigned char* recordBytes() const { return m_rec; }

    // The field set, one "0"/"1" character per field of the version.
    QString formatText() const { return orba::formatText(m_head + orba::kMaskOffset, lastField()); }

    // Time as local date and time; with the workstation's UTC offset appended.
    QString getStrDateTime() const;
    QString getStrDateTimeUTC_Offset() const;

    // The field decoder: the values of the present fields, by the head's mask, from data. Bytes
    // the mask demands beyond len read as zero.
    void setCurrentTMI(const unsigned char* data, int len);

    int isExtended() const { return m_isExt; }
    const unsigned char* headBytes() const { return m_head; }
    const unsigned char* rawBytes() const { return m_raw; }
    int rawLength() const { return m_rawLen; }
    // The record body: the buffer after its head (after the kind byte for an extended record).
    const QByteArray& body() const { return m_body; }
    int utcOffset() const { return m_utcOffset; }

    // Kept for the telemetry view, which names pages and marks them.
    const QString& pageName() const { return m_name; }
    bool pageFlag() const { return m_flag; }
    int pageTag1() const { return m_tag1; }
    int pageTag2() const { return m_tag2; }

    // Bit n (0..7) of byte; 0 for any other n.
    static quint8 getByteForNumber(quint8 byte, int n);
    // The two bits from bit n (0..6) of byte; 0 for any other n.
    static quint8 get2BitFromByte(quint8 byte, int n);

protected:
    OrbaPage(unsigned char* record, int version, QObject* parent);

    // Keeps what every kind of buffer leaves behind: the head copy, the raw copy and its length;
    // clears the record structures. Returns the kind byte (0 for an empty buffer).
    unsigned char startNewRecord(const unsigned char* buf, int len);
    // The values of a current record (kind 0xB0) by the mask already in the head copy: the body
    // after the 34-byte head.
    void setCurrentRecord(const unsigned char* buf, int len);
    // Version 2 and 3: current (0xB0) and extended (0xB1) records.
    void setNewCurrentOrExt(const unsigned char* buf, int len);
    void setExtTMI(const unsigned char* buf, int len);
    // An extended record whatever its kind byte, with its body after that byte.
    void setExtendedRecord(const unsigned char* buf, int len);
    // The body the constructors keep: after the kind byte for an extended record, otherwise
    // after the 34-byte head.
    void keepBody(const unsigned char* buf, int len);
    void setBody(const QByteArray& body) { m_body = body; }
    void setRecordFrom(const void* record);
    void setExtFrom(const szExtTMI_ORBA3& ext);
    void setViewTags(const QString& name, bool flag, int tag1, int tag2);

    // The extended record, for the pages that accept it.
    const szExtTMI_ORBA3& extRecord() const { return m_ext; }
    const unsigned char* extBytes() const { return reinterpret_cast<const unsigned char*>(&m_ext); }
    QString extText(int id) const;
    QString extBitText(quint8 value) const;
    unsigned char* headForWriting() { return m_head; }
    void setExtendedFlag(int flag) { m_isExt = flag; }

private:
    unsigned char m_head[orba::kHeadBytes] = {};
    qint32 m_utcOffset = 0;
    unsigned char m_raw[orba::kRawBytes] = {};
    qint32 m_rawLen = 0;
    szExtTMI_ORBA3 m_ext = {};
    int m_isExt = 0;
    QByteArray m_body;

    unsigned char* m_rec;
    int m_version;
    QString m_name;
    bool m_flag = false;
    int m_tag1 = 0;
    int m_tag2 = 0;
};
