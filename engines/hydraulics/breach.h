#pragma once

// Flow through the breach of an embankment and what it does to bed and banks. Elevations, widths and depths in ft,
// discharges in cfs (cfs/ft where told), stress in lb/ft^2.
namespace kestra {

inline constexpr double kIdealWeir = 3.087;          // ft^0.5/s, (2/3)^1.5 g^0.5
inline constexpr double kBreachBedRoughness = 0.02;  // Manning's n

// C h^1.5, less what the tailwater takes of a broad crest's flow, cfs/ft; nothing from a pool below the sill.
double breachUnitDischarge(double coefficient, double pool, double sill, double tailwater);

// Stress of critical flow on a bed, gw n^2 V_c^2 / (2.208 d_c^(1/3)) with V_c^2 = g d_c: 0.364 d_c^(2/3) for n 0.02.
double criticalBedStress(double manningN, double unitDischarge);

// Both banks of a breach retreat under 0.7 of the stress on its bed; ft/h of width. Hunt, Hanson, Cook and Kadavy 2005,
// Transactions of the ASAE 48(3):1115-1120, for the observation; the constant is from memory, not confirmed.
double bankWidening(double erodibility, double criticalStress, double bedStress);

// While a headcut advances the breach widens with it, 1.4 ft a foot (same source, not confirmed either): its collapsing
// face takes the banks along, far faster than the flow on them does.
inline constexpr double kWideningWithAdvance = 1.4;

// Width in which a headcut starts: the notch that was there, the headcut's height or two critical depths, whichever is
// most.
double initialBreachWidth(double notchWidth, double headcutHeight, double unitDischarge);

}  // namespace kestra
