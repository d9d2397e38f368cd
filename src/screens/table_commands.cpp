#include "screens/table_commands.h"

#include <algorithm>
#include <vector>

#include "base/fields.h"

namespace kestra {
namespace {

using Block = std::vector<std::vector<std::string>>;

bool isData(const Table& table, CellPosition at) {
  return table.holds(at) && at.row >= table.fixedRows() && at.column >= table.fixedColumns();
}

void writeBlock(Table& table, CellPosition at, const Block& block) {
  if (isData(table, at)) table.userSetBlock(at, block);
}

// Upper left cell of the selection, headings left out.
CellPosition firstData(const Table& table) {
  const CellPosition first = table.firstSelected();
  return {std::max(first.row, table.fixedRows()), std::max(first.column, table.fixedColumns())};
}

Block blankSelection(const Table& table) {
  const CellPosition first = firstData(table);
  const CellPosition last = table.lastSelected();
  const auto rows = static_cast<std::size_t>(std::max(last.row - first.row + 1, 0));
  const auto columns = static_cast<std::size_t>(std::max(last.column - first.column + 1, 0));
  return Block(rows, std::vector<std::string>(columns));
}

// Takes a row off the front: up to CR LF, LF or CR.
std::string_view takeRow(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  const std::string_view row = text.substr(0, end);
  text.remove_prefix(end);
  if (text.starts_with(kCrLf)) {
    text.remove_prefix(kCrLf.size());
  } else if (!text.empty()) {
    text.remove_prefix(1);
  }
  return row;
}

std::vector<std::string> cellsOf(std::string_view line) {
  std::vector<std::string> cells;
  bool more = true;
  while (more) {
    more = line.find('\t') != std::string_view::npos;
    cells.push_back(nextTabField(line));
  }
  return cells;
}

// The part of a table that an insertion or deletion moves: lines that run from the cursor's point to the last one.
struct Movement {
  const Table& table;
  PointDirection direction;
  int firstPoint;  // row or column of the cursor

  bool down() const { return direction == PointDirection::downRows; }
  int lastPoint() const { return (down() ? table.rows() : table.columns()) - 1; }
  CellPosition cell(int point, int line) const {
    return down() ? CellPosition{point, line} : CellPosition{line, point};
  }
  const std::string& text(int point, int line) const {
    const CellPosition at = cell(point, line);
    return table.cell(at.row, at.column);
  }
};

// The texts of the lines behind an insertion (shift 1) or a deletion (shift -1) at the cursor's point, as one block
// that begins there.
Block moved(const Movement& movement, int firstLine, int lastLine, int shift) {
  Block byPoint;
  for (int point = movement.firstPoint; point <= movement.lastPoint(); ++point) {
    std::vector<std::string> texts;
    const int source = point - shift;
    for (int line = firstLine; line <= lastLine; ++line) {
      const bool inside = source >= movement.firstPoint && source <= movement.lastPoint();
      texts.push_back(inside ? movement.text(source, line) : std::string());
    }
    byPoint.push_back(std::move(texts));
  }
  if (movement.down()) return byPoint;
  Block byLine(static_cast<std::size_t>(lastLine - firstLine + 1));
  for (const auto& texts : byPoint) {
    for (std::size_t line = 0; line < texts.size(); ++line) byLine[line].push_back(texts[line]);
  }
  return byLine;
}

void move(Table& table, PointDirection direction, bool wholePoint, int shift) {
  const bool down = direction == PointDirection::downRows;
  const CellPosition cursor = table.cursor();
  if (!isData(table, cursor)) return;
  const Movement movement = {table, direction, down ? cursor.row : cursor.column};
  const int line = down ? cursor.column : cursor.row;
  const int firstLine = !wholePoint ? line : down ? table.fixedColumns() : table.fixedRows();
  const int lastLine = !wholePoint ? line : (down ? table.columns() : table.rows()) - 1;
  writeBlock(table, movement.cell(movement.firstPoint, firstLine), moved(movement, firstLine, lastLine, shift));
  table.setCursor(cursor);
}

}  // namespace

std::string copiedText(const Table& table) {
  const CellPosition first = table.firstSelected();
  const CellPosition last = table.lastSelected();
  std::string text;
  for (int row = first.row; row <= last.row; ++row) {
    for (int column = first.column; column <= last.column; ++column) {
      if (column > first.column) text += '\t';
      text += table.cell(row, column);
    }
    text += kCrLf;
  }
  return text;
}

void copyBlock(const Table& table, Clipboard& clipboard) {
  clipboard.setText(copiedText(table));
}

void cutBlock(Table& table, Clipboard& clipboard) {
  copyBlock(table, clipboard);
  deleteBlock(table);
}

void deleteBlock(Table& table) {
  writeBlock(table, firstData(table), blankSelection(table));
}

void pasteText(Table& table, std::string_view text) {
  Block block;
  while (!text.empty()) block.push_back(cellsOf(takeRow(text)));
  if (block.empty()) return;
  const CellPosition cursor = table.cursor();
  writeBlock(table, cursor, block);
  table.setCursor(cursor);
}

void selectAllCells(Table& table) {
  table.userSelect({table.fixedRows(), table.fixedColumns()}, {table.rows() - 1, table.columns() - 1});
}

void insertCell(Table& table, PointDirection direction) {
  move(table, direction, false, 1);
}

void deleteCell(Table& table, PointDirection direction) {
  move(table, direction, false, -1);
}

void insertPoint(Table& table, PointDirection direction) {
  move(table, direction, true, 1);
}

void deletePoint(Table& table, PointDirection direction) {
  move(table, direction, true, -1);
}

void numberColumns(Table& table) {
  for (int column = table.fixedColumns(); column < table.columns(); ++column) {
    table.setCell(0, column, std::to_string(column - table.fixedColumns() + 1));
  }
}

void numberRows(Table& table) {
  for (int row = table.fixedRows(); row < table.rows(); ++row) {
    table.setCell(row, 0, std::to_string(row - table.fixedRows() + 1));
  }
  table.setCentred(0, true);
}

}  // namespace kestra
