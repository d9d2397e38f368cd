#pragma once

#include <cstddef>
#include <string_view>

namespace kestra {

// Walks the lines of a text that is held in memory. A line ends at a line feed; a carriage return before it belongs to
// the terminator. A last line without terminator counts, an empty rest behind the last terminator does not.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  // Takes the next line, without its terminator; false at the end.
  bool next(std::string_view& line);

  // Number of the line taken last, from 1.
  std::size_t lineNumber() const { return number_; }

 private:
  std::string_view rest_;
  std::size_t number_ = 0;
};

}  // namespace kestra
