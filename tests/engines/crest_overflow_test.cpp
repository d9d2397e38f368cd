#include "hydraulics/crest_overflow.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engines/close_to.h"
#include "hydraulics/weir_submergence.h"

namespace kestra {
namespace {

struct HeadRow {
  double q;
  double frictionless;
  double n02, coefficient02;
  double n04, coefficient04;
  double grass, coefficientGrass;
};

class HeadOverCrest : public testing::TestWithParam<HeadRow> {};

TEST_P(HeadOverCrest, isThatOfAFourteenFootCrest) {
  const HeadRow& row = GetParam();
  const auto head = [&](double roughness) { return headOverCrest({14, roughness, 0, 0.03}, row.q); };
  EXPECT_TRUE(isClose(head(1e-4), row.frictionless));
  EXPECT_TRUE(isClose(head(0.02), row.n02));
  EXPECT_TRUE(isClose(head(0.04), row.n04));
  EXPECT_TRUE(isClose(head(5.6), row.grass));
  EXPECT_TRUE(isClose(row.q / std::pow(head(0.02), 1.5), row.coefficient02));
  EXPECT_TRUE(isClose(row.q / std::pow(head(0.04), 1.5), row.coefficient04));
  EXPECT_TRUE(isClose(row.q / std::pow(head(5.6), 1.5), row.coefficientGrass));
}

INSTANTIATE_TEST_SUITE_P(Table, HeadOverCrest,
                         testing::Values(HeadRow{0.25, 0.1872, 0.2339, 2.210, 0.2859, 1.636, 0.5460, 0.620},
                                         HeadRow{0.5, 0.2971, 0.3478, 2.437, 0.4116, 1.894, 0.6187, 1.027},
                                         HeadRow{1, 0.4716, 0.5249, 2.630, 0.6006, 2.148, 0.7470, 1.549},
                                         HeadRow{2, 0.7486, 0.8029, 2.780, 0.8897, 2.383, 0.9730, 2.084},
                                         HeadRow{4, 1.1884, 1.2420, 2.890, 1.3377, 2.585, 1.3650, 2.508},
                                         HeadRow{8, 1.8865, 1.9380, 2.965, 2.0396, 2.746, 2.0252, 2.776}));

TEST(HeadOverCrest, growsALittleByTheFrictionOfTheUpstreamSlope) {
  const double level = headOverCrest({14, 0.04, 0, 0.03}, 2);
  const double sloped = headOverCrest({14, 0.04, 3, 0.04}, 2);
  EXPECT_GT(sloped, level);
  EXPECT_LT(sloped, 1.02 * level);
}

TEST(UnitDischarge, givesBackTheHeadsThatItWasMadeFrom) {
  const CrestSurface surface{14, 5.6, 3, 5.6};
  const UnitDischarge curve = UnitDischarge::fromSurface(surface, 10);
  for (const double q : {0.01, 0.1, 0.3, 1.0, 3.0, 30.0}) {
    EXPECT_TRUE(isClose(curve.at(headOverCrest(surface, q)), q)) << q;
  }
}

TEST(UnitDischarge, integratesWhatItGives) {
  for (const UnitDischarge& curve :
       {UnitDischarge::fromCoefficient(3.0), UnitDischarge::fromSurface({20, 0.04, 3, 0.04}, 8)}) {
    double sum = 0;
    constexpr int kSlices = 40000;
    for (int i = 0; i < kSlices; ++i) sum += curve.at(5.0 * (i + 0.5) / kSlices) * 5.0 / kSlices;
    EXPECT_TRUE(isClose(curve.integral(5.0), sum, 1e-6));
  }
}

CrestOverflow straight(double left, double right) {
  return {{{0, left}, {200, right}}, UnitDischarge::fromCoefficient(2.8)};
}

TEST(CrestOverflow, overALevelCrestIsAWeir) {
  EXPECT_TRUE(isClose(straight(100, 100).discharge(102, 0, {}), 2.8 * 200 * std::pow(2, 1.5), 1e-9));
}

TEST(CrestOverflow, overASlopingCrestIsTheIntegral) {
  const double expected = 2.8 * 200 * 0.4 * (std::pow(3, 2.5) - std::pow(1, 2.5)) / 2;
  EXPECT_TRUE(isClose(straight(100, 102).discharge(103, 0, {}), expected, 1e-9));
  EXPECT_TRUE(isClose(straight(102, 100).discharge(103, 0, {}), expected, 1e-9));
}

TEST(CrestOverflow, clipsTheDryPart) {
  // Of a rise of 4 ft over 200 ft the lower 50 ft are under water.
  const double expected = 2.8 * 50 * 0.4 * std::pow(1, 2.5) / 1;
  EXPECT_TRUE(isClose(straight(100, 104).discharge(101, 0, {}), expected, 1e-9));
  EXPECT_EQ(straight(100, 104).discharge(100, 0, {}), 0);
}

TEST(CrestOverflow, leavesOutTheGap) {
  const CrestOverflow crest = straight(100, 100);
  EXPECT_TRUE(isClose(crest.discharge(102, 0, {50, 90}), 2.8 * 160 * std::pow(2, 1.5), 1e-9));
  EXPECT_EQ(crest.discharge(102, 0, crest.gapOfWidth(200)), 0);
  EXPECT_EQ(crest.discharge(102, 0, crest.gapOfWidth(1e9)), 0);
}

TEST(CrestOverflow, opensTheGapAroundTheLowestPartAndInsideTheDam) {
  const CrestOverflow crest({{0, 105}, {20, 100}, {40, 100}, {300, 104}}, UnitDischarge::fromCoefficient(3));
  EXPECT_EQ(crest.lowest(), 100);
  const CrestGap small = crest.gapOfWidth(10);
  EXPECT_EQ(small.from, 25);
  EXPECT_EQ(small.to, 35);
  const CrestGap wide = crest.gapOfWidth(100);
  EXPECT_EQ(wide.from, 0);
  EXPECT_EQ(wide.to, 100);
}

TEST(CrestOverflow, isReducedByTailwaterAboveIt) {
  const CrestOverflow crest = straight(100, 100);
  const double free = crest.discharge(102, 99, {});
  EXPECT_EQ(crest.discharge(102, 101, {}), free);
  EXPECT_TRUE(isClose(crest.discharge(102, 101.8, {}), free * (1 - 27.8 * std::pow(0.9 - 0.67, 3)), 1e-9));
  EXPECT_EQ(crest.discharge(102, 102, {}), 0);
  const CrestOverflow sloping = straight(100, 102);
  EXPECT_LT(sloping.discharge(103, 102.8, {}), sloping.discharge(103, 0, {}));
}

TEST(SubmergenceFactor, fallsFromOneToNothing) {
  EXPECT_EQ(submergenceFactor(2, -5), 1);
  EXPECT_EQ(submergenceFactor(2, 1.34), 1);
  EXPECT_TRUE(isClose(submergenceFactor(1, 0.87), 1 - 27.8 * 0.008, 1e-9));
  EXPECT_EQ(submergenceFactor(2, 2), 0);
  EXPECT_EQ(submergenceFactor(0, -1), 0);
}

}  // namespace
}  // namespace kestra
