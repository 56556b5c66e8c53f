#pragma once

// A telemetry record as a point of a map track. No widgets: the map draws these points, the
// telemetry session and the saved-file table make them.

#include <QByteArray>
#include <QDateTime>

struct ZrkMapTrackPoint
{
    double lat = 0.0;
    double lon = 0.0;
    QDateTime time;
    double speed = 0.0;
};

namespace zrk::tmi {
struct RecordKeys;
}

// The position of a record as a track point; false when it has none.
bool zrkTrackPointOf(const zrk::tmi::RecordKeys& keys, ZrkMapTrackPoint* point);
// The same for a record's bytes (kind byte first).
bool zrkTrackPointOf(const QByteArray& record, ZrkMapTrackPoint* point);
