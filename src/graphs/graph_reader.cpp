#include "graphs/graph_reader.h"

#include <algorithm>
#include <optional>

#include "graphs/run_rows.h"

namespace kestra {
namespace {

struct Range {
  float low;
  float high;
};

std::optional<Range> rangeOf(const SeriesStore& store, std::vector<float> Series::*values) {
  std::optional<Range> range;
  for (int i = 0; i < store.SeriesCount; ++i) {
    const std::vector<float>& all = store(i).*values;
    if (all.empty()) continue;
    const auto [low, high] = std::minmax_element(all.begin(), all.end());
    if (!range) range = {*low, *high};
    range = {std::min(range->low, *low), std::max(range->high, *high)};
  }
  return range;
}

void fitAxis(const Range& range, Fit fit, double& low, double& high) {
  low = fit == Fit::fromZero ? 0 : shortDecimal(range.low);
  high = fit == Fit::fromZero ? std::max(0.0, shortDecimal(range.high)) : shortDecimal(range.high);
}

}  // namespace

Reading fitted(const GraphRequest& graph, Fit x, Fit y) {
  const auto xs = rangeOf(graph.series, &Series::PlotX);
  const auto ys = rangeOf(graph.series, &Series::PlotY);
  if (!xs || !ys) return {};
  fitAxis(*xs, x, graph.extents.Xmin, graph.extents.Xmax);
  fitAxis(*ys, y, graph.extents.Ymin, graph.extents.Ymax);
  return {Reading::Outcome::drawn, {}};
}

void addBreach(const RunFiles& run, SeriesStore& series, int firstColumn) {
  constexpr int kHeadings = 5;
  constexpr int kWidth = 12;
  const Result<std::string> text = run.read("BRE");
  if (!text) return;
  RunReader reader(text.value());
  reader.skip(kHeadings);
  const int line = series.addSeries("Breach");
  const int rows =
      reader.rows([&](const RunRow& row) { series.add(line, row.number(1, kWidth), row.number(firstColumn, kWidth)); });
  if (rows == 0) --series.SeriesCount;
}

std::string outputText(const RunFiles& run) {
  Result<std::string> text = run.read("OUT");
  return text ? std::move(text).value() : std::string();
}

}  // namespace kestra
