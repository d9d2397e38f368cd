#pragma once

#include <string_view>

#include "screens/resample_hydrograph.h"

namespace kestra {

// Takes the points out of the hydrograph block of a control file: the `HYD` record, its rows, and `ENDTABLE`. Column 42
// of the first line tells the form. "C": step in columns 21-30 and start in 31-40 (hours), rows of five discharges from
// column 21 on, up to an empty line. Anything else: rows of time (11-20) and discharge (21-30), up to a line of 20
// characters or fewer. At most 5000 points; commas in numbers are passed over, and what is no number counts as 0.
HydrographPoints ParseHydrographText(std::string_view text);

}  // namespace kestra
