#pragma once

#include <string>
#include <vector>

#include "summary/shown_rows.h"
#include "summary/summary_fields.h"

namespace kestra {

// A summary table as data: what every form of it, on a screen or in a file, is made from.
struct SummaryTable {
  struct Field {
    SummaryLevel level = SummaryLevel::dam;
    std::string title;
  };
  struct Row {
    std::string name;
    RowType type = RowType::single;
    bool inputChanged = false;
    std::vector<std::string> values;  // by field; those of instances are blank in the row of a dam
  };
  std::vector<Field> fields;  // those of dams, then those of instances, in the order of display
  std::vector<Row> rows;
};

SummaryTable makeSummaryTable(const ShownRows& rows, const SummarySelection& selection,
                              const FieldCatalogues& catalogues);

// A value of a row by level and field number, from 1; blank where the row has none.
std::string_view valueOf(const ShownRow& row, SummaryLevel level, int field);

// A block of texts, its first row and its first column being headings.
struct TextGrid {
  int rows = 0;
  int columns = 0;
  std::vector<std::string> cells;  // row by row

  const std::string& at(int row, int column) const {
    return cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(column)];
  }
};
TextGrid turned(const TextGrid& grid);  // rows and columns exchanged

// Parts of a table, an entry a row, its name first.
TextGrid gridOfLevel(const SummaryTable& table, SummaryLevel level);  // the fields of a level
TextGrid gridOfTypes(const SummaryTable& table);                      // the type and what is to be said of the input
TextGrid gridOfAll(const SummaryTable& table);                        // these, and the fields of both levels

}  // namespace kestra
