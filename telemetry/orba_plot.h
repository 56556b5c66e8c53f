#pragma once

// Record fields as numbers for a chart: the values a record form shows, not raw units.

class OrbaPage;

namespace orba {

// Whether field no holds a single number that can be plotted (not a byte block, a set of bits or
// parts, nor a date).
bool isPlottable(int no);
// The shown value of field no; false when the field is absent, beyond the page's version, not
// plottable, or holds the sensor's "no value" mark.
bool fieldNumber(const OrbaPage& page, int no, double* value);

} // namespace orba
