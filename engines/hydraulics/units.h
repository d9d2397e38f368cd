#pragma once

// Units that the input and the files have beside those of the physics.
namespace kestra {

inline constexpr double kSquareFeetPerAcre = 43560.0;
inline constexpr double kSecondsPerHour = 3600.0;
inline constexpr double kInchesPerFoot = 12.0;

}  // namespace kestra
