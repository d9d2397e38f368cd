#include "hydraulics/headcut.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/physical_constants.h"
#include "hydraulics/wide_flow.h"

namespace kestra {

double overfallStress(double constant, double height, double unitDischarge) {
  if (height <= 0) return 0;
  return constant * kWaterUnitWeight * height * std::pow(criticalDepth(unitDischarge) / height, 0.582);
}

double submergedPart(double height, double tailwaterAboveBase) {
  if (height <= 0) return 0;
  return std::clamp(1 - tailwaterAboveBase / height, 0.0, 1.0);
}

double energyAdvance(double coefficient, double thresholdEnergy, double unitDischarge, double drop) {
  return coefficient * std::max(0.0, std::cbrt(unitDischarge * std::max(0.0, drop)) - thresholdEnergy);
}

double advanceFromWaterContent(double percentWater) {
  return 1.08e7 * std::pow(percentWater, -6.5);
}

double advanceFromErodibility(double erodibility) {
  return 2 * erodibility;
}

double standingHeight(const BankStrength& bank, double unitDischarge) {
  const double surcharge = kWaterUnitWeight * criticalDepth(unitDischarge);
  return std::max(0.0, (8 * bank.undrainedStrength - 4 * surcharge) / (3 * bank.unitWeight));
}

double blocksPerUndercut(const BankStrength& bank, double height, double unitDischarge) {
  constexpr double kLeastUndercut = 0.1;  // of the height
  const double undercut = std::max(standingHeight(bank, unitDischarge) - height, kLeastUndercut * height);
  if (undercut <= 0) return 0;
  return (height + undercut) / 2 / (2 * undercut);
}

}  // namespace kestra
