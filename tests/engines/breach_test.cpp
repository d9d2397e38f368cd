#include "hydraulics/breach.h"

#include <gtest/gtest.h>

#include "engines/near.h"
#include "hydraulics/breach_bounds.h"
#include "hydraulics/physical_constants.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

constexpr double kHalfPercent = 0.005;

double dischargeOfCriticalDepth(double depth) {
  return std::sqrt(kGravity * depth * depth * depth);
}

TEST(CriticalBedStress, isThatOfRoughnessTwoHundredths) {
  constexpr double kRows[][2] = {{1, 0.364}, {2, 0.577}, {5, 1.063}, {10, 1.688}};
  for (const auto& [depth, stress] : kRows)
    expectWithin(criticalBedStress(kBreachBedRoughness, dischargeOfCriticalDepth(depth)), stress, kHalfPercent);
}

TEST(BankWidening, takesBothBanksUnderSevenTenthsOfTheBedStress) {
  EXPECT_DOUBLE_EQ(bankWidening(3, 0, 2), 1.4 * 3 * 2);
  EXPECT_DOUBLE_EQ(bankWidening(3, 0.4, 2), 2 * 3 * (1.4 - 0.4));
  EXPECT_EQ(bankWidening(3, 1.4, 2), 0);
}

TEST(BreachUnitDischarge, ofTheIdealWeirIsThatOfCriticalDepthAtTwoThirdsOfTheHead) {
  for (double head : {0.5, 4.0, 60.0})
    expectWithin(breachUnitDischarge(kIdealWeir, 100 + head, 100, 0), dischargeOfCriticalDepth(head * 2 / 3),
                 kHalfPercent);
}

TEST(BreachUnitDischarge, isNothingFromAPoolBelowTheSillOrTheTailwater) {
  EXPECT_EQ(breachUnitDischarge(3, 99, 100, 0), 0);
  EXPECT_EQ(breachUnitDischarge(3, 104, 100, 104), 0);
  EXPECT_EQ(breachUnitDischarge(3, 104, 100, 110), 0);
  EXPECT_DOUBLE_EQ(breachUnitDischarge(3, 104, 100, 102.6), 24);
  EXPECT_LT(breachUnitDischarge(3, 104, 100, 103.6), 24);
}

TEST(InitialBreachWidth, isTheMostOfNotchHeightAndTwiceTheDepth) {
  const double q = dischargeOfCriticalDepth(1.5);
  EXPECT_DOUBLE_EQ(initialBreachWidth(6, 2, q), 6);
  EXPECT_DOUBLE_EQ(initialBreachWidth(0, 4, q), 4);
  EXPECT_NEAR(initialBreachWidth(0, 2, q), 3, 1e-12);
}

// The published check of the technical release, on three dams that failed.
TEST(Tr60Peak, ofKnownFailuresIsThatOfTheCheck) {
  const BreachedDam teton = {275, 250000, 300000, 3100};
  expectWithin(tr60Peak(teton), 2.12e6, kHalfPercent);
  const BreachedDam castlewood = {70, 1e6, 5000, 2000};  // so much water that the most of the relation rules
  expectWithin(tr60Peak(castlewood), 168000, kHalfPercent);
  const BreachedDam baldwinMost = {59, 1e6, 5000, 2000};
  expectWithin(tr60Peak(baldwinMost), 122700, kHalfPercent);
  const BreachedDam baldwinLeast = {59, 1, 5000, 2000};
  expectWithin(tr60Peak(baldwinLeast), 85600, kHalfPercent);
}

TEST(Tr60Peak, betweenItsBoundsGoesByVolumeAndSection) {
  EXPECT_DOUBLE_EQ(tr60Peak({40, 1000, 2500, 800}), 1000 * std::pow(16.0, 1.35));
}

TEST(Tr60Peak, ofAShortDamGoesByItsLength) {
  EXPECT_DOUBLE_EQ(tr60Peak({110, 1e6, 9000, 300}), 0.416 * 300 * std::pow(110, 1.5));
  const double enough = 65 * std::pow(110, 0.35) / 0.416;
  expectWithin(tr60Peak({110, 1e6, 9000, enough * 0.9999}), tr60Peak({110, 1e6, 9000, enough}), 0.001);
}

// 10 million cubic metres behind 20 m, by hand in metres.
TEST(Froehlich, givesPeakWidthAndTimeOfAMiddlingDam) {
  const BreachedDam dam = {20 / 0.3048, 1e7 / 1233.482, 10000, 2000};
  expectWithin(froehlichPeak(dam) * std::pow(0.3048, 3), 0.607 * 116.14 * 41.05, kHalfPercent);
  expectWithin(froehlichWidth(dam) * 0.3048, 0.351 * 173.78 * 1.1273, kHalfPercent);
  expectWithin(froehlichHours(dam) * 3600, 63.2 * std::sqrt(1e7 / (9.81 * 400)), kHalfPercent);
}

}  // namespace
}  // namespace kestra
