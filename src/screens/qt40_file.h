#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestra {

// The text output of QT40. A hydrograph begins with a line whose first 20 columns hold "INPUT HYDROGRAPH:"; the next
// line that is not blank is its header. These are the first 40 columns of the headers, trimmed.
std::vector<std::string> qt40Headers(std::string_view text);

struct Qt40Hydrograph {
  std::string title;               // header columns 11-20
  std::string startTime;           // 41-50, hours
  std::string increment;           // 51-60, hours
  std::vector<std::string> flows;  // cfs, the base flow of columns 71-80 added to each
  std::string fault;               // as of fieldFault; empty: none
  std::size_t points = 0;          // those behind the flows included
};

// Hydrograph `index`, from 0, of qt40Headers. Its rows have blanks in columns 1 to 20 and up to five discharges at 21,
// 31, 41, 51 and 61, ten columns each; it ends at the first line with text in columns 1 to 20. At most `mostFlows`. A
// base flow or discharge that is no number stops it; a start time or increment that is none is a fault too and left
// out.
Qt40Hydrograph readQt40(std::string_view text, std::size_t index, std::size_t mostFlows);

}  // namespace kestra
