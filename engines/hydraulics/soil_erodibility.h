#pragma once

// How fast soil wears under flowing water: d(eps)/dt = kd (tau - tau_c). kd in (ft/h)/(lb/ft^2), tau in lb/ft^2.
namespace kestra {

inline constexpr double kErodibilityPerMetric = 0.5655;  // (ft/h)/(lb/ft^2) in one cm^3/(N s)
inline constexpr double kStressPerPascal = 0.020885;     // lb/ft^2 in one Pa

// Rate of the excess of stress, ft/h; nothing up to the critical stress. Temple and Hanson 1994.
double detachmentRate(double erodibility, double stress, double criticalStress);

// Estimate from the percentage of clay and the dry unit weight, lb/ft^3:
// kd = 5.66 (gw/gd) exp(-0.121 c^0.406 (gd/gw)^3.10). Temple and Hanson 1994. One soil differs by orders of magnitude
// with its moisture, so that a jet test is better than any estimate.
double erodibilityFromClay(double percentClay, double dryUnitWeight);

// Estimate from the critical stress, kd = 0.2 tau_c^-0.5 in cm^3/(N s) and Pa. Hanson and Simon 2001. Infinite for 0.
double erodibilityFromCriticalStress(double criticalStress);

// Critical stress that is taken when none is known: 0 for fine plastic soils, 0.02 for other fine ones, 0.4 d75 (in)
// for coarse ones, which is Shields' parameter 0.047 for a specific gravity of 2.65.
double defaultCriticalStress(double plasticityIndex, double diameterInches);

enum class Compaction { modified, standard, low };  // 56,250, 12,375, 2,475 ft lb/ft^3
enum class Moisture { optimumOrWetter, dryOfOptimum };

// Guide to the order of magnitude by clay, compaction and moisture when placed. Hanson, Tejral, Hunt and Temple 2010.
double compactedErodibility(double percentClay, Compaction compaction, Moisture moisture);

}  // namespace kestra
