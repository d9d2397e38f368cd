#include "screens/resample_hydrograph.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "base/runtime_fault.h"

namespace kestra {
namespace {

constexpr double kSmallestStep = 0.0009;  // hours
constexpr double kSameTime = 1e-06;       // hours
constexpr double kLargestCount = 32767;   // counts are 16-bit numbers
constexpr int kMostPoints = 17000;

bool allFinite(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

// The discharge at a time within, or beyond, the segment that begins at point j.
double flowAt(double time, const HydrographPoints& points, std::size_t j) {
  const auto& [t, q] = points;
  if (j + 1 >= t.size() || std::fabs(time - t[j]) < kSameTime || t[j + 1] - t[j] < kSameTime) return q[j];
  if (std::fabs(time - t[j + 1]) < kSameTime) return q[j + 1];
  return q[j] + (q[j + 1] - q[j]) * (time - t[j]) / (t[j + 1] - t[j]);
}

}  // namespace

ResampledHydrograph resampleHydrograph(double step, const HydrographPoints& points) {
  const auto& [t, q] = points;
  ResampledHydrograph result;
  result.step = std::max(step, kSmallestStep);
  if (!std::isfinite(step) || !allFinite(t) || !allFinite(q)) throw RuntimeFault("Overflow: a number is too large.");
  if (t.empty()) return result;

  const double duration = t.back() - t.front();
  const double wanted = std::floor(duration / result.step + 0.51) + 1;
  if (!(wanted <= kLargestCount)) throw RuntimeFault("Overflow: the time increment gives more than 32767 points.");
  auto count = static_cast<int>(std::max(wanted, 0.0));
  if (count > kMostPoints) {
    result.step = duration / (kMostPoints - 1);
    count = kMostPoints;
  }
  result.flows.reserve(static_cast<std::size_t>(count));
  std::size_t j = 0;
  for (int i = 0; i < count; ++i) {
    const double time = i * result.step + t.front();
    while (j + 2 < t.size() && time > t[j + 1]) ++j;
    result.flows.push_back(std::max(flowAt(time, points, j), 0.0));
  }
  return result;
}

}  // namespace kestra
