#include "base/quoted_list.h"

#include <algorithm>

#include "base/fields.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::string_view kGaps = " \t";

void skip(std::string_view& text, std::string_view characters) {
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

// Takes one separator, a comma or a line end, off the front.
void skipSeparator(std::string_view& text) {
  skip(text, kGaps);
  if (text.starts_with(kCrLf)) {
    text.remove_prefix(kCrLf.size());
  } else if (!text.empty()) {
    text.remove_prefix(1);
  }
}

}  // namespace

std::optional<std::string> QuotedListReader::next() {
  skip(rest_, kGaps);
  if (rest_.empty()) return std::nullopt;
  std::string value;
  quoted_ = rest_.front() == '"';
  if (quoted_) {
    value = takeQuoted();
  } else {
    const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
    value = trim(rest_.substr(0, end));
    rest_.remove_prefix(end);
  }
  skipSeparator(rest_);
  return value;
}

// The value behind the double quote at the front, and what is behind it up to the separator.
std::string QuotedListReader::takeQuoted() {
  std::string value;
  while (true) {
    rest_.remove_prefix(1);
    const std::size_t end = std::min(rest_.find('"'), rest_.size());
    value.append(rest_.substr(0, end));
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    if (!rest_.starts_with('"')) break;
    value += '"';
  }
  rest_.remove_prefix(std::min(rest_.find_first_of(",\r\n"), rest_.size()));
  return value;
}

std::string quotedLine(std::string_view value) {
  std::string line = "\"";
  for (const char c : value) line.append(c == '"' ? 2 : 1, c);
  return line.append("\"").append(kCrLf);
}

}  // namespace kestra
