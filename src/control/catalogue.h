#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

// The record catalogue of the control file: one table of records and fields, for writer, reader and users' page alike.
// Columns count characters from 1. The keyword stands in columns 1 to 10 and is no field. All values are text.
namespace kestra {

enum class FieldKind {
  padded,     // left-justified, padded with blanks and cut to its width
  free,       // last of its record: written whole, read with its width
  code,       // last of its record: a short word, written without blanks behind it
  discharge,  // padded, its tail by the rule of hydrographValue
};

struct FieldLayout {
  std::string_view name;
  int first = 0;      // first column
  int width = 0;      // columns that it has in the line
  int readWidth = 0;  // columns that are read: as many, or more where a code may be followed by more text
  FieldKind kind = FieldKind::padded;
  std::optional<std::string_view> literal;  // what always stands here, "" for blanks; such a field takes no value
  std::string_view control;                 // "frmDamSurface.txtCrestWidth"; empty for literals
  std::string_view unit;                    // empty for words and pure numbers
  std::string_view meaning;
  bool keepsBlanks = false;  // read with the blanks around it
};

// The rows behind a record, closed by ENDTABLE. They have no keyword.
struct TableLayout {
  std::span<const FieldLayout> fields;
  int shortestRow = 1;   // a line of fewer characters closes the table as ENDTABLE does
  bool trimmed = false;  // cells are written without the blanks around them
};

// The words by which a line tells its layout, compared without blanks around them.
struct LayoutMark {
  int column = 0;
  int width = 0;
  std::array<std::string_view, 2> words;
};

struct RecordLayout {
  std::string_view id;  // keyword, or keyword and layout: "OPTION DRAWDOWN"
  std::string_view keyword;
  std::string_view title;
  std::string_view presence;  // when the record, in this layout, is written
  std::span<const FieldLayout> fields;
  std::optional<TableLayout> table;
  std::optional<LayoutMark> mark;
  bool written = true;  // false: accepted on input only
};

inline constexpr int kKeywordWidth = 10;
inline constexpr std::string_view kTableEnd = "ENDTABLE";
inline constexpr std::string_view kRunEnd = "ENDRUN";

// A file holds the main run and behind it the runs of the auxiliary spillways, each with records of its own.
enum class RunKind { main, spillway };

// The records of a kind of run, in the order in which they are written; layouts of one keyword stand together.
std::span<const RecordLayout> recordsOf(RunKind run);

// The layouts of a keyword (no synonym); empty for a keyword that the run does not know.
std::span<const RecordLayout> layoutsOf(RunKind run, std::string_view keyword);

// The record of that id; null when there is none.
const RecordLayout* findRecord(std::string_view id, RunKind run = RunKind::main);

// The field of that name; null when there is none.
const FieldLayout* findField(std::span<const FieldLayout> fields, std::string_view name);

// A word that is accepted on input in place of another, in the main run.
struct Synonym {
  std::string_view accepted;
  std::string_view keyword;
};

std::span<const Synonym> keywordSynonyms();

// The keyword that a synonym stands for; any other keyword as it is.
std::string_view canonicalKeyword(std::string_view keyword);

}  // namespace kestra
