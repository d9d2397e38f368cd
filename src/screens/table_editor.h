#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/simple_controls.h"
#include "controls/table.h"
#include "platform/ports.h"

namespace kestra {

// How the points of a table run. A point has one or more values, entered one after the other.
enum class PointDirection { alongColumns, downRows };

// The rules by which keys edit a table.
struct TableRules {
  PointDirection direction = PointDirection::downRows;
  int values = 2;  // of a point: its rows or columns behind the headings
  std::string_view characters = "0123456789.-";
  bool increasing = false;         // the first value of a point is not below that of the point before
  bool everyValueRequired = true;  // false: only the first value of a point has to be there
  bool checksOnEnter = true;       // false: Enter only moves the cursor on
};

// Edits the current cell of a table by key presses: there is no edit box, what is typed goes straight into the cell.
// `tempStr` is the text being typed in the current cell.
class TableEditor {
 public:
  // `next` takes the focus behind the last cell. The editor answers the table's keys from now on.
  TableEditor(Table& table, TableRules rules, Ports& ports, Control& next);

  void key(const Key& key);
  void moveTo(CellPosition at);  // the cursor, as by the Enter key: tempStr is cleared
  void cursorOnFirstCell();      // row 1, column 1: what most tables do when they get the focus

  std::string tempStr;

  // Steps that a table may do in its own way. `onEnter` true: Enter is done with. `accepts` true: the character is
  // taken as well as those of the rules.
  std::function<bool()> onEnter;
  std::function<bool(char32_t)> accepts;

 private:
  struct Place {
    int point = 0;  // from 1
    int value = 0;  // from 1
  };

  void intoData();
  void character(char32_t character);
  void backspace();
  void enter();
  void enterLast(const Place& place);
  void enterFirstValue(const Place& place);
  void enterLaterValue(const Place& place);
  void arrow(const std::string& name);
  void refuse(const std::string& message, bool blank);
  void advance(const Place& place);

  Place placeOf(CellPosition at) const;
  CellPosition cellOf(const Place& place) const;
  const std::string& text(const Place& place) const;
  int points() const;
  bool takes(char32_t character) const;

  Table& table_;
  TableRules rules_;
  Ports& ports_;
  Control& next_;
};

}  // namespace kestra
