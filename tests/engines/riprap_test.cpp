#include "hydraulics/riprap.h"

#include <gtest/gtest.h>

#include "engines/near.h"

namespace kestra {
namespace {

constexpr double kHalfPercent = 0.005;

TEST(ChuteAllowable, isThatOfThePublishedTests) {
  constexpr double kInches[] = {3, 6, 9, 12};
  struct Row {
    double slope;
    double discharge[4];  // cfs/ft, by median size
  };
  constexpr Row kRows[] = {
      {0.02, {13.39, 49.64, 106.82, 183.99}}, {0.05, {3.39, 12.56, 27.02, 46.55}}, {0.08, {1.67, 6.21, 13.35, 23.00}},
      {0.0999, {1.20, 4.45, 9.57, 16.48}},    {0.10, {1.19, 4.42, 9.50, 16.37}},   {0.20, {0.80, 2.95, 6.36, 10.95}},
      {0.3333, {0.59, 2.20, 4.73, 8.14}},     {0.40, {0.53, 1.98, 4.25, 7.33}},
  };
  for (const Row& row : kRows) {
    for (int i = 0; i < 4; ++i) {
      SCOPED_TRACE(std::to_string(row.slope) + " " + std::to_string(kInches[i]));
      expectWithin(chuteAllowable(kInches[i] / 12, row.slope), row.discharge[i], kHalfPercent, 0.01);
    }
  }
}

// The same relation in metres has the constant 0.55.
TEST(EmbankmentSurfaceAllowable, isTheSameInFeetAsInMetres) {
  const Riprap rock = {2.1, 0.6 / 0.3048, 0, 0};
  const double slope = 0.4;
  const double angle = std::atan(slope);
  const double geometry =
      std::sin(angle) / ((kRockGravity * std::cos(angle) - 1) * (std::cos(angle) * kTangentOfRepose - std::sin(angle)));
  const double perFlow = 0.55 / (std::pow(2.1, 0.25) * std::pow(slope, 0.75)) * std::pow(geometry, 1.11);
  const double metric = std::pow(0.6 / perFlow, 1 / 0.52);  // m^2/s
  expectWithin(embankmentSurfaceAllowable(rock, slope), metric / (0.3048 * 0.3048), kHalfPercent);
}

TEST(EmbankmentSurfaceAllowable, isNothingWhereRockWouldNotLie) {
  for (double slope : {0.9005, 1.0, 5.0, 20.0}) EXPECT_EQ(embankmentSurfaceAllowable(Riprap{}, slope), 0) << slope;
  EXPECT_GT(embankmentSurfaceAllowable(Riprap{}, 0.9), 0);
}

TEST(InterstitialFlow, goesThroughThePoresOfTheLayer) {
  const Riprap rock = {1, 1, 2, 0.4};
  EXPECT_NEAR(interstitialFlow(rock, 1), 0.4 * 2 * 2.48 * std::sqrt(32.17), 1e-9);
  EXPECT_EQ(interstitialFlow({1.75, 1, 0, 0.4}, 0.3), 0);
  EXPECT_EQ(interstitialFlow({1.75, 1, 2, 0}, 0.3), 0);
}

TEST(RiprapAllowable, findsChuteAndEmbankmentInAgreementOnAThirdOfASlope) {
  const Riprap rock = {1.75, 1, 2, 0.45};
  const double embankment = embankmentSurfaceAllowable(rock, 1.0 / 3) + interstitialFlow(rock, 1.0 / 3);
  expectWithin(embankment, chuteAllowable(1, 1.0 / 3), 0.15);
}

TEST(RiprapAllowable, isNoMoreThanAChuteBears) {
  const Riprap thick = {1, 1, 10, 0.5};
  EXPECT_DOUBLE_EQ(riprapAllowable(thick, 0.40), chuteAllowable(1, 0.40));
  EXPECT_DOUBLE_EQ(riprapAllowable(thick, 0.41), chuteAllowable(1, 0.40)) << "the steepest that was tested";
  EXPECT_EQ(riprapAllowable(thick, 2), 0);
  const Riprap thin = {1.75, 1, 0.5, 0.4};
  EXPECT_DOUBLE_EQ(riprapAllowable(thin, 0.6), embankmentSurfaceAllowable(thin, 0.6) + interstitialFlow(thin, 0.6));
}

TEST(RiprapAllowable, neverGrowsWithSmallerRockASteeperSlopeOrAThinnerLayer) {
  for (double slope = 0.02; slope < 0.6; slope += 0.01) {
    for (double median = 0.1; median < 3; median *= 1.3) {
      const Riprap rock = {1.75, median, 2 * median, 0.4};
      EXPECT_LE(riprapAllowable(rock, slope), riprapAllowable({1.75, median * 1.1, 2 * median, 0.4}, slope));
      EXPECT_LE(riprapAllowable({1.75, median, median, 0.4}, slope), riprapAllowable(rock, slope));
      EXPECT_LE(riprapAllowable(rock, slope + 0.01), riprapAllowable(rock, slope)) << slope;
    }
  }
}

}  // namespace
}  // namespace kestra
