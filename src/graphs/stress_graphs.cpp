#include <optional>

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

constexpr int kMostRiprapHeadings = 4;
constexpr int kStressHeadings = 4;
constexpr Column kRiprapAllowable = {"Allowable (%)", 31, 20};
constexpr Column kRiprapDischarge = {"Discharge (cfs/ft)", 13, 18};
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

Reading drawTable(const GraphRequest& graph, RunReader& reader, std::initializer_list<Column> columns) {
  for (const Column& column : columns) graph.series.addSeries(column.name);
  reader.rows([&](const RunRow& row) {
    int line = 0;
    for (const Column& column : columns) {
      graph.series.add(line++, row.number(1, kWidth), row.number(column.first, column.width));
    }
  });
  return fitted(graph, Fit::fromZero, Fit::fromZero);
}

// Goes to the first row of the table over riprap: the first line behind its heading that begins with a number.
bool findRiprap(RunReader& reader) {
  const auto isAnchor = [](std::string_view line) { return trim(line).starts_with("Flow on Riprapped Embankment"); };
  return reader.find(isAnchor) && reader.skipHeadings(kMostRiprapHeadings, kWidth);
}

// The table of a run over riprap; nothing when the slope of the run is another one.
std::optional<Reading> drawRiprap(const GraphRequest& graph, const std::string& text, const Column& column) {
  RunReader reader(text);
  if (!isRiprapRun(reader)) return std::nullopt;
  return findRiprap(reader) ? drawTable(graph, reader, {column}) : Reading();
}

Reading drawSlope(const GraphRequest& graph, const std::string& text, std::initializer_list<Column> columns) {
  RunReader reader(text);
  if (!reader.findPart("Stress on")) return {};
  reader.skip(kStressHeadings);
  return drawTable(graph, reader, columns);
}

}  // namespace

Reading DrawStressGraph(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  if (const auto riprap = drawRiprap(graph, text, kRiprapAllowable)) return *riprap;
  return drawSlope(graph, text, {kGrossStress, kEffectiveStress});
}

Reading DrawDischargeGraph(const GraphRequest& graph) {
  constexpr int kBreachDischarge = 61;
  const std::string text = outputText(graph.run);
  if (const auto riprap = drawRiprap(graph, text, kRiprapDischarge)) return *riprap;
  const Reading slope = drawSlope(graph, text, {kUnitDischarge});
  if (slope.outcome != Reading::Outcome::drawn) return slope;
  addBreach(graph.run, graph.series, kBreachDischarge);
  return fitted(graph, Fit::fromZero, Fit::fromZero);
}

}  // namespace kestra
