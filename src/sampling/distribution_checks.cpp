#include <unordered_map>

#include "base/numbers.h"
#include "sampling/distribution_catalogue.h"

namespace kestra {
namespace {

// A condition on parameter `of` (from 0), against a number or against another parameter.
enum class Test { present, above, below, inside, atLeast, aboveOther, belowOther, notAboveOther };

struct Check {
  Test test;
  int of;
  double limit;  // of `inside` the lower one, the upper being 1; of the tests against another, its index
  std::string_view otherwise;
};

using Checks = std::vector<Check>;

constexpr Check present(int of, std::string_view otherwise) {
  return {Test::present, of, 0, otherwise};
}
constexpr Check above(int of, double limit, std::string_view otherwise) {
  return {Test::above, of, limit, otherwise};
}
constexpr Check inside(int of, std::string_view otherwise) {
  return {Test::inside, of, 0, otherwise};
}
constexpr Check aboveOther(int of, int other, std::string_view otherwise) {
  return {Test::aboveOther, of, static_cast<double>(other), otherwise};
}
constexpr Check belowOther(int of, int other, std::string_view otherwise) {
  return {Test::belowOther, of, static_cast<double>(other), otherwise};
}

constexpr Check kMean = present(0, "Please Enter Value for Mean");
constexpr Check kMeanPlain = present(0, "Please Enter value for Mean");
constexpr Check kDeviation = present(1, "Please enter Value for Standard Deviation");
constexpr Check kErrorFactor = present(1, "Please enter Value for Error Factor");
constexpr Check kMeanAboveOne = above(0, 1, "Please Enter Value for Mean greater than 1");
constexpr Check kErrorFactorAboveOne = above(1, 1, "Please enter Value for Error Factor greater than 1");
constexpr Check kDeviationAboveZero = above(1, 0, "Please enter Value for Standard Deviation greater than 0");
constexpr Check kDeviationPositive = above(1, 0, "Please enter Positive Value for Standard Deviation");
constexpr Check kLowerBounds = present(2, "Please Enter Value for Lower Bounds");
constexpr Check kUpperBounds = present(3, "Please Enter Value for Upper Bounds");
constexpr Check kLowerQuantile = present(2, "Please Enter Value for Lower Quantile");
constexpr Check kUpperQuantile = present(3, "Please Enter Value for Upper Quantile");
constexpr Check kLowerAboveZero = above(2, 0, "Please Enter Value for Lower Bounds greater than 0");
constexpr Check kUpperAboveZero = above(3, 0, "Please Enter Value for Upper Bounds greater than 0");
constexpr Check kLowerInside = inside(2, "Please Enter Value for Lower Bounds between 0.0 and 1.0");
constexpr Check kUpperInside = inside(3, "Please Enter Value for Upper Bounds between 0.0 and 1.0");
constexpr Check kBoundsInOrder = aboveOther(3, 2, "The Value of Upper Bounds must be greater than Lower Bounds");

const std::unordered_map<std::string_view, Checks>& checks() {
  static const Checks kEndpoints = {
      present(0, "Please Enter Value for Lower EndPoint"), present(1, "Please enter Value for Upper EndPoint"),
      aboveOther(1, 0, "The Value of Upper EndPoint must be greater than Lower EndPoint")};
  static const Checks kTwoPoints = {above(0, 0, "Please Enter Value at 0.001 greater than 0"),
                                    above(1, 0, "Please Enter Value at 0.999 greater than 0"),
                                    belowOther(0, 1, "Please Enter Value at 0.001 less than Value at 0.999")};
  static const std::unordered_map<std::string_view, Checks> kChecks = {
      {"CONSTANT", {present(0, "Please Enter value for Constant Value")}},
      {"Normal", {kMeanPlain, kDeviation, above(1, 0, "Please enter Positive value for Standard Deviation")}},
      {"Truncated Normal",
       {kMeanPlain,
        kDeviation,
        kLowerQuantile,
        kUpperQuantile,
        kDeviationPositive,
        {Test::below, 3, 1, "Please enter value less than 1 for Upper Qunatile"},
        aboveOther(3, 2, "The value of UpperQuantile must be greater than LowerQuantile"),
        kLowerInside}},
      {"Bounded Normal",
       {kMean, kDeviation, present(2, "Please Enter Value for Lower Point Value"),
        present(3, "Please Enter Value for Upper Point Value"), kDeviationPositive,
        aboveOther(3, 2, "The Value of Upper Point Value must be greater than Lower Point Value")}},
      {"Lognormal", {kMean, kErrorFactor, kMeanAboveOne, kErrorFactorAboveOne}},
      {"Lognormal-N", {kMean, kDeviation, kDeviationAboveZero}},
      {"Bounded Lognormal",
       {kMean, kErrorFactor, kLowerBounds, kUpperBounds, kMeanAboveOne, kErrorFactorAboveOne, kLowerAboveZero,
        kUpperAboveZero, kBoundsInOrder}},
      {"Bounded Lognormal-N",
       {kMean, kDeviation, kLowerBounds, kUpperBounds, kDeviationAboveZero, kLowerAboveZero, kUpperAboveZero,
        kBoundsInOrder}},
      {"Truncated Lognormal",
       {kMean, kErrorFactor, kLowerQuantile, kUpperQuantile, kMeanAboveOne, kErrorFactorAboveOne, kLowerInside,
        kUpperInside, kBoundsInOrder}},
      {"Truncated Lognormal-N",
       {kMean, kDeviation, kLowerQuantile, kUpperQuantile, kDeviationAboveZero, kLowerInside, kUpperInside,
        kBoundsInOrder}},
      {"Uniform", kEndpoints},
      {"Loguniform", kEndpoints},
      {"Triangular",
       {present(0, "Please Enter Value for Lower Bound"),
        present(1, "Please enter Value for Apex"),
        present(2, "Please Enter Value for Upper Bound"),
        {Test::notAboveOther, 0, 1,
         "In a triangular distribution the lower bound must be less than or equal to the apex and less than the upper "
         "bound"},
        belowOther(0, 2,
                   "In a triangular distribution the lower bound must be less than or equal to the apex and less than "
                   "the upper bound"),
        belowOther(1, 2, "In a triangular distribution the apex must be less than the upper bound")}},
      {"Beta",
       {present(0, "Please Enter Value for Lower Bound"),
        present(1, "Please enter Value for Upper Bound"),
        above(2, 0.001, "Please Enter Value for Shape Factor p greater than 0.001"),
        above(3, 0.001, "Please Enter Value for Shape Factor q greater than 0.001"),
        {Test::atLeast, 0, 0, "Lower Bound for Beta distribution cannot be negative"},
        aboveOther(1, 0, "The Value of Upper Bound must be greater than Lower Bound")}},
      {"Poisson", {above(0, 0, "Please Enter Value for Mean Frequency greater than 0")}},
      {"Geometric", {inside(0, "Please Enter Value for Probability between 0 and 1")}},
      {"Binomial",
       {inside(0, "Please Enter Value for Failure Probability between 0 and 1"),
        {Test::atLeast, 1, 1, "In Binomial test you must specify atleast 1 test"}}},
      {"Negative Binomial",
       {inside(0, "Please Enter Value for Failure Probability between 0 and 1"),
        {Test::atLeast, 1, 1, "In Negative Binomial test you must specify atleast 1 test"}}},
      {"Hypergeometric",
       {present(0, "Please Enter Value for Total Population"), present(1, "Please enter Value for Defective Items"),
        present(2, "Please Enter Value for Sample Size"),
        above(0, 0, "Please enter Positive Value for Total Population"),
        above(1, 0, "Please enter Positive Value for Defective Items"),
        above(2, 0, "Please enter Positive Value for Sample Size")}},
      {"Exponential", {above(0, 0, "Please Enter Value for Time Constant greater than 0")}},
      {"Weibull",
       {above(0, 0, "Please Enter Value for Shape Parameter greater than 0"),
        above(1, 0, "Please Enter Value for Scaling Factor greater than 0")}},
      {"Pareto",
       {above(0, 2, "Please Enter Value for Shape Parameter greater than 2"),
        above(1, 0, "Please Enter Value for Scaling Factor greater than 0")}},
      {"Gamma",
       {above(0, 0, "Please Enter Value for Alpha greater than 0"),
        above(1, 0, "Please Enter Value for Beta greater than 0")}},
      {"Maximum Entropy",
       {belowOther(0, 1,
                   "In a Maximum Entropy distribution, the Lower bound must be less than mean and less than Upper "
                   "bound"),
        belowOther(0, 2,
                   "In a Maximum Entropy distribution, the Lower bound must be less than mean and less than Upper "
                   "bound"),
        belowOther(1, 2, "In a Maximum Entropy distribution, the Mean must be less than Upper bound")}},
      {"Lognormal-B", kTwoPoints},
      {"Normal-B", kTwoPoints},
  };
  return kChecks;
}

bool holds(const Check& check, const std::array<std::string, 4>& parameters) {
  const auto number = [&parameters](int index) { return lenientNumber(parameters[static_cast<std::size_t>(index)]); };
  if (check.test == Test::present) return !parameters[static_cast<std::size_t>(check.of)].empty();
  const double value = number(check.of);
  switch (check.test) {
    case Test::above:
      return value > check.limit;
    case Test::below:
      return value < check.limit;
    case Test::inside:
      return value > check.limit && value < 1;
    case Test::atLeast:
      return value >= check.limit;
    case Test::aboveOther:
      return value > number(static_cast<int>(check.limit));
    case Test::belowOther:
      return value < number(static_cast<int>(check.limit));
    default:
      return value <= number(static_cast<int>(check.limit));
  }
}

}  // namespace

std::string_view distributionFault(const Distribution& distribution) {
  const auto at = checks().find(distribution.name);
  if (at == checks().end()) return {};
  for (const Check& check : at->second) {
    if (!holds(check, distribution.parameters)) return check.otherwise;
  }
  return {};
}

}  // namespace kestra
