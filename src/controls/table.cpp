#include "controls/table.h"

#include <algorithm>
#include <utility>

#include "controls/undo_history.h"

namespace kestra {

Table::Table(Screen& screen, std::string name, Size size)
    : Control(screen, std::move(name), ControlKind::table),
      size_(size),
      design_(size),
      cells_(static_cast<std::size_t>(size.rows) * static_cast<std::size_t>(size.columns)),
      columnWidths_(static_cast<std::size_t>(size.columns)),
      rowHeights_(static_cast<std::size_t>(size.rows)),
      rowsShown_(static_cast<std::size_t>(size.rows), true),
      centred_(static_cast<std::size_t>(size.columns)),
      rightAligned_(static_cast<std::size_t>(size.columns)),
      cursor_{size.fixedRows, size.fixedColumns},
      corner_(cursor_) {}

bool Table::holds(CellPosition at) const {
  return at.row >= 0 && at.row < size_.rows && at.column >= 0 && at.column < size_.columns;
}

void Table::growTo(int rows) {
  if (rows <= size_.rows) return;
  if (UndoHistory* kept = history()) kept->keep(size_.rows, this, Property::cells, true);
  size_.rows = rows;
  const std::size_t wanted = indexOf(rows, 0);
  if (cells_.size() < wanted) cells_.resize(wanted);
  const auto most = std::max(rowHeights_.size(), static_cast<std::size_t>(rows));
  rowHeights_.resize(most);
  rowsShown_.resize(most, true);
  changed(Property::cells);
}

void Table::become(Size size, std::vector<std::string> cells) {
  size_ = size;
  cells.resize(indexOf(size.rows, 0));
  cells_ = std::move(cells);
  const auto columns = static_cast<std::size_t>(size.columns);
  const auto rows = static_cast<std::size_t>(size.rows);
  columnWidths_.assign(columns, 0);
  centred_.assign(columns, false);
  rightAligned_.assign(columns, false);
  rowHeights_.assign(rows, 0);
  rowsShown_.assign(rows, true);
  cursor_ = corner_ = {size.fixedRows, size.fixedColumns};
  changed(Property::cells);
}

void Table::swapCell(std::size_t index, std::string& text) {
  if (index < cells_.size()) cells_[index].swap(text);
}

std::size_t Table::indexOf(int row, int column) const {
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(size_.columns) + static_cast<std::size_t>(column);
}

const std::string& Table::cell(int row, int column) const {
  static const std::string kEmpty;
  return holds({row, column}) ? cells_[indexOf(row, column)] : kEmpty;
}

void Table::setCell(int row, int column, std::string text) {
  if (!holds({row, column})) return;
  const std::size_t index = indexOf(row, column);
  std::string& cell = cells_[index];
  if (cell == text) return;
  if (UndoHistory* kept = history()) kept->keepCell(*this, index, cell);
  cell = std::move(text);
  if (fault_ && fault_->at == CellPosition{row, column}) fault_.reset();
  changed(Property::cells);
}

void Table::setFault(CellPosition at, std::string message) {
  fault_ = {at, std::move(message)};
  changed(Property::cells);
}

void Table::setRowShown(int row, bool shown) {
  rowsShown_[static_cast<std::size_t>(row)] = shown;
  changed(Property::cells);
}

void Table::clearData() {
  for (int row = size_.fixedRows; row < size_.rows; ++row) {
    for (int column = size_.fixedColumns; column < size_.columns; ++column) setCell(row, column, {});
  }
  setCursor({size_.fixedRows, size_.fixedColumns});
}

void Table::setCursor(CellPosition at) {
  setSelection(at, at);
}

void Table::setSelection(CellPosition from, CellPosition to) {
  if (!holds(from) || !holds(to)) return;
  cursor_ = from;
  corner_ = to;
  changed(Property::cursor);
}

CellPosition Table::firstSelected() const {
  return {std::min(cursor_.row, corner_.row), std::min(cursor_.column, corner_.column)};
}

CellPosition Table::lastSelected() const {
  return {std::max(cursor_.row, corner_.row), std::max(cursor_.column, corner_.column)};
}

void Table::userSetBlock(CellPosition at, const std::vector<std::vector<std::string>>& texts) {
  const Gesture gesture(history(), nullptr);
  for (std::size_t r = 0; r < texts.size(); ++r) {
    for (std::size_t c = 0; c < texts[r].size(); ++c) {
      setCell(at.row + static_cast<int>(r), at.column + static_cast<int>(c), texts[r][c]);
    }
  }
  userEdited();
}

void Table::userEdited() {
  edited();
  if (onEdited) onEdited();
}

void Table::userSelect(CellPosition from, CellPosition to) {
  setSelection(from, to);
  if (onCursorMoved) onCursorMoved();
}

void Table::userKey(const Key& key) {
  const Gesture gesture(history(), this, indexOf(cursor_.row, cursor_.column));
  if (onKeyPress) onKeyPress(key);
}

void Table::userDoubleClick() {
  const Gesture gesture(history(), nullptr);
  if (onDoubleClick) onDoubleClick();
}

void Table::keepDesign() {
  Control::keepDesign();
  design_ = size_;
  designCells_ = cells_;
}

void Table::restoreDesign() {
  Control::restoreDesign();
  if (size_.columns != design_.columns || cells_.size() < designCells_.size()) become(design_, {});
  size_ = design_;
  fault_.reset();
  std::fill(std::copy(designCells_.begin(), designCells_.end(), cells_.begin()), cells_.end(), std::string());
  changed(Property::cells);
  setCursor({size_.fixedRows, size_.fixedColumns});
  if (onCursorMoved) onCursorMoved();
}

}  // namespace kestra
