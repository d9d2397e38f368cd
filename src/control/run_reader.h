#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "base/lines.h"
#include "control/record_reader.h"
#include "control/screen_fields.h"

namespace kestra {

// The line that is being taken in, for who tells of a fault there.
struct ReadPlace {
  std::size_t line = 0;     // in the text that is read, from 1
  std::string_view record;  // the keyword of its record
};

// Puts the texts of a record's fields, read as `layout` says, where the catalogue says they belong: each field that the
// line reaches and that names a control. Texts are trimmed unless the field keeps its blanks.
void putFields(ScreenFields& fields, const RecordLayout& layout, std::string_view line, int spillway);

// The text of a field of a line, trimmed; empty where the line does not reach it.
std::string_view fieldText(const RecordLayout& layout, std::string_view line, std::string_view field);

// Walks the rows of a record's table, counting from 1, with the place following. Empty lines have ended it before.
void eachRow(const ControlRecord& record, ReadPlace& place,
             const std::function<void(int row, std::string_view line)>& take);

}  // namespace kestra
