#include "summary/table_formats.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/fields.h"
#include "base/text.h"
#include "summary/valid_text.h"

namespace kestra {
namespace {

std::string withoutBreaks(std::string text) {
  std::replace_if(text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

std::string csvCell(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

// The cells of a grid, each written by `cell`, with `separator` between those of a row.
template <class WriteCell>
std::string joined(const TextGrid& grid, char separator, const WriteCell& cell) {
  std::string text;
  for (int row = 0; row < grid.rows; ++row) {
    for (int column = 0; column < grid.columns; ++column) {
      if (column > 0) text += separator;
      text += cell(grid.at(row, column));
    }
    text += kCrLf;
  }
  return text;
}

std::vector<std::size_t> columnWidths(const TextGrid& grid) {
  std::vector<std::size_t> widths(static_cast<std::size_t>(grid.columns));
  for (int row = 0; row < grid.rows; ++row) {
    for (std::size_t column = 0; column < widths.size(); ++column) {
      widths[column] = std::max(widths[column], charCount(grid.at(row, static_cast<int>(column))));
    }
  }
  return widths;
}

}  // namespace

std::string tabText(const TextGrid& grid) {
  return joined(grid, '\t', withoutBreaks);
}

std::string csvText(const TextGrid& grid) {
  return joined(grid, ',', csvCell);
}

std::string textTable(const TextGrid& grid) {
  const std::vector<std::size_t> widths = columnWidths(grid);
  std::string text;
  for (int row = 0; row < grid.rows; ++row) {
    std::string line;
    for (std::size_t column = 0; column < widths.size(); ++column) {
      const std::string cell = withoutBreaks(grid.at(row, static_cast<int>(column)));
      line += cell + std::string(widths[column] - charCount(cell) + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

std::string jsonText(const SummaryTable& table) {
  using Json = nlohmann::ordered_json;
  Json list = Json::array();
  for (const SummaryTable::Row& row : table.rows) {
    Json values[] = {Json::object(), Json::object()};
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
      Json& level = values[static_cast<std::size_t>(table.fields[i].level)];
      level[validText(table.fields[i].title)] = validText(row.values[i]);
    }
    list.push_back({{"name", validText(row.name)},
                    {"type", captionOf(row.type)},
                    {"condensed", row.type != RowType::single},
                    {"inputChanged", row.inputChanged},
                    {"dam", std::move(values[0])},
                    {"instance", std::move(values[1])}});
  }
  return list.dump(2) + "\n";
}

TableForm tableForm(std::string_view fileName) {
  const std::string_view extension = fileName.substr(std::min(fileName.rfind('.'), fileName.size()));
  if (equalIgnoringCase(extension, ".csv")) return TableForm::csv;
  if (equalIgnoringCase(extension, ".json")) return TableForm::json;
  return equalIgnoringCase(extension, ".xlsx") ? TableForm::xlsx : TableForm::tabs;
}

}  // namespace kestra
