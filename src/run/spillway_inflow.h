#pragma once

#include <string>

#include "platform/file_system.h"

namespace kestra {

// The dam run's output that a link to it stands for: beside the control file that it names, under its stem.
std::string damOutputOf(const std::string& damFile);

// The discharge of an auxiliary spillway in the dam's routing table, as the hydrograph table of a run of its own:
//
//   HYD       9                   C
//                       <step    ><start   >           in columns 21-30 and 31-40, hours
//                       <five discharges a row from column 21 on>
//   ENDTABLE
//
// The step is that of the whole table, rounded to three decimals; at most 5000 discharges are taken. `hydrographColumn`
// is the spillway's number. Throws RuntimeFault when the output cannot be read or holds fewer than two rows.
std::string ExtractSpillwayInflow(FileSystem& files, const std::string& damFile, int hydrographColumn);

}  // namespace kestra
