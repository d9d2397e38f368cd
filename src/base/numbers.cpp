#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

#include "base/text.h"

namespace kestra {
namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Gathers the characters of the number at the front of `text`, blanks left out, in the form that from_chars takes.
std::string numberCharacters(std::string_view text) {
  std::string compact;
  for (const char c : text) {
    if (c != ' ' && c != '\t') compact += c;
  }
  std::size_t at = 0;
  const auto digits = [&] {
    const std::size_t from = at;
    while (at < compact.size() && isDigit(compact[at])) ++at;
    return at > from;
  };
  if (at < compact.size() && (compact[at] == '+' || compact[at] == '-')) ++at;
  bool any = digits();
  if (at < compact.size() && compact[at] == '.') {
    ++at;
    any = digits() || any;
  }
  if (!any) return {};
  if (at < compact.size() && std::string_view("eEdD").find(compact[at]) != std::string_view::npos) {
    const std::size_t mark = at++;
    if (at < compact.size() && (compact[at] == '+' || compact[at] == '-')) ++at;
    if (digits()) {
      compact[mark] = 'e';
    } else {
      at = mark;
    }
  }
  compact.resize(at);
  if (compact.front() == '+') compact.erase(0, 1);
  return compact;
}

// The value of a field that holds nothing but blanks around digits with a point or none: what nearly all fields are.
// Up to 15 digits and their power of ten are exact, so that a single division rounds as it should.
std::optional<double> plainNumber(std::string_view text) {
  constexpr int kExactDigits = 15;
  constexpr std::array<double, kExactDigits + 1> kPowers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                            1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const char* at = text.data();
  const char* end = at + text.size();
  while (at != end && *at == ' ') ++at;
  const bool negative = at != end && *at == '-';
  if (negative) ++at;
  std::uint64_t digits = 0;
  int count = 0;
  int decimals = 0;
  for (; at != end && isDigit(*at); ++at, ++count) digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
  if (at != end && *at == '.') {
    for (++at; at != end && isDigit(*at); ++at, ++count, ++decimals) {
      digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
    }
  }
  while (at != end && *at == ' ') ++at;
  if (at != end || count == 0 || count > kExactDigits) return std::nullopt;
  const double value = static_cast<double>(digits) / kPowers[static_cast<std::size_t>(decimals)];
  return negative ? -value : value;
}

// What a number beyond the range of a double stands for: 0 when its exponent is negative or it has only leading zeros.
double outOfRange(std::string_view number) {
  const std::size_t mark = number.find('e');
  const bool tiny = mark == std::string_view::npos ? number.find_first_of("123456789") > number.find('.')
                                                   : number.substr(mark + 1, 1) == "-";
  if (tiny) return 0.0;
  const double infinite = std::numeric_limits<double>::infinity();
  return number.front() == '-' ? -infinite : infinite;
}

// Significant digits, the first of them standing for 10 to the `exponent`, with the point and the zeros they need.
std::string placePoint(std::string digits, int exponent) {
  if (exponent < 0) return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  const auto before = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() < before) digits.resize(before, '0');
  if (digits.size() > before) digits.insert(before, 1, '.');
  return digits;
}

}  // namespace

double lenientNumber(std::string_view text) {
  if (const std::optional<double> plain = plainNumber(text)) return *plain;
  const std::string number = numberCharacters(text);
  if (number.empty()) return 0.0;
  double value = 0.0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  return result.ec == std::errc::result_out_of_range ? outOfRange(number) : value;
}

std::optional<long long> wholeNumber(std::string_view text) {
  text = trim(text);
  long long value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<double> realNumber(std::string_view text) {
  text = trim(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string singleNumber(float value) {
  char buffer[40];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, written.ptr};
}

std::string decimalNumber(double value, int digits) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value > 0 ? "inf" : "-inf";
  char buffer[40];
  const auto written =
      std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, digits - 1);
  const std::string_view scientific(buffer, static_cast<std::size_t>(written.ptr - buffer));
  const std::size_t mark = scientific.find('e');
  const auto exponent = static_cast<int>(lenientNumber(scientific.substr(mark + 1)));
  std::string text;
  std::copy_if(scientific.begin(), scientific.begin() + mark, std::back_inserter(text), isDigit);
  text.resize(text.find_last_not_of('0') + 1);
  if (text.empty()) return "0";
  return (value < 0 ? "-" : "") + placePoint(std::move(text), exponent);
}

std::string generalNumber(double value) {
  char buffer[40];
  const auto shortest = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  std::string text = toUpper(std::string_view(buffer, static_cast<std::size_t>(shortest.ptr - buffer)));
  return text == "-0" ? "0" : text;
}

}  // namespace kestra
