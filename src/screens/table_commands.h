#pragma once

#include <string>
#include <string_view>

#include "controls/table.h"
#include "platform/small_ports.h"
#include "screens/table_editor.h"

// The commands of the Edit menu on a table. Tables neither grow nor shrink; headings are never touched; positions
// outside the table are passed over without a word.
namespace kestra {

std::string copiedText(const Table& table);  // the selected block: cells joined by tabs, rows ended by CR LF
void copyBlock(const Table& table, Clipboard& clipboard);
void cutBlock(Table& table, Clipboard& clipboard);
void deleteBlock(Table& table);
// Writes a text of rows and tab-separated cells at the cursor, which stays. Rows end in CR LF or LF; a line end behind
// the last row is no row. What lies beyond the last row or column is dropped.
void pasteText(Table& table, std::string_view text);
void selectAllCells(Table& table);

// The cells of the cursor's data row (points along columns) or data column (points down rows), from the cursor on, move
// one place away, or back over the cell at the cursor.
void insertCell(Table& table, PointDirection direction);
void deleteCell(Table& table, PointDirection direction);
// The same in every data row or column: a point is put in, or taken out. The cursor stays.
void insertPoint(Table& table, PointDirection direction);
void deletePoint(Table& table, PointDirection direction);

// Writes 1, 2, ... into the heading row over every data column, or the heading column before every data row (centred).
void numberColumns(Table& table);
void numberRows(Table& table);

}  // namespace kestra
