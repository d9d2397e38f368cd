#include <gtest/gtest.h>

#include "engines/known_failures.h"
#include "engines/near.h"
#include "hydraulics/soil_erodibility.h"

namespace kestra {
namespace {

TEST(DamFailures, areTriedOverTheSoilsOfThePublishedGuide) {
  EXPECT_NEAR(compactedErodibility(30, Compaction::standard, Moisture::optimumOrWetter), kToughest, 0.005);
  EXPECT_GT(compactedErodibility(10, Compaction::standard, Moisture::dryOfOptimum), kWeakest);
}

TEST(DamFailures, ofKnownDamsLieBetweenThoseOfTheToughestAndTheWeakestSoil) {
  for (const KnownFailure& failure : kKnownFailures) {
    for (HeadcutModel model : kHeadcutModels) {
      SCOPED_TRACE(failure.name);
      const PoolOutcome tough = failed(failure, model, kToughest);
      const PoolOutcome weak = failed(failure, model, kWeakest);
      EXPECT_LT(tough.peakBreachFlow, failure.peak);
      EXPECT_GT(weak.peakBreachFlow, failure.peak * 0.9);
      EXPECT_LT(*weak.events.breachInitiated, tough.events.breachInitiated.value_or(100));
    }
  }
}

TEST(DamFailures, ofAMiddlingSoilFollowTheRegressionsWithinTheirScatter) {
  constexpr double kScatter = 3.5;
  for (const KnownFailure& failure : kKnownFailures) {
    for (HeadcutModel model : kHeadcutModels) {
      SCOPED_TRACE(failure.name);
      const PoolOutcome outcome = failed(failure, model, kMiddling);
      const BreachedDam dam = breachedDam(failure);
      EXPECT_LT(outcome.peakBreachFlow, froehlichPeak(dam) * kScatter);
      EXPECT_GT(outcome.peakBreachFlow, froehlichPeak(dam) / kScatter);
      EXPECT_LT(outcome.peakBreachFlow, tr60Peak(dam) * 4);
      EXPECT_LT(outcome.last.headcut->width, froehlichWidth(dam) * kScatter);
      EXPECT_GT(outcome.last.headcut->width, froehlichWidth(dam) / kScatter);
      EXPECT_LT(outcome.volumeError, 0.005);
      EXPECT_TRUE(outcome.events.breachCompleted);
    }
  }
}

TEST(DamFailures, hardlyChangeWithHalfTheStep) {
  for (const KnownFailure& failure : kKnownFailures) {
    SCOPED_TRACE(failure.name);
    LevelPool pool = poolOf(failure);
    pool.hours = 15;
    const DamErosionInput dam = damOf(failure, HeadcutModel::energy, kMiddling);
    const PoolOutcome whole = PoolRun(pool, dam).run();
    pool.longestStep /= 2;
    pool.shareOfSuggested = 0.5;
    const PoolOutcome half = PoolRun(pool, dam).run();
    expectWithin(whole.peakBreachFlow, half.peakBreachFlow, 0.005);
    EXPECT_NEAR(whole.highestPool, half.highestPool, 0.01);
    expectWithin(whole.events.breachInitiated.value_or(0), half.events.breachInitiated.value_or(100), 0.01);
    EXPECT_GT(half.steps, whole.steps);
  }
}

}  // namespace
}  // namespace kestra
