#include "screens/hydrograph_block.h"

#include <string>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::size_t kMostPoints = 5000;

double numberIn(std::string_view field) {
  std::string text(field);
  std::erase(text, ',');
  return lenientNumber(text);
}

bool endsTable(std::string_view line) {
  return trim(columns(line, 1, 10)) == "ENDTABLE";
}

HydrographPoints constantPoints(std::string_view header, LineReader& lines) {
  const double interval = numberIn(columns(header, 21, 10));
  const double start = numberIn(columns(header, 31, 10));
  HydrographPoints points;
  std::string_view line;
  while (lines.next(line) && !line.empty() && !endsTable(line)) {
    for (int first = 21; first <= 61; first += 10) {
      const std::string_view field = columns(line, first, 10);
      if (trim(field).empty()) continue;
      if (points.times.size() == kMostPoints) return points;
      points.times.push_back(static_cast<double>(points.times.size()) * interval + start);
      points.flows.push_back(numberIn(field));
    }
  }
  return points;
}

HydrographPoints variablePoints(LineReader& lines) {
  HydrographPoints points;
  std::string_view line;
  while (points.times.size() < kMostPoints && lines.next(line) && charCount(line) > 20 && !endsTable(line)) {
    points.times.push_back(numberIn(columns(line, 11, 10)));
    points.flows.push_back(numberIn(columns(line, 21, 10)));
  }
  return points;
}

}  // namespace

HydrographPoints ParseHydrographText(std::string_view text) {
  LineReader lines(text);
  std::string_view header;
  if (!lines.next(header)) return {};
  return columns(header, 42, 1) == "C" ? constantPoints(header, lines) : variablePoints(lines);
}

}  // namespace kestra
