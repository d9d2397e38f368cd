#pragma once

#include <optional>
#include <string_view>

namespace kestra {

// The number in a field of a result file, as lenientNumber reads it; nothing where the field does not begin with one:
// blank, asterisks, "NaN". A plain decimal of at most 15 digits, which is what solvers print, takes some nanoseconds.
std::optional<double> fieldNumber(std::string_view field);

// The extremes of a column. What is no number, or none that a double can hold, does not count.
class Extremes {
 public:
  void add(std::string_view field) {
    if (const auto number = fieldNumber(field)) add(*number);
  }
  void add(double value);

  std::optional<double> highest() const { return any_ ? std::optional(highest_) : std::nullopt; }
  std::optional<double> lowest() const { return any_ ? std::optional(lowest_) : std::nullopt; }

 private:
  bool any_ = false;
  double highest_ = 0;
  double lowest_ = 0;
};

}  // namespace kestra
