#pragma once

// Unix seconds as local civil time, the way QDateTime shows them in Qt::LocalTime, without a
// QDateTime per value: the zone's offset is looked up once per hour of the clock and kept.

#include <QtGlobal>

namespace zrk {

struct CivilTime
{
    int year = 1970, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0;
};

class LocalClock
{
public:
    // Reads the zone the process runs in (the TZ variable or the system's).
    LocalClock();

    // 0 <= unixSeconds < 2^32, the range of the record's time fields.
    CivilTime civil(qint64 unixSeconds);

private:
    CivilTime viaLibrary(qint64 unixSeconds);

    qint64 m_hour = -1; // the hour whose offset is kept; -1: none yet
    long m_offset = 0; // seconds east of UTC throughout that hour
    bool m_uniform = false; // false: the offset changes inside that hour
};

} // namespace zrk
