#include "hydraulics/grass_cover.h"

#include <gtest/gtest.h>

#include "engines/near.h"
#include "hydraulics/slope_stress.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

constexpr double kHalfPercent = 0.005;

TEST(GrassCovers, areThoseOfTheHandbook) {
  constexpr GrassCover kTable[] = {
      {"bermudagrass", 0.90, 500},       {"centipedegrass", 0.90, 500},   {"buffalograss", 0.87, 400},
      {"Kentucky bluegrass", 0.87, 350}, {"blue grama", 0.87, 350},       {"grass mixture", 0.75, 200},
      {"weeping lovegrass", 0.50, 350},  {"yellow bluestem", 0.50, 250},  {"alfalfa", 0.50, 500},
      {"lespedeza sericea", 0.50, 300},  {"common lespedeza", 0.50, 150}, {"sudangrass", 0.50, 50}};
  ASSERT_EQ(kGrassCovers.size(), std::size(kTable));
  for (std::size_t i = 0; i < kGrassCovers.size(); ++i) {
    EXPECT_EQ(kGrassCovers[i].name, kTable[i].name);
    EXPECT_EQ(kGrassCovers[i].coverFactor, kTable[i].coverFactor) << kTable[i].name;
    EXPECT_EQ(stemsOf(kGrassCovers[i], Stand::good), kTable[i].stems) << kTable[i].name;
  }
}

TEST(StemsOf, goByThirdsOfAGoodStand) {
  const GrassCover mixture = kGrassCovers[5];
  EXPECT_DOUBLE_EQ(stemsOf(mixture, Stand::poor), 200.0 / 3);
  EXPECT_DOUBLE_EQ(stemsOf(mixture, Stand::fair), 400.0 / 3);
  EXPECT_DOUBLE_EQ(stemsOf(mixture, Stand::veryGood), 800.0 / 3);
  EXPECT_DOUBLE_EQ(stemsOf(mixture, Stand::excellent), 1000.0 / 3);
}

// The classes by the lengths of stems of good bermudagrass.
TEST(RetardanceIndex, givesTheClassesForLongAndShortGrass) {
  EXPECT_DOUBLE_EQ(retardanceIndex(4, 256), 10);
  expectWithin(retardanceIndex(0.5, 500), 5.60, kHalfPercent);
  expectWithin(retardanceIndex(0.25, 500), 4.44, kHalfPercent);
  EXPECT_EQ(retardanceIndex(0, 500), 0);
}

TEST(EnduranceHours, areThoseOfTheWorkIndex) {
  struct Row {
    double metres;  // a second
    double good, average, poor;
    double lastDigit;
  };
  constexpr Row kRows[] = {{2.0, 63.0, 11.0, 3.8, 0.1},
                           {2.5, 14.0, 4.7, 1.9, 0.1},
                           {3.0, 6.5, 2.6, 1.1, 0.1},
                           {3.5, 3.7, 1.6, 0.67, 0.1},
                           {4.0, 2.35, 1.03, 0.45, 0.01}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.metres);
    const double feet = row.metres / 0.3048;
    expectWithin(enduranceHours(GrassQuality::good, feet), row.good, kHalfPercent, row.lastDigit);
    expectWithin(enduranceHours(GrassQuality::average, feet), row.average, kHalfPercent, row.lastDigit);
    expectWithin(enduranceHours(GrassQuality::poor, feet), row.poor, kHalfPercent, row.lastDigit);
  }
}

TEST(EnduranceHours, haveNoEndBelowTheLimit) {
  EXPECT_TRUE(std::isinf(enduranceHours(GrassQuality::good, 5.9)));
  EXPECT_TRUE(std::isinf(enduranceHours(GrassQuality::poor, 0)));
}

// Two models of different kind: within a factor of three is all that can be expected of them.
TEST(EnduranceHours, agreeWithTheStressOverTimeOfPatchyTurf) {
  SlopeCover turf;
  turf.slope = 1.0 / 3;
  turf.roughness = 5.6;
  turf.coverFactor = 0.9;
  turf.maintenanceCode = 2;
  for (const double q : {2.0, 4.0, 8.0}) {
    const SlopeFlow flow = slopeFlow(turf, q);
    const double hours = stressTimeLimit(15, 0) / flow.effectiveStress;
    EXPECT_LT(hours, 3 * enduranceHours(GrassQuality::good, flow.velocity)) << q;
    EXPECT_GT(hours, enduranceHours(GrassQuality::average, flow.velocity) / 3) << q;
  }
}

}  // namespace
}  // namespace kestra
