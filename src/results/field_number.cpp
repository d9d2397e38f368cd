#include "results/field_number.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

#include "base/numbers.h"

namespace kestra {
namespace {

// 15 digits make less than 2^53, and these powers are exact: one division gives the nearest double.
constexpr double kPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr std::ptrdiff_t kExactDigits = std::ssize(kPowers) - 1;

bool isDigit(char c) {
  return static_cast<unsigned char>(c - '0') < 10;
}

const char* skipBlanks(const char* at, const char* end) {
  while (at != end && *at == ' ') ++at;
  return at;
}

// Takes the digits at the front, added to those before.
const char* takeDigits(const char* at, const char* end, std::uint64_t& digits) {
  for (; at != end && isDigit(*at); ++at) digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
  return at;
}

bool beginsNumber(std::string_view field) {
  const auto skip = [&field](std::string_view characters) {
    field.remove_prefix(std::min(field.find_first_not_of(characters), field.size()));
  };
  skip(" \t");
  if (field.starts_with('-') || field.starts_with('+')) field.remove_prefix(1);
  skip(" \t");
  if (field.starts_with('.')) field.remove_prefix(1);
  skip(" \t");
  return !field.empty() && isDigit(field.front());
}

std::optional<double> unusualNumber(std::string_view field) {
  return beginsNumber(field) ? std::optional(lenientNumber(field)) : std::nullopt;
}

}  // namespace

std::optional<double> fieldNumber(std::string_view field) {
  const char* const end = field.data() + field.size();
  const char* at = skipBlanks(field.data(), end);
  if (at == end) return std::nullopt;
  const bool negative = *at == '-';
  if (negative) ++at;
  std::uint64_t digits = 0;
  const char* const whole = at;
  at = takeDigits(at, end, digits);
  std::ptrdiff_t count = at - whole;
  std::ptrdiff_t places = 0;
  if (at != end && *at == '.') {
    const char* const fraction = ++at;
    at = takeDigits(at, end, digits);
    places = at - fraction;
    count += places;
  }
  if (count == 0 || count > kExactDigits || skipBlanks(at, end) != end) return unusualNumber(field);
  const double value = static_cast<double>(digits) / kPowers[places];
  return negative ? -value : value;
}

void Extremes::add(double value) {
  if (!std::isfinite(value)) return;
  highest_ = any_ ? std::max(highest_, value) : value;
  lowest_ = any_ ? std::min(lowest_, value) : value;
  any_ = true;
}

}  // namespace kestra
