#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "screens/tab_hydrographs.h"

namespace kestra {

// The hydrographs in an output file of the spillway program (.VHY). A record begins with a line of "3" at column 1, its
// code in columns 2 to 5, and something in 2 to 12; it reaches to the line "ENDTABLE".
struct VhyContent {
  bool isThy = false;              // outside the records there is a line "HYD": the file is of the .THY form instead
  std::vector<std::string> codes;  // of the records, in the order of the file
};
VhyContent scanVhy(std::string_view text);

struct VhyHydrograph {
  std::string startTime;            // hours, as in the file
  std::string increment;            // hours, between the first two times; empty with fewer
  std::vector<HydrographRow> rows;  // times count from the start time
  std::string fault;                // as of fieldFault; empty: none
  std::size_t points = 0;           // those behind the rows included, unless a fault has ended them
};

// The record of a code. Behind its first line stands one with the start time in columns 12 to 22; then the rows, up to
// "ENDTABLE" or a line that begins with "5": time in columns 2 to 12, discharge in the eleven columns from 11 * column
// + 2 on. From column 3 on the discharge is the value in 24 to 33 less the one in 13 to 22. Reading stops at a time or
// a discharge that is no number, though a discharge may be blank; the rows before it stay. An increment of 0 or below
// is a fault that takes no rows away.
VhyHydrograph readVhy(std::string_view text, std::string_view code, int column, std::size_t mostRows);

}  // namespace kestra
