#include "hydraulics/riprap.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/physical_constants.h"

namespace kestra {
namespace {
constexpr double kSteepestChute = 0.40;  // ft/ft, of the tests
}

double chuteAllowable(double medianFeet, double slope) {
  const double rock = std::pow(12 * medianFeet, 1.89);
  return slope < 0.10 ? 4.75e-3 * rock * std::pow(slope, -1.50) : 3.93e-2 * rock * std::pow(slope, -0.58);
}

double embankmentSurfaceAllowable(const Riprap& riprap, double slope) {
  const double cosine = 1 / std::sqrt(1 + slope * slope);
  const double sine = slope * cosine;
  const double reserve = (kRockGravity * cosine - 1) * (cosine * kTangentOfRepose - sine);
  if (kRockGravity * cosine <= 1 || reserve <= 0) return 0;
  const double perFlow =
      0.525 / (std::pow(riprap.uniformity, 0.25) * std::pow(slope, 0.75)) * std::pow(sine / reserve, 1.11);
  return std::pow(riprap.medianFeet / perFlow, 1 / 0.52);
}

double interstitialFlow(const Riprap& riprap, double slope) {
  const double poreVelocity =
      2.48 * std::sqrt(kGravity * riprap.medianFeet) * std::pow(slope, 0.58) / std::pow(riprap.uniformity, 2.22);
  return riprap.porosity * poreVelocity * riprap.thicknessFeet;
}

double riprapAllowable(const Riprap& riprap, double slope) {
  const double surface = embankmentSurfaceAllowable(riprap, slope);
  if (surface <= 0) return 0;
  const double embankment = surface + interstitialFlow(riprap, slope);
  return std::min(embankment, chuteAllowable(riprap.medianFeet, std::min(slope, kSteepestChute)));
}

}  // namespace kestra
