#include "hydraulics/rating_curve.h"

#include <cassert>
#include <cmath>
#include <utility>

#include "hydraulics/linear_table.h"

namespace kestra {

RatingCurve::RatingCurve(std::vector<double> elevations, std::vector<double> discharges, Shape shape)
    : elevations_(std::move(elevations)), values_(std::move(discharges)), shape_(shape) {
  assert(elevations_.size() == values_.size());
  if (shape_ == Shape::straight) return;
  for (double& value : values_) value = std::cbrt(value * value);
}

double RatingCurve::lowestFlow() const {
  std::size_t i = 0;
  while (i + 2 < values_.size() && values_[i + 1] <= 0) ++i;
  return elevations_[i];
}

double RatingCurve::at(double elevation) const {
  if (empty() || elevation <= elevations_.front()) return 0;
  const std::size_t i = intervalOf(elevations_, elevation);
  const double slope = (values_[i + 1] - values_[i]) / (elevations_[i + 1] - elevations_[i]);
  const double value = values_[i] + slope * (elevation - elevations_[i]);
  return shape_ == Shape::straight ? value : value * std::sqrt(value);
}

}  // namespace kestra
