#include "hydraulics/dam_erosion_input.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestra {
namespace {

struct ComputableRange {
  std::string_view name;
  double& (*value)(DamErosionInput&);
  double least;
  double most;
};

// Wide enough for any dam; narrow enough that no product of them overflows.
constexpr std::array<ComputableRange, 23> kRanges = {{
    {"crest elevation", [](DamErosionInput& in) -> double& { return in.section.crestElevation; }, -1e5, 1e5},
    {"base elevation", [](DamErosionInput& in) -> double& { return in.section.baseElevation; }, -1e5, 1e5},
    {"upstream slope", [](DamErosionInput& in) -> double& { return in.section.upstreamSlope; }, 0.05, 100},
    {"crest width", [](DamErosionInput& in) -> double& { return in.section.crestWidth; }, 0, 1e4},
    {"downstream slope", [](DamErosionInput& in) -> double& { return in.section.downstreamSlope; }, 0.05, 100},
    {"crest length", [](DamErosionInput& in) -> double& { return in.section.crestLength; }, 0.1, 1e6},
    {"roughness of the slope", [](DamErosionInput& in) -> double& { return in.slope.cover.roughness; }, 0.005, 15},
    {"vegetal cover factor", [](DamErosionInput& in) -> double& { return in.slope.cover.coverFactor; }, 0, 1},
    {"particle diameter", [](DamErosionInput& in) -> double& { return in.slope.cover.diameterInches; }, 0, 120},
    {"plasticity index", [](DamErosionInput& in) -> double& { return in.slope.plasticityIndex; }, 0, 200},
    {"riprap uniformity", [](DamErosionInput& in) -> double& { return in.slope.riprap.uniformity; }, 1, 100},
    {"riprap D50", [](DamErosionInput& in) -> double& { return in.slope.riprap.medianFeet; }, 0.001, 100},
    {"riprap thickness", [](DamErosionInput& in) -> double& { return in.slope.riprap.thicknessFeet; }, 0, 1000},
    {"riprap porosity", [](DamErosionInput& in) -> double& { return in.slope.riprap.porosity; }, 0, 0.95},
    {"erodibility", [](DamErosionInput& in) -> double& { return in.soil.erodibility; }, 0, 1e4},
    {"critical shear stress", [](DamErosionInput& in) -> double& { return in.soil.criticalStress; }, 0, 1e4},
    {"headcut advance coefficient", [](DamErosionInput& in) -> double& { return in.soil.advanceCoefficient; }, 0, 1e5},
    {"threshold energy", [](DamErosionInput& in) -> double& { return in.soil.thresholdEnergy; }, 0, 1e5},
    {"total unit weight", [](DamErosionInput& in) -> double& { return in.soil.bank.unitWeight; }, 40, 300},
    {"undrained shear strength", [](DamErosionInput& in) -> double& { return in.soil.bank.undrainedStrength; }, 0, 1e6},
    {"breach coefficient", [](DamErosionInput& in) -> double& { return in.breachCoefficient; }, 0.1, 10},
    {"roughness of the breach", [](DamErosionInput& in) -> double& { return in.breachBedRoughness; }, 0.005, 0.5},
    {"width of the notch", [](DamErosionInput& in) -> double& { return in.notchWidth; }, 0, 1e6},
}};

void setClipped(double& value, double used, std::string_view name, std::vector<ClippedValue>& clipped) {
  if (value == used) return;
  clipped.push_back({name, value, used});
  value = used;
}

}  // namespace

std::vector<ClippedValue> clipToComputable(DamErosionInput& input) {
  constexpr double kLeastHeight = 0.1;  // ft, of a dam
  DamErosionInput defaults;
  std::vector<ClippedValue> clipped;
  for (const ComputableRange& range : kRanges) {
    double& value = range.value(input);
    const double used = std::isfinite(value) ? std::clamp(value, range.least, range.most) : range.value(defaults);
    setClipped(value, used, range.name, clipped);
  }
  DamSection& section = input.section;
  setClipped(section.baseElevation, std::min(section.baseElevation, section.crestElevation - kLeastHeight),
             "base elevation", clipped);
  if (section.nonErodibleElevation && !std::isfinite(*section.nonErodibleElevation)) {
    clipped.push_back({"elevation that does not erode", *section.nonErodibleElevation, section.baseElevation});
    section.nonErodibleElevation.reset();
  }
  return clipped;
}

double lowestSill(const DamSection& section) {
  const double layer = section.nonErodibleElevation.value_or(section.baseElevation);
  return std::clamp(layer, section.baseElevation, section.crestElevation);
}

double sillElevation(const DamSection& section, double advance) {
  const double onFace = std::max(0.0, advance - section.crestWidth);
  return std::max(lowestSill(section), section.crestElevation - onFace / section.upstreamSlope);
}

double fullAdvance(const DamSection& section) {
  return section.crestWidth + section.upstreamSlope * (section.crestElevation - lowestSill(section));
}

double headcutStation(const DamSection& section, double advance) {
  const double toe = section.upstreamSlope * (section.crestElevation - section.baseElevation);
  return toe + section.crestWidth - advance;
}

}  // namespace kestra
