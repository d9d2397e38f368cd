#pragma once

#include <cstddef>
#include <vector>

namespace kestra {

// Discharge (cfs) by elevation or head (ft). 0 up to the first row; beyond the last it goes on as between the last two.
class RatingCurve {
 public:
  // How the curve runs between its rows: straight, or as a weir does, with the discharge to the power 2/3 straight.
  enum class Shape { straight, weir };

  RatingCurve() = default;
  RatingCurve(std::vector<double> elevations, std::vector<double> discharges, Shape shape);

  bool empty() const { return elevations_.size() < 2; }
  double at(double elevation) const;
  // Not for an empty curve: its ends, and where the flow begins, the last row without a discharge.
  double lowest() const { return elevations_.front(); }
  double highest() const { return elevations_.back(); }
  double lowestFlow() const;
  const std::vector<double>& elevations() const { return elevations_; }

 private:
  std::vector<double> elevations_;
  std::vector<double> values_;  // discharges, or their power 2/3
  Shape shape_ = Shape::straight;
};

}  // namespace kestra
