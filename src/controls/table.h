#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace kestra {

struct CellPosition {
  int row = 0;
  int column = 0;
  bool operator==(const CellPosition&) const = default;
};

// A cell whose text was refused, and why.
struct CellFault {
  CellPosition at;
  std::string message;
};

// A table of texts, its first rows and columns being headings. Rows and columns count from 0, the headings included. A
// position outside the table reads as empty and is not written. Commands never change its size; a program may add rows.
class Table : public Control {
 public:
  struct Size {
    int rows = 2;
    int columns = 2;
    int fixedRows = 1;
    int fixedColumns = 1;
  };

  Table(Screen& screen, std::string name, Size size);

  int rows() const { return size_.rows; }
  int columns() const { return size_.columns; }
  int fixedRows() const { return size_.fixedRows; }
  int fixedColumns() const { return size_.fixedColumns; }
  bool holds(CellPosition at) const;
  void growTo(int rows);  // adds empty rows at the end; no effect on a table that has as many

  const std::string& cell(int row, int column) const;
  void setCell(int row, int column, std::string text);
  // Takes another size, and `cells` row by row for its content; widths, heights and alignments as the window likes. The
  // cursor goes to the first cell that is no heading. For tables that only show: it is not undone.
  void become(Size size, std::vector<std::string> cells);
  void clearData();  // blanks all cells but the headings, the cursor on the first of them

  CellPosition cursor() const { return cursor_; }
  CellPosition corner() const {
    return corner_;
  }                                 // the other end of the selection; the cursor when one cell is selected
  void setCursor(CellPosition at);  // selects that cell alone; no effect outside the table
  void setSelection(CellPosition from, CellPosition to);  // the cursor at `from`
  CellPosition firstSelected() const;                     // upper left and lower right cell of the selection
  CellPosition lastSelected() const;
  const std::string& currentText() const { return cell(cursor_.row, cursor_.column); }
  void setCurrentText(std::string text) { setCell(cursor_.row, cursor_.column, std::move(text)); }

  // Widths of columns and heights of rows, in twips (1/1440 inch), and whether a column is centred or on the right;
  // 0: as the window likes.
  void setColumnWidth(int column, int twips) { columnWidths_[static_cast<std::size_t>(column)] = twips; }
  int columnWidth(int column) const { return columnWidths_[static_cast<std::size_t>(column)]; }
  void setRowHeight(int row, int twips) { rowHeights_[static_cast<std::size_t>(row)] = twips; }
  int rowHeight(int row) const { return rowHeights_[static_cast<std::size_t>(row)]; }
  // A row that is not shown keeps its place and its texts.
  void setRowShown(int row, bool shown);
  bool rowShown(int row) const { return rowsShown_[static_cast<std::size_t>(row)]; }
  void setCentred(int column, bool centred) { centred_[static_cast<std::size_t>(column)] = centred; }
  bool centred(int column) const { return centred_[static_cast<std::size_t>(column)]; }
  void setRightAligned(int column, bool right) { rightAligned_[static_cast<std::size_t>(column)] = right; }
  bool rightAligned(int column) const { return rightAligned_[static_cast<std::size_t>(column)]; }

  // Of the cells' font; empty: as the window likes.
  const std::string& fontName() const { return fontName_; }
  void setFontName(std::string name) { fontName_ = std::move(name); }

  // The cell at fault is marked until its text changes.
  void setFault(CellPosition at, std::string message);
  const std::optional<CellFault>& fault() const { return fault_; }

  void userSetBlock(CellPosition at, const std::vector<std::vector<std::string>>& texts);  // one edit
  void userEdited();                                    // the user has changed cells in some other way
  void userSelect(CellPosition from, CellPosition to);  // by mouse or arrow keys
  void userKey(const Key& key) override;
  void userDoubleClick();

  // Exchanges a text with that of a cell, which counts along the rows; nothing happens where there is no such cell.
  void swapCell(std::size_t index, std::string& text);

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void(const Key&)> onKeyPress;
  std::function<void()> onEdited;       // cells were written by the user
  std::function<void()> onCursorMoved;  // by the user, or when the design is restored
  std::function<void()> onDoubleClick;

 private:
  std::size_t indexOf(int row, int column) const;

  Size size_;
  Size design_;
  std::vector<std::string> cells_;  // may hold rows that an undo has taken off the table again
  std::vector<std::string> designCells_;
  std::vector<int> columnWidths_;
  std::vector<int> rowHeights_;
  std::vector<bool> rowsShown_;
  std::vector<bool> centred_;
  std::vector<bool> rightAligned_;
  std::string fontName_;
  CellPosition cursor_;
  CellPosition corner_;
  std::optional<CellFault> fault_;
};

}  // namespace kestra
