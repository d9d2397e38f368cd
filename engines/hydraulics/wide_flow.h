#pragma once

// Flow in a sheet so wide that its hydraulic radius is its depth: over a slope, a crest, the bed of a breach. Unit
// discharges in cfs/ft, never negative; depths in ft; slopes in ft/ft, above 0.
namespace kestra {

// Depth of the least energy, (q^2/g)^(1/3), ft.
double criticalDepth(double unitDischarge);

// Depth of Manning's uniform flow, (n q / (1.486 S^0.5))^0.6, ft. Chow 1959, Open-Channel Hydraulics.
double wideNormalDepth(double unitDischarge, double manningN, double slope);

// Manning's n of grass with a retardance curve index (class A 10.0, B 7.64, C 5.60, D 4.44, E 2.88), by the product of
// velocity and hydraulic radius, ft^2/s, which in a wide sheet is the unit discharge. The product is held within
// 0.0025 index^2.5 to 36. Temple, Robinson, Ahring and Davis 1987, Agriculture Handbook 667.
double grassRoughness(double curveIndex, double velocityTimesRadius);

// Manning's n of a surface that is told by one figure, a retardance curve index or an n. No grass has an index below 1,
// no soil an n above: which of them it is, the figure says itself.
double surfaceRoughness(double indexOrManningN, double unitDischarge);

}  // namespace kestra
