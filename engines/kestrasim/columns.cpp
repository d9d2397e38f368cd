#include "kestrasim/columns.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kestra {

std::string fixedNumber(double value, int decimals) {
  char buffer[400];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  std::string text(buffer, written.ptr);
  const bool isZero = text.find_first_of("123456789") == std::string::npos;
  if (isZero && text.front() == '-') text.erase(0, 1);
  return text;
}

ColumnLine& ColumnLine::number(double value, int width, int decimals) {
  const auto room = static_cast<std::size_t>(width - 1);
  std::string figure = fixedNumber(value, decimals);
  for (int d = decimals - 1; d >= 1 && figure.size() > room; --d) figure = fixedNumber(value, d);
  if (figure.size() > room || !std::isfinite(value)) {
    overflowed_ = true;
    figure = std::string(room - 1, '9') + ".";
    if (value < 0) figure.front() = '-';
  }
  return text(figure, width);
}

ColumnLine& ColumnLine::text(std::string_view words, int width) {
  const auto wanted = static_cast<std::size_t>(width);
  if (words.size() < wanted) line_.append(wanted - words.size(), ' ');
  line_ += words;
  return *this;
}

ColumnLine& ColumnLine::words(std::string_view words) {
  line_ += words;
  return *this;
}

ColumnLine& ColumnLine::blanks(int count) {
  line_.append(static_cast<std::size_t>(count), ' ');
  return *this;
}

}  // namespace kestra
