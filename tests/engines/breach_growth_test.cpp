#include "hydraulics/breach_growth.h"

#include <gtest/gtest.h>

#include "engines/near.h"

namespace kestra {
namespace {

constexpr BreachWater kWater = {104, 0, 20};

DamErosionInput dam(HeadcutModel model) {
  DamErosionInput input;
  input.soil.model = model;
  input.soil.erodibility = 2;
  input.soil.advanceCoefficient = 4;
  input.soil.bank = {120, 800};
  return input;
}

BreachGrowth formed(const DamErosionInput& input) {
  BreachGrowth breach(input);
  breach.form(3, 20);
  return breach;
}

TEST(BreachGrowth, startsAtTheDownstreamEdgeOfTheCrest) {
  const BreachGrowth breach = formed(dam(HeadcutModel::energy));
  EXPECT_EQ(breach.state().advance, 0);
  EXPECT_EQ(breach.state().base, 97);
  EXPECT_NEAR(breach.state().width, 4.634, 0.001) << "two critical depths";
  EXPECT_EQ(breach.sill(), 100);
  EXPECT_FALSE(breach.initiated());
}

TEST(BreachGrowth, movesByTheEnergyOfTheFall) {
  const BreachGrowth breach = formed(dam(HeadcutModel::energy));
  const BreachRates rates = breach.rates(kWater);
  expectWithin(rates.advance, 4 * std::cbrt(20 * 3.0), 1e-9);
  expectWithin(rates.widening, 1.4 * rates.advance, 1e-9);
}

TEST(BreachGrowth, movesByTheStressOnTheFace) {
  const DamErosionInput input = dam(HeadcutModel::stress);
  const BreachRates rates = formed(input).rates(kWater);
  const double stress = overfallStress(kFaceOverfallStress, 3, 20);
  expectWithin(rates.advance, blocksPerUndercut(input.soil.bank, 3, 20) * 2 * stress, 1e-9);
}

TEST(BreachGrowth, wearsItsBaseAsTheSlopeBelowOrUnderTheFallWhicheverIsMore) {
  DamErosionInput input = dam(HeadcutModel::energy);
  EXPECT_DOUBLE_EQ(formed(input).rates(kWater).baseStress, bareSoilStress(1.0 / 3, 0, 20));
  input.section.downstreamSlope = 50;
  EXPECT_DOUBLE_EQ(formed(input).rates(kWater).baseStress, overfallStress(kPeakOverfallStress, 3, 20));
}

TEST(BreachGrowth, restsUnderATailwaterOverTheCrest) {
  BreachGrowth breach = formed(dam(HeadcutModel::stress));
  const BreachWater drowned = {104, 101, 20};
  EXPECT_EQ(breach.rates(drowned).advance, 0);
  EXPECT_EQ(breach.rates(drowned).deepening, 0);
  EXPECT_EQ(breach.rates(drowned).widening, 0);
  const BreachWater half = {104, 98.5, 20};
  EXPECT_NEAR(breach.rates(half).advance, breach.rates(kWater).advance / 2, 1e-9);
}

TEST(BreachGrowth, goesThroughItsStagesInOrder) {
  for (HeadcutModel model : {HeadcutModel::energy, HeadcutModel::stress}) {
    BreachGrowth breach = formed(dam(model));
    for (int i = 0; i < 400 && !breach.completed(); ++i) {
      const BreachGrowth::State before = breach.state();
      breach.advance(10 + i * 0.1, 0.1, kWater);
      EXPECT_GE(breach.state().advance, before.advance);
      EXPECT_LE(breach.state().base, before.base);
      EXPECT_GE(breach.state().width, before.width);
      EXPECT_LE(breach.state().base, breach.sill());
    }
    ASSERT_TRUE(breach.initiated());
    ASSERT_TRUE(breach.completed());
    EXPECT_GT(*breach.initiated(), 10);
    EXPECT_GT(*breach.completed(), *breach.initiated());
    EXPECT_EQ(breach.sill(), 50);
    EXPECT_EQ(breach.state().base, 50);
    EXPECT_NEAR(breach.discharge(104, 0), breach.state().width * kIdealWeir * std::pow(54, 1.5), 1e-6);
  }
}

TEST(BreachGrowth, isTheSameInOneStepAsInAThousand) {
  BreachGrowth once = formed(dam(HeadcutModel::energy));
  BreachGrowth often = once;
  once.advance(0, 8, kWater);
  for (int i = 0; i < 1000; ++i) often.advance(i * 0.008, 0.008, kWater);
  ASSERT_TRUE(once.completed() && often.completed());
  expectWithin(*once.initiated(), *often.initiated(), 0.002);
  expectWithin(*once.completed(), *often.completed(), 0.002);
  expectWithin(once.state().width, often.state().width, 0.002);
}

TEST(BreachGrowth, growsNoWiderThanTheDamNorDeeperThanItsLayer) {
  DamErosionInput input = dam(HeadcutModel::energy);
  input.section.crestLength = 60;
  input.section.nonErodibleElevation = 85;
  BreachGrowth breach = formed(input);
  breach.advance(0, 50, kWater);
  EXPECT_EQ(breach.state().width, 60);
  EXPECT_EQ(breach.sill(), 85);
  EXPECT_EQ(breach.state().base, 85);
}

TEST(BreachGrowth, doesNotMoveInSoilThatTheWaterCannotWear) {
  DamErosionInput input = dam(HeadcutModel::stress);
  input.soil.criticalStress = 500;
  BreachGrowth breach = formed(input);
  breach.advance(0, 100, kWater);
  EXPECT_EQ(breach.state().advance, 0);
  EXPECT_EQ(breach.state().base, 97);
  EXPECT_EQ(breach.hoursToChange(kWater), std::numeric_limits<double>::infinity());
}

TEST(BreachGrowth, breachesAtOnceWhereTheCrestHasNoWidth) {
  DamErosionInput input = dam(HeadcutModel::energy);
  input.section.crestWidth = 0;
  BreachGrowth breach = formed(input);
  breach.advance(7, 0.01, kWater);
  EXPECT_EQ(breach.initiated(), 7);
}

TEST(BreachGrowth, ofAWeakSiltySandCutsThroughItsCrestInTheTimeThatATestTook) {
  // A 7.5 ft section of silty sand with 3:1 slopes, overtopped by about a foot, was through in less than 51 minutes.
  DamErosionInput input = dam(HeadcutModel::energy);
  input.section = {7.5, 0, 3, 15, 3, 24, {}};
  input.notchWidth = 6;
  input.soil.erodibility = 5.8;
  input.soil.advanceCoefficient = advanceFromErodibility(5.8);
  BreachGrowth breach(input);
  breach.form(0.7, 3);
  breach.advance(0, 51.0 / 60, {8.5, -5, 3});
  EXPECT_TRUE(breach.initiated());
}

}  // namespace
}  // namespace kestra
