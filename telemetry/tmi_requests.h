#pragma once

// The request side of the telemetry view, without widgets: how each record reply is framed,
// where stepping through the stored history may go, and what each auto-request tick asks.

#include <QtGlobal>

namespace zrk::tmi {

// Bytes the host puts before the record in a record reply (2301, 2303, 2305, 2307, 2312); 0 for
// any other id.
int recordReplyPrefix(int msg);
// A current-record reply (2301) shorter than this holds no record.
constexpr int kCurrentReplyMinBytes = 101;

// Stepping by record number: the direction of the request under way and the ends of the stored
// history found so far (a step that got no record).
class Stepping
{
public:
    // A request that is no step (the current record): the reply shows whatever it holds.
    void current() { m_direction = 0; }
    // The number to ask for one step (+1 or -1) from the shown record's number.
    quint32 step(quint32 shown, int direction);
    int direction() const { return m_direction; }
    // The by-number reply came and showed a record or not; the direction is spent.
    void answered(bool shown);
    // Whether a step may be offered from the shown number (negative: no numbered record shown).
    bool canStep(int direction, qint64 shown) const;

private:
    int m_direction = 0;
    qint64 m_from = -1; // the number the step under way started from
    qint64 m_endNext = -1, m_endPrev = -1; // numbers no step went beyond, forward and back
};

// Auto-request: every tick asks for the current record, except that in the production modes
// every fifth asks for the display value instead.
class AutoRequest
{
public:
    static constexpr int kDisplayEveryTicks = 5;
    void start() { m_counter = 1; }
    int counter() const { return m_counter; }
    // The message id this tick sends.
    int tick(bool production);

private:
    int m_counter = 1;
};

} // namespace zrk::tmi
