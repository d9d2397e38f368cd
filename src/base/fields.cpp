#include "base/fields.h"

#include <algorithm>

#include "base/text.h"

namespace kestra {

std::string PadField(std::string_view text, int width) {
  constexpr int kBlanks = 10;
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  std::string field(charsFrom(text, 0, wanted));
  const std::size_t missing = wanted - charCount(field);
  field.append(std::min<std::size_t>(missing, kBlanks), ' ');
  return field;
}

std::string_view columns(std::string_view line, int first, int width) {
  return charsFrom(line, static_cast<std::size_t>(first - 1), static_cast<std::size_t>(width));
}

std::string PopLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) {
    std::string line(text);
    text = {};
    return line;
  }
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end + 1);
  if (!line.empty()) line = charsFrom(line, 0, charCount(line) - 1);
  return std::string(line);
}

std::string nextTabField(std::string_view& line) {
  const std::size_t tab = line.find('\t');
  std::string field(line.substr(0, tab));
  line = tab == std::string_view::npos ? std::string_view() : line.substr(tab + 1);
  return field;
}

}  // namespace kestra
