#include "results/round_to.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestra {
namespace {

TEST(RoundTo, roundsHalvesToTheEvenDigitAndWritesGeneralText) {
  const struct {
    double value;
    int digits;
    const char* text;
  } kCases[] = {{0.5, 0, "0"},
                {1.5, 0, "2"},
                {2.5, 0, "2"},
                {-0.5, 0, "0"},
                {-1.5, 0, "-2"},
                {-2.5, 0, "-2"},
                {0.125, 2, "0.12"},
                {0.375, 2, "0.38"},
                {2.51, 0, "3"},
                {2.49, 0, "2"},
                {12, 1, "12"},
                {12.05, 1, "12"},
                {148.26, 1, "148.3"},
                {-0.04, 1, "0"},
                {1e300, 2, "1E+300"},
                {1234.5678, -2, "1200"},
                {1250, -2, "1200"},
                {1350, -2, "1400"},
                {0.1, 400, "0.1"},
                {7, -400, "0"},
                {1234567.891, 2, "1234567.89"},
                {99999999999.5, 0, "100000000000"}};
  for (const auto& each : kCases) EXPECT_EQ(RoundTo(each.value, each.digits), each.text) << each.value;
}

TEST(RoundTo, leavesWhatIsNoNumber) {
  EXPECT_EQ(RoundTo(std::numeric_limits<double>::infinity(), 2), "INF");
  EXPECT_EQ(RoundTo(std::numeric_limits<double>::quiet_NaN(), 2), "NAN");
}

}  // namespace
}  // namespace kestra
