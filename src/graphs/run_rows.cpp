#include "graphs/run_rows.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

bool isAscii(std::string_view line) {
  unsigned char all = 0;
  for (const char c : line) all |= static_cast<unsigned char>(c);
  return all < 0x80;
}

}  // namespace

RunRow::RunRow(std::string_view line) : line_(line), ascii_(isAscii(line)) {}

std::string_view RunRow::text(int first, int width) const {
  if (!ascii_) return columns(line_, first, width);
  const auto from = static_cast<std::size_t>(first - 1);
  return from < line_.size() ? line_.substr(from, static_cast<std::size_t>(width)) : std::string_view();
}

double RunRow::number(int first, int width) const {
  const double value = lenientNumber(text(first, width));
  return std::fabs(value) <= std::numeric_limits<float>::max() ? value : 0.0;
}

std::string_view RunReader::trimmed(std::string_view line) {
  return trim(line);
}

bool RunReader::findLine(std::string_view text) {
  return find([text](std::string_view line) { return trim(line) == text; }).has_value();
}

bool RunReader::findPart(std::string_view text) {
  const auto isAnchor = [text](std::string_view line) {
    return line.find(text) != std::string_view::npos && !trim(line).starts_with('*');
  };
  return find(isAnchor).has_value();
}

bool RunReader::findRecord(std::string_view keyword) {
  constexpr int kKeyword = 11;
  return find([keyword](std::string_view line) { return trim(columns(line, 1, kKeyword)) == keyword; }).has_value();
}

bool RunReader::skipHeadings(int most, int width) {
  std::string_view line;
  for (LineReader next = lines_; most >= 0 && next.next(line); --most) {
    if (realNumber(trim(RunRow(line).text(1, width)))) return true;
    lines_ = next;
  }
  return false;
}

void RunReader::skip(int lines) {
  std::string_view line;
  while (lines-- > 0 && lines_.next(line)) continue;
}

}  // namespace kestra
