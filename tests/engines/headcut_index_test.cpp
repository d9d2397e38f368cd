#include "hydraulics/headcut_index.h"

#include <gtest/gtest.h>

#include "engines/near.h"

namespace kestra {
namespace {

constexpr double kHalfPercent = 0.005;

TEST(MassStrength, ofSoilIsThatOfTheHandbook) {
  const std::pair<SoilStrength, double> rows[] = {{SoilStrength::verySoft, 0.02},
                                                  {SoilStrength::soft, 0.04},
                                                  {SoilStrength::firm, 0.09},
                                                  {SoilStrength::stiff, 0.19},
                                                  {SoilStrength::veryStiff, 0.41}};
  for (const auto& [soil, strength] : rows) EXPECT_EQ(massStrength(soil), strength);
}

struct RockRow {
  double from, to;  // MPa
  double strength;
};
constexpr RockRow kRocks[] = {{1.25, 1.7, 0.87}, {1.7, 3.3, 1.86},   {3.3, 6.6, 3.95},
                              {6.6, 13.2, 8.39}, {13.2, 26.4, 17.7}, {26.4, 53, 35},
                              {53, 106, 70},     {106, 212, 140},    {212, 500, 280}};

TEST(MassStrength, ofRockIsThatOfItsClass) {
  for (const RockRow& rock : kRocks) {
    EXPECT_EQ(massStrength(rock.from), rock.strength);
    EXPECT_EQ(massStrength(0.5 * (rock.from + rock.to)), rock.strength);
    EXPECT_EQ(massStrength(rock.to * 0.999), rock.strength);
  }
}

TEST(MassStrength, ofRockFollowsItsCurve) {
  EXPECT_DOUBLE_EQ(massStrength(1.0), massStrengthCurve(1.0));
  EXPECT_DOUBLE_EQ(massStrengthCurve(1), 0.78);
  EXPECT_DOUBLE_EQ(massStrengthCurve(80), 80);
  for (const RockRow& rock : kRocks) {
    if (rock.to > 212) continue;
    const double onCurve = massStrengthCurve(std::sqrt(rock.from * rock.to));
    EXPECT_LT(rock.strength, onCurve);
    EXPECT_GT(rock.strength, 0.7 * onCurve);
  }
}

TEST(HeadcutIndex, ofAFirmClayFillIsASmallFraction) {
  const HeadcutIndex clay{massStrength(SoilStrength::firm), 1, std::tan(27 * std::acos(-1.0) / 180), 1};
  expectWithin(clay.value(), 0.046, kHalfPercent, 0.001);
}

TEST(ThresholdOfIndex, isThatOfThePublishedCurve) {
  struct Row {
    double index, printed, drawn, advance, product;  // the constant 3.23, 3.2, C, q H
  };
  constexpr Row kRows[] = {{0.01, 0.000, 0.000, 6.678, 0.0},       {0.02, 0.647, 0.656, 6.130, 0.3},
                           {0.05, 1.792, 1.803, 5.407, 5.8},       {0.1, 2.454, 2.465, 4.859, 14.8},
                           {0.2, 3.067, 3.078, 4.311, 28.9},       {0.5, 3.885, 3.895, 3.588, 58.7},
                           {1, 4.545, 4.555, 3.040, 93.9},         {2, 5.259, 5.269, 2.492, 145.5},
                           {5, 6.312, 6.323, 1.769, 251.5},        {10, 7.209, 7.220, 1.221, 374.7},
                           {18.2, 8.065, 8.076, 0.748, 524.7},     {20, 8.208, 8.218, 0.750, 552.9},
                           {50, 9.708, 9.720, 0.750, 915.0},       {100, 11.001, 11.013, 0.750, 1331.4},
                           {200, 12.450, 12.462, 0.750, 1929.6},   {500, 14.638, 14.651, 0.750, 3136.3},
                           {1000, 16.529, 16.543, 0.750, 4515.7},  {5000, 21.863, 21.880, 0.750, 10450.3},
                           {10000, 24.641, 24.659, 0.750, 14962.3}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.index);
    expectWithin(thresholdOfIndex(row.index, 3.23), row.printed, 0, 0.001);
    expectWithin(thresholdOfIndex(row.index), row.drawn, 0, 0.001);
    expectWithin(advanceOfIndex(row.index), row.advance, 0, 0.001);
    expectWithin(std::pow(thresholdOfIndex(row.index, 3.23), 3), row.product, kHalfPercent, 0.1);
  }
}

TEST(ThresholdOfIndex, isNothingForWhatHasNoStrength) {
  for (const double index : {-1.0, 0.0, 0.0099}) EXPECT_EQ(thresholdOfIndex(index), 0);
}

TEST(AdvanceOfIndex, hardlyJumpsWhereItBecomesConstant) {
  EXPECT_NEAR(advanceOfIndex(18.2), advanceOfIndex(18.3), 0.003);
}

}  // namespace
}  // namespace kestra
