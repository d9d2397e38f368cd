#include "hydraulics/rating_curve.h"

#include <gtest/gtest.h>

#include <cmath>

#include "hydraulics/linear_table.h"

namespace kestra {
namespace {

TEST(RatingCurve, isStraightBetweenRowsAndBeyondTheLast) {
  const RatingCurve curve({100, 101, 103}, {0, 10, 50}, RatingCurve::Shape::straight);
  EXPECT_EQ(curve.at(99), 0);
  EXPECT_EQ(curve.at(100), 0);
  EXPECT_EQ(curve.at(100.5), 5);
  EXPECT_EQ(curve.at(102), 30);
  EXPECT_EQ(curve.at(104), 70);
}

TEST(RatingCurve, ofAWeirIsExactBetweenItsRows) {
  const RatingCurve curve({0, 1, 4}, {0, 3, 24}, RatingCurve::Shape::weir);
  EXPECT_NEAR(curve.at(2.25), 3 * std::pow(2.25, 1.5), 1e-9);
  EXPECT_NEAR(curve.at(9), 3 * 27, 1e-9);
}

TEST(RatingCurve, withoutRowsIsNothing) {
  EXPECT_TRUE(RatingCurve().empty());
  EXPECT_EQ(RatingCurve().at(1e6), 0);
}

TEST(LinearTable, holdsItsEndValues) {
  const LinearTable table({1, 2, 4}, {10, 20, 0});
  EXPECT_EQ(table.at(0), 10);
  EXPECT_EQ(table.at(1.5), 15);
  EXPECT_EQ(table.at(3), 10);
  EXPECT_EQ(table.at(9), 0);
  EXPECT_EQ(LinearTable().at(3), 0);
}

TEST(IntervalOf, findsTheIntervalOrTheNearestOne) {
  const double x[] = {1, 2, 4, 8};
  EXPECT_EQ(intervalOf(x, 0), 0U);
  EXPECT_EQ(intervalOf(x, 2), 1U);
  EXPECT_EQ(intervalOf(x, 3.9), 1U);
  EXPECT_EQ(intervalOf(x, 8), 2U);
  EXPECT_EQ(intervalOf(x, 99), 2U);
}

}  // namespace
}  // namespace kestra
