#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestra {

// Reads the values of a text one by one: separated by commas or line ends, blanks around a value left out. A value that
// begins with a double quote runs to the next double quote and may hold commas and line ends.
class QuotedListReader {
 public:
  explicit QuotedListReader(std::string_view text) : rest_(text) {}

  // The next value; nothing at the end of the text.
  std::optional<std::string> next();

 private:
  std::string_view rest_;
};

// A text value as such files hold it: in double quotes, CR LF behind it.
std::string quotedLine(std::string_view value);

}  // namespace kestra
