#include "base/text.h"
#include "graphs/graph_reader.h"
#include "graphs/run_rows.h"

// Graphs of the flow over the dam: the stress on its slope, and the discharge over it and through a breach.
namespace kestra {
namespace {

constexpr int kWidth = 12;

// Where a table stands and which of its columns are drawn over the time in columns 1 to 12.
struct Column {
  const char* name;
  int first;
  int width;
};

constexpr int kRiprapHeadings = 2;
constexpr int kStressHeadings = 4;
constexpr Column kRiprapAllowable = {"Allowable", 31, 20};
constexpr Column kRiprapDischarge = {"Discharge", 13, 18};
constexpr Column kGrossStress = {"Gross", 37, kWidth};
constexpr Column kEffectiveStress = {"Effective*t", 74, kWidth};
constexpr Column kUnitDischarge = {"Discharge", 13, kWidth};

// The surface of the slope, by the second field of the OPTION record.
bool isRiprapRun(RunReader reader) {
  constexpr int kSurface = 22;
  const auto isOption = [](std::string_view line) { return trim(RunRow(line).text(1, kSurface - 11)) == "OPTION"; };
  const auto option = reader.find(isOption);
  return option && trim(RunRow(*option).text(kSurface, kEchoWidth)) == "RIPRAP";
}

Reading drawTable(const GraphRequest& graph, RunReader& reader, int headings, std::initializer_list<Column> columns) {
  reader.skip(headings);
  for (const Column& column : columns) graph.series.addSeries(column.name);
  reader.rows([&](const RunRow& row) {
    int line = 0;
    for (const Column& column : columns) {
      graph.series.add(line++, row.number(1, kWidth), row.number(column.first, column.width));
    }
  });
  return fitted(graph, Fit::fromZero, Fit::fromZero);
}

bool findRiprap(RunReader& reader) {
  const auto isAnchor = [](std::string_view line) { return trim(line).starts_with("Flow on Riprapped Embankment"); };
  return reader.find(isAnchor).has_value();
}

void addBreach(const RunFiles& run, SeriesStore& series) {
  constexpr int kHeadings = 5;
  constexpr int kDischarge = 61;
  const Result<std::string> text = run.read("BRE");
  if (!text) return;
  RunReader reader(text.value());
  reader.skip(kHeadings);
  const int line = series.addSeries("Breach");
  const int rows =
      reader.rows([&](const RunRow& row) { series.add(line, row.number(1, kWidth), row.number(kDischarge, kWidth)); });
  if (rows == 0) --series.SeriesCount;
}

}  // namespace

Reading DrawStressGraph(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  RunReader reader(text);
  if (isRiprapRun(reader)) {
    if (!findRiprap(reader)) return {};
    return drawTable(graph, reader, kRiprapHeadings, {kRiprapAllowable});
  }
  if (!reader.findPart("Stress on")) return {};
  return drawTable(graph, reader, kStressHeadings, {kGrossStress, kEffectiveStress});
}

Reading DrawDischargeGraph(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  RunReader reader(text);
  if (isRiprapRun(reader)) {
    if (!findRiprap(reader)) return {};
    return drawTable(graph, reader, kRiprapHeadings, {kRiprapDischarge});
  }
  if (!reader.findPart("Stress on")) return {};
  drawTable(graph, reader, kStressHeadings, {kUnitDischarge});
  addBreach(graph.run, graph.series);
  return fitted(graph, Fit::fromZero, Fit::fromZero);
}

}  // namespace kestra
