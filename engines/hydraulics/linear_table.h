#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace kestra {

// Index i of the interval of rising abscissas (two at least) with x[i] <= value < x[i + 1]; the first or the last
// interval for a value outside.
std::size_t intervalOf(std::span<const double> x, double value);

// Values at rising abscissas, joined by straight lines. Beyond its ends the end values hold; an empty table is 0.
class LinearTable {
 public:
  LinearTable() = default;
  LinearTable(std::vector<double> x, std::vector<double> y);  // as many values as abscissas, none of these twice

  bool empty() const { return x_.empty(); }
  std::size_t size() const { return x_.size(); }
  double at(double x) const;
  const std::vector<double>& x() const { return x_; }
  const std::vector<double>& y() const { return y_; }

 private:
  std::vector<double> x_;
  std::vector<double> y_;
};

}  // namespace kestra
