#include "kestrasim/given_or.h"

#include <fmt/format.h>

#include "base/numbers.h"

namespace kestra {

double givenOr(const Number& given, double fallback, const std::string& name, const Place& place,
               RunMessages& messages) {
  if (given) return *given;
  messages.warning(place, fmt::format("{} is not given", name), fmt::format("{} is taken", shown(fallback)));
  return fallback;
}

int wholeOf(double given, const std::string& name, const Place& place, RunMessages& messages) {
  const int whole = static_cast<int>(given);
  if (given != whole) {
    messages.warning(place, fmt::format("{} {} is not whole", name, shown(given)), fmt::format("{} is taken", whole));
  }
  return whole;
}

std::string shown(double value) {
  return decimalNumber(value, 10);
}

}  // namespace kestra
