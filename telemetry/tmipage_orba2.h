#pragma once

#include "telemetry/orba_page_of.h"

// One decoded record of ORBA version 2.
class TmiPage_Orba2 : public orba::CurrentOrExtPageOf<2>
{
    Q_OBJECT
public:
    using CurrentOrExtPageOf::CurrentOrExtPageOf;

    QString getStrFormatOrba2() const { return formatText(); }

#define ORBA_PAGE_VERSION 2
#include "telemetry/orba_accessors.inc"
#include "telemetry/orba_ext_accessors.inc"
};
