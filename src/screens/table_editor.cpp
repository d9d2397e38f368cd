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
  if (!key.name.empty()) return arrow(key.name);
  if (key.character == kBackspace) return backspace();
  if (key.character == kEnter) return enter();
  if (takes(key.character)) return character(key.character);
  ports_.beeper.beep();
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
  tempStr += utf8(character);
  table_.setCurrentText(tempStr);
  table_.userEdited();
}

void TableEditor::backspace() {
  if (!table_.currentText().empty()) tempStr = table_.currentText();
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
  if (isEmpty(text(place))) return refuse(kMissing, false);
  const bool falls = rules_.increasing && place.point > 1 &&
                     lenientNumber(text(place)) < lenientNumber(text({place.point - 1, place.value}));
  if (falls) return refuse(kNotIncreasing, true);
  advance(place);
}

void TableEditor::enterLaterValue(const Place& place) {
  if (!rules_.everyValueRequired) {
    if (text(place) != " ") advance(place);
    return;
  }
  if (!isEmpty(text(place))) return advance(place);
  if (isEmpty(text({place.point, 1}))) table_.setCursor(cellOf({place.point, 1}));
  refuse(kMissing, false);
}

void TableEditor::refuse(const std::string& message, bool blank) {
  ports_.boxes.tell("Data Check", message, BoxIcon::warning);
  if (!blank) return;
  table_.setCurrentText("");
  table_.userEdited();
}

void TableEditor::advance(const Place& place) {
  if (place.value < rules_.values) {
    table_.setCursor(cellOf({place.point, place.value + 1}));
  } else if (place.point < points()) {
    table_.setCursor(cellOf({place.point + 1, 1}));
  }
}

void TableEditor::arrow(const std::string& name) {
  CellPosition at = table_.cursor();
  if (name == "Left") --at.column;
  if (name == "Right") ++at.column;
  if (name == "Up") --at.row;
  if (name == "Down") ++at.row;
  at.row = std::max(at.row, table_.fixedRows());
  at.column = std::max(at.column, table_.fixedColumns());
  if (table_.holds(at)) table_.userSelect(at, at);
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
