#pragma once

// A vertical step that falling water cuts into an embankment: stress below it, its deepening and its way upstream.
// Heights in ft, unit discharges in cfs/ft, stress in lb/ft^2, rates in ft/h.
namespace kestra {

// Stress of a free overfall of height H on the soil below: c gw H (d_c/H)^0.582. Robinson 1992, Transactions of the
// ASAE 35(2):561-569. The peak, at the impingement on the base (c = 0.025), deepens the step; the reduced value (c =
// 0.011), on the foot of the face, undercuts it. The constants are from memory, not confirmed.
inline constexpr double kPeakOverfallStress = 0.025;
inline constexpr double kFaceOverfallStress = 0.011;
double overfallStress(double constant, double height, double unitDischarge);

// Water standing below a step softens the fall: the stress falls in proportion to the depth on the base, and is gone
// when the step is drowned (our choice).
double submergedPart(double height, double tailwaterAboveBase);  // 1 to 0

// Energy form of the advance: C (A - A0), A = (q H)^(1/3), C in (ft/h)/(ft/s^(1/3)). H is the drop from the brink to
// the base, or to the tailwater that covers it.
double energyAdvance(double coefficient, double thresholdEnergy, double unitDischarge, double drop);

// C of a compacted fill of silty sand or lean clay, by its water content when compacted, 8 to 16 %: 1.08e7 W^-6.5.
// Hanson, Cook and Hahn 2001, ASAE paper 01-012080 (3000 W^-6.5 in SI).
double advanceFromWaterContent(double percentWater);

// C where nothing but the erodibility is known: 2 kd. A middle of what the two relations above give for one silty sand;
// no published relation could be confirmed, so that the result deserves a look at half and twice the value.
double advanceFromErodibility(double erodibility);

// Soil of a bank that stands until it is undercut too far.
struct BankStrength {
  double unitWeight = 120;          // total, lb/ft^3
  double undrainedStrength = 1000;  // lb/ft^2
};

// Highest vertical bank that stands under a sheet of the critical depth: the block between the face, a crack of half
// the height and a plane of 45 degrees is in balance at (8 c_u - 4 gw d_c) / (3 gt). Without water it is the 2.67
// c_u/gt of a cracked bank.
double standingHeight(const BankStrength& bank, double unitDischarge);

// Length of the block that falls over twice the undercut that fells it, T / (2 Ev), by which the wear of the foot is
// multiplied in the stress form dX/dt = T/(2 Ev) kd (tau - tau_c): Ev = standing height - H, at least 0.1 H, and T half
// of H + Ev. 0.25 for a low step, 2.75 for one that no longer stands. Form of Hanson, Robinson and Cook 2001,
// Transactions of the ASAE 44(3):525-531; the closure by the balance of the block is ours.
double blocksPerUndercut(const BankStrength& bank, double height, double unitDischarge);

}  // namespace kestra
