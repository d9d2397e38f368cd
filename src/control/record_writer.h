#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "control/catalogue.h"

// Lines of the control file, without their line ends, from the texts of the controls. Nothing is reformatted or
// checked; a value holds no line end.
namespace kestra {

using Values = std::span<const std::string_view>;

// The line of a record: keyword, literals, and one value for each field that is no literal, in the order of the
// columns. It stops before the first field for which no value is left. More values than fields are a mistake of the
// caller.
std::string composeRecord(const RecordLayout& record, Values values);

// The line of a row of the record's table, stopping in the same way. The record has a table.
std::string composeRow(const RecordLayout& record, Values values);

// The same behind what `out` holds, for texts of many rows.
void appendRow(std::string& out, const RecordLayout& record, Values values);

// Field of a constant-step hydrograph value, ten wide: the first ten characters; with a decimal point among them seven
// and three blanks where the eighth is the point, else nine and a blank, so that it never touches the next value.
std::string hydrographValue(std::string_view text);

// A comment as lines of at most 60 characters, broken at line feeds and behind blanks; none for an empty comment. The
// character before a line feed is taken for a carriage return and dropped with it.
std::vector<std::string> wrapComment(std::string_view text);

// The tail of `value` that a reader will not get back because the field is too narrow; empty when it is blanks alone.
std::string_view lostText(const FieldLayout& field, std::string_view value);

struct CutValue {
  const FieldLayout* field;
  std::string_view value;
  std::string_view lost;
};

// Those of the values, given as to composeRecord or composeRow, that lose their tail.
std::vector<CutValue> cutValues(std::span<const FieldLayout> fields, Values values);

}  // namespace kestra
