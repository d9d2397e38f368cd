#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/fields.h"
#include "control/control_texts.h"
#include "control/record_writer.h"
#include "control/screen_fields.h"

namespace kestra {

// The text of a run that grows record by record, each line with its line end. What a value holds of line ends becomes
// blanks, so that it cannot break its line.
class RunText {
 public:
  // `spillway` is the one, from 0, that fields of spillways belong to. Fields that are cut are added to `cuts`, if any.
  RunText(ScreenFields& fields, RunKind run, std::vector<CutField>* cuts) : fields_(fields), run_(run), cuts_(cuts) {}

  struct Given {
    std::string_view field;
    std::string_view value;
  };

  int spillway = 0;

  // Whether the last value of a line that is padded keeps the blanks behind it.
  enum class LastValue { padded, open };

  // The record of that id with the texts of its fields' controls, but for those that are given, and at most so many.
  // It is the record whose rows follow.
  void record(std::string_view id, std::initializer_list<Given> given = {}, std::size_t most = std::string::npos,
              LastValue last = LastValue::padded);
  void row(Values values, LastValue last = LastValue::padded);
  void endTable() { line(kTableEnd); }
  void line(std::string_view text);
  void append(std::string_view lines) { text_.append(lines).append(kCrLf); }  // composed before, the last line open

  const RecordLayout& layout() const { return *layout_; }  // of the last record
  std::string take() { return std::move(text_); }

 private:
  std::vector<std::string_view> valuesOf(std::initializer_list<Given> given, std::size_t most);
  void endLine(std::size_t begin);
  void openLast(std::span<const FieldLayout> layouts, Values values);
  void noteCuts(std::span<const FieldLayout> layouts, Values values, int row);

  ScreenFields& fields_;
  RunKind run_;
  std::vector<CutField>* cuts_;
  const RecordLayout* layout_ = nullptr;
  int row_ = 0;
  std::string text_;
};

// What rows of a table are written: those whose first `needed` cells are not blank; a row that lacks one ends the table
// or is passed over. At most `most` rows are looked at.
struct RowRule {
  std::size_t needed = 1;
  bool ends = true;
  int most = 1 << 20;
};

// The rows of a spillway's reaches that have a beginning, as the record last written has them, and the end of the
// table. With the stability analysed the root depth is blank.
void writeReaches(RunText& out, const AuxProfile& profile, bool stability);

// The rows of the record last written, from the table that its layout names, and the end of the table.
void writeRows(RunText& out, ScreenFields& fields, const RowRule& rule);

}  // namespace kestra
