#include "hydraulics/peak_finder.h"

#include <algorithm>

#include "hydraulics/roots.h"

namespace kestra {
namespace {

// Top of the parabola through three points of which the middle one is the highest. It may pass the middle by no more
// than the lower neighbour is below, so that a kink makes no mountain.
RoutingPeak topOf(const RoutingPeak& a, const RoutingPeak& b, const RoutingPeak& c) {
  const double left = (b.value - a.value) / (b.hours - a.hours);
  const double right = (c.value - b.value) / (c.hours - b.hours);
  const double curvature = (right - left) / (c.hours - a.hours);
  if (!(curvature < 0)) return b;
  const double slope = left + curvature * (b.hours - a.hours);
  const double shift = std::clamp(-slope / (2 * curvature), a.hours - b.hours, c.hours - b.hours);
  const double rise = slope * shift + curvature * shift * shift;
  const double most = std::max(b.value - a.value, b.value - c.value);
  return {b.hours + shift, b.value + std::clamp(rise, 0.0, most)};
}

// Top of the cubic that rises by `rateA` at the first point and falls by `-rateB` at the second; it is no higher than
// where the tangents meet.
RoutingPeak topBetween(const RoutingPeak& a, double rateA, const RoutingPeak& b, double rateB) {
  const double length = b.hours - a.hours;
  const double rise = b.value - a.value;
  const double m0 = rateA * length;
  const double m1 = rateB * length;
  const auto falls = [&](double s) {
    return -(m0 + s * (2 * (3 * rise - 2 * m0 - m1) + s * 3 * (m0 + m1 - 2 * rise)));
  };
  const double s = solveIncreasing(falls, 0.0, 1.0, 1e-9);
  const double top = s * (m0 + s * (3 * rise - 2 * m0 - m1 + s * (m0 + m1 - 2 * rise)));
  const double tangents = m0 * (rise - m1) / (m0 - m1);
  return {a.hours + s * length, a.value + std::min(top, std::max(tangents, 0.0))};
}

}  // namespace

void LevelPeakFinder::take(double hours, double level, double rate) {
  const RoutingPeak now{hours, level};
  if (!any_ || level > peak_.value) peak_ = now;
  if (any_ && hours > before_.hours && rateBefore_ > 0 && rate < 0) {
    const RoutingPeak top = topBetween(before_, rateBefore_, now, rate);
    if (top.value > peak_.value) peak_ = top;
  }
  before_ = now;
  rateBefore_ = rate;
  any_ = true;
}

void PeakFinder::take(double hours, double value) {
  const bool wasNew = isNew_;
  isNew_ = taken_ == 0 || value > greatest_;
  if (isNew_) {
    greatest_ = value;
    peak_ = {hours, value};
  } else if (wasNew && taken_ >= 2) {
    peak_ = topOf(before_[0], before_[1], {hours, value});
  }
  before_[0] = before_[1];
  before_[1] = {hours, value};
  ++taken_;
}

}  // namespace kestra
