#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "control/catalogue.h"
#include "control/line_cutter.h"

// Takes the lines of a control file apart. Everything is a view into the text that was given; nothing ever fails, and
// nothing is checked.
namespace kestra {

// Keyword of a line: its first ten characters without blanks around them, synonyms as they stand.
std::string_view keywordOf(std::string_view line);

// Whether the line is longer than the column before `column`, that is, holds at least its first character.
bool reaches(std::string_view line, int column);

// What a line holds in the columns of a field.
struct FieldText {
  std::string_view raw;  // as it stands, with all blanks

  bool reached() const { return !raw.empty(); }  // the line is long enough to hold the field's first column
  std::string_view text() const { return trim(raw); }
};

// The texts of a record's or row's fields, one a field of its layout, literals too; cut out when asked for.
class FieldTexts {
 public:
  FieldTexts(std::span<const FieldLayout> fields, std::string_view line) : fields_(fields), line_(line) {}

  std::size_t size() const { return fields_.size(); }
  FieldText operator[](std::size_t i) const { return {line_.cut(fields_[i].first, fields_[i].readWidth)}; }

  // The field of that name, which the layout has.
  FieldText named(std::string_view name) const;

  const FieldLayout& layout(std::size_t i) const { return fields_[i]; }

 private:
  std::span<const FieldLayout> fields_;
  LineCutter line_;
};

FieldTexts takeApart(const RecordLayout& record, std::string_view line);

// The same for a row of the record's table. The record has a table.
FieldTexts takeApartRow(const RecordLayout& record, std::string_view line);

// The raw texts that composeRecord or composeRow would join to that line again: literals left out, up to the first
// field that the line does not reach.
std::vector<std::string_view> givenValues(const FieldTexts& texts);

// The layout of the line: the one whose mark it bears, else the keyword's layout without a mark, the first of them
// where there are several (the line does not tell). Synonyms count in the main run. Null for an unknown keyword.
const RecordLayout* recognise(RunKind run, std::string_view line);

struct ControlRecord {
  const RecordLayout* layout;
  std::size_t lineNumber;  // in the file, from 1
  std::string_view line;
  std::string_view keyword;  // as it stands
  FieldTexts fields;
  std::string_view rows;  // the lines of the table with their line ends, for LineReader; they begin at lineNumber + 1
};

struct UnknownLine {
  std::size_t lineNumber = 0;
  std::string_view line;
};

struct ControlRun {
  RunKind kind = RunKind::main;
  std::string_view text;  // all lines of the run, ENDRUN included
  std::vector<ControlRecord> records;
  std::vector<UnknownLine> unknown;  // lines of unknown keyword, and rows outside a table; empty lines are left out
  bool ended = false;                // false: the text ends before an ENDRUN
};

// The runs of a control file, each up to the line that holds nothing but ENDRUN and blanks: the main run, then those of
// the spillways. Lines behind the last ENDRUN are a run of their own unless all are empty; an empty text has no run.
// A table ends at ENDTABLE, at a line too short to be its row (an empty one, mostly), or with its run. The line that
// closes a table is taken with it. `first` is the kind of the first run, for the text of a spillway's run alone.
std::vector<ControlRun> readControlRecords(std::string_view text, RunKind first = RunKind::main);

// The records of the text's first run, of that kind, one after the other; what the reader keeps of them does not grow.
void eachRecord(std::string_view text, RunKind kind, const std::function<void(const ControlRecord&)>& take);

}  // namespace kestra
