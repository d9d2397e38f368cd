#pragma once

#include <optional>
#include <string_view>

// Stress of flowing water on a slope, and what soil and turf bear of it. Temple, Robinson, Ahring and Davis 1987,
// Stability Design of Grass-Lined Open Channels, Agriculture Handbook 667; Temple and Hanson 1994, Applied Engineering
// in Agriculture 10(5). Stress in lb/ft^2, discharge in cfs/ft, depth in ft.
namespace kestra {

// The unit of the limit of stress times time is printed nowhere beyond doubt. Minutes reproduce how long grass is known
// to last; hours would have it last for days under 10 ft/s (docs/engines/dam-erosion.md).
inline constexpr double kStressTimeUnitsInAnHour = 60;

// Gross stress that no turf stands, lb/ft^2: the sod is torn off however short the flow. From memory of the literature,
// not confirmed.
inline constexpr double kMostStressOnTurf = 13.5;

inline constexpr double kCoarseGrain = 0.05;  // in; d75 from which a soil is coarse

// What water meets on a slope.
struct SlopeCover {
  double slope = 1.0 / 3;     // ft/ft: the tangent, with the depth measured upright
  double roughness = 5.6;     // retardance curve index, or Manning's n below 1
  double coverFactor = 0.75;  // 0 to 1, the part of the stress that the cover keeps off the soil
  int maintenanceCode = 1;    // 1 even cover, 2 minor gaps (the soil is struck), 3 major gaps (the flow concentrates)
  double diameterInches = 0;  // d75 of the soil
};

struct SlopeFlow {
  double manningN = 0;
  double depth = 0;            // uniform flow on the covered slope
  double velocity = 0;         // ft/s
  double grossStress = 0;      // on soil and cover together
  double effectiveStress = 0;  // on the grains of the soil, where it erodes
};

SlopeFlow slopeFlow(const SlopeCover& cover, double unitDischarge);

// Manning's n of the bare grains of a soil: 0.0156 when fine, 0.0256 d75^(1/6) from 0.05 in on.
double grainRoughness(double diameterInches);

// Stress on bare soil over which the flow has its way, by the roughness of its grains alone: gamma d S.
double bareSoilStress(double slope, double diameterInches, double unitDischarge);

// What a turf bears before it is gone, lb h/ft^2: 9 PI + 50 in lb min/ft^2. A coarse soil counts as PI 0; roots that
// reach less than a foot down hold in proportion (our choice: no form for that is published).
double stressTimeLimit(double plasticityIndex, double diameterInches, double rootingDepthFeet = 1);

// The stress that a soil bears for any time, lb/ft^2; classes GM GC SM SC ML CL MH CH. Non-plastic or coarse soils bear
// 0.02 when fine and 0.4 d75 else, whatever their class; for others it grows with plasticity and falls with the void
// ratio. Nothing for a class that is not known, and for CH up to PI 20, which no plasticity chart has.
std::optional<double> allowableSoilStress(std::string_view soilClass, double plasticityIndex, double voidRatio,
                                          double diameterInches);

}  // namespace kestra
