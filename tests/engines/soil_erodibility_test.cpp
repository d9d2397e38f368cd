#include "hydraulics/soil_erodibility.h"

#include <gtest/gtest.h>

#include "engines/near.h"
#include "hydraulics/physical_constants.h"

namespace kestra {
namespace {

constexpr double kHalfPercent = 0.005;

TEST(Conversions, ofErodibilityAndStressAreThoseOfTheirUnits) {
  constexpr double kFoot = 0.3048;
  constexpr double kPound = 4.4482216;  // N
  const double pascal = kFoot * kFoot / kPound;
  expectWithin(kStressPerPascal, pascal, kHalfPercent);
  expectWithin(kErodibilityPerMetric, 1e-6 * 3600 / kFoot / pascal, kHalfPercent);
  expectWithin(1e6 / 3600 * kErodibilityPerMetric, 157.1, kHalfPercent);  // of one m^3/(N h)
}

TEST(DetachmentRate, isNothingUpToTheCriticalStress) {
  EXPECT_EQ(detachmentRate(2, 0.1, 0.1), 0);
  EXPECT_EQ(detachmentRate(2, 0.05, 0.1), 0);
  EXPECT_DOUBLE_EQ(detachmentRate(2, 0.6, 0.1), 1);
}

TEST(ErodibilityFromClay, isThatOfThePublishedRelation) {
  constexpr double kUnitWeights[] = {90, 95, 100, 105, 110, 115};
  struct Row {
    double clay;
    double erodibility[6];
  };
  constexpr Row kRows[] = {
      {5, {1.9028, 1.5796, 1.2948, 1.0468, 0.8337, 0.6534}},  {10, {1.5039, 1.1960, 0.9345, 0.7163, 0.5379, 0.3951}},
      {20, {1.1012, 0.8273, 0.6066, 0.4333, 0.3010, 0.2029}}, {30, {0.8772, 0.6322, 0.4426, 0.3003, 0.1970, 0.1248}},
      {40, {0.7286, 0.5076, 0.3422, 0.2226, 0.1394, 0.0839}},
  };
  for (const Row& row : kRows)
    for (int i = 0; i < 6; ++i)
      expectWithin(erodibilityFromClay(row.clay, kUnitWeights[i]), row.erodibility[i], kHalfPercent);
}

TEST(ErodibilityFromCriticalStress, isThatOfThePublishedRelation) {
  expectWithin(erodibilityFromCriticalStress(kStressPerPascal), 0.2 * kErodibilityPerMetric, kHalfPercent);
  expectWithin(erodibilityFromCriticalStress(4 * kStressPerPascal), 0.1 * kErodibilityPerMetric, kHalfPercent);
}

TEST(DefaultCriticalStress, ofCoarseGrainsIsThatOfShields) {
  constexpr double kShields = 0.047;
  for (double inches : {0.05, 0.5, 2.0})
    expectWithin(defaultCriticalStress(0, inches), kShields * (2.65 - 1) * kWaterUnitWeight * inches / 12, 0.01);
  EXPECT_EQ(defaultCriticalStress(12, 0.01), 0);
  EXPECT_EQ(defaultCriticalStress(0, 0.01), 0.02);
}

TEST(CompactedErodibility, isThatOfThePublishedGuide) {
  struct Row {
    double clay;
    double erodibility[6];  // cm^3/(N s); modified, standard, low effort, each at optimum and drier
  };
  constexpr Row kRows[] = {
      {40, {0.05, 0.5, 0.1, 1, 0.2, 2}},  {25.5, {0.05, 0.5, 0.1, 1, 0.2, 2}}, {25, {0.5, 5, 1, 10, 2, 20}},
      {14, {0.5, 5, 1, 10, 2, 20}},       {13, {5, 50, 10, 100, 20, 200}},     {8, {5, 50, 10, 100, 20, 200}},
      {7, {50, 200, 100, 400, 200, 800}}, {0, {50, 200, 100, 400, 200, 800}},
  };
  for (const Row& row : kRows) {
    for (int i = 0; i < 6; ++i) {
      SCOPED_TRACE(std::to_string(row.clay) + " " + std::to_string(i));
      const auto compaction = static_cast<Compaction>(i / 2);
      const auto moisture = static_cast<Moisture>(i % 2);
      expectWithin(compactedErodibility(row.clay, compaction, moisture) / kErodibilityPerMetric, row.erodibility[i],
                   kHalfPercent);
    }
  }
}

TEST(Erodibility, neverFallsWithLessClayLessEffortOrLessWater) {
  for (double clay = 0; clay < 50; clay += 1) {
    EXPECT_GE(erodibilityFromClay(clay, 100), erodibilityFromClay(clay + 1, 100));
    EXPECT_GE(erodibilityFromClay(clay, 100), erodibilityFromClay(clay, 105));
    for (Compaction effort : {Compaction::modified, Compaction::standard, Compaction::low}) {
      EXPECT_GE(compactedErodibility(clay, effort, Moisture::dryOfOptimum),
                compactedErodibility(clay, effort, Moisture::optimumOrWetter));
      EXPECT_GE(compactedErodibility(clay, effort, Moisture::dryOfOptimum),
                compactedErodibility(clay + 1, effort, Moisture::dryOfOptimum));
    }
  }
}

}  // namespace
}  // namespace kestra
