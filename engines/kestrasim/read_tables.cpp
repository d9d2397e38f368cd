#include "kestrasim/read_tables.h"

#include <fmt/format.h>

#include "base/lines.h"
#include "base/numbers.h"

namespace kestra {
namespace {

constexpr std::size_t kMostPoints = 20000;  // of a hydrograph
constexpr double kDefaultStep = 1.0;        // h

// Walks the rows of a record's table.
class Rows {
 public:
  Rows(const ControlRecord& record, RunMessages& messages)
      : record_(record), messages_(messages), lines_(record.rows) {}

  bool next() { return lines_.next(row_); }
  std::size_t line() const { return record_.lineNumber + lines_.lineNumber(); }
  Place place() const { return {std::string(record_.layout->keyword), line()}; }
  FieldTexts texts() const { return takeApartRow(*record_.layout, row_); }

  Number number(std::string_view name, NumberRange range) const {
    return numberIn(texts().named(name).text(), name, range, place(), messages_);
  }

  void leaveOut(const std::string& why) const { messages_.warning(place(), why, "the row is left out"); }

 private:
  const ControlRecord& record_;
  RunMessages& messages_;
  LineReader lines_;
  std::string_view row_;
};

bool follows(double value, double before, Order order) {
  if (order == Order::any) return true;
  return order == Order::rising ? value > before : value >= before;
}

void readConstant(Rows& rows, HydrographRecord& hydrograph) {
  const double step = hydrograph.step.value_or(kDefaultStep);
  const double start = hydrograph.start.value_or(0.0);
  while (rows.next()) {
    const FieldTexts texts = rows.texts();
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const std::string_view name = texts.layout(i).name;
      if (!name.starts_with("discharge") || texts[i].text().empty()) continue;
      if (hydrograph.points.size() == kMostPoints) return rows.leaveOut("the hydrograph is too long");
      const double flow = rows.number(name, kDischarges).value_or(0);
      hydrograph.points.push_back({start + static_cast<double>(hydrograph.points.size()) * step, flow, rows.line()});
    }
  }
}

}  // namespace

std::vector<TablePoint> readPoints(const ControlRecord& record, const TableColumn& first, const TableColumn& second,
                                   Order order, RunMessages& messages) {
  std::vector<TablePoint> points;
  Rows rows(record, messages);
  while (rows.next()) {
    const Number a = rows.number(first.name, first.range);
    const Number b = rows.number(second.name, second.range);
    if (!a && !b) continue;
    if (!a || !b) {
      rows.leaveOut(fmt::format("there is no {}", a ? second.name : first.name));
    } else if (!points.empty() && !follows(*a, points.back().first, order)) {
      rows.leaveOut(fmt::format("the {} {} does not rise", first.name, decimalNumber(*a, 10)));
    } else if (points.size() == kMostPoints) {
      return rows.leaveOut("the table is too long"), points;
    } else {
      points.push_back({*a, *b, rows.line()});
    }
  }
  return points;
}

HydrographRecord readHydrograph(const ControlRecord& record, RunMessages& messages) {
  static constexpr NumberField<HydrographRecord> kFields[] = {{"time increment", &HydrographRecord::step, {-1e5, 1e5}},
                                                              {"start time", &HydrographRecord::start, kHours}};
  HydrographRecord hydrograph;
  readNumbers<HydrographRecord>(record, kFields, hydrograph, messages);
  hydrograph.constant = record.layout->id != "HYD V";
  if (!hydrograph.constant) {
    hydrograph.points = readPoints(record, {"time", kHours}, {"discharge", kDischarges}, Order::rising, messages);
    return hydrograph;
  }
  constexpr double kShortest = 1e-4;  // h
  if (!hydrograph.step || *hydrograph.step < kShortest) {
    messages.warning({"HYD", record.lineNumber}, "there is no time increment above 0", "1 hour is taken");
    hydrograph.step = kDefaultStep;
  }
  Rows rows(record, messages);
  readConstant(rows, hydrograph);
  return hydrograph;
}

StructureRecord readStructure(const ControlRecord& record, RunMessages& messages) {
  StructureRecord structure;
  structure.line = record.lineNumber;
  structure.name = record.fields.named("structure").text();
  Rows rows(record, messages);
  while (rows.next()) {
    StructureRow row;
    row.line = rows.line();
    const Number elevation = rows.number("elevation", kElevations);
    row.discharge = rows.number("discharge", kDischarges);
    row.volume = rows.number("storage", kVolumes);
    row.area = rows.number("area", kAreas);
    if (!elevation) {
      if (row.discharge || row.volume || row.area) rows.leaveOut("there is no elevation");
      continue;
    }
    row.elevation = *elevation;
    if (!structure.rows.empty() && row.elevation <= structure.rows.back().elevation) {
      rows.leaveOut(fmt::format("the elevation {} does not rise", decimalNumber(row.elevation, 10)));
      continue;
    }
    structure.rows.push_back(row);
  }
  return structure;
}

std::vector<ReachRow> readReaches(const ControlRecord& record, RunMessages& messages) {
  std::vector<ReachRow> reaches;
  Rows rows(record, messages);
  while (rows.next()) {
    ReachRow row{rows.number("begin", kStations), rows.number("end", kStations), rows.number("retardance", kRoughness),
                 rows.line()};
    if (row.begin || row.end || row.retardance) reaches.push_back(row);
  }
  return reaches;
}

}  // namespace kestra
