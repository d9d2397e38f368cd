#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace kestra {

// A point of the dam's cross-section: station from the upstream toe on, elevation, both in ft.
struct SectionPoint {
  double station = 0;
  double elevation = 0;
};

// The cross-section of the dam from the records that a run's output echoes, from the upstream toe over the crest to the
// downstream toe. A TEMPLATE is taken as it is (stations in its first field, elevations in its second); without one the
// faces run from the dam's base (STROUTE) at their slopes (UPSTREAM, DWNSTREAM) up to the lowest crest elevation
// (CRESTPRFL), the width of the crest (DAMCREST) apart. Nothing when a record that it takes is missing.
std::optional<std::vector<SectionPoint>> readDamData(std::string_view output);

}  // namespace kestra
