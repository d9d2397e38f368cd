#pragma once

// The units of all of hydraulics are those of the American handbooks: ft, inch, lb, hours (seconds inside a velocity or
// a discharge), cfs, lb/ft^2.
namespace kestra {

inline constexpr double kWaterUnitWeight = 62.4;  // lb/ft^3
inline constexpr double kGravity = 32.17;         // ft/s^2
inline constexpr double kManning = 1.486;         // of Manning's formula in feet and seconds

}  // namespace kestra
