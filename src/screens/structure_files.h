#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The side files of the structure table as texts. A row holds the texts of the table's columns 1 to 4: elevation, ft;
// principal spillway discharge, cfs; storage, acre-ft; surface area, acres.
namespace kestra {

using StructureRow = std::array<std::string, 4>;

// A structure-table file (.STR): "STRUCTURE" at column 1 with the identifier from 11 on; a line a point with elevation
// at 21, surface area at 31, discharge at 41 and storage at 61; "ENDTABLE" at 1. Ten columns of a field are read;
// written is the whole text, up to where the next field begins.
struct StructureFile {
  std::optional<std::string> identifier;  // nothing when the first line ends before it; read: 5 characters
  std::vector<StructureRow> rows;         // read: 21 at most
  std::string fault;                      // of the first value that is no number, which ends the rows; empty: none
  std::size_t points = 0;                 // those behind the rows included, unless there is a fault
  bool ended = false;                     // "ENDTABLE" was read
};
std::optional<StructureFile> readStructureFile(std::string_view text);  // nothing: not in this format
std::string structureFileText(std::string_view identifier, const std::vector<StructureRow>& rows);

// Which values of the rows that are written have more characters than are read again: "elevation in row 3, storage in
// row 4"; empty: none.
std::string valuesTooLong(const std::vector<StructureRow>& rows);

// The rating in the text output of the spillway program: behind the line "RATING TABLE NUMBER  2" and three more, rows
// up to a line of 21 asterisks, at most 20. Nothing when there is no such line.
std::optional<std::vector<StructureRow>> readTorveRating(std::string_view text);

// Tab-delimited text, a line a row; missing fields are empty, what is behind the fourth is dropped. A first line of
// texts that are no numbers, nor meant as such, is a heading and passed over. Reading stops at the first field that is
// neither blank nor a number; `fault`, where given, then tells of it as fieldFault does. `points`, where given, counts
// the lines behind the rows too.
std::vector<StructureRow> readStructureTabs(std::string_view text, std::size_t mostRows, std::string* fault = nullptr,
                                            std::size_t* points = nullptr);
std::string structureTabsText(const std::vector<StructureRow>& rows);  // rows without elevation are left out

}  // namespace kestra
