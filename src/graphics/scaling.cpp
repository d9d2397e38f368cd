#include "graphics/scaling.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestra {
namespace {

constexpr double kSmallestRange = 0.001;

// The integer part, towards zero, as a 32-bit number.
int wholePart(double value) {
  if (!(std::fabs(value) <= std::numeric_limits<int>::max())) throw ScalingFault();
  return static_cast<int>(value);
}

void widen(double low, double& high) {
  if (high - low < kSmallestRange) high = low + kSmallestRange;
}

double stepFor(double range) {
  const int power = wholePart(std::log10(range));
  const double unit = std::pow(10.0, power);
  const int multiple = wholePart(range / unit - 0.001) + 1;
  if (multiple > 10) return 2 * unit;
  if (multiple > 5) return unit;
  if (multiple > 2) return unit / 2;
  return unit / 5;
}

// Whole steps from `low` on that hold `high`.
double endPoint(double low, double high, double step) {
  return low + (wholePart((high - low) / step - 0.0001) + 1) * step;
}

}  // namespace

void View::include(double x, double y) {
  Xmin = std::min(Xmin, x);
  Xmax = std::max(Xmax, x);
  Ymin = std::min(Ymin, y);
  Ymax = std::max(Ymax, y);
}

Steps Scaling(View& window, ScaleMemo& memo) {
  const double xr = window.xRange();
  const double yr = window.yRange();
  const bool moved = xr == memo.MemoXRange && yr == memo.MemoYRange;
  if (moved && xr >= kSmallestRange && yr >= kSmallestRange) return {memo.XStep, memo.YStep};

  widen(window.Xmin, window.Xmax);
  widen(window.Ymin, window.Ymax);
  const Steps steps = {stepFor(std::max(xr, kSmallestRange)), stepFor(std::max(yr, kSmallestRange))};

  View rounded;
  rounded.Xmin = std::floor(window.Xmin / steps.XStep) * steps.XStep;
  rounded.Xmax = endPoint(rounded.Xmin, window.Xmax, steps.XStep);
  // Below zero the vertical axis goes down one step more, so that a curve does not touch the frame.
  rounded.Ymin = std::trunc(window.Ymin / steps.YStep) * steps.YStep;
  if (rounded.Ymin < 0) rounded.Ymin -= steps.YStep;
  rounded.Ymin += 0.0;  // never -0
  rounded.Ymax = endPoint(rounded.Ymin, window.Ymax, steps.YStep);
  window = rounded;
  memo = {steps.XStep, steps.YStep, window.Xmin,     window.Xmax,
          window.Ymin, window.Ymax, window.xRange(), window.yRange()};
  return steps;
}

}  // namespace kestra
