#include "hydraulics/earth_spillway.h"

#include <gtest/gtest.h>

#include "engines/close_to.h"

namespace kestra {
namespace {

// A level crest of 50 ft, 100 ft wide, side slopes 3:1, and an exit channel of that slope.
EarthSpillway levelCrestOf50(double exitSlope, double roughness) {
  EarthSpillway spillway;
  spillway.section = {100, 3};
  spillway.profile = {{0, 500}, {50, 500}, {450, 500 - 400 * exitSlope}};
  spillway.reaches = {{0, 450, roughness}};
  return spillway;
}

struct CrestRow {
  double discharge;
  double manning;
  double grass;
};

class CrestHead : public testing::TestWithParam<CrestRow> {};

TEST_P(CrestHead, isTheEnergyThatFlowOverTheLevelCrestNeeds) {
  const CrestRow& row = GetParam();
  // Steep enough for control at the edge under either cover.
  EXPECT_TRUE(isClose(poolOfSpillway(levelCrestOf50(0.2, 0.04), row.discharge) - 500, row.manning));
  EXPECT_TRUE(isClose(poolOfSpillway(levelCrestOf50(0.2, 5.6), row.discharge) - 500, row.grass));
}

INSTANTIATE_TEST_SUITE_P(Table, CrestHead,
                         testing::Values(CrestRow{100, 0.7223, 0.9577}, CrestRow{500, 1.6996, 1.7337},
                                         CrestRow{1000, 2.5044, 2.4631}, CrestRow{3000, 4.7121, 4.5979},
                                         CrestRow{5000, 6.3438, 6.2186}));

TEST(Spillway, isDrownedByAnExitChannelThatIsMildForItsFlow) {
  // With grass 0.51 ft deep in the channel against 0.31 ft of critical depth.
  const double drowned = poolOfSpillway(levelCrestOf50(0.03, 5.6), 100) - 500;
  EXPECT_GT(drowned, 0.9577 * 1.005);
  // The same channel is steep for 1,000 cfs.
  EXPECT_TRUE(isClose(poolOfSpillway(levelCrestOf50(0.03, 5.6), 1000) - 500, 2.4631));
}

TEST(Spillway, inALongLevelChannelRunsOutAtCriticalDepth) {
  EarthSpillway spillway = levelCrestOf50(0.2, 0.03);
  spillway.profile = {{0, 500}, {50, 500}};
  EXPECT_GT(poolOfSpillway(spillway, 500) - 500, 1.3546);
}

TEST(Spillway, losesEnergyInItsInletChannel) {
  EarthSpillway spillway = levelCrestOf50(0.2, 0.04);
  spillway.profile.insert(spillway.profile.begin(), {-200, 496});
  const double pool = poolOfSpillway(spillway, 1000);
  EXPECT_GT(pool, poolOfSpillway(levelCrestOf50(0.2, 0.04), 1000));
  EXPECT_LT(pool, 500 + 2.5044 + 0.3);
}

TEST(Spillway, takesTheNearestCoverWhereNoneIsGiven) {
  EarthSpillway spillway = levelCrestOf50(0.2, 0.04);
  spillway.reaches = {{0, 20, 0.05}, {100, 200, 0.03}};
  EXPECT_EQ(roughnessAt(spillway, 10), 0.05);
  EXPECT_EQ(roughnessAt(spillway, 50), 0.05);
  EXPECT_EQ(roughnessAt(spillway, 90), 0.03);
  EXPECT_EQ(roughnessAt(spillway, 900), 0.03);
}

TEST(LevelCrest, isTheHighestPartOfTheProfile) {
  EarthSpillway spillway;
  spillway.profile = {{0, 90}, {100, 100}, {130, 100.002}, {150, 100}, {300, 80}};
  const LevelCrest crest = levelCrest(spillway);
  EXPECT_EQ(crest.elevation, 100.002);
  EXPECT_EQ(crest.last, 3U);
}

TEST(RateSpillway, passesThroughTheProfilesOfItsDischarges) {
  const EarthSpillway spillway = levelCrestOf50(0.03, 5.6);
  const RatingCurve rating = rateSpillway(spillway, 508);
  EXPECT_EQ(rating.lowest(), 500);
  EXPECT_EQ(rating.at(500), 0);
  for (const double discharge : {10.0, 50.0, 100.0, 400.0, 1000.0, 5000.0}) {
    EXPECT_TRUE(isClose(rating.at(poolOfSpillway(spillway, discharge)), discharge, 0.02)) << discharge;
  }
}

}  // namespace
}  // namespace kestra
