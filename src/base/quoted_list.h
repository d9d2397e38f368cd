#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestra {

// Reads the values of a text one by one: separated by commas or line ends, blanks around a value left out. A value that
// begins with a double quote runs to the next double quote and may hold commas and line ends; two double quotes in it
// stand for one.
class QuotedListReader {
 public:
  explicit QuotedListReader(std::string_view text) : rest_(text) {}

  // The next value; nothing at the end of the text.
  std::optional<std::string> next();

  // Whether the value taken last stood in double quotes.
  bool quoted() const { return quoted_; }

 private:
  std::string takeQuoted();

  std::string_view rest_;
  bool quoted_ = false;
};

// A text value as such files hold it: in double quotes, those inside it doubled, CR LF behind it.
std::string quotedLine(std::string_view value);

}  // namespace kestra
