#pragma once

#include <string>
#include <vector>

#include "controls/table.h"
#include "screens/resample_hydrograph.h"

// The two tables of the hydrograph screen. Both have a heading row and two columns: time in hours and discharge in cfs.
namespace kestra {

inline constexpr int kHydrographTime = 0;
inline constexpr int kHydrographFlow = 1;
inline constexpr int kMostHydrographPoints = 5000;

// The points of a table with times of its own; rows without time or discharge are passed over.
HydrographPoints loadTiQiArrays(const Table& table);

// The points of a table at constant steps: row i has the time (i - 1) * dt. Rows without discharge are passed over,
// but for the first one, which counts as 0; rows behind the 5000th do not count.
HydrographPoints constantPoints(const Table& table, double dt);

// Writes the times 0, dt, 2 dt, ... as decimal texts of 10 characters, padded or cut. A step that is not finite gives
// none.
void numberTimes(Table& table, double dt);

// Writes the texts of a column from row 1 on and blanks the rows behind them. The cursor goes to the first data cell.
void fillColumn(Table& table, int column, const std::vector<std::string>& texts);

// The same with discharges, as texts of at most 10 characters, 5000 at most.
void fillFlows(Table& table, const std::vector<double>& flows);

// The first 10 characters of a number's decimal text: cut, not rounded.
std::string tenCharacters(double value);

}  // namespace kestra
