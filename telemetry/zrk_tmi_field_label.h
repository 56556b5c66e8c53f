#pragma once

#include "telemetry/orba_field_labels.h"

#include <QString>

namespace zrk {
// The display name of record field no (1..255) in the telemetry windows.
inline QString tmiFieldLabel(int no)
{
    return orba::fieldLabel(no);
}
} // namespace zrk
