#include "summary/summary_table.h"

#include <functional>

#include "results/input_digest.h"
#include "results/result_files.h"

namespace kestra {
namespace {

constexpr const char* kName = "Name";
constexpr const char* kType = "Type";
constexpr const char* kInput = "Input";
constexpr SummaryLevel kLevels[] = {SummaryLevel::dam, SummaryLevel::instance};

std::string noteOf(const SummaryTable::Row& row) {
  return row.inputChanged ? kInputChanged : "";
}

void addTypes(const SummaryTable::Row& row, std::vector<std::string>& cells) {
  cells.emplace_back(captionOf(row.type));
  cells.push_back(noteOf(row));
}

// Headings, and for each row the cells that `addRow` puts behind its name.
TextGrid makeGrid(const SummaryTable& table, std::vector<std::string> headings,
                  const std::function<void(const SummaryTable::Row&, std::vector<std::string>&)>& addRow) {
  TextGrid grid;
  grid.rows = static_cast<int>(table.rows.size()) + 1;
  grid.columns = static_cast<int>(headings.size());
  grid.cells = std::move(headings);
  grid.cells.reserve(static_cast<std::size_t>(grid.rows) * static_cast<std::size_t>(grid.columns));
  for (const SummaryTable::Row& row : table.rows) {
    grid.cells.push_back(row.name);
    addRow(row, grid.cells);
  }
  return grid;
}

}  // namespace

std::string_view valueOf(const ShownRow& row, SummaryLevel level, int field) {
  const bool ofInstance = level == SummaryLevel::instance;
  const std::size_t position = (ofInstance ? kInstanceOffset : 0) + static_cast<std::size_t>(field - 1);
  if (position >= kEntryPositions) return {};
  const std::string& value = row.entry.values[position];
  // Behind the 25th position a dam's fields and an instance's share their places.
  const bool owned = position < kInstanceOffset || ofInstance == row.entry.ofInstance;
  return owned || (!ofInstance && value == kNotAvailable) ? std::string_view(value) : std::string_view();
}

SummaryTable makeSummaryTable(const ShownRows& rows, const SummarySelection& selection,
                              const FieldCatalogues& catalogues) {
  SummaryTable table;
  for (const SummaryLevel level : kLevels) {
    for (const int field : selection.of(level)) table.fields.push_back({level, catalogues.title(level, field)});
  }
  table.rows.reserve(rows.size());
  for (const ShownRow& row : rows) {
    SummaryTable::Row line = {row.entry.name, row.type, row.inputChanged, {}};
    line.values.reserve(table.fields.size());
    for (const SummaryLevel level : kLevels) {
      for (const int field : selection.of(level)) line.values.emplace_back(valueOf(row, level, field));
    }
    table.rows.push_back(std::move(line));
  }
  return table;
}

TextGrid turned(const TextGrid& grid) {
  TextGrid out = {grid.columns, grid.rows, {}};
  out.cells.reserve(grid.cells.size());
  for (int column = 0; column < grid.columns; ++column) {
    for (int row = 0; row < grid.rows; ++row) out.cells.push_back(grid.at(row, column));
  }
  return out;
}

TextGrid gridOfLevel(const SummaryTable& table, SummaryLevel level) {
  std::vector<std::string> headings = {kName};
  for (const SummaryTable::Field& field : table.fields) {
    if (field.level == level) headings.push_back(field.title);
  }
  return makeGrid(table, std::move(headings), [&](const SummaryTable::Row& row, std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
      if (table.fields[i].level == level) cells.push_back(row.values[i]);
    }
  });
}

TextGrid gridOfTypes(const SummaryTable& table) {
  return makeGrid(table, {kName, kType, kInput}, addTypes);
}

TextGrid gridOfAll(const SummaryTable& table) {
  std::vector<std::string> headings = {kName, kType, kInput};
  for (const SummaryTable::Field& field : table.fields) headings.push_back(field.title);
  return makeGrid(table, std::move(headings), [](const SummaryTable::Row& row, std::vector<std::string>& cells) {
    addTypes(row, cells);
    cells.insert(cells.end(), row.values.begin(), row.values.end());
  });
}

}  // namespace kestra
