#pragma once

#include "telemetry/orba_page_of.h"

// One decoded record of ORBA version 3.
class TmiPage_Orba3 : public orba::CurrentOrExtPageOf<3>
{
    Q_OBJECT
public:
    using CurrentOrExtPageOf::CurrentOrExtPageOf;

    QString getStrFormatOrba3() const { return formatText(); }

#define ORBA_PAGE_VERSION 3
#include "telemetry/orba_accessors.inc"
#include "telemetry/orba_ext_accessors.inc"
};
