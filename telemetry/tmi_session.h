#pragma once

// The records of one telemetry view session: each kept as received and as its decoded page, so
// that the list, the chart, the map track and saving read the same pages and a click on an older
// record decodes nothing again. Bounded: the oldest record goes first when the session is full.
// No widgets.

#include "telemetry/orba_dispatch.h"
#include "telemetry/tmi_file.h"
#include "telemetry/tmi_track.h"

#include <QAbstractListModel>
#include <QByteArray>
#include <QDateTime>

#include <memory>

class OrbaPage;

namespace zrk::tmi {

// Where a record came from: the freshness line and the saved file mark stored history.
enum class Origin
{
    Live, // the current record (2301) or the extended record (2312)
    ByNumber, // stored, looked up by number (2303)
    ByTime, // stored, looked up by time (2305, 2307)
};

struct SessionEntry
{
    QByteArray bytes; // kind, version, mask and body: the host's prefix removed
    std::shared_ptr<const OrbaPage> page; // never null
    orba::Form form = orba::Form::Orba3;
    QDateTime received;
    Origin origin = Origin::Live;
    bool hasNumber = false;
    quint32 number = 0;
};

class Session : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit Session(int capacity = 500, QObject* parent = nullptr);

    // Adds a decoded record (page must not be null); returns whether the oldest record was
    // dropped to make room for it.
    bool append(const QByteArray& bytes, std::shared_ptr<const OrbaPage> page, orba::Form form, Origin origin,
        const QDateTime& received);
    void clear();
    int capacity() const { return m_capacity; }
    int count() const { return m_entries.size(); }
    const SessionEntry& at(int row) const { return m_entries.at(row); }
    const QList<SessionEntry>& entries() const { return m_entries; }

    // The records as a saved file keeps them.
    QVector<Record> records() const;
    // The positions of the records, in order, as a track for the map.
    QVector<ZrkMapTrackPoint> track() const;

    // The list's line of a row: time received, record number or kind, a history mark.
    QString label(int row) const;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<SessionEntry> m_entries; // a list of pointers: dropping the oldest of a full session moves nothing
    int m_capacity;
};

// The formats a session is saved in.
enum class SaveFormat
{
    Tmi, // the saved telemetry file (.tmi, or .xml: the same text)
    Csv,
    Kml,
};

struct SaveTarget
{
    QString path;
    SaveFormat format = SaveFormat::Tmi;
};

// What a save dialog's answer means: the chosen filter (its "(*.ext)" pattern) decides the format
// and its extension is added when the name lacks it; without a filter the name's own extension
// decides (.csv, .kml; anything else the telemetry file).
SaveTarget saveTarget(const QString& chosenName, const QString& selectedFilter);

// Writes the session whole or not at all; header carries the device and the configuration's
// titles. error: a Russian text naming the file.
bool saveSession(const SaveTarget& target, const Session& session, const Header& header, QString* error);

} // namespace zrk::tmi
