#pragma once

// The saved telemetry file (.tmi): a windows-1251 XML text whose head carries the device and the
// configuration's titles, then one element per record. Each record keeps its bytes as received
// (kind, version, mask, body) as hex, so a file is lossless, and its decoded values as child
// elements for a person reading it. No widgets.

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class OrbaPage;
#include <limits>

namespace zrk::tmi {

constexpr int kInCount = 6;
constexpr int kOutCount = 4;
constexpr int kTempCount = 4;
constexpr int kUserParamCount = 4; // the 1-, 2-, 4- and 8-byte user parameters

struct Header
{
    QString model, vendor;
    int timezoneOffset = 0; // seconds
    QStringList inTitles /*6*/, outTitles /*4*/, tempTitles /*4*/, userParamTypes /*4: 1,2,4,8-byte*/;
};

struct Record
{
    QByteArray bytes; // kind, version, mask, body: the host's prefix removed
    QDateTime received; // invalid: unknown
    bool fromHistory = false; // came by number or by time, not as the current state
};

bool operator==(const Record& a, const Record& b);

// The whole file, or nothing (the previous file stays as it was). error: a Russian text.
bool write(const QString& path, const Header& header, const QVector<Record>& records, QString* error);
// The same text in memory.
QByteArray fileBytes(const Header& header, const QVector<Record>& records);

struct ReadResult
{
    Header header;
    QVector<Record> records;
    QString error; // empty: all good; else a Russian text naming the file and the fault
};
ReadResult read(const QString& path); // good records before a fault are kept

// One record as the reader meets it, for readers that keep records their own way (the table
// viewer keeps them packed). receivedMs: ms since the epoch, or kNoTime. Return false to stop.
constexpr qint64 kNoTime = std::numeric_limits<qint64>::min();
using RecordSink = std::function<bool(const QByteArray& bytes, qint64 receivedMs, bool fromHistory)>;
// Reads a file's text (name only for messages); returns the error text, empty when all is good.
QString parse(const char* data, qint64 size, const QString& name, Header* header, const RecordSink& sink);
QString readEach(const QString& path, Header* header, const RecordSink& sink);

// One row per record, the columns of zrk-tool decode --csv.
bool exportCsv(const QString& path, const QVector<Record>& records, QString* error);
// The track as a LineString plus one Placemark per record with a position.
bool exportKml(const QString& path, const QVector<Record>& records, QString* error);

// What the viewers and the KML sort, filter and place records by, read from a record's bytes.
struct RecordKeys
{
    bool hasNumber = false, hasCode = false, hasTime = false, hasPosition = false, hasSpeed = false;
    quint32 number = 0;
    int code = 0;
    quint32 time = 0; // Unix seconds
    double latitude = 0, longitude = 0; // degrees
    double altitude = 0; // metres
    float speed = 0; // km/h
};
RecordKeys keysOf(const QByteArray& record);
// The same read from a record already decoded (a current or an extended record).
RecordKeys keysOf(const OrbaPage& page);

// The CSV and KML texts, for writers that hold their records differently: rows are produced by
// calling next until it returns false.
using RecordSource = std::function<bool(Record& next)>;
QByteArray csvBytes(const RecordSource& source);
QByteArray kmlBytes(const RecordSource& source);

} // namespace zrk::tmi
