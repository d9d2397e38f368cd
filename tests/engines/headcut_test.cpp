#include "hydraulics/headcut.h"

#include <gtest/gtest.h>

#include "engines/near.h"
#include "hydraulics/physical_constants.h"
#include "hydraulics/soil_erodibility.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

constexpr double kHalfPercent = 0.005;

TEST(OverfallStress, isThatOfThePublishedForms) {
  struct Row {
    double q, height, critical, peak, face, energy;
  };
  constexpr Row kRows[] = {
      {1, 5, 0.314, 1.559, 0.686, 1.710},   {5, 5, 0.919, 2.911, 1.281, 2.924},    {5, 10, 0.919, 3.889, 1.711, 3.684},
      {20, 10, 2.317, 6.660, 2.930, 5.848}, {20, 30, 2.317, 10.542, 4.638, 8.434},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::to_string(row.q) + " over " + std::to_string(row.height));
    expectWithin(criticalDepth(row.q), row.critical, kHalfPercent);
    expectWithin(overfallStress(kPeakOverfallStress, row.height, row.q), row.peak, kHalfPercent);
    expectWithin(overfallStress(kFaceOverfallStress, row.height, row.q), row.face, kHalfPercent);
    expectWithin(energyAdvance(1, 0, row.q, row.height), row.energy, kHalfPercent);
  }
}

TEST(OverfallStress, isNoneWithoutAStepOrWater) {
  EXPECT_EQ(overfallStress(kPeakOverfallStress, 0, 5), 0);
  EXPECT_EQ(overfallStress(kPeakOverfallStress, -1, 5), 0);
  EXPECT_EQ(overfallStress(kPeakOverfallStress, 5, 0), 0);
}

TEST(SubmergedPart, fallsFromOneToNothingAsTheStepIsDrowned) {
  EXPECT_EQ(submergedPart(10, -3), 1);
  EXPECT_DOUBLE_EQ(submergedPart(10, 2.5), 0.75);
  EXPECT_EQ(submergedPart(10, 10), 0);
  EXPECT_EQ(submergedPart(10, 12), 0);
  EXPECT_EQ(submergedPart(0, 0), 0);
}

TEST(AdvanceFromWaterContent, isThatOfThePublishedRelation) {
  constexpr double kRows[][2] = {{8, 14.57}, {9, 6.77}, {10, 3.42}, {11, 1.84}, {12, 1.04}, {14, 0.383}, {16, 0.161}};
  for (const auto& [water, coefficient] : kRows) {
    SCOPED_TRACE(water);
    expectWithin(advanceFromWaterContent(water), coefficient, kHalfPercent, 0.01);
  }
}

// A flume with headcuts under 2 to 12.6 kW/m of stream power saw advances of 0 to 18.6 m/h.
TEST(EnergyAdvance, ofTestedFillsStaysWithinWhatAFlumeHasShown) {
  constexpr double kPoundFeetPerSecond = 1.3558;  // W
  for (double kilowatts : {2.0, 5.0, 12.6}) {
    const double dischargeTimesDrop = kilowatts * 1000 * 0.3048 / kPoundFeetPerSecond / kWaterUnitWeight;
    for (double water : {8.0, 10.0, 12.0, 16.0}) {
      const double rate = energyAdvance(advanceFromWaterContent(water), 0, dischargeTimesDrop / 7.5, 7.5);
      EXPECT_GT(rate, 0);
      EXPECT_LT(rate, 18.6 / 0.3048) << kilowatts << " kW/m, " << water << " %";
    }
  }
}

TEST(EnergyAdvance, isNothingUpToItsThreshold) {
  EXPECT_EQ(energyAdvance(2, 3.1, 27, 1), 0);
  EXPECT_DOUBLE_EQ(energyAdvance(2, 1, 27, 1), 4);
  EXPECT_EQ(energyAdvance(2, 0, 27, -1), 0);
}

TEST(AdvanceFromErodibility, liesBetweenTheBoundsThatAreKnownOfIt) {
  for (double erodibility : {0.01, 0.6, 5.8}) {
    EXPECT_GE(advanceFromErodibility(erodibility), erodibility);
    EXPECT_LE(advanceFromErodibility(erodibility), 3 * erodibility);
  }
}

TEST(StandingHeight, withoutWaterIsThatOfACrackedBank) {
  expectWithin(standingHeight({120, 900}, 0), 2.67 * 900 / 120, kHalfPercent);
  EXPECT_EQ(standingHeight({120, 0}, 5), 0);
}

// The block behind a crack of half the height: weight and water above it against the strength along a plane of 45
// degrees up to the foot of the crack.
TEST(StandingHeight, balancesTheBlock) {
  const BankStrength bank = {118, 800};
  for (double q : {0.0, 5.0, 60.0}) {
    const double h = standingHeight(bank, q);
    const double block = h / 2;
    const double weight =
        bank.unitWeight * (block * h - block * block / 2) + kWaterUnitWeight * criticalDepth(q) * block;
    const double plane = block * std::sqrt(2.0);
    expectWithin(weight / std::sqrt(2.0), bank.undrainedStrength * plane, 1e-9);
  }
}

TEST(BlocksPerUndercut, growFromAQuarterToTheirMost) {
  const BankStrength bank = {120, 900};
  expectWithin(blocksPerUndercut(bank, 1e-6, 0), 0.25, kHalfPercent);
  EXPECT_NEAR(blocksPerUndercut(bank, 1000, 0), 2.75, 1e-9);
  EXPECT_EQ(blocksPerUndercut({120, 0}, 0, 0), 0);
  double last = 0;
  for (double height = 0.1; height < 40; height += 0.1) {
    const double now = blocksPerUndercut(bank, height, 4);
    EXPECT_GE(now, last - 1e-12) << height;
    EXPECT_GE(blocksPerUndercut(bank, height, 8), now - 1e-12) << "more water";
    EXPECT_GE(blocksPerUndercut({130, 900}, height, 4), now - 1e-12) << "a heavier bank";
    EXPECT_GE(blocksPerUndercut({120, 700}, height, 4), now - 1e-12) << "a weaker bank";
    last = now;
  }
}

}  // namespace
}  // namespace kestra
