#pragma once

#include <algorithm>
#include <cmath>

#include "hydraulics/stage_storage.h"

// The step of level-pool routing: S' = I - O(z), taken by the trapezoidal rule. Chow, Maidment and Mays 1988, Applied
// Hydrology, section 8.2.
namespace kestra {

inline constexpr double kPoolTolerance = 1e-9;  // ft, to which the elevation is found

// The pool at the end of a step, from 2 S(z)/dt + O(z) = wanted. O does not fall with z, so there is one answer; where
// even the empty reservoir holds too much, it is its lowest elevation. `start` is where the search begins.
template <class Outflow>
double solvePool(const StageStorage& storage, const Outflow& outflow, double wanted, double seconds, double start) {
  constexpr int kMost = 200;
  constexpr double kLeastArea = 1.0;  // ft^2
  const double rate = 2 / seconds;
  const auto excess = [&](double z) { return rate * storage.volume(z) + outflow(z) - wanted; };

  const double lowest = storage.lowest();
  double a = std::max(start, lowest);
  double atA = excess(a);
  double step = -atA / (rate * std::max(storage.area(a), kLeastArea));
  double b = a;
  double atB = atA;
  // Outflow is left out of this slope, so that the first step mostly passes the root and closes the bracket.
  for (int i = 0; i < kMost && atA != 0 && (atA < 0) == (atB < 0); ++i, step *= 2) {
    if (b <= lowest && step < 0) return lowest;
    a = b;
    atA = atB;
    b = std::max(lowest, b + step);
    atB = excess(b);
  }
  for (int i = 1; i < kMost && atA != 0 && atB != 0 && std::fabs(b - a) > kPoolTolerance; ++i) {
    double z = i % 6 == 0 ? 0.5 * (a + b) : b - atB * (b - a) / (atB - atA);
    if (!(std::min(a, b) < z && z < std::max(a, b))) z = 0.5 * (a + b);
    if (z == a || z == b) break;
    const double moved = std::fabs(z - b);
    const double atZ = excess(z);
    if ((atZ < 0) == (atB < 0)) {
      atA *= atB / (atB + atZ);  // keeps the far end from standing still
    } else {
      a = b;
      atA = atB;
    }
    b = z;
    atB = atZ;
    if (moved <= kPoolTolerance) return b;  // the steps shrink faster and faster: the root is nearer still
  }
  return atA == 0 ? a : b;
}

}  // namespace kestra
