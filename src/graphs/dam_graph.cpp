#include <algorithm>

#include "base/text.h"
#include "graphs/dam_section.h"
#include "graphs/graph_reader.h"
#include "graphs/run_rows.h"

namespace kestra {
namespace {

constexpr int kFirstField = 11;
constexpr int kSecondField = 21;

// A field of a record of its own line; nothing when the record is missing.
std::optional<double> recordField(std::string_view output, std::string_view keyword, int column) {
  RunReader reader(output);
  const auto isRecord = [keyword](std::string_view line) {
    const std::string_view found = trim(RunRow(line).text(1, kFirstField));
    return found == keyword || (keyword == "STROUTE" && found == "STROUTING");
  };
  const auto line = reader.find(isRecord);
  return line ? std::optional(echoField(RunRow(*line), column)) : std::nullopt;
}

std::vector<SectionPoint> tableOf(std::string_view output, std::string_view keyword) {
  RunReader reader(output);
  std::vector<SectionPoint> points;
  if (!reader.findRecord(keyword)) return points;
  reader.tableRows([&](const RunRow& row) {
    points.push_back({echoField(row, kFirstField), echoField(row, kSecondField)});
  });
  return points;
}

}  // namespace

std::optional<std::vector<SectionPoint>> readDamData(std::string_view output) {
  std::vector<SectionPoint> points = tableOf(output, "TEMPLATE");
  if (points.size() > 1) return points;
  const auto base = recordField(output, "STROUTE", kSecondField);
  const auto upstream = recordField(output, "UPSTREAM", kFirstField);
  const auto width = recordField(output, "DAMCREST", kFirstField);
  const auto downstream = recordField(output, "DWNSTREAM", kFirstField);
  const auto crestline = tableOf(output, "CRESTPRFL");
  if (!base || !upstream || !width || !downstream || crestline.empty()) return std::nullopt;
  const auto isLower = [](const SectionPoint& a, const SectionPoint& b) { return a.elevation < b.elevation; };
  const double crest = std::min_element(crestline.begin(), crestline.end(), isLower)->elevation;
  const double height = crest - *base;
  const double upstreamEdge = height * *upstream;
  const double downstreamEdge = upstreamEdge + *width;
  return std::vector<SectionPoint>{
      {0, *base}, {upstreamEdge, crest}, {downstreamEdge, crest}, {downstreamEdge + height * *downstream, *base}};
}

Reading DrawDamGraph(const GraphRequest& graph) {
  const Result<std::string> text = graph.run.read("OUT");
  if (text.failedAs(FailureKind::notFound)) return {};
  if (!text) return {Reading::Outcome::fileError, text.failure().path + ": " + text.failure().reason};
  auto section = readDamData(text.value());
  if (!section) return {};
  section->push_back(section->front());
  const int line = graph.series.addSeries("Dam");
  for (const SectionPoint& point : *section) graph.series.add(line, point.station, point.elevation);
  return fitted(graph, Fit::toData, Fit::toData);
}

}  // namespace kestra
