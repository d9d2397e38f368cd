#include "hydraulics/principal_spillway.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engines/close_to.h"

namespace kestra {
namespace {

Conduits pipe(double inches) {
  Conduits conduits;
  conduits.section = circularSection(inches);
  conduits.length = 150;
  conduits.manning = 0.013;
  conduits.entranceLoss = 1.0;
  conduits.outletInvert = 100;
  conduits.orificeArea = conduits.section.area;
  conduits.orificeCoefficient = 0.6;
  conduits.orificeCentre = 103;
  return conduits;
}

DropInlet riser() {
  DropInlet inlet;
  inlet.weirLength = 12;
  inlet.highCrest = 115;
  return inlet;
}

TEST(DropInlet, isAWeirAtLowHead) {
  EXPECT_EQ(dropInletDischarge(riser(), pipe(24), 115, 0), 0);
  EXPECT_TRUE(isClose(dropInletDischarge(riser(), pipe(24), 115.5, 0), 3.1 * 12 * std::pow(0.5, 1.5), 1e-9));
}

DropInlet wideRiser() {
  DropInlet inlet = riser();
  inlet.weirLength = 100;
  return inlet;
}

TEST(DropInlet, isLimitedByTheFullPipe) {
  // 15 ft of head above 0.6 diameters over the outlet invert: the worked 24-inch pipe.
  EXPECT_TRUE(isClose(dropInletDischarge(wideRiser(), pipe(24), 116.2, 0), 49.66));
}

TEST(DropInlet, isLimitedByTheConduitsEntrance) {
  Conduits conduits = pipe(24);
  conduits.orificeArea = 1.0;
  EXPECT_TRUE(isClose(dropInletDischarge(riser(), conduits, 119, 0), 0.6 * std::sqrt(64.34 * 16), 1e-6));
}

TEST(DropInlet, losesHeadToTailwaterAndNeverRunsBackwards) {
  const double free = dropInletDischarge(wideRiser(), pipe(24), 116.2, 0);
  EXPECT_EQ(dropInletDischarge(wideRiser(), pipe(24), 116.2, 101.2), free);
  EXPECT_TRUE(isClose(dropInletDischarge(wideRiser(), pipe(24), 116.2, 105.2), free * std::sqrt(11.0 / 15), 1e-6));
  EXPECT_EQ(dropInletDischarge(wideRiser(), pipe(24), 116.2, 117), 0);
}

TEST(DropInlet, countsAllConduits) {
  Conduits two = pipe(24);
  two.count = 2;
  EXPECT_TRUE(isClose(dropInletDischarge(wideRiser(), two, 116.2, 0), 2 * 49.66));
}

DropInlet twoStage() {
  DropInlet inlet = riser();
  inlet.twoStage = true;
  inlet.lowCrest = 110;
  inlet.orificeHeight = 1;
  inlet.orificeWidth = 2;
  return inlet;
}

TEST(LowStage, isWeirThenOrifice) {
  EXPECT_TRUE(isClose(inletDischarge(twoStage(), 110.8), 3.1 * 2 * std::pow(0.8, 1.5), 1e-9));
  EXPECT_TRUE(isClose(inletDischarge(twoStage(), 113), 0.6 * 2 * std::sqrt(64.34 * 2.5), 1e-9));
  EXPECT_TRUE(isClose(inletDischarge(twoStage(), 116), 0.6 * 2 * std::sqrt(64.34 * 5.5) + 3.1 * 12 * 1, 1e-9));
}

TEST(LowStage, ofANotchStaysAWeir) {
  DropInlet notch = twoStage();
  notch.orificeHeight = 0;
  EXPECT_TRUE(isClose(inletDischarge(notch, 113), 3.1 * 2 * std::pow(3, 1.5), 1e-9));
}

HoodInlet hood(const Conduits& conduits) {
  HoodInlet inlet;
  inlet.invert = 108;
  inlet.weirCoefficient = dimensionalWeirCoefficient(0.6);
  inlet.entrance = hoodEntrance(conduits.section);
  inlet.primes = true;
  return inlet;
}

TEST(Hood, entranceNeedsTheEnergyOfCriticalFlowAndItsLoss) {
  const ConduitSection section = circularSection(24);
  const CircleFlow half = criticalFlowInCircle(2, 3.14159265358979);
  const double head = half.energy + 2 * 0.0340 * std::pow(half.discharge / (section.area * std::sqrt(2.0)), 1.5);
  EXPECT_TRUE(isClose(hoodEntrance(section).at(head), half.discharge, 1e-3));
}

TEST(Hood, runsFullFromAHeadOfOneAndAQuarterDiameters) {
  const Conduits conduits = pipe(24);
  EXPECT_DOUBLE_EQ(hoodDischarge(hood(conduits), conduits, 110.5, 0), fullFlow(conduits, 110.5, 0));
  EXPECT_EQ(hoodDischarge(hood(conduits), conduits, 108, 0), 0);
}

TEST(Hood, thatDoesNotPrimeIsAnOrifice) {
  const Conduits conduits = pipe(24);
  HoodInlet inlet = hood(conduits);
  inlet.primes = false;
  EXPECT_TRUE(isClose(hoodDischarge(inlet, conduits, 111, 0), 0.6 * 3.14159 * std::sqrt(64.34 * 2), 1e-4));
}

TEST(Hood, primesOnASteepPipeOnly) {
  EXPECT_TRUE(hoodPrimes(pipe(24), 30));
  EXPECT_FALSE(hoodPrimes(pipe(24), 0.5));
}

TEST(Hood, coefficientBelowOneIsPolenis) {
  EXPECT_NEAR(dimensionalWeirCoefficient(0.6), 3.208, 1e-3);
  EXPECT_EQ(dimensionalWeirCoefficient(3.1), 3.1);
}

// No inlet of any kind passes less under more head, or jumps.
TEST(Inlets, riseSteadilyWithThePool) {
  const Conduits conduits = pipe(24);
  HoodInlet unprimed = hood(conduits);
  unprimed.primes = false;
  double before[4] = {};
  for (double pool = 107; pool < 125; pool += 0.005) {
    const double now[4] = {
        dropInletDischarge(riser(), conduits, pool, 0), dropInletDischarge(twoStage(), conduits, pool, 0),
        hoodDischarge(hood(conduits), conduits, pool, 0), hoodDischarge(unprimed, conduits, pool, 0)};
    for (int i = 0; i < 4; ++i) {
      EXPECT_GE(now[i], before[i] - 1e-9) << i << " at " << pool;
      EXPECT_LT(now[i] - before[i], 0.6) << i << " at " << pool;
      before[i] = now[i];
    }
  }
}

}  // namespace
}  // namespace kestra
