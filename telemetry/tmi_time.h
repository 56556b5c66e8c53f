#pragma once

// The two times of the telemetry view. Record times are Unix seconds and are shown in the
// workstation's local time. The offset the user sets is the terminal clock's offset from UTC (0
// for a terminal that keeps UTC), not the workstation's zone, which the display already applies;
// a moment asked for by time is the chosen instant less that offset. No widgets.

#include "telemetry/tmi_session.h"

#include <QDateTime>
#include <QString>

class OrbaPage;

namespace zrk::tmi {

// Seconds of the offset controls: the minutes take the sign of the hours.
int offsetSeconds(int hours, int minutes);
// The moment sent with a request by time (2304, 2306).
QDateTime requestMoment(const QDateTime& chosen, int offsetSeconds);

// What the view's freshness line says of the shown record.
struct Freshness
{
    QDateTime received; // invalid: nothing shown yet
    Origin origin = Origin::Live;
    bool hasTime = false, hasFix = false;
    quint32 time = 0, lastFix = 0; // Unix seconds
};
Freshness freshnessOf(const OrbaPage& page, const QDateTime& received, Origin origin);
// "Получена: …  · время записи: …  · возраст координат: N с"; empty when nothing is shown.
QString freshnessText(const Freshness& f);
// The mark of a record from the stored history; empty for a live one.
QString historyMarkText(Origin origin);

} // namespace zrk::tmi
