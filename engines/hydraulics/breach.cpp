#include "hydraulics/breach.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/physical_constants.h"
#include "hydraulics/soil_erodibility.h"
#include "hydraulics/weir_submergence.h"
#include "hydraulics/wide_flow.h"

namespace kestra {

double breachUnitDischarge(double coefficient, double pool, double sill, double tailwater) {
  const double head = std::max(0.0, pool - sill);
  return coefficient * head * std::sqrt(head) * submergenceFactor(head, tailwater - sill);
}

double criticalBedStress(double manningN, double unitDischarge) {
  const double depth = criticalDepth(unitDischarge);
  return kWaterUnitWeight * manningN * manningN * kGravity * std::cbrt(depth * depth) / (kManning * kManning);
}

double bankWidening(double erodibility, double criticalStress, double bedStress) {
  return 2 * detachmentRate(erodibility, 0.7 * bedStress, criticalStress);
}

double initialBreachWidth(double notchWidth, double headcutHeight, double unitDischarge) {
  return std::max({notchWidth, headcutHeight, 2 * criticalDepth(unitDischarge)});
}

}  // namespace kestra
