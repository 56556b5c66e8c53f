#pragma once

#include "telemetry/orba_record.h"

#include <QString>

namespace zrk {
// The display name of record field no (1..255) in the telemetry windows.
inline QString tmiFieldLabel(int no)
{
    if (no < 1 || no > orba::kFieldCount)
        return QString();
    return QString::fromLatin1(orba::kFields[no - 1].name);
}
} // namespace zrk
