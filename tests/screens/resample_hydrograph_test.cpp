#include "screens/resample_hydrograph.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "base/runtime_fault.h"

namespace kestra {
namespace {

struct ResampleCase {
  const char* what;
  double step;
  HydrographPoints points;
  double wantedStep;
  std::vector<double> wantedFlows;
};

class Resampled : public testing::TestWithParam<ResampleCase> {};

TEST_P(Resampled, standsOnTheLinesBetweenThePoints) {
  const ResampledHydrograph result = resampleHydrograph(GetParam().step, GetParam().points);
  EXPECT_DOUBLE_EQ(result.step, GetParam().wantedStep) << GetParam().what;
  ASSERT_EQ(result.flows.size(), GetParam().wantedFlows.size()) << GetParam().what;
  for (std::size_t i = 0; i < result.flows.size(); ++i) {
    EXPECT_NEAR(result.flows[i], GetParam().wantedFlows[i], 1e-9) << GetParam().what << ", point " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Hydrographs, Resampled,
    testing::Values(ResampleCase{"halves", 0.5, {{0, 1, 2}, {0, 10, 4}}, 0.5, {0, 5, 10, 7, 4}},
                    ResampleCase{"a start that is not 0", 1, {{3, 5}, {0, 20}}, 1, {0, 10, 20}},
                    ResampleCase{"uneven steps", 1, {{0, 0.5, 3}, {0, 10, 60}}, 1, {0, 20, 40, 60}},
                    ResampleCase{"a last step of 0.49, extrapolated", 1, {{0, 1, 1.49}, {0, 10, 14.9}}, 1, {0, 10, 20}},
                    ResampleCase{"a last step of 0.48, left out", 1, {{0, 1, 1.48}, {0, 10, 14.8}}, 1, {0, 10}},
                    ResampleCase{"a time that is there twice", 1, {{0, 1, 1, 2}, {0, 10, 30, 40}}, 1, {0, 10, 40}},
                    ResampleCase{"times a millionth apart", 1, {{0, 1, 1.0000005, 2}, {0, 10, 30, 40}}, 1, {0, 10, 40}},
                    ResampleCase{"a time just short of a point", 1, {{0, 1.0000005, 2}, {0, 10, 1}}, 1, {0, 10, 1}},
                    ResampleCase{"negative discharges", 1, {{0, 2}, {-4, 4}}, 1, {0, 0, 4}},
                    ResampleCase{"an end below zero", 1, {{0, 1, 1.5}, {0, 10, 0}}, 1, {0, 10, 0}},
                    ResampleCase{"a step that is too small", 0.0005, {{0, 0.0018}, {0, 2}}, 0.0009, {0, 1, 2}},
                    ResampleCase{"a negative step", -1, {{0, 0.0009}, {1, 2}}, 0.0009, {1, 2}},
                    ResampleCase{"one point", 1, {{7}, {9}}, 1, {9}}, ResampleCase{"no points", 1, {{}, {}}, 1, {}},
                    ResampleCase{"times that fall", 1, {{5, 0}, {1, 2}}, 1, {}}));

TEST(ResampleHydrograph, widensTheStepAboveSeventeenThousandPoints) {
  const HydrographPoints day = {{0, 24}, {0, 16999}};
  const ResampledHydrograph result = resampleHydrograph(0.001, day);
  EXPECT_DOUBLE_EQ(result.step, 24.0 / 16999);
  ASSERT_EQ(result.flows.size(), 17000U);
  EXPECT_NEAR(result.flows[8000], 8000, 1e-6);
  EXPECT_NEAR(result.flows.back(), 16999, 1e-6);
}

TEST(ResampleHydrograph, keepsTheStepUpToSeventeenThousandPoints) {
  const ResampledHydrograph result = resampleHydrograph(1, {{0, 16999}, {0, 1}});
  EXPECT_EQ(result.step, 1);
  EXPECT_EQ(result.flows.size(), 17000U);
}

std::string faultOf(double step, const HydrographPoints& points) {
  try {
    resampleHydrograph(step, points);
    return "";
  } catch (const RuntimeFault& fault) {
    return fault.what();
  }
}

TEST(ResampleHydrograph, overflowsWhenTheCountIsBeyondSixteenBits) {
  EXPECT_EQ(faultOf(1, {{0, 32766}, {0, 1}}), "");
  EXPECT_EQ(faultOf(1, {{0, 32767}, {0, 1}}), "Overflow: the time increment gives more than 32767 points.");
}

TEST(ResampleHydrograph, overflowsAtNumbersThatAreNotFinite) {
  const double infinite = std::numeric_limits<double>::infinity();
  const std::string wanted = "Overflow: a number is too large.";
  EXPECT_EQ(faultOf(infinite, {{0, 1}, {0, 1}}), wanted);
  EXPECT_EQ(faultOf(1, {{0, infinite}, {0, 1}}), wanted);
  EXPECT_EQ(faultOf(1, {{0, 1}, {-infinite, 1}}), wanted);
  EXPECT_EQ(faultOf(1, {{0, 1}, {std::numeric_limits<double>::quiet_NaN(), 1}}), wanted);
}

}  // namespace
}  // namespace kestra
