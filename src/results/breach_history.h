#pragma once

#include <string_view>

namespace kestra {

// The highest unit discharge, cfs/ft, in a breach history (`.BRE`): of columns 61 to 72 of the lines longer than 60
// characters, the first five lines left out; 0 where there is none.
double highestUnitDischarge(std::string_view history);

}  // namespace kestra
