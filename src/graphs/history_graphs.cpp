#include "graphs/graph_reader.h"
#include "graphs/run_rows.h"

// Graphs of the headcut's and the breach's history, read in fields of ten.
namespace kestra {
namespace {

Reading drawHistory(const GraphRequest& graph, const char* extension, const char* name, Fit y) {
  constexpr int kHeadings = 2;
  constexpr int kWidth = 10;
  const Result<std::string> text = graph.run.read(extension);
  if (!text) return {};
  RunReader reader(text.value());
  reader.skip(kHeadings);
  const int line = graph.series.addSeries(name);
  reader.rows([&](const RunRow& row) {
    graph.series.add(line, row.number(1, kWidth), row.number(kWidth * graph.column + 1, kWidth));
  });
  if (graph.series(line).PointCount() == 0) return {Reading::Outcome::noHeadcut, {}};
  return fitted(graph, Fit::fromZero, y);
}

}  // namespace

Reading DrawHCTgraph(const GraphRequest& graph) {
  return drawHistory(graph, "HCT", "Position", Fit::toData);
}

Reading DrawBREgraph(const GraphRequest& graph) {
  Reading reading = drawHistory(graph, "BRE", "Width", Fit::fromZero);
  if (reading.outcome == Reading::Outcome::noHeadcut) reading.outcome = Reading::Outcome::missing;
  return reading;
}

}  // namespace kestra
