#include "hydraulics/dam_erosion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "engines/erosion_runs.h"
#include "engines/near.h"

namespace kestra {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

DamErosionInput grassyDam() {
  DamErosionInput dam;
  dam.section = {130, 100, 3, 14, 2.5, 400, {}};
  dam.slope.cover.roughness = 5.6;
  dam.slope.cover.coverFactor = 0.75;
  dam.slope.cover.maintenanceCode = 2;
  dam.slope.plasticityIndex = 12;
  dam.soil.erodibility = 1.5;
  dam.soil.criticalStress = 0.02;
  dam.soil.advanceCoefficient = 3;
  return dam;
}

TEST(DamErosion, goesFromTurfToABreachOfFullDepth) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  std::vector<ErosionPhase> phases = {erosion.phase()};
  for (int i = 0; i < 2000; ++i) {
    erosion.advance(overtopping(dam, i * 0.01, 0.01, 1.5));
    if (erosion.phase() != phases.back()) phases.push_back(erosion.phase());
  }
  EXPECT_EQ(phases, (std::vector<ErosionPhase>{ErosionPhase::slopeStands, ErosionPhase::concentratedFlow,
                                               ErosionPhase::headcutInCrest, ErosionPhase::headcutInUpstreamFace,
                                               ErosionPhase::fullDepth}));
  const ErosionEvents& events = erosion.events();
  EXPECT_LT(when(events.slopeLost), when(events.headcutFormed));
  EXPECT_LT(when(events.headcutFormed), when(events.breachInitiated));
  EXPECT_LT(when(events.breachInitiated), when(events.breachCompleted));
  const ErosionRow& row = erosion.row();
  EXPECT_EQ(row.timeHours, 1999 * 0.01 + 0.01);
  EXPECT_EQ(row.breach.sill, 100);
  EXPECT_EQ(row.headcut->height, 0);
  EXPECT_NEAR(row.headcut->station, 0, 1e-9);
  EXPECT_EQ(row.breach.width, erosion.breachWidth());
  EXPECT_NEAR(row.breach.discharge, erosion.breachWidth() * kIdealWeir * std::pow(31.5, 1.5), 1e-6);
}

TEST(DamErosion, losesItsTurfAtTheTimeOfTheStressThatItBears) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  SlopeCover cover = dam.slope.cover;
  cover.slope = 1 / 2.5;
  const double q = 2.9 * std::pow(1.5, 1.5);
  const double expected = 3 + stressTimeLimit(12, 0) / slopeFlow(cover, q).effectiveStress;
  erosion.advance(overtopping(dam, 0, 3, 0));
  EXPECT_FALSE(erosion.eroding());
  erosion.advance(overtopping(dam, 3, 10, 1.5));
  EXPECT_NEAR(when(erosion.events().slopeLost), expected, 1e-9);
}

TEST(DamErosion, tellsStagesInsideOneLongStep) {
  const DamErosionInput dam = grassyDam();
  DamErosion once(dam);
  DamErosion often(dam);
  once.advance(overtopping(dam, 0, 12, 1.5));
  for (int i = 0; i < 12000; ++i) often.advance(overtopping(dam, i * 0.001, 0.001, 1.5));
  for (auto event : {&ErosionEvents::slopeLost, &ErosionEvents::headcutFormed, &ErosionEvents::breachInitiated,
                     &ErosionEvents::breachCompleted})
    expectWithin(when(once.events().*event), when(often.events().*event), 0.002);
  expectWithin(once.breachWidth(), often.breachWidth(), 0.002);
}

TEST(DamErosion, repeatsAStepFromACopyBitForBit) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  for (int i = 0; i < 60; ++i) {
    const ErosionStep step = overtopping(dam, i * 0.1, 0.1, 1.5);
    DamErosion first = erosion;
    first.advance(step);
    DamErosion other = erosion;
    other.advance({step.timeHours, 0.03, step.pool, step.tailwater, step.head, step.unitDischarge});
    erosion.advance(step);
    EXPECT_EQ(numbersOf(first), numbersOf(erosion));
  }
  EXPECT_TRUE(erosion.events().breachCompleted);
}

TEST(DamErosion, judgesTheSlopeAloneWhereNoBreachIsAskedFor) {
  DamErosionInput dam = grassyDam();
  dam.breach = false;
  DamErosion erosion(dam);
  for (int i = 0; i < 500; ++i) erosion.advance(overtopping(dam, i * 0.1, 0.1, 1.5));
  EXPECT_TRUE(erosion.events().slopeLost);
  EXPECT_GT(erosion.row().slope.stressTimePercent, 100);
  EXPECT_EQ(erosion.phase(), ErosionPhase::slopeStands);
  EXPECT_FALSE(erosion.row().headcut);
  EXPECT_EQ(erosion.breachDischarge(200, 0), 0);
  EXPECT_FALSE(erosion.finished());
}

