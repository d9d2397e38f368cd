#include <algorithm>
#include <string>

#include "base/fields.h"
#include "base/text.h"
#include "graphs/graph_reader.h"
#include "graphs/run_rows.h"

// Graphs over the elevation: ratings, stage and storage, and the crest profile.
namespace kestra {
namespace {

constexpr int kWidth = 12;

// Column of a rating row, from 1.
double ratingField(const RunRow& row, int column) {
  return row.number(kWidth * (column - 1) + 1, kWidth);
}

constexpr int kHeadings = 2;

// Goes to the first row of the discharge ratings.
bool findRatings(RunReader& reader) {
  if (!reader.findPart("Spillway and Overtop Discharge Rating")) return false;
  reader.skip(kHeadings);
  return true;
}

// Columns of the ratings, each as a series over the elevation in column 1.
struct RatingColumn {
  std::string name;
  int column;
};
Reading drawRatings(const GraphRequest& graph, const std::string& text, const std::vector<RatingColumn>& columns) {
  RunReader reader(text);
  if (!findRatings(reader)) return {};
  for (const RatingColumn& column : columns) graph.series.addSeries(column.name);
  reader.rows([&](const RunRow& row) {
    const double elevation = ratingField(row, 1);
    int line = 0;
    for (const RatingColumn& column : columns) graph.series.add(line++, ratingField(row, column.column), elevation);
  });
  return fitted(graph, Fit::fromZero, Fit::toData);
}

constexpr int kPrincipal = 2;
constexpr int kFirstAuxiliary = 3;
constexpr int kOvertop = 6;
constexpr int kTotal = 7;

// The auxiliary spillways that the echo names, as columns of the ratings.
std::vector<RatingColumn> auxiliaryColumns(const std::string& text, const std::string& prefix) {
  constexpr int kMost = 3;
  constexpr int kKeyword = 11;
  RunReader reader(text);
  const auto isSpillway = [](std::string_view line) {
    const std::string_view keyword = trim(columns(line, 1, kKeyword));
    return keyword == "ASSURFACE" || keyword == "ASRATING";
  };
  std::vector<RatingColumn> found;
  while (found.size() < kMost && reader.find(isSpillway)) {
    const int number = static_cast<int>(found.size()) + 1;
    found.push_back({prefix + std::to_string(number), kFirstAuxiliary + number - 1});
  }
  return found;
}

// An echoed table: x and y by the first columns of their fields in the record. A row without an x is passed over.
void addEcho(RunReader& reader, SeriesStore& series, int line, int x, int y) {
  reader.tableRows([&](const RunRow& row) {
    if (trim(row.text(x + 1, kEchoWidth)).empty()) return;
    series.add(line, echoField(row, x), echoField(row, y));
  });
}

// What the run has made of the given stages.
void addListing(const std::string& text, SeriesStore& series, int firstColumn) {
  constexpr int kElevation = 5;
  RunReader reader(text);
  const auto isListing = [](std::string_view line) {
    return line.find("Listing of Tabular Data-Generated Volume") != std::string_view::npos ||
           line.find("Listing of Tabular Data-Expanded Volume") != std::string_view::npos;
  };
  if (!reader.find(isListing)) return;
  reader.skip(kHeadings);
  const int line = series.addSeries("Computed");
  const int rows = reader.rows(
      [&](const RunRow& row) { series.add(line, row.number(firstColumn, kWidth), row.number(kElevation, kWidth)); });
  if (rows == 0) --series.SeriesCount;
}

Reading drawTailwaterRating(const GraphRequest& graph, const std::string& text) {
  constexpr int kDischarge = 21;
  constexpr int kElevation = 11;
  RunReader reader(text);
  if (!reader.find([](std::string_view line) { return trim(line).starts_with("TAILWATER"); })) return {};
  addEcho(reader, graph.series, graph.series.addSeries("Tailwater"), kDischarge, kElevation);
  return fitted(graph, Fit::fromZero, Fit::toData);
}

}  // namespace

Reading DrawRatingGraph(const GraphRequest& graph) {
  constexpr int kTailwater = 8;
  const std::string text = outputText(graph.run);
  if (graph.column == kTailwater) return drawTailwaterRating(graph, text);
  return drawRatings(graph, text, {{"PS", graph.column}});
}

Reading DrawAuxRatingGraph(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  return drawRatings(graph, text, auxiliaryColumns(text, "Aux. "));
}

Reading DrawAllRatingGraph(const GraphRequest& graph) {
  const std::string text = outputText(graph.run);
  std::vector<RatingColumn> columns = {{"PS", kPrincipal}};
  for (RatingColumn& column : auxiliaryColumns(text, "AS ")) columns.push_back(std::move(column));
  columns.push_back({"Overtop", kOvertop});
  columns.push_back({"Total", kTotal});
  return drawRatings(graph, text, columns);
}

Reading DrawStructureGraph(const GraphRequest& graph) {
  constexpr int kArea = 4;
  constexpr int kElevation = 21;
  const bool area = graph.column == kArea;
  const std::string text = outputText(graph.run);
  RunReader reader(text);
  if (!reader.findRecord("STRUCTURE")) return {};
  addEcho(reader, graph.series, graph.series.addSeries("Given"), area ? 51 : 41, kElevation);
  addListing(text, graph.series, area ? 65 : 53);
  return fitted(graph, Fit::fromZero, Fit::toData);
}

Reading DrawProfileGraph(const GraphRequest& graph) {
  constexpr int kStation = 11;
  constexpr int kElevation = 21;
  const std::string text = outputText(graph.run);
  RunReader reader(text);
  if (!reader.findRecord("CRESTPRFL")) return {};
  addEcho(reader, graph.series, graph.series.addSeries("Crest"), kStation, kElevation);
  return fitted(graph, Fit::toData, Fit::toData);
}

}  // namespace kestra
