#pragma once

// The telemetry side of the simulated terminal: a store of records of a vehicle driving a loop,
// built from the published record format (zrk/orba_fields.def) in the field set of the
// configuration last written to the terminal and in the record version chosen in the host.
//
// Replies (sent through the host's send function from inside the request's handler; every
// QByteArray reply is a prefix, then the record as the plug-in decodes it, kind byte first):
//   2300            -> 2301  prefix 3 bytes: [0] status, [1..2] record length (u16 LE); a
//                            reply shorter than 101 bytes (a small field set, version 1) is
//                            filled up to 101 with zeros after the record, as a receiver drops
//                            shorter current-record replies
//   2302 uint32* n  -> 2303  prefix 3 bytes as 2301; record number n, or, past either end of the
//                            store, the prefix alone with status 0 and length 0 (no record)
//   2304 QDateTime* -> 2305  prefix 13 bytes: [0] status, [1..4] the requested moment (Unix s),
//   2306 QDateTime* -> 2307  [5..8] record number, [9..12] record time (Unix s), all u32 LE; the
//                            newest record at or before (2304) / oldest at or after (2306) the
//                            moment, or the prefix alone with status 0 and zeros
//   button          -> 2312  prefix 2 bytes: record length (u16 LE), then an extended record
//   2264            -> 2265  uint32*: the terminal's display value (analog input 1, millivolts)
//   2311 1 / 3      -> 2241 uint64* key code / 2267 uint64* card code + uint8* reader number
//   2310 code, QString*      the event code's text;  2313 code, QString*  the diagnostic text
//   2326/2327 n              output n (1..16) on/off;  2323/2322  guard on/off
// Status: 1 a record follows, 0 none. Every 2300 makes the terminal write one new record (time
// advances by the record period), so outputs and guard switched since show in the next record.
// Record numbers are the records' NumPage values, consecutive from firstNumber().

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVector>

#include <array>
#include <functional>

class QComboBox;
class QLabel;
class QWidget;
class ZrkHostDispatcher;

class ZrkSimTelemetry : public QObject
{
    Q_OBJECT

public:
    // How the terminal's replies leave: (message id, wParam, lParam, log text of wParam).
    using SendFn
        = std::function<void(int msg, unsigned long wParam, unsigned long lParam, const QString& text)>;

    static constexpr int kStoredRecords = 3000;
    static constexpr int kMaxRecords = 20000; // the oldest go first beyond this
    static constexpr int kPeriodSeconds = 10;
    static constexpr int kMaskBytes = 32;

    // Prefix sizes and status bytes of the replies (see above).
    static constexpr int kPrefixCurrent = 3;
    static constexpr int kPrefixStep = 13;
    static constexpr int kPrefixExtended = 2;
    static constexpr int kCurrentReplyMinBytes = 101;
    static constexpr char kStatusRecord = 1;
    static constexpr char kStatusNone = 0;

    // The touch-memory key and the RFID card the terminal's readers hold.
    static constexpr quint64 kTouchKeyCode = Q_UINT64_C(0x0100001A2B3C4D01);
    static constexpr quint64 kRfidCardCode = Q_UINT64_C(0x00000000C0FFEE42);
    static constexpr quint8 kRfidReader = 1;

    // The records end at lastTime (default: now, whole seconds, UTC).
    explicit ZrkSimTelemetry(const QDateTime& lastTime = QDateTime(), QObject* parent = nullptr);

    void setSend(SendFn send) { m_send = std::move(send); }
    // Registers the request handlers with the dispatcher and sends the replies through it.
    void install(ZrkHostDispatcher& dispatcher);
    // Answers one plug-in message; false when the id is not a telemetry request.
    bool handle(int msg, unsigned long wParam, unsigned long lParam, QString& result);

    // The "Терминал" group of the host window: record version, field set, extended record.
    QWidget* createPanel();

    // Field set: 32 mask bytes, field n present at bit 7 - (n-1)%8 of byte (n-1)/8.
    using Mask = std::array<unsigned char, kMaskBytes>;
    static Mask defaultMask();
    Mask mask() const { return m_mask; }
    void setMask(const Mask& mask);
    // 255 characters "0"/"1", character i for field i + 1; false (nothing changes) otherwise.
    bool setMaskText(const QString& text);
    QString maskText() const;

    // Record version 1, 2 or 3 (version bytes 10, 20, 30); others are ignored.
    int version() const { return m_version; }

    quint32 firstNumber() const { return m_firstNumber; }
    quint32 lastNumber() const { return m_firstNumber + quint32(m_store.size()) - 1; }
    // The record numbered n as the terminal would send it now: kind, version, mask, body; empty
    // when there is no such record.
    QByteArray record(quint32 number) const;
    // Every field's value of record n as the terminal holds it, each at its place among all
    // fields in table order (734 bytes); empty when there is no such record.
    QByteArray fieldValues(quint32 number) const;
    // A fresh extended record (kind 0xB1) from the newest record.
    QByteArray extendedRecord() const;

    quint32 outputs() const { return m_outputs; } // bit k: output k + 1
    bool guard() const { return m_guard; }

    static QString eventText(int code);
    static QString diagnosticText(int code);

public slots:
    void setVersion(int version);
    // A configuration file as written to the terminal (windows-1251 XML): its "PROTOCOL"/"ORBA"
    // "mask" and "format" become the field set and version. A file without them changes nothing.
    void setConfigurationXml(const QByteArray& fileBytes);
    // The terminal writes a new record and answers with it (2301).
    void sendCurrent();
    void sendExtended();

signals:
    void versionChanged(int version);
    void maskChanged();

private:
    // Every field's value of one record, laid out at the field table's offsets (all fields).
    using Values = QByteArray;

    Values simulate(quint32 number, qint64 time) const;
    void append();
    QByteArray encode(const Values& values) const;
    int indexAtOrBefore(qint64 time) const;
    int indexAtOrAfter(qint64 time) const;
    void sendRecord(int msg, const QByteArray& prefix, const QByteArray& record, const QString& text);
    void replyByNumber(quint32 number);
    void replyByTime(int msg, const QDateTime* moment, bool before);
    void updatePanel();

    SendFn m_send;
    QVector<Values> m_store;
    QVector<qint64> m_times;
    quint32 m_firstNumber = 1;
    Mask m_mask;
    int m_version = 3;
    quint32 m_outputs = 0;
    bool m_guard = false;
    double m_run = 0; // kilometres, accumulated as records are written
    QComboBox* m_versionBox = nullptr;
    QLabel* m_fieldsLabel = nullptr;
};
