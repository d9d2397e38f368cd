#pragma once

// How much water a slope of riprap bears. Unit discharges in cfs/ft, sizes of rock in ft.
namespace kestra {

struct Riprap {
  double uniformity = 1.75;  // D60/D10
  double medianFeet = 1;     // D50
  double thicknessFeet = 2;
  double porosity = 0.4;  // 0 to 1
};

inline constexpr double kRockGravity = 2.65;              // specific gravity of the rock
inline constexpr double kTangentOfRepose = 0.9004040443;  // of 42 degrees, angular rock

// Highest stable unit discharge of a rock chute, for 0.02 to 0.40 ft/ft:
// 4.75e-3 D50^1.89 S^-1.50 below 0.10 ft/ft and 3.93e-2 D50^1.89 S^-0.58 from there, D50 in inches.
// Robinson, Rice and Kadavy 1998, Transactions of the ASAE 41(3):621-626.
double chuteAllowable(double medianFeet, double slope);

// Unit discharge over the rock at which an overtopped embankment fails, from
// D50 = 0.525 q^0.52 / (Cu^0.25 S^0.75) [sin a / ((G cos a - 1)(cos a tan phi - sin a))]^1.11, ft and cfs/ft. Mishra,
// Ruff and Abt 1998, as in HEC-23 volume 2. 0 for a slope as steep as the rock's repose, or steeper.
double embankmentSurfaceAllowable(const Riprap& riprap, double slope);

// Unit discharge through the layer: porosity times thickness times 2.48 (g D50)^0.5 S^0.58 / Cu^2.22. Same source.
double interstitialFlow(const Riprap& riprap, double slope);

// The unit discharge that a riprapped slope is allowed, over and through the rock: what an embankment of it bears, and
// no more than a chute of this slope, or of the steepest that was tested, bears. 0 where the rock would not lie.
double riprapAllowable(const Riprap& riprap, double slope);

}  // namespace kestra
