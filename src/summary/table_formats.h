#pragma once

#include <string>
#include <string_view>

#include "base/result.h"
#include "summary/summary_table.h"

// The forms in which a summary table is written. Lines end in CR LF but for `textTable`, which is for a terminal.
namespace kestra {

// Cells separated by tabs. A tab or a line end within a cell becomes a blank.
std::string tabText(const TextGrid& grid);

// Comma-separated values: a cell that holds a comma, a double quote or a line end is in double quotes, those inside it
// doubled.
std::string csvText(const TextGrid& grid);

// Columns as wide as their longest cell, two blanks between them.
std::string textTable(const TextGrid& grid);

// An array of objects: "name", "type", "condensed", "inputChanged", and "dam" and "instance" with the values by title.
// Bytes that are no UTF-8 are read as Latin-1.
std::string jsonText(const SummaryTable& table);

// A workbook of one sheet, its headings in bold and fixed; values that are numbers are numbers there. The system's
// directory for temporary files is used meanwhile.
Result<std::string> xlsxTable(const SummaryTable& table);

enum class TableForm { tabs, csv, json, xlsx };
TableForm tableForm(std::string_view fileName);  // by its extension; tabs for any other

}  // namespace kestra
