#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestra {

// A hydrograph at constant steps as texts.
struct ConstantHydrograph {
  std::optional<std::string> title;  // nothing where the header does not reach it
  std::string increment;             // hours
  std::vector<std::string> flows;    // cfs
};

// One that was read from a file, up to the first value that is none.
struct ThyHydrograph : ConstantHydrograph {
  std::string fault;       // as of fieldFault; empty: none
  std::size_t points = 0;  // rows up to the last with a discharge, those behind the flows included
};

// A hydrograph file (.THY). Line 1: "HYD" at column 1, title of 40 characters from 31 on. Line 2: increment at 21. Then
// rows of five discharges at 21, 31, 41, 51 and 61, ten columns each, and "ENDTABLE" at 1. Reading begins at the first
// line of "HYD"; what a line does not reach is empty; 5000 discharges at most. A discharge that is no number stops it.
// An increment that is no number above 0 is a fault too and left out. Nothing without a line of "HYD".
std::optional<ThyHydrograph> readThy(std::string_view text);

// Writes rows up to the first whose first discharge is empty, or from discharge 4997 on.
std::string thyText(const ConstantHydrograph& hydrograph);

}  // namespace kestra
