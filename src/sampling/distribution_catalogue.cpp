#include "sampling/distribution_catalogue.h"

#include <algorithm>

namespace kestra {
namespace {

constexpr const char* kMean = "Mean";
constexpr const char* kDeviation = "Standard Deviation";
constexpr const char* kErrorFactor = "Error Factor";
constexpr const char* kLowerBounds = "Lower Bounds";
constexpr const char* kUpperBounds = "Upper Bounds";
constexpr const char* kLowerQuantile = "Lower Quantile";
constexpr const char* kUpperQuantile = "Upper Quantile";

}  // namespace

const std::vector<DistributionForm>& distributionCatalogue() {
  static const std::vector<DistributionForm> kForms = {
      {"Normal",
       {kMean, kDeviation},
       "A Normal Distribution is used when traditional symmetric scatter about a mean is wanted; it has no bounds."},
      {"Truncated Normal",
       {kMean, kDeviation, kLowerQuantile, kUpperQuantile},
       "A normal distribution of which only the part between two quantiles is drawn from."},
      {"Bounded Normal",
       {kMean, kDeviation, "Lower Point Value", "Upper Point Value"},
       "A normal distribution of which only the part between two values is drawn from."},
      {"Lognormal",
       {kMean, kErrorFactor},
       "The logarithm is normal. The error factor is the ratio of the 95 percent point to the median."},
      {"Lognormal-N", {kMean, kDeviation}, "The logarithm is normal, with this mean and standard deviation."},
      {"Bounded Lognormal",
       {kMean, kErrorFactor, kLowerBounds, kUpperBounds},
       "A lognormal distribution, given by its error factor, between two values."},
      {"Bounded Lognormal-N",
       {kMean, kDeviation, kLowerBounds, kUpperBounds},
       "A lognormal distribution, given by the normal one of its logarithm, between two values."},
      {"Truncated Lognormal",
       {kMean, kErrorFactor, kLowerQuantile, kUpperQuantile},
       "A lognormal distribution, given by its error factor, between two quantiles."},
      {"Truncated Lognormal-N",
       {kMean, kDeviation, kLowerQuantile, kUpperQuantile},
       "A lognormal distribution, given by the normal one of its logarithm, between two quantiles."},
      {"Uniform", {"Lower Endpoint", "Upper Endpoint"}, "Every value between the endpoints is equally likely."},
      {"Loguniform",
       {"Lower Endpoint", "Upper Endpoint"},
       "The logarithm is uniform: for a value of which only the order of magnitude is known."},
      {"Triangular",
       {"Lower Bound (a)", "Apex (b)", "Upper Bound (c)"},
       "For a value of which the least, the most likely and the greatest are known."},
      {"Beta",
       {"Lower Bound (A)", "Upper Bound (B)", "Shape Factor p", "Shape Factor q"},
       "A bounded distribution of many shapes; it leans to the lower bound when p is less than q."},
      {"Poisson", {"Mean Frequency"}, "The number of events in an interval, the events being independent."},
      {"Geometric", {"Probaility of Success"}, "The number of trials up to the first success."},
      {"Binomial", {"Failure Probability", "Number of Tests"}, "The number of failures in a number of tests."},
      {"Negative Binomial",
       {"Failure Probability", "Number of Tests"},
       "The number of tests until a number of failures is reached."},
      {"Hypergeometric",
       {"Total Population", "Defective Items", "Sample Size"},
       "The number of defective items in a sample that is drawn without putting back."},
      {"Exponential", {"Time Constant"}, "The time between events that happen at a constant rate."},
      {"Weibull", {"Shape Parameter", "Scaling Factor Beta"}, "The time to failure, the rate growing or falling."},
      {"Pareto", {"Shape Parameter", "Scaling Factor Beta"}, "A distribution with a long upper tail."},
      {"Gamma", {"Alpha", "Beta (Scaling Factor)"}, "A skewed distribution of positive values."},
      {"Maximum Entropy",
       {"Lower Bound", kMean, "Upper Bound"},
       "What is least presumed when only the bounds and the mean are known."},
      {"CONSTANT",
       {"Constant Value"},
       "CONSTANT is not a distribution; it allows you to give the value as one number."},
      {"Lognormal-B", {"Value at 0.001", "Value at 0.999"}, "A lognormal distribution through these two points."},
      {"Normal-B", {"Value at 0.001", "Value at 0.999"}, "A normal distribution through these two points."},
  };
  return kForms;
}

const DistributionForm* findDistribution(std::string_view name) {
  const auto& forms = distributionCatalogue();
  const auto at = std::find_if(forms.begin(), forms.end(), [name](const auto& form) { return form.name == name; });
  return at == forms.end() ? nullptr : &*at;
}

}  // namespace kestra
