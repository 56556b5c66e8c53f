#include "telemetry/local_clock.h"

#include <ctime>

namespace zrk {

namespace {

// QDateTime asks the C library for local times up to the end of 2037 only; a later moment is
// shown with the zone's rules of the same day and time in 2037, shifted back by whole days.
constexpr qint64 kLastLibrarySecond = 2145916799; // 2037-12-31 23:59:59 UTC
constexpr qint64 kDay = 86400;

// Days since 1970-01-01 of a Gregorian date, and the date of such a day number.
qint64 daysFromCivil(int year, int month, int day)
{
    const qint64 y = year - (month <= 2 ? 1 : 0);
    const qint64 era = (y >= 0 ? y : y - 399) / 400;
    const qint64 yoe = y - era * 400;
    const qint64 doy = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const qint64 doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

void civilFromDays(qint64 days, CivilTime& c)
{
    days += 719468;
    const qint64 era = (days >= 0 ? days : days - 146096) / 146097;
    const qint64 doe = days - era * 146097;
    const qint64 yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const qint64 doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const qint64 mp = (5 * doy + 2) / 153;
    c.day = int(doy - (153 * mp + 2) / 5 + 1);
    c.month = int(mp < 10 ? mp + 3 : mp - 9);
    c.year = int(yoe + era * 400 + (c.month <= 2 ? 1 : 0));
}

qint64 floorDiv(qint64 a, qint64 b)
{
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)) ? 1 : 0);
}

CivilTime fromLocalSeconds(qint64 local)
{
    CivilTime c;
    const qint64 days = floorDiv(local, kDay);
    const qint64 rest = local - days * kDay;
    civilFromDays(days, c);
    c.hour = int(rest / 3600);
    c.minute = int(rest / 60 % 60);
    c.second = int(rest % 60);
    return c;
}

long offsetAt(qint64 unixSeconds)
{
    const time_t t = time_t(unixSeconds);
    struct tm local = {};
    localtime_r(&t, &local);
    return local.tm_gmtoff;
}

} // namespace

LocalClock::LocalClock()
{
    tzset();
}

CivilTime LocalClock::civil(qint64 unixSeconds)
{
    if (unixSeconds > kLastLibrarySecond) {
        const qint64 days = floorDiv(unixSeconds, kDay);
        CivilTime utc;
        civilFromDays(days, utc);
        const qint64 sameDay2037
            = daysFromCivil(2037, utc.month, utc.month == 2 && utc.day == 29 ? 28 : utc.day);
        CivilTime c = civil(sameDay2037 * kDay + (unixSeconds - days * kDay));
        civilFromDays(daysFromCivil(c.year, c.month, c.day) + (days - sameDay2037), c);
        return c;
    }
    const qint64 hour = floorDiv(unixSeconds, 3600);
    if (hour != m_hour) {
        // No zone changes its offset twice within an hour, so an hour with the same offset at
        // both ends has it throughout.
        m_hour = hour;
        m_offset = offsetAt(hour * 3600);
        m_uniform = m_offset == offsetAt(hour * 3600 + 3599);
    }
    return m_uniform ? fromLocalSeconds(unixSeconds + m_offset) : viaLibrary(unixSeconds);
}

CivilTime LocalClock::viaLibrary(qint64 unixSeconds)
{
    return fromLocalSeconds(unixSeconds + offsetAt(unixSeconds));
}

} // namespace zrk
