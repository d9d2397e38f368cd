#include "hydraulics/linear_table.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace kestra {

std::size_t intervalOf(std::span<const double> x, double value) {
  const auto above = std::upper_bound(x.begin() + 1, x.end() - 1, value);
  return static_cast<std::size_t>(above - x.begin()) - 1;
}

LinearTable::LinearTable(std::vector<double> x, std::vector<double> y) : x_(std::move(x)), y_(std::move(y)) {
  assert(x_.size() == y_.size());
}

double LinearTable::at(double x) const {
  if (x_.empty()) return 0;
  if (x <= x_.front()) return y_.front();
  if (x >= x_.back()) return y_.back();
  const std::size_t i = intervalOf(x_, x);
  return y_[i] + (y_[i + 1] - y_[i]) * (x - x_[i]) / (x_[i + 1] - x_[i]);
}

}  // namespace kestra
