#include <gtest/gtest.h>

#include "engines/level_pool.h"
#include "engines/near.h"
#include "hydraulics/breach_bounds.h"
#include "hydraulics/soil_erodibility.h"

namespace kestra {
namespace {

// Dams that failed, as far as they are known: height, water and peak flow are documented, slopes and crest in part
// believed. Their soil is not known, so that they bound what the model may say, and prove no number of it.
struct Failure {
  const char* name;
  double height;    // ft
  double volume;    // acre-ft at the crest
  double exponent;  // of the depth in the volume
  double length;    // ft
  double crestWidth, upstreamSlope, downstreamSlope;
  double inflow;  // cfs
  double peak;    // cfs, documented
};
constexpr Failure kFailures[] = {
    {"Oros 1960", 116, 535000, 2.5, 2100, 16, 3, 3, 50000, 340000},
    {"South Fork 1889", 72, 11500, 2, 918, 10, 2, 1.5, 8000, 300000},
    {"Castlewood 1933", 70, 5000, 2, 600, 8, 1, 1, 10000, 126000},
    {"Kelly Barnes 1977", 40, 630, 2, 400, 20, 2, 1.5, 500, 24000},
    {"Lawn Lake 1982", 26, 674, 1.5, 500, 8, 1.5, 1.5, 300, 18000},
    {"Teton 1976", 275, 250000, 3, 3100, 35, 3, 2.5, 1000, 2.3e6},
};

// From a clay compacted at its optimum to a silty sand compacted dry of it, (ft/h)/(lb/ft^2).
constexpr double kToughest = 0.06;
constexpr double kMiddling = 2;
constexpr double kWeakest = 20;

DamErosionInput damOf(const Failure& failure, HeadcutModel model, double erodibility) {
  DamErosionInput dam;
  dam.section = {failure.height, 0, failure.upstreamSlope, failure.crestWidth, failure.downstreamSlope,
                 failure.length, {}};
  dam.slope.surface = SlopeSurface::bare;
  dam.slope.cover.roughness = 0.025;
  dam.soil.model = model;
  dam.soil.erodibility = erodibility;
  dam.soil.advanceCoefficient = advanceFromErodibility(erodibility);
  dam.soil.bank = {120, 1000};
  return dam;
}

LevelPool poolOf(const Failure& failure) {
  LevelPool pool;
  pool.volume = failure.volume;
  pool.exponent = failure.exponent;
  pool.pool = failure.height + 1;
  pool.hours = 100;
  const double inflow = failure.inflow;
  pool.inflow = [inflow](double) { return inflow; };
  return pool;
}

double peakOf(const Failure& failure, HeadcutModel model, double erodibility) {
  return PoolRun(poolOf(failure), damOf(failure, model, erodibility)).run().peakBreachFlow;
}

BreachedDam boundsOf(const Failure& failure) {
  const double slopes = (failure.upstreamSlope + failure.downstreamSlope) / 2;
  return {failure.height, failure.volume, failure.height * (failure.crestWidth + failure.height * slopes),
          failure.length};
}

constexpr HeadcutModel kModels[] = {HeadcutModel::energy, HeadcutModel::stress};

TEST(DamFailures, ofKnownDamsLieBetweenThoseOfTheToughestAndTheWeakestSoil) {
  ASSERT_NEAR(compactedErodibility(30, Compaction::standard, Moisture::optimumOrWetter), kToughest, 0.005);
  ASSERT_GT(compactedErodibility(10, Compaction::standard, Moisture::dryOfOptimum), kWeakest);
  for (const Failure& failure : kFailures) {
    for (HeadcutModel model : kModels) {
      SCOPED_TRACE(failure.name);
      EXPECT_LT(peakOf(failure, model, kToughest), failure.peak);
      EXPECT_GT(peakOf(failure, model, kWeakest), failure.peak * 0.9);
    }
  }
}

TEST(DamFailures, ofAMiddlingSoilFollowTheRegressionsWithinTheirScatter) {
  constexpr double kScatter = 3.5;
  for (const Failure& failure : kFailures) {
    for (HeadcutModel model : kModels) {
      SCOPED_TRACE(failure.name);
      const PoolOutcome outcome = PoolRun(poolOf(failure), damOf(failure, model, kMiddling)).run();
      const BreachedDam bounds = boundsOf(failure);
      EXPECT_LT(outcome.peakBreachFlow, froehlichPeak(bounds) * kScatter);
      EXPECT_GT(outcome.peakBreachFlow, froehlichPeak(bounds) / kScatter);
      EXPECT_LT(outcome.last.headcut->width, froehlichWidth(bounds) * kScatter);
      EXPECT_GT(outcome.last.headcut->width, froehlichWidth(bounds) / kScatter);
      EXPECT_LT(outcome.volumeError, 0.005);
    }
  }
}

TEST(DamFailures, hardlyChangeWithHalfTheStep) {
  for (const Failure& failure : kFailures) {
    SCOPED_TRACE(failure.name);
    LevelPool pool = poolOf(failure);
    const DamErosionInput dam = damOf(failure, HeadcutModel::energy, kMiddling);
    const PoolOutcome whole = PoolRun(pool, dam).run();
    pool.longestStep /= 2;
    pool.shareOfSuggested = 0.5;
    const PoolOutcome half = PoolRun(pool, dam).run();
    expectWithin(whole.peakBreachFlow, half.peakBreachFlow, 0.005);
    EXPECT_NEAR(whole.highestPool, half.highestPool, 0.01);
    expectWithin(whole.events.breachInitiated.value_or(0), half.events.breachInitiated.value_or(1e6), 0.01);
    EXPECT_GT(half.steps, whole.steps);
  }
}

TEST(DamFailures, comeNoLaterWithMoreErodibleSoil) {
  for (const Failure& failure : kFailures) {
    for (HeadcutModel model : kModels) {
      SCOPED_TRACE(failure.name);
      double last = 1e6;
      for (double erodibility : {0.06, 0.2, 0.6, 2.0, 6.0, 20.0}) {
        const PoolOutcome outcome = PoolRun(poolOf(failure), damOf(failure, model, erodibility)).run();
        const double initiated = outcome.events.breachInitiated.value_or(1e6);
        EXPECT_LE(initiated, last);
        last = initiated;
      }
    }
  }
}

}  // namespace
}  // namespace kestra
