#include "screens/table_editor.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr const char* kMissing = "This cell must contain data.";
constexpr const char* kNotIncreasing = "Values must be increasing.";

// A cell that holds one blank counts as empty.
bool isEmpty(const std::string& text) {
  return text.empty() || text == " ";
}

}  // namespace

TableEditor::TableEditor(Table& table, TableRules rules, Ports& ports, Control& next)
    : table_(table), rules_(rules), ports_(ports), next_(next) {
  table_.onKeyPress = [this](const Key& pressed) { key(pressed); };
  table_.onCursorMoved = [this] { tempStr.clear(); };
}

void TableEditor::key(const Key& key) {
  intoData();
  if (!key.name.empty()) return arrow(key.name);
  if (key.character == kBackspace) return backspace();
  if (key.character == kEnter) return enter();
  if (takes(key.character)) return character(key.character);
  ports_.beeper.beep();
}

// A cursor on a heading goes to the nearest cell of the data.
void TableEditor::intoData() {
  const CellPosition at = table_.cursor();
  const CellPosition data = {std::max(at.row, table_.fixedRows()), std::max(at.column, table_.fixedColumns())};
  if (data != at) moveTo(data);
}

void TableEditor::moveTo(CellPosition at) {
  table_.setCursor(at);
  tempStr.clear();
}

void TableEditor::cursorOnFirstCell() {
  moveTo({table_.fixedRows(), table_.fixedColumns()});
}

bool TableEditor::takes(char32_t character) const {
  const bool plain = character < 0x80 && rules_.characters.find(static_cast<char>(character)) != std::string_view::npos;
  return plain || (accepts && accepts(character));
}

void TableEditor::character(char32_t character) {
  if (tempStr != table_.currentText()) tempStr.clear();  // something else than keys has changed the cell
  tempStr += utf8(character);
  table_.setCurrentText(tempStr);
  table_.userEdited();
}

void TableEditor::backspace() {
  tempStr = table_.currentText();
  if (tempStr.empty()) return;
  tempStr = charsFrom(tempStr, 0, charCount(tempStr) - 1);
  table_.setCurrentText(tempStr);
  table_.userEdited();
}

void TableEditor::enter() {
  if (onEnter && onEnter()) return;
  const Place place = placeOf(table_.cursor());
  if (!rules_.checksOnEnter) {
    advance(place);
  } else if (place.point == points() && place.value == rules_.values) {
    enterLast(place);
  } else if (place.value == 1) {
    enterFirstValue(place);
  } else {
    enterLaterValue(place);
  }
  tempStr.clear();
}

void TableEditor::enterLast(const Place& place) {
  if (isEmpty(text({place.point, 1})) || isEmpty(text(place))) return refuse(kMissing, true);
  next_.takeFocus();
}

void TableEditor::enterFirstValue(const Place& place) {
  if (rules_.everyValueRequired ? isEmpty(text(place)) : text(place).empty()) return refuse(kMissing, false);
  if (text(place) == " ") return;
  const bool falls = rules_.increasing && place.point > 1 &&
                     lenientNumber(text(place)) < lenientNumber(text({place.point - 1, place.value}));
  if (falls) return refuse(kNotIncreasing, true);
  advance(place);
}

void TableEditor::enterLaterValue(const Place& place) {
  if (!rules_.everyValueRequired) {
    if (text(place) != " " || place.value == rules_.values) advance(place);
    return;
  }
  if (!isEmpty(text(place))) return advance(place);
  if (isEmpty(text({place.point, 1}))) table_.setCursor(cellOf({place.point, 1}));
  refuse(kMissing, false);
}

void TableEditor::refuse(const std::string& message, bool blank) {
  ports_.boxes.tell("Data Check", message, BoxIcon::warning);
  if (blank) {
    table_.setCurrentText("");
    table_.userEdited();
  }
  table_.setFault(table_.cursor(), message);
}

void TableEditor::advance(const Place& place) {
  if (place.value < rules_.values) {
    table_.setCursor(cellOf({place.point, place.value + 1}));
  } else if (place.point < points()) {
    table_.setCursor(cellOf({place.point + 1, 1}));
  }
}

void TableEditor::arrow(const std::string& name) {
  constexpr int kPage = 10;  // rows of a page
  CellPosition at = table_.cursor();
  if (name == "Left") {
    --at.column;
  } else if (name == "Right") {
    ++at.column;
  } else if (name == "Up") {
    --at.row;
  } else if (name == "Down") {
    ++at.row;
  } else if (name == "PageUp") {
    at.row -= kPage;
  } else if (name == "PageDown") {
    at.row += kPage;
  } else if (name == "Home") {
    at.column = table_.fixedColumns();
  } else if (name == "End") {
    at.column = table_.columns() - 1;
  } else {
    return;
  }
  at.row = std::clamp(at.row, table_.fixedRows(), table_.rows() - 1);
  at.column = std::clamp(at.column, table_.fixedColumns(), table_.columns() - 1);
  if (at != table_.cursor()) table_.userSelect(at, at);
}

TableEditor::Place TableEditor::placeOf(CellPosition at) const {
  const Place down = {at.row - table_.fixedRows() + 1, at.column - table_.fixedColumns() + 1};
  return rules_.direction == PointDirection::downRows ? down : Place{down.value, down.point};
}

CellPosition TableEditor::cellOf(const Place& place) const {
  const bool down = rules_.direction == PointDirection::downRows;
  const int row = down ? place.point : place.value;
  const int column = down ? place.value : place.point;
  return {row - 1 + table_.fixedRows(), column - 1 + table_.fixedColumns()};
}

const std::string& TableEditor::text(const Place& place) const {
  const CellPosition at = cellOf(place);
  return table_.cell(at.row, at.column);
}

int TableEditor::points() const {
  return rules_.direction == PointDirection::downRows ? table_.rows() - table_.fixedRows()
                                                      : table_.columns() - table_.fixedColumns();
}

}  // namespace kestra
