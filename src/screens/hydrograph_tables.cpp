#include "screens/hydrograph_tables.h"

#include <algorithm>
#include <cmath>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr int kTextLength = 10;

bool isBlank(const std::string& text) {
  return trim(text).empty();
}

void add(HydrographPoints& points, double time, double flow) {
  points.times.push_back(time);
  points.flows.push_back(flow);
}

}  // namespace

HydrographPoints loadTiQiArrays(const Table& table) {
  HydrographPoints points;
  for (int row = 1; row < table.rows(); ++row) {
    const std::string& time = table.cell(row, kHydrographTime);
    const std::string& flow = table.cell(row, kHydrographFlow);
    if (isBlank(time) || isBlank(flow)) continue;
    add(points, lenientNumber(time), lenientNumber(flow));
  }
  return points;
}

HydrographPoints constantPoints(const Table& table, double dt) {
  HydrographPoints points;
  const int last = std::min(table.rows() - 1, kMostHydrographPoints);
  for (int row = 1; row <= last; ++row) {
    const std::string& flow = table.cell(row, kHydrographFlow);
    if (isBlank(flow)) continue;
    if (row > 1 && points.times.empty()) add(points, 0, 0);
    add(points, (row - 1) * dt, lenientNumber(flow));
  }
  return points;
}

void numberTimes(Table& table, double dt) {
  if (!std::isfinite(dt)) return fillColumn(table, kHydrographTime, {});
  for (int row = 1; row < table.rows(); ++row) {
    table.setCell(row, kHydrographTime, PadField(decimalNumber((row - 1) * dt), kTextLength));
  }
}

void fillColumn(Table& table, int column, const std::vector<std::string>& texts) {
  const int filled = static_cast<int>(texts.size());
  for (int row = 1; row < table.rows(); ++row) {
    table.setCell(row, column, row <= filled ? texts[static_cast<std::size_t>(row - 1)] : std::string());
  }
  table.setCursor({table.fixedRows(), table.fixedColumns()});
}

void fillFlows(Table& table, const std::vector<double>& flows) {
  std::vector<std::string> texts;
  const std::size_t count = std::min<std::size_t>(flows.size(), kMostHydrographPoints);
  for (std::size_t i = 0; i < count; ++i) texts.push_back(tenCharacters(flows[i]));
  fillColumn(table, kHydrographFlow, texts);
}

std::string tenCharacters(double value) {
  return decimalNumber(value).substr(0, kTextLength);
}

}  // namespace kestra
