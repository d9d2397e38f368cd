#include "run/hydrograph_table.h"

#include <algorithm>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr int kFieldWidth = 10;
constexpr std::size_t kFlowsInRow = 5;
constexpr double kDefaultStep = 1.0;     // hours
constexpr double kSmallestStep = 0.001;  // hours
// More points than a table takes and fewer than the counter of the resampling does; it then makes the step greater.
constexpr double kTooManyPoints = 20000;

std::string field(std::string_view text) {
  return PadField(text, kFieldWidth);
}

}  // namespace

double hydrographStep(std::string_view hydRecord) {
  const std::string_view text = trim(columns(hydRecord, 21, kFieldWidth));
  const double step = text.empty() ? kDefaultStep : lenientNumber(text);
  return step < kSmallestStep ? kDefaultStep : step;
}

ResampledHydrograph resampleForRun(double step, const HydrographPoints& points) {
  if (points.times.empty()) return resampleHydrograph(step, points);
  const double duration = points.times.back() - points.times.front();
  return resampleHydrograph(std::max(step, duration / kTooManyPoints), points);
}

std::string tableNumber(double value) {
  const std::string text = decimalNumber(value);
  return text.starts_with('-') ? text : " " + text;
}

std::string hydrographTable(std::string_view oldRecord, const ResampledHydrograph& hydrograph) {
  std::string text = field("HYD") + field(columns(oldRecord, 11, kFieldWidth)) + field(tableNumber(hydrograph.step)) +
                     field(columns(oldRecord, 31, kFieldWidth));
  const std::vector<double>& flows = hydrograph.flows;
  for (std::size_t i = 0; i < flows.size(); ++i) {
    if (i % kFlowsInRow == 0) text.append(kCrLf).append(2 * kFieldWidth, ' ');
    text += field(tableNumber(flows[i]));
  }
  return text.append(kCrLf).append("ENDTABLE").append(kCrLf);
}

}  // namespace kestra
