#include "hydraulics/peak_finder.h"

#include <algorithm>

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

}  // namespace

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
