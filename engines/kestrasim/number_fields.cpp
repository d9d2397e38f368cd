#include "kestrasim/number_fields.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace kestra {

std::optional<double> numberIn(std::string_view text, std::string_view name, NumberRange range, const Place& place,
                               RunMessages& messages) {
  if (trim(text).empty()) return std::nullopt;
  std::string digits(text);
  std::erase(digits, ',');
  double value = lenientNumber(digits);
  if (!realNumber(digits)) {
    value = std::isnan(value) ? 0 : value;
    const double shown = std::clamp(value, range.least, range.most);
    messages.warning(place, fmt::format("{} \"{}\" is no number", name, trim(text)),
                     fmt::format("{} is taken", decimalNumber(shown, 10)));
    return shown;
  }
  const double held = std::clamp(value, range.least, range.most);
  if (held != value) {
    messages.warning(place, fmt::format("{} {} is out of range", name, trim(text)),
                     fmt::format("{} is taken", decimalNumber(held, 10)));
  }
  return held;
}

}  // namespace kestra
