#pragma once

#include <string_view>

#include "base/fields.h"
#include "base/lines.h"
#include "base/text.h"

namespace kestra {

// A line of a result file with its columns, which count characters from 1. A line without letters beyond ASCII, which
// is found out once, gives them without a walk.
class OutputLine {
 public:
  OutputLine() = default;
  explicit OutputLine(std::string_view text) : text_(text), plain_(isPlain(text)) {}

  std::string_view text() const { return text_; }
  std::size_t length() const { return plain_ ? text_.size() : charCount(text_); }
  std::string_view columns(int first, int width) const {
    if (!plain_) return kestra::columns(text_, first, width);
    const auto from = static_cast<std::size_t>(first - 1);
    return from < text_.size() ? text_.substr(from, static_cast<std::size_t>(width)) : std::string_view();
  }

 private:
  static bool isPlain(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
  }

  std::string_view text_;
  bool plain_ = true;
};

// Whether a line is a message of the solver, "***** ERROR ..." or "***** WARNING ...", which may stand between the
// rows of a table.
bool isMessage(std::string_view line);

// The next row of a table that ends at a blank line; messages are passed over. False at the end of the table, the blank
// line taken off.
bool nextTableRow(LineReader& lines, OutputLine& row);

// Takes up to `count` lines off.
void skipLines(LineReader& lines, int count);

}  // namespace kestra
