#include "control/companion_tables.h"

#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "control/record_writer.h"

namespace kestra {
namespace {

// The name of a control as the catalogue has it, an index of a spillway being "(i)".
std::string catalogueName(const std::string& name) {
  const std::size_t open = name.find('(');
  return open == std::string::npos ? name : name.substr(0, open) + "(i)";
}

// The fields of the file that the columns of a table, or its rows, are written to.
class CellFields {
 public:
  explicit CellFields(const std::string& name) {
    const std::string table = catalogueName(name);
    for (const RecordLayout& record : recordsOf(RunKind::main)) {
      if (!record.table) continue;
      for (const FieldLayout& field : record.table->fields) {
        if (field.control.starts_with(table)) add(field, field.control.substr(table.size()));
      }
    }
  }

  // Null for a cell that has none.
  const FieldLayout* at(int row, int column) const {
    for (const Line& line : lines_) {
      if (line.number == (line.isRow ? row : column)) return line.field;
    }
    return nullptr;
  }

 private:
  struct Line {
    bool isRow;
    long long number;
    const FieldLayout* field;
  };

  // `place` is " row N" or " column N".
  void add(const FieldLayout& field, std::string_view place) {
    const auto number = wholeNumber(place.substr(place.rfind(' ') + 1));
    if (number) lines_.push_back({place.starts_with(" row"), *number, &field});
  }

  std::vector<Line> lines_;
};

class TableComparison {
 public:
  TableComparison(const std::string& name, const Table& entered, const Table& read, bool numbersAsTheyAre)
      : fields_(name), entered_(entered), read_(read), numbersAsTheyAre_(numbersAsTheyAre) {}

  bool losesACell() const {
    for (int row = entered_.fixedRows(); row < entered_.rows(); ++row) {
      for (int column = entered_.fixedColumns(); column < entered_.columns(); ++column) {
        if (entered_.cell(row, column) != read_.cell(row, column) && !isCut(row, column)) return true;
      }
    }
    return false;
  }

  Json kept() const {
    Json json = tableJson(entered_);
    for (std::size_t i = 0; i < json.size(); ++i) {
      for (std::size_t j = 0; j < json[i].size(); ++j) {
        const int row = static_cast<int>(i) + entered_.fixedRows();
        const int column = static_cast<int>(j) + entered_.fixedColumns();
        if (isCut(row, column)) json[i][j] = textJson(read_.cell(row, column));
      }
    }
    return json;
  }

 private:
  // Whether the file holds the cell but for blanks around it and an end that is cut off.
  bool isCut(int row, int column) const {
    const std::string& read = read_.cell(row, column);
    if (numbersAsTheyAre_ || read.empty()) return false;
    const std::string_view entered = entered_.cell(row, column);
    const FieldLayout* field = fields_.at(row, column);
    const std::size_t lost = field == nullptr ? 0 : lostText(*field, entered).size();
    return trim(entered.substr(0, entered.size() - lost)) == read;
  }

  CellFields fields_;
  const Table& entered_;
  const Table& read_;
  bool numbersAsTheyAre_;
};

}  // namespace

Json keptTable(const std::string& name, const Table& entered, const Table& read, bool numbersAsTheyAre) {
  const TableComparison comparison(name, entered, read, numbersAsTheyAre);
  return comparison.losesACell() ? comparison.kept() : Json();
}

}  // namespace kestra
