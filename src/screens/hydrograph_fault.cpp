#include "screens/hydrograph_fault.h"

#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::size_t kMostQuoted = 40;

}  // namespace

bool isNumberOrBlank(std::string_view field) {
  return trim(field).empty() || realNumber(field).has_value();
}

bool isMeantAsNumber(std::string_view field) {
  const std::size_t first = field.find_first_not_of("+-., ");
  return first != std::string_view::npos && field[first] >= '0' && field[first] <= '9';
}

std::string fieldFault(std::size_t line, std::string_view field, const std::string& wanted) {
  const std::string place = "line " + std::to_string(line);
  field = trim(field);
  if (field.empty()) return place + " holds no " + wanted + ".";
  const char* rest = charCount(field) > kMostQuoted ? "..." : "";
  return place + ": \"" + std::string(charsFrom(field, 0, kMostQuoted)) + rest + "\" is no " + wanted + ".";
}

std::string morePointsThanTaken(std::size_t points, std::size_t taken) {
  return "The file holds " + std::to_string(points) + " points, of which the first " + std::to_string(taken) +
         " were taken.";
}

}  // namespace kestra
