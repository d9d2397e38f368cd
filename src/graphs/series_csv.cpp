#include "graphs/series_csv.h"

#include <algorithm>
#include <vector>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

struct CsvColumn {
  std::string heading;
  const std::vector<float>* values;
};

std::string quoted(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string out = "\"";
  for (const char c : text) out += c == '"' ? std::string("\"\"") : std::string(1, c);
  return out + '"';
}

std::vector<CsvColumn> columnsOf(const SeriesStore& store, std::string_view xLabel, std::string_view yLabel) {
  std::vector<CsvColumn> found;
  const std::vector<float>* lastX = nullptr;
  for (int i = 0; i < store.SeriesCount; ++i) {
    const Series& series = store(i);
    if (lastX == nullptr || *lastX != series.PlotX) found.push_back({std::string(trim(xLabel)), &series.PlotX});
    lastX = &series.PlotX;
    found.push_back({series.SeriesName + ": " + std::string(trim(yLabel)), &series.PlotY});
  }
  return found;
}

}  // namespace

std::string seriesCsv(const SeriesStore& store, std::string_view xLabel, std::string_view yLabel) {
  const std::vector<CsvColumn> all = columnsOf(store, xLabel, yLabel);
  std::string text;
  std::size_t rows = 0;
  for (const CsvColumn& column : all) {
    text += (text.empty() ? "" : ",") + quoted(column.heading);
    rows = std::max(rows, column.values->size());
  }
  text += kCrLf;
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t c = 0; c < all.size(); ++c) {
      if (c > 0) text += ',';
      if (row < all[c].values->size()) text += singleNumber((*all[c].values)[row]);
    }
    text += kCrLf;
  }
  return text;
}

}  // namespace kestra
