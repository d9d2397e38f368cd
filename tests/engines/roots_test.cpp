#include "hydraulics/roots.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(SolveIncreasing, findsRootsOfSmoothAndOfJumpingFunctions) {
  EXPECT_NEAR(solveIncreasing([](double x) { return x * x * x - 2; }, 0, 5, 1e-12), std::cbrt(2.0), 1e-10);
  EXPECT_NEAR(solveIncreasing([](double x) { return x < 1.25 ? -1e-9 : 1e9; }, 0, 5, 1e-12), 1.25, 1e-9);
}

TEST(SolveIncreasing, givesTheNearerEndWithoutARootBetween) {
  EXPECT_EQ(solveIncreasing([](double x) { return x + 1; }, 0, 5, 1e-12), 0);
  EXPECT_EQ(solveIncreasing([](double x) { return x - 9; }, 0, 5, 1e-12), 5);
}

TEST(SolveIncreasing, needsFewCallsForASmoothFunction) {
  int calls = 0;
  const auto f = [&](double x) {
    ++calls;
    return x * std::sqrt(x) - 7;
  };
  EXPECT_NEAR(solveIncreasing(f, 0, 100, 1e-9), std::pow(7, 2.0 / 3), 1e-8);
  EXPECT_LT(calls, 40);
}

TEST(BracketAbove, doublesUntilItIsThere) {
  EXPECT_EQ(bracketAbove([](double x) { return x - 100; }, 1), 128);
}

}  // namespace
}  // namespace kestra