TEST(DamErosion, startsTheBreachOfARiprappedDamWhenTheRockGoes) {
  DamErosionInput dam = grassyDam();
  dam.slope.surface = SlopeSurface::riprap;
  dam.slope.riprap = {1.75, 0.5, 1, 0.4};
  const double allowed = riprapAllowable(dam.slope.riprap, 1 / 2.5);
  DamErosion erosion(dam);
  for (int i = 0; i < 100; ++i) {
    ErosionStep step = overtopping(dam, i * 0.1, 0.1, 0.5);
    step.unitDischarge = allowed * (i + 0.5) / 50;  // the rock goes after 5 h
    erosion.advance(step);
  }
  EXPECT_NEAR(when(erosion.events().slopeLost), 5, 1e-6);
  EXPECT_GT(when(erosion.events().headcutFormed), 5);
  EXPECT_TRUE(erosion.row().headcut);
}

TEST(DamErosion, passesNothingBesideTheCrestUntilTheBreachIsInitiated) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  for (int i = 0; i < 2000; ++i) {
    erosion.advance(overtopping(dam, i * 0.01, 0.01, 1.5));
    const bool open = erosion.events().breachInitiated.has_value();
    EXPECT_EQ(erosion.breachWidth() > 0, open);
    EXPECT_EQ(erosion.breachDischarge(140, 0) > 0, open);
    EXPECT_EQ(erosion.breachDischarge(140, 140), 0);
  }
}

TEST(DamErosion, suggestsStepsThatEndWithTheEventsAndChangeTheBreachByAPercent) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  EXPECT_EQ(erosion.suggestedStepHours(), 24);
  erosion.advance(overtopping(dam, 0, 0.001, 1.5));
  double time = 0.001;
  int steps = 0;
  double sill = 130;
  double width = 0;
  while (!erosion.events().breachCompleted && steps < 20000) {
    const double dt = erosion.suggestedStepHours();
    ASSERT_GE(dt, 0.0005);
    erosion.advance(overtopping(dam, time, dt, 1.5));
    time += dt;
    ++steps;
    const BreachRow& breach = erosion.row().breach;
    EXPECT_LE(sill - breach.sill, 0.05 + 0.03 * (131.5 - breach.sill));
    EXPECT_TRUE(width <= 0 || breach.width <= width * 1.02) << breach.width;
    sill = breach.sill;
    width = breach.width;
  }
  EXPECT_LT(steps, 1000);
  EXPECT_NEAR(when(erosion.events().breachCompleted), time, 0.001);
}

TEST(DamErosion, isFinishedWhenThePoolHasRunDownToTheSill) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  double time = 0;
  while (!erosion.events().breachCompleted) {
    EXPECT_FALSE(erosion.finished());
    erosion.advance(overtopping(dam, time, 0.1, 1.5));
    time += 0.1;
  }
  erosion.advance({time, 0.1, 110, -1000, 0, 0});
  EXPECT_FALSE(erosion.finished());
  erosion.advance({time + 0.1, 0.1, 100.04, -1000, 0, 0});
  EXPECT_TRUE(erosion.finished());
  erosion.advance({time + 0.2, 0.1, 90, -1000, 0, 0});
  EXPECT_TRUE(erosion.finished());
  EXPECT_FALSE(erosion.eroding());
  erosion.advance({time + 0.3, 0.1, 110, -1000, 0, 0});
  EXPECT_FALSE(erosion.finished()) << "new inflow wakes it";
}

TEST(DamErosion, doesNothingInAStepWithoutLengthOrWater) {
  const DamErosionInput dam = grassyDam();
  DamErosion erosion(dam);
  const std::vector<double> before = numbersOf(erosion);
  for (double dt : {0.0, -1.0, kNaN, kInfinite}) erosion.advance(overtopping(dam, 5, dt, 1.5));
  EXPECT_EQ(numbersOf(erosion), before);
  erosion.advance({0, 1, kNaN, kNaN, kNaN, kNaN});
  erosion.advance({1, 1, kInfinite, -kInfinite, kInfinite, kInfinite});
  erosion.advance({2, 1, 129, -1000, 0, 5});
  EXPECT_FALSE(erosion.eroding());
  EXPECT_EQ(erosion.row().slope.stressTime, 0);
}

TEST(HeadcutThreshold, isTheCriticalDepthAndNoLessThanHalfAFoot) {
  EXPECT_EQ(headcutThreshold(0), 0.5);
  EXPECT_EQ(headcutThreshold(1), 0.5);
  EXPECT_NEAR(headcutThreshold(20), 2.317, 0.001);
}

}  // namespace
}  // namespace kestra
