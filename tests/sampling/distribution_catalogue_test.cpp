#include "sampling/distribution_catalogue.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kestra {
namespace {

TEST(DistributionCatalogue, offersItsDistributionsInTheirOrder) {
  std::string names;
  for (const DistributionForm& form : distributionCatalogue()) names += std::string(form.name) + ";";
  EXPECT_EQ(names,
            "Normal;Truncated Normal;Bounded Normal;Lognormal;Lognormal-N;Bounded Lognormal;Bounded Lognormal-N;"
            "Truncated Lognormal;Truncated Lognormal-N;Uniform;Loguniform;Triangular;Beta;Poisson;Geometric;Binomial;"
            "Negative Binomial;Hypergeometric;Exponential;Weibull;Pareto;Gamma;Maximum Entropy;CONSTANT;Lognormal-B;"
            "Normal-B;");
}

TEST(DistributionCatalogue, explainsEveryDistribution) {
  for (const DistributionForm& form : distributionCatalogue()) EXPECT_GT(form.explanation.size(), 20U) << form.name;
  EXPECT_TRUE(findDistribution("Normal")->explanation.starts_with("A Normal Distribution is used when traditional"));
  EXPECT_TRUE(findDistribution("CONSTANT")->explanation.starts_with("CONSTANT is not a distribution; it allows you"));
}

TEST(DistributionCatalogue, findsExactNamesOnly) {
  EXPECT_EQ(findDistribution("Beta")->parameters[2], "Shape Factor p");
  EXPECT_EQ(findDistribution("Geometric")->parameters[0], "Probaility of Success");
  EXPECT_EQ(findDistribution("Poisson")->parameters[1], "");
  EXPECT_EQ(findDistribution("beta"), nullptr);
  EXPECT_EQ(findDistribution("NONE"), nullptr);
  EXPECT_EQ(findDistribution(""), nullptr);
}

struct Case {
  const char* name;
  std::array<std::string, 4> parameters;
  const char* fault;
};

void PrintTo(const Case& c, std::ostream* out) {
  *out << c.name;
  for (const auto& parameter : c.parameters) *out << " '" << parameter << "'";
}

class Fault : public testing::TestWithParam<Case> {};

TEST_P(Fault, isTheFirstOfItsDistribution) {
  EXPECT_EQ(distributionFault({GetParam().name, GetParam().parameters, true}), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, Fault,
    testing::Values(Case{"CONSTANT", {"5"}, ""}, Case{"Normal", {"-5", "0.1"}, ""},
                    Case{"Truncated Normal", {"5", "1", "0.1", "0.9"}, ""},
                    Case{"Bounded Normal", {"5", "1", "-2", "-1"}, ""}, Case{"Lognormal", {"1.01", "1.01"}, ""},
                    Case{"Lognormal-N", {"0", "0.1"}, ""}, Case{"Bounded Lognormal", {"2", "2", "1", "3"}, ""},
                    Case{"Bounded Lognormal-N", {"0", "0.5", "1", "3"}, ""},
                    Case{"Truncated Lognormal", {"2", "2", "0.1", "0.9"}, ""},
                    Case{"Truncated Lognormal-N", {"0", "2", "0.001", "0.999"}, ""}, Case{"Uniform", {"-1", "1"}, ""},
                    Case{"Loguniform", {"1", "10"}, ""}, Case{"Triangular", {"1", "1", "2"}, ""},
                    Case{"Beta", {"0", "1", "0.0011", "2"}, ""}, Case{"Poisson", {"0.1"}, ""},
                    Case{"Geometric", {"0.5"}, ""}, Case{"Binomial", {"0.5", "1"}, ""},
                    Case{"Negative Binomial", {"0.5", "1"}, ""}, Case{"Hypergeometric", {"10", "2", "3"}, ""},
                    Case{"Exponential", {"0.1"}, ""}, Case{"Weibull", {"0.1", "0.1"}, ""},
                    Case{"Pareto", {"2.1", "0.1"}, ""}, Case{"Gamma", {"0.1", "0.1"}, ""},
                    Case{"Maximum Entropy", {"1", "2", "3"}, ""}, Case{"Lognormal-B", {"1", "2"}, ""},
                    Case{"Normal-B", {"1", "2"}, ""}, Case{"Unheard of", {}, ""}));

INSTANTIATE_TEST_SUITE_P(
    Plain, Fault,
    testing::Values(Case{"CONSTANT", {""}, "Please Enter value for Constant Value"},
                    Case{"Normal", {"", ""}, "Please Enter value for Mean"},
                    Case{"Normal", {"1", ""}, "Please enter Value for Standard Deviation"},
                    Case{"Normal", {"1", "0"}, "Please enter Positive value for Standard Deviation"},
                    Case{"Lognormal", {"", "2"}, "Please Enter Value for Mean"},
                    Case{"Lognormal", {"1", ""}, "Please enter Value for Error Factor"},
                    Case{"Lognormal", {"1", "2"}, "Please Enter Value for Mean greater than 1"},
                    Case{"Lognormal", {"2", "1"}, "Please enter Value for Error Factor greater than 1"},
                    Case{"Lognormal-N", {"", "1"}, "Please Enter Value for Mean"},
                    Case{"Lognormal-N", {"1", ""}, "Please enter Value for Standard Deviation"},
                    Case{"Lognormal-N", {"1", "-1"}, "Please enter Value for Standard Deviation greater than 0"},
                    Case{"Uniform", {"", "1"}, "Please Enter Value for Lower EndPoint"},
                    Case{"Uniform", {"1", ""}, "Please enter Value for Upper EndPoint"},
                    Case{"Loguniform", {"1", "1"}, "The Value of Upper EndPoint must be greater than Lower EndPoint"},
                    Case{"Poisson", {"0"}, "Please Enter Value for Mean Frequency greater than 0"},
                    Case{"Geometric", {"1"}, "Please Enter Value for Probability between 0 and 1"},
                    Case{"Geometric", {""}, "Please Enter Value for Probability between 0 and 1"},
                    Case{"Binomial", {"0", "1"}, "Please Enter Value for Failure Probability between 0 and 1"},
                    Case{"Binomial", {"0.5", "0"}, "In Binomial test you must specify atleast 1 test"},
                    Case{"Negative Binomial", {"1", "1"}, "Please Enter Value for Failure Probability between 0 and 1"},
                    Case{"Negative Binomial", {"0.5", ""}, "In Negative Binomial test you must specify atleast 1 test"},
                    Case{"Exponential", {"0"}, "Please Enter Value for Time Constant greater than 0"},
                    Case{"Weibull", {"0", "1"}, "Please Enter Value for Shape Parameter greater than 0"},
                    Case{"Weibull", {"1", "0"}, "Please Enter Value for Scaling Factor greater than 0"},
                    Case{"Pareto", {"2", "1"}, "Please Enter Value for Shape Parameter greater than 2"},
                    Case{"Pareto", {"3", ""}, "Please Enter Value for Scaling Factor greater than 0"},
                    Case{"Gamma", {"0", "1"}, "Please Enter Value for Alpha greater than 0"},
                    Case{"Gamma", {"1", "0"}, "Please Enter Value for Beta greater than 0"},
                    Case{"Lognormal-B", {"0", "1"}, "Please Enter Value at 0.001 greater than 0"},
                    Case{"Normal-B", {"1", "0"}, "Please Enter Value at 0.999 greater than 0"},
                    Case{"Normal-B", {"2", "2"}, "Please Enter Value at 0.001 less than Value at 0.999"}));

INSTANTIATE_TEST_SUITE_P(
    WithBounds, Fault,
    testing::Values(
        Case{"Truncated Normal", {"1", "1", "", ""}, "Please Enter Value for Lower Quantile"},
        Case{"Truncated Normal", {"1", "0", "1", ""}, "Please Enter Value for Upper Quantile"},
        Case{"Truncated Normal", {"1", "0", "0.1", "0.9"}, "Please enter Positive Value for Standard Deviation"},
        Case{"Truncated Normal", {"1", "1", "0.1", "1"}, "Please enter value less than 1 for Upper Qunatile"},
        Case{"Truncated Normal",
             {"1", "1", "0.5", "0.5"},
             "The value of UpperQuantile must be greater than LowerQuantile"},
        Case{"Truncated Normal", {"1", "1", "0", "0.9"}, "Please Enter Value for Lower Bounds between 0.0 and 1.0"},
        Case{"Truncated Normal", {"1", "1", "-2", "-1"}, "Please Enter Value for Lower Bounds between 0.0 and 1.0"},
        Case{"Bounded Normal", {"1", "1", "", "1"}, "Please Enter Value for Lower Point Value"},
        Case{"Bounded Normal", {"1", "1", "1", ""}, "Please Enter Value for Upper Point Value"},
        Case{"Bounded Normal", {"1", "0", "1", "2"}, "Please enter Positive Value for Standard Deviation"},
        Case{"Bounded Normal",
             {"1", "1", "2", "2"},
             "The Value of Upper Point Value must be greater than Lower Point Value"},
        Case{"Bounded Lognormal", {"1", "1", "", "1"}, "Please Enter Value for Lower Bounds"},
        Case{"Bounded Lognormal", {"1", "1", "1", ""}, "Please Enter Value for Upper Bounds"},
        Case{"Bounded Lognormal", {"1", "2", "1", "2"}, "Please Enter Value for Mean greater than 1"},
        Case{"Bounded Lognormal", {"2", "1", "1", "2"}, "Please enter Value for Error Factor greater than 1"},
        Case{"Bounded Lognormal", {"2", "2", "0", "2"}, "Please Enter Value for Lower Bounds greater than 0"},
        Case{"Bounded Lognormal", {"2", "2", "1", "0"}, "Please Enter Value for Upper Bounds greater than 0"},
        Case{"Bounded Lognormal", {"2", "2", "3", "2"}, "The Value of Upper Bounds must be greater than Lower Bounds"},
        Case{"Bounded Lognormal-N", {"1", "0", "1", "2"}, "Please enter Value for Standard Deviation greater than 0"},
        Case{"Truncated Lognormal", {"2", "2", "", "0.5"}, "Please Enter Value for Lower Quantile"},
        Case{"Truncated Lognormal", {"2", "2", "0", "0.5"}, "Please Enter Value for Lower Bounds between 0.0 and 1.0"},
        Case{"Truncated Lognormal", {"2", "2", "0.5", "1"}, "Please Enter Value for Upper Bounds between 0.0 and 1.0"},
        Case{"Truncated Lognormal",
             {"2", "2", "0.6", "0.5"},
             "The Value of Upper Bounds must be greater than Lower Bounds"},
        Case{"Truncated Lognormal-N",
             {"2", "0", "0.1", "0.5"},
             "Please enter Value for Standard Deviation greater than 0"},
        Case{"Triangular", {"1", "", "2"}, "Please enter Value for Apex"},
        Case{"Triangular",
             {"2", "1", "3"},
             "In a triangular distribution the lower bound must be less than or equal to the apex and less than the "
             "upper bound"},
        Case{"Triangular",
             {"2", "2", "2"},
             "In a triangular distribution the lower bound must be less than or equal to the apex and less than the "
             "upper bound"},
        Case{"Triangular", {"1", "2", "2"}, "In a triangular distribution the apex must be less than the upper bound"},
        Case{"Beta", {"", "1", "1", "1"}, "Please Enter Value for Lower Bound"},
        Case{"Beta", {"0", "", "1", "1"}, "Please enter Value for Upper Bound"},
        Case{"Beta", {"0", "1", "0.001", "1"}, "Please Enter Value for Shape Factor p greater than 0.001"},
        Case{"Beta", {"0", "1", "1", ""}, "Please Enter Value for Shape Factor q greater than 0.001"},
        Case{"Beta", {"-1", "1", "1", "1"}, "Lower Bound for Beta distribution cannot be negative"},
        Case{"Beta", {"1", "1", "1", "1"}, "The Value of Upper Bound must be greater than Lower Bound"},
        Case{"Hypergeometric", {"0", "", "1"}, "Please enter Value for Defective Items"},
        Case{"Hypergeometric", {"0", "1", "1"}, "Please enter Positive Value for Total Population"},
        Case{"Hypergeometric", {"1", "0", "1"}, "Please enter Positive Value for Defective Items"},
        Case{"Hypergeometric", {"1", "1", "-1"}, "Please enter Positive Value for Sample Size"},
        Case{"Maximum Entropy",
             {"2", "2", "3"},
             "In a Maximum Entropy distribution, the Lower bound must be less than mean and less than Upper bound"},
        Case{"Maximum Entropy",
             {"1", "3", "3"},
             "In a Maximum Entropy distribution, the Mean must be less than Upper bound"}));

}  // namespace
}  // namespace kestra
