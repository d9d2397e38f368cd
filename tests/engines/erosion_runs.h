#pragma once

#include <cmath>
#include <optional>
#include <vector>

#include "hydraulics/dam_erosion.h"

namespace kestra {

// A head of water over the crest for some time.
inline ErosionStep overtopping(const DamErosionInput& dam, double timeHours, double dtHours, double head) {
  return {timeHours, dtHours, dam.section.crestElevation + head, -1000, head, 2.9 * head * std::sqrt(head)};
}

// Every number that can be asked of it.
inline std::vector<double> numbersOf(const DamErosion& erosion) {
  const ErosionRow& row = erosion.row();
  const HeadcutRow headcut = row.headcut.value_or(HeadcutRow{});
  return {row.timeHours,
          row.unitDischarge,
          row.slope.grossStress,
          row.slope.grossPercent,
          row.slope.effectiveStress,
          row.slope.stressTime,
          row.slope.stressTimePercent,
          row.slope.dischargePercent,
          row.breach.discharge,
          row.breach.sill,
          row.breach.baseStress,
          row.breach.width,
          row.breach.unitDischarge,
          headcut.brink,
          headcut.station,
          headcut.base,
          headcut.height,
          headcut.width,
          erosion.suggestedStepHours(),
          erosion.breachWidth(),
          erosion.breachDischarge(1e4, 0),
          erosion.events().slopeLost.value_or(0),
          erosion.events().headcutFormed.value_or(0),
          erosion.events().breachInitiated.value_or(0),
          erosion.events().breachCompleted.value_or(0)};
}

// The time of an event; far away when it never comes.
inline double when(const std::optional<double>& event) {
  return event.value_or(1e6);
}

}  // namespace kestra
