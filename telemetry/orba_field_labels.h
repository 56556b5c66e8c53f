#pragma once

// Display names of the ORBA record fields, as a technician reads them: the field-set page's check
// boxes, the telemetry form rows, table columns and CSV headers all take them from here so that one
// field is called the same everywhere. No widgets.

#include <QString>

namespace orba {

// The translated name of field no (1..255); an empty string for any other number.
QString fieldLabel(int no);

// The catalogue id of field no ("orbf_001".."orbf_255"); nullptr for any other number.
const char* fieldLabelId(int no);

} // namespace orba
