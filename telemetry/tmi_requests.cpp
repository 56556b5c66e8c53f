#include "telemetry/tmi_requests.h"

#include "zrk/zrk_host_api.h"

namespace zrk::tmi {

int recordReplyPrefix(int msg)
{
    switch (msg) {
    case ZRK_MSG_TMI_CURRENT:
    case ZRK_MSG_TMI_BY_NUMBER:
        return 3; // status, record length
    case ZRK_MSG_TMI_STEP_LEFT:
    case ZRK_MSG_TMI_STEP_RIGHT:
        return 13; // status, moment asked, record number, record time
    case ZRK_MSG_TMI_EXTENDED:
        return 2; // record length
    default:
        return 0;
    }
}

quint32 Stepping::step(quint32 shown, int direction)
{
    m_from = shown;
    m_direction = direction < 0 ? -1 : 1;
    return shown + quint32(m_direction);
}

void Stepping::answered(bool shown)
{
    // No record one step on: the history ends there in that direction.
    if (!shown && m_direction > 0)
        m_endNext = m_from;
    else if (!shown && m_direction < 0)
        m_endPrev = m_from;
    m_direction = 0;
}

bool Stepping::canStep(int direction, qint64 shown) const
{
    if (direction > 0)
        return shown >= 0 && shown != m_endNext;
    return shown > 0 && shown != m_endPrev;
}

int AutoRequest::tick(bool production)
{
    if (!production)
        return ZRK_MSG_REQUEST_TMI_CURRENT;
    if (m_counter < kDisplayEveryTicks) {
        ++m_counter;
        return ZRK_MSG_REQUEST_TMI_CURRENT;
    }
    m_counter = 1;
    return ZRK_MSG_REQUEST_DISPLAY_VALUE;
}

} // namespace zrk::tmi
