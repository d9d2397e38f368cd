#include "hydraulics/slope_stress.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "hydraulics/physical_constants.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

constexpr double kFineSoilStress = 0.02;  // lb/ft^2

// tau = a PI^2 + b PI + c lb/ft^2 for PI 10 to 20, then a constant; times (p - q e)^2 for a void ratio e.
struct CohesiveSoil {
  std::string_view soilClass;
  double a, b, c;
  double stressAbove20;
  double p, q;
};

constexpr std::array<CohesiveSoil, 8> kCohesiveSoils = {{
    {"GM", 1.07e-4, 14.3e-4, 47.7e-4, 0.076, 1.42, 0.61},
    {"SC", 1.07e-4, 14.3e-4, 47.7e-4, 0.076, 1.42, 0.61},
    {"GC", 0.0477e-3, 2.86e-3, 42.9e-3, 0.119, 1.42, 0.61},
    {"SM", 1.07e-4, 7.15e-4, 11.9e-4, 0.058, 1.42, 0.61},
    {"CL", 1.07e-4, 14.3e-4, 47.7e-4, 0.076, 1.48, 0.57},
    {"ML", 1.07e-4, 7.15e-4, 11.9e-4, 0.058, 1.48, 0.57},
    {"MH", 0.0477e-3, 1.43e-3, 10.7e-3, 0.058, 1.38, 0.373},
    {"CH", 0, 0, 0, 0.097, 1.38, 0.373},
}};

// The part of the stress that reaches the soil through the cover.
double partOnSoil(const SlopeCover& cover, double manningN) {
  const double bare = cover.maintenanceCode == 1 ? 1 - cover.coverFactor : 1;
  const double grains = std::min(1.0, grainRoughness(cover.diameterInches) / manningN);
  return bare * grains * grains;
}

}  // namespace

double grainRoughness(double diameterInches) {
  return diameterInches < kCoarseGrain ? 0.0156 : 0.0256 * std::pow(diameterInches, 1.0 / 6);
}

double bareSoilStress(double slope, double diameterInches, double unitDischarge) {
  return kWaterUnitWeight * slope * wideNormalDepth(unitDischarge, grainRoughness(diameterInches), slope);
}

SlopeFlow slopeFlow(const SlopeCover& cover, double unitDischarge) {
  SlopeFlow flow;
  flow.manningN = surfaceRoughness(cover.roughness, unitDischarge);
  flow.depth = wideNormalDepth(unitDischarge, flow.manningN, cover.slope);
  flow.velocity = flow.depth > 0 ? unitDischarge / flow.depth : 0;
  flow.grossStress = kWaterUnitWeight * cover.slope * flow.depth;
  flow.effectiveStress = cover.maintenanceCode >= 3 ? bareSoilStress(cover.slope, cover.diameterInches, unitDischarge)
                                                    : flow.grossStress * partOnSoil(cover, flow.manningN);
  return flow;
}

double stressTimeLimit(double plasticityIndex, double diameterInches, double rootingDepthFeet) {
  const double plasticity = diameterInches < kCoarseGrain ? std::max(0.0, plasticityIndex) : 0;
  const double roots = std::clamp(rootingDepthFeet, 0.0, 1.0);
  return roots * (9 * plasticity + 50) / kStressTimeUnitsInAnHour;
}

std::optional<double> allowableSoilStress(std::string_view soilClass, double plasticityIndex, double voidRatio,
                                          double diameterInches) {
  const auto* const soil = std::find_if(kCohesiveSoils.begin(), kCohesiveSoils.end(),
                                        [&](const CohesiveSoil& row) { return row.soilClass == soilClass; });
  if (soil == kCohesiveSoils.end()) return std::nullopt;
  if (diameterInches >= kCoarseGrain) return 0.4 * diameterInches;
  if (plasticityIndex < 10) return kFineSoilStress;
  if (plasticityIndex <= 20 && soil->b == 0) return std::nullopt;
  const double basic =
      plasticityIndex > 20 ? soil->stressAbove20 : (soil->a * plasticityIndex + soil->b) * plasticityIndex + soil->c;
  const double density = std::max(0.0, soil->p - soil->q * voidRatio);
  return basic * density * density;
}

}  // namespace kestra
