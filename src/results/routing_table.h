#pragma once

#include <string_view>

#include "results/output_line.h"

// The table of the dam's output behind the line "Hydrograph Routing". Fields of 10: time (h), discharges (cfs),
// elevations (ft).
namespace kestra {

inline constexpr int kRoutingWidth = 10;
inline constexpr int kRoutingTime = 1;  // first columns
inline constexpr int kRoutingInflow = 11;
inline constexpr int kRoutingPrincipal = 21;
inline constexpr int kRoutingOverDam = 61;
inline constexpr int kRoutingPool = 81;

// First column of the discharge of auxiliary spillway `number`, 1 to 3.
constexpr int routingSpillway(int number) {
  return number * 10 + 21;
}

// Whether a line is the one before the table.
bool isRoutingTitle(std::string_view line);

// Takes the heading off, which ends in a line that begins with "(hr)" and one line more; the rows come by
// nextTableRow. False, and nothing is taken, when there is no such line before the end or the next table.
bool enterRoutingTable(LineReader& lines);

}  // namespace kestra
