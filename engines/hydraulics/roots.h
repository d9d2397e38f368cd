#pragma once

#include <algorithm>
#include <cmath>

namespace kestra {

// Root of a function that does not decrease between `low` and `high`, found to within `tolerance`. Where it is above 0
// at `low` the answer is `low`, where it is below 0 at `high` it is `high`. Regula falsi in its Illinois form, with a
// bisection every fourth time, so that the bracket closes on any function.
template <class Function>
double solveIncreasing(const Function& f, double low, double high, double tolerance) {
  constexpr int kMost = 400;
  double below = f(low);
  if (below >= 0) return low;
  double above = f(high);
  if (above <= 0) return high;
  double x = low;
  int side = 0;
  for (int i = 1; i <= kMost && high - low > tolerance; ++i) {
    x = i % 4 == 0 ? 0.5 * (low + high) : (low * above - high * below) / (above - below);
    if (!(x > low && x < high)) x = 0.5 * (low + high);
    const double value = f(x);
    if (value == 0) return x;
    if (value < 0) {
      low = x;
      below = value;
      if (side < 0) above *= 0.5;
      side = -1;
    } else {
      high = x;
      above = value;
      if (side > 0) below *= 0.5;
      side = 1;
    }
  }
  return std::clamp(x, low, high);
}

// Doubles `start`, above 0, until the function is no longer below 0 there.
template <class Function>
double bracketAbove(const Function& f, double start) {
  constexpr int kMost = 200;
  double x = start;
  for (int i = 0; i < kMost && f(x) < 0; ++i) x *= 2;
  return x;
}

}  // namespace kestra
