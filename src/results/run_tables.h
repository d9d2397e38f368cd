#pragma once

#include <array>
#include <string>

#include "results/dam_digest.h"

namespace kestra {

inline constexpr std::size_t kSpillways = 3;

// What the steps of a build leave for the next: the last dam output that was read, and what the split of the control
// file has found of each auxiliary spillway. One object, owned by the application.
struct RunTables {
  DigestFields digestFields;
  std::array<std::string, kSpillways> spillwayName;
  std::array<bool, kSpillways> spillwayAnalysisFlag{};
  std::array<bool, kSpillways> spillwayRatingFlag{};  // given by a rating table, not by its surface
};

}  // namespace kestra
