#include "hydraulics/crest_overflow.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "hydraulics/weir_submergence.h"

namespace kestra {
namespace {

CrestPoint between(const CrestPoint& a, const CrestPoint& b, double station) {
  const double share = (station - a.station) / (b.station - a.station);
  return {station, a.elevation + share * (b.elevation - a.elevation)};
}

// Middle of the longest stretch of points at the lowest elevation.
double stationOfLowest(const std::vector<CrestPoint>& points, double lowest) {
  double best = points.front().station;
  double longest = -1;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (points[i].elevation > lowest) continue;
    std::size_t j = i;
    while (j + 1 < points.size() && points[j + 1].elevation <= lowest) ++j;
    const double length = points[j].station - points[i].station;
    if (length > longest) best = 0.5 * (points[i].station + points[j].station);
    longest = std::max(longest, length);
    i = j;
  }
  return best;
}

}  // namespace

CrestOverflow::CrestOverflow(std::vector<CrestPoint> points, UnitDischarge unit)
    : points_(std::move(points)), unit_(std::move(unit)) {
  assert(points_.size() >= 2);
  lowest_ = std::ranges::min(points_, {}, &CrestPoint::elevation).elevation;
  lowestStation_ = stationOfLowest(points_, lowest_);
}

CrestGap CrestOverflow::gapOfWidth(double width) const {
  if (points_.empty() || width <= 0) return {};
  const double first = points_.front().station;
  const double last = points_.back().station;
  const double held = std::min(width, last - first);
  const double from = std::clamp(lowestStation_ - 0.5 * held, first, last - held);
  return {from, from + held};
}

double CrestOverflow::discharge(double pool, double tailwater, const CrestGap& gap) const {
  if (points_.empty() || pool <= lowest_) return 0;
  double sum = 0;
  for (std::size_t i = 1; i < points_.size(); ++i) {
    const CrestPoint& a = points_[i - 1];
    const CrestPoint& b = points_[i];
    if (b.station <= a.station) continue;
    if (gap.to <= a.station || gap.from >= b.station) {
      sum += pieceDischarge(a, b, pool, tailwater);
      continue;
    }
    if (gap.from > a.station) sum += pieceDischarge(a, between(a, b, gap.from), pool, tailwater);
    if (gap.to < b.station) sum += pieceDischarge(between(a, b, gap.to), b, pool, tailwater);
  }
  return sum;
}

double CrestOverflow::pieceDischarge(const CrestPoint& a, const CrestPoint& b, double pool, double tailwater) const {
  constexpr double kLevel = 1e-9;  // ft of difference in head, below which the piece is level
  const double low = std::min(a.elevation, b.elevation);
  if (pool <= low) return 0;
  const double h1 = pool - a.elevation;
  const double h2 = pool - b.elevation;
  const double length = b.station - a.station;
  if (tailwater > low && std::fabs(h2 - h1) > kLevel) {
    // Submergence differs along the piece: the sum over level parts.
    constexpr int kParts = 16;
    double sum = 0;
    for (int i = 0; i < kParts; ++i) {
      const double bed = a.elevation + (b.elevation - a.elevation) * (i + 0.5) / kParts;
      sum += unit_.at(pool - bed) * submergenceFactor(pool - bed, tailwater - bed);
    }
    return sum * length / kParts;
  }
  const double factor = tailwater > low ? submergenceFactor(pool - low, tailwater - low) : 1.0;
  if (std::fabs(h2 - h1) <= kLevel) return factor * length * unit_.at(h1);
  return factor * length * (unit_.integral(h2) - unit_.integral(h1)) / (h2 - h1);
}

}  // namespace kestra
