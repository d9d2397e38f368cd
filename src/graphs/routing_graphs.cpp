#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "base/text.h"
#include "graphs/graph_reader.h"
#include "graphs/run_rows.h"

// Graphs of the routing table: fields of ten, column 0 being the time.
namespace kestra {
namespace {

constexpr int kWidth = 10;

double routingField(const RunRow& row, int column) {
  return row.number(kWidth * column + 1, kWidth);
}

// Goes to the first row of the routing table, the sixth line behind its anchor.
bool findRouting(RunReader& reader) {
  constexpr int kHeadings = 5;
  if (!reader.findLine("Hydrograph Routing")) return false;
  reader.skip(kHeadings);
  return true;
}

// The lowest elevation of the echoed crest profile.
std::optional<double> lowestCrest(RunReader reader) {
  constexpr int kElevation = 21;
  if (!reader.findRecord("CRESTPRFL")) return std::nullopt;
  double lowest = std::numeric_limits<double>::infinity();
  reader.tableRows([&](const RunRow& row) {
    if (!trim(row.text(kElevation + 1, kEchoWidth)).empty()) lowest = std::min(lowest, echoField(row, kElevation));
  });
  return std::isfinite(lowest) ? std::optional(lowest) : std::nullopt;
}

// Appends the reservoir's level while it is drawn down, where the run has computed that.
void addDrawdown(const std::string& text, SeriesStore& series, int line) {
  RunReader reader(text);
  if (!reader.findPart("Drawdown computations began")) return;
  const auto isHeading = [](std::string_view row) {
    const std::size_t drawdown = row.find("Drawdown");
    return drawdown != std::string_view::npos && row.find("Reservoir", drawdown) != std::string_view::npos;
  };
  constexpr int kMostHeadings = 10;
  constexpr int kElevation = 85;
  if (!reader.find(isHeading) || !reader.skipHeadings(kMostHeadings, kWidth)) return;
  reader.rows([&](const RunRow& row) { series.add(line, row.number(1, kWidth), row.number(kElevation, kWidth)); });
}

// The crest as a level line as long as the first series.
void addCrest(const std::string& text, SeriesStore& series) {
  constexpr int kElevation = 21;
  RunReader reader(text);
  const auto anchor = reader.find([](std::string_view line) { return trim(line).starts_with("DAM CREST ELEVATION"); });
  if (!anchor) return;
  const double crest = RunRow(*anchor).number(kElevation, kWidth);
  const auto [from, to] = std::minmax_element(series(0).PlotX.begin(), series(0).PlotX.end());
  const double ends[] = {static_cast<double>(*from), static_cast<double>(*to)};
  const int line = series.addSeries("Dam Crest");
  for (const double x : ends) series.add(line, x, crest);
}

}  // namespace

Reading DrawHydrographs(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  RunReader reader(text);
  if (!findRouting(reader)) return {};
  for (const char* name : {"Inflow", "PS", "AS1", "AS2", "AS3", "Overtop", "Total"}) graph.series.addSeries(name);
  reader.rows([&](const RunRow& row) {
    const double time = routingField(row, 0);
    for (int i = 0; i < graph.series.SeriesCount; ++i) graph.series.add(i, time, routingField(row, i + 1));
  });
  return fitted(graph, Fit::fromZero, Fit::fromZero);
}

Reading DrawHeadGraph(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  const auto crest = lowestCrest(RunReader(text));
  RunReader reader(text);
  if (!crest || !findRouting(reader)) return {};
  const int line = graph.series.addSeries("Head");
  reader.rows([&](const RunRow& row) {
    graph.series.add(line, routingField(row, 0), routingField(row, graph.column) - *crest);
  });
  return fitted(graph, Fit::fromZero, Fit::fromZero);
}

Reading DrawHydrograph(const GraphRequest& graph) {
  constexpr int kTailwater = 10;
  const std::string text = outputText(graph.run);
  RunReader reader(text);
  if (!findRouting(reader)) return {};
  const bool tailwater = graph.column == kTailwater;
  const int line = graph.series.addSeries(tailwater ? "Tailwater" : "Reservoir");
  const int rows = reader.rows(
      [&](const RunRow& row) { graph.series.add(line, routingField(row, 0), routingField(row, graph.column)); });
  if (rows > 0 && !tailwater) {
    addDrawdown(text, graph.series, line);
    constexpr int kSill = 25;
    addBreach(graph.run, graph.series, kSill);
    addCrest(text, graph.series);
  }
  return fitted(graph, Fit::toData, Fit::toData);
}

}  // namespace kestra
