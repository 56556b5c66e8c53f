#pragma once

// Display names of the ORBA record fields and of their sub-values, as a technician reads them: the field-set
// page's check boxes, the telemetry form rows, table columns and CSV headers all take them from here so that
// one field is called the same everywhere. No widgets.

#include <QString>

namespace orba {

// The translated name of field no (1..255); an empty string for any other number.
QString fieldLabel(int no);

// The catalogue id of field no ("orbf_001".."orbf_255"); nullptr for any other number.
const char* fieldLabelId(int no);

// The translated name of sub-value id (an orba::SubId) as the record form's rows show it; an empty
// string for an id out of range.
QString subValueLabel(int id);
// Its catalogue id ("orbs_NNN"; several sub-values of one kind share one, numbered); nullptr for
// an id out of range.
const char* subValueLabelId(int id);

// The translated name of value id (an orba::ExtId) of the extended record's head; an empty string
// for an id out of range.
QString extFieldLabel(int id);

} // namespace orba
