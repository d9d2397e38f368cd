#include "hydraulics/soil_erodibility.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "hydraulics/physical_constants.h"
#include "hydraulics/slope_stress.h"

namespace kestra {
namespace {

// cm^3/(N s); a pair (at optimum or wetter, drier) for each compaction.
struct ClayClass {
  double aboveClay;  // percent
  std::array<std::array<double, 2>, 3> erodibility;
};

constexpr std::array<ClayClass, 4> kClayClasses = {{
    {25, {{{0.05, 0.5}, {0.1, 1}, {0.2, 2}}}},
    {13, {{{0.5, 5}, {1, 10}, {2, 20}}}},
    {7, {{{5, 50}, {10, 100}, {20, 200}}}},
    {-std::numeric_limits<double>::infinity(), {{{50, 200}, {100, 400}, {200, 800}}}},
}};

}  // namespace

double detachmentRate(double erodibility, double stress, double criticalStress) {
  return erodibility * std::max(0.0, stress - criticalStress);
}

double erodibilityFromClay(double percentClay, double dryUnitWeight) {
  const double density = dryUnitWeight / kWaterUnitWeight;
  return 5.66 / density * std::exp(-0.121 * std::pow(percentClay, 0.406) * std::pow(density, 3.10));
}

double erodibilityFromCriticalStress(double criticalStress) {
  return 0.2 / std::sqrt(criticalStress / kStressPerPascal) * kErodibilityPerMetric;
}

double defaultCriticalStress(double plasticityIndex, double diameterInches) {
  if (diameterInches >= kCoarseGrain) return 0.4 * diameterInches;
  return plasticityIndex > 0 ? 0 : 0.02;
}

double compactedErodibility(double percentClay, Compaction compaction, Moisture moisture) {
  const auto* row = kClayClasses.begin();
  while (percentClay <= row->aboveClay) ++row;
  return row->erodibility[static_cast<std::size_t>(compaction)][static_cast<std::size_t>(moisture)] *
         kErodibilityPerMetric;
}

}  // namespace kestra
