#include "hydraulics/wide_flow.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/physical_constants.h"

namespace kestra {

double criticalDepth(double unitDischarge) {
  return std::cbrt(unitDischarge * unitDischarge / kGravity);
}

double wideNormalDepth(double unitDischarge, double manningN, double slope) {
  return std::pow(manningN * unitDischarge / (kManning * std::sqrt(slope)), 0.6);
}

double grassRoughness(double curveIndex, double velocityTimesRadius) {
  constexpr double kHighest = 36.0;  // ft^2/s, of the tests behind the formula
  const double lowest = std::min(0.0025 * std::pow(curveIndex, 2.5), kHighest);
  const double x = std::log(std::clamp(velocityTimesRadius, lowest, kHighest));
  return std::exp(curveIndex * (0.0133 * x * x - 0.0954 * x + 0.297) - 4.16);
}

double surfaceRoughness(double indexOrManningN, double unitDischarge) {
  return indexOrManningN < 1 ? indexOrManningN : grassRoughness(indexOrManningN, unitDischarge);
}

}  // namespace kestra
