#pragma once

#include <string>
#include <string_view>

#include "screens/resample_hydrograph.h"

namespace kestra {

// The time step that a HYD record asks for in columns 21 to 30, hours: 1 where the field is missing, blank or below
// 0.001.
double hydrographStep(std::string_view hydRecord);

// Resamples for a run: as resampleHydrograph, but a step that asks for more points than a control file may have
// is made greater, however small it is, so that exactly 17000 points result.
ResampledHydrograph resampleForRun(double step, const HydrographPoints& points);

// The table of a resampled hydrograph: the HYD record with title and start time of the old one and the new step, rows
// of five discharges behind 20 blanks, ENDTABLE. Numbers begin with a blank and are cut to ten columns.
std::string hydrographTable(std::string_view oldRecord, const ResampledHydrograph& hydrograph);

// The text that stands in a field of such a table: never with an exponent, which a cut could take off.
std::string tableNumber(double value);

}  // namespace kestra
