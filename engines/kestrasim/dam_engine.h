#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestra {

// What a run writes. A history is there when a breach was asked for; that of the breach also needs flow over the dam.
struct DamFiles {
  std::string report;
  std::optional<std::string> breach;
  std::optional<std::string> headcut;
};

// Whether the flood is routed a second time, by half steps, and the report tells what that changed.
enum class StepCheck { none, halved };

// The dam of a control file, routed. Any text gives a report; the same text gives the same one.
DamFiles runDam(std::string_view controlText, StepCheck check = StepCheck::none);

}  // namespace kestra
