#include "hydraulics/dam_routing.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engines/close_to.h"
#include "engines/sample_dam.h"

namespace kestra {
namespace {

// A basin of an acre with vertical walls and a rating, far below the crest of its dam.
RoutingInput basin(RatingCurve rating, LinearTable inflow) {
  RoutingInput dam = sampleDam();
  const std::vector<StorageRow> rows{{0, 0, 1}, {100, 0, 1}};
  dam.storage = StageStorage(rows, StorageBasis::areas);
  dam.outlets.principal = std::move(rating);
  dam.outlets.auxiliary = {};
  dam.outlets.tailwater = LinearTable();
  dam.outlets.crest = CrestOverflow({{0, 90}, {100, 90}}, UnitDischarge::fromCoefficient(3));
  dam.inflow = std::move(inflow);
  dam.startPool = 0;
  return dam;
}

RatingCurve detentionRating() {
  return {{0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5, 4, 4.5, 5, 5.5, 6, 6.5, 7, 7.5, 8, 8.5, 9, 9.5, 10},
          {0, 3, 8, 17, 30, 43, 60, 78, 97, 117, 137, 156, 173, 190, 205, 218, 231, 242, 253, 264, 275},
          RatingCurve::Shape::straight};
}

TEST(RouteDam, findsThePeakOfTheDetentionBasinToWhichShortStepsConverge) {
  RoutingInput dam = basin(detentionRating(), LinearTable({0, 1, 2.5, 3.5}, {0, 360, 0, 0}));
  dam.rowHours = 1.0 / 6;
  const RoutingResult result = routeDam(dam);
  EXPECT_TRUE(isClose(result.outflow.value, 269.681, 0.001));
  EXPECT_NEAR(result.pool.value, 9.7582, 0.005);
  EXPECT_NEAR(result.pool.hours * 60, 82.5, 1.5);
  EXPECT_LT(result.balanceError(), 1e-9);
}

TEST(RouteDam, writesRowsAtEqualTimes) {
  const RoutingResult result = routeDam(sampleDam());
  ASSERT_GE(result.rows.size(), 121U);
  for (std::size_t i = 0; i < result.rows.size(); ++i) {
    EXPECT_NEAR(result.rows[i].hours, 0.1 * static_cast<double>(i), 1e-9);
  }
  EXPECT_EQ(result.rows[20].inflow, 3000);
  EXPECT_EQ(result.end, RoutingEnd::complete);
}

TEST(RouteDam, stopsAtPointsBetweenRows) {
  RoutingInput dam = sampleDam();
  dam.inflow = LinearTable({0, 0.25, 0.251, 0.33, 12}, {0, 0, 9000, 0, 0});
  dam.rowHours = 0.5;
  const RoutingResult result = routeDam(dam);
  EXPECT_TRUE(isClose(result.inflowVolume, 9000 * 0.08 / 2 * 3600, 1e-9));
  EXPECT_LT(result.balanceError(), 1e-9);
}

// Half a flood's volume within a second, and then long steps: the pool is highest where the flood ends.
TEST(RouteDam, findsThePeakOfAFloodThatEndsAtOnce) {
  RoutingInput dam = sampleDam();
  dam.inflow = LinearTable({0, 0.0001, 0.0002}, {0, 900000, 0});
  dam.rowHours = 1;
  const RoutingResult result = routeDam(dam);
  const double volume = dam.storage.volume(18) + 900000 * 0.0001 * 3600;
  EXPECT_NEAR(result.pool.value, dam.storage.elevationOf(volume), 0.001);
  EXPECT_NEAR(result.pool.hours, 0.0002, 1e-6);
  EXPECT_EQ(result.poolAtPeakOutflow, result.pool.value);
}

// Rows alone ask for more steps than a short hydrograph's points do.
TEST(RouteDam, comesToTheEndOfAFineTableOfFewPoints) {
  RoutingInput dam = sampleDam();
  dam.inflow = LinearTable({0, 2, 24}, {0, 900, 0});
  dam.rowHours = 24.0 / 10000;
  const RoutingResult result = routeDam(dam);
  EXPECT_EQ(result.end, RoutingEnd::complete);
  EXPECT_GT(result.steps, 10000);
}

// A rating that opens like a gate: what comes in runs out, whatever the last digits of the pool.
TEST(RouteDam, findsThePeakUnderARatingThatRisesLikeAWall) {
  RoutingInput dam = sampleDam();
  dam.outlets.auxiliary[0] = RatingCurve({25, 25.5, 40}, {0, 1e7, 1e7}, RatingCurve::Shape::straight);
  EXPECT_TRUE(isClose(routeDam(dam).outflow.value, 3000));
  dam.stepShare = 0.5;
  EXPECT_TRUE(isClose(routeDam(dam).outflow.value, 3000));
}

TEST(RouteDam, findsNoFaultInTheVolumesWithoutWater) {
  RoutingInput dam = sampleDam();
  dam.inflow = LinearTable({0, 10}, {0, 0});
  const RoutingResult result = routeDam(dam);
  EXPECT_LT(result.balanceError(), 1e-4);
  EXPECT_NEAR(result.pool.value, 18, 1e-6);
}

TEST(RouteDam, goesOnWhileThePoolRises) {
  RoutingInput dam = sampleDam();
  dam.inflow = LinearTable({0, 2}, {0, 500});
  const RoutingResult result = routeDam(dam);
  EXPECT_GT(result.rows.back().hours, 2.5);
  EXPECT_EQ(result.rows.back().inflow, 500);
}

struct HalvingCase {
  const char* name;
  RoutingInput dam;
};

class Halving : public testing::TestWithParam<HalvingCase> {};

TEST_P(Halving, ofEveryStepChangesNextToNothing) {
  RoutingInput dam = GetParam().dam;
  const RoutingResult whole = routeDam(dam);
  dam.stepShare = 0.5;
  const RoutingResult halves = routeDam(dam);
  EXPECT_GT(halves.steps, 1.5 * static_cast<double>(whole.steps));
  EXPECT_NEAR(whole.pool.value, halves.pool.value, 0.01);
  EXPECT_TRUE(isClose(whole.outflow.value, halves.outflow.value, 0.005));
  EXPECT_LT(whole.balanceError(), 1e-4);
  EXPECT_LT(halves.balanceError(), 1e-4);
}

RoutingInput withCoarseRows() {
  RoutingInput dam = sampleDam();
  dam.rowHours = 2;
  return dam;
}

RoutingInput withHighTailwater() {
  RoutingInput dam = sampleDam();
  dam.outlets.tailwater = LinearTable({0, 200, 1000, 4000}, {0, 12, 22, 29});
  return dam;
}

RoutingInput withStressModel() {
  RoutingInput dam = breachedDam(8);
  dam.erosion.soil.model = HeadcutModel::stress;
  dam.erosion.soil.bank = {120, 600};
  return dam;
}

INSTANTIATE_TEST_SUITE_P(Dams, Halving,
                         testing::Values(HalvingCase{"grassed", sampleDam()}, HalvingCase{"coarse", withCoarseRows()},
                                         HalvingCase{"tailwater", withHighTailwater()},
                                         HalvingCase{"tough", breachedDam(1)}, HalvingCase{"breached", breachedDam(4)},
                                         HalvingCase{"weak", breachedDam(30)},
                                         HalvingCase{"stress", withStressModel()}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(RouteDam, tellsTheBreachOfAWeakDam) {
  const RoutingResult result = routeDam(breachedDam(8));
  ASSERT_TRUE(result.events.breachCompleted);
  EXPECT_LT(*result.events.slopeLost, *result.events.headcutFormed);
  EXPECT_LT(*result.events.headcutFormed, *result.events.breachInitiated);
  EXPECT_LT(*result.events.breachInitiated, *result.events.breachCompleted);
  EXPECT_GT(result.breachWidth, 10);
  EXPECT_GT(result.breachOutflow.value, 3000);
  EXPECT_GE(result.outflow.value, result.breachOutflow.value);
  EXPECT_LT(result.rows.back().pool, 15);
}

TEST(RouteDam, tellsTheErosionFromTheFirstOvertoppingOn) {
  const RoutingResult result = routeDam(breachedDam(8));
  ASSERT_FALSE(result.erosion.empty());
  EXPECT_GE(result.erosion.front().timeHours, *result.overtoppingBegins);
  double before = 0;
  for (const ErosionRow& row : result.erosion) {
    EXPECT_GT(row.timeHours, before);
    before = row.timeHours;
  }
  EXPECT_EQ(routeDam(sampleDam(100)).erosion.size(), 0U);
}

TEST(RouteDam, countsTheHoursOverTheDam) {
  const RoutingResult result = routeDam(sampleDam());
  double sum = 0;
  for (std::size_t i = 1; i < result.rows.size(); ++i) {
    const double a = result.rows[i - 1].pool - 30;
    const double b = result.rows[i].pool - 30;
    if (a > 0 && b > 0) {
      sum += 0.1;
    } else if (a > 0 || b > 0) {
      sum += 0.1 * std::max(a, b) / std::fabs(b - a);
    }
  }
  EXPECT_GT(sum, 1);
  EXPECT_NEAR(result.overtoppingHours, sum, 0.02);
}

TEST(RouteDam, tellsThatThePoolLeavesItsTable) {
  const RoutingResult result = routeDam(sampleDam(60000));
  ASSERT_TRUE(result.leftStorageTable);
  EXPECT_GT(result.pool.value, 36);
  EXPECT_TRUE(result.leftTailwaterTable);
  EXPECT_FALSE(routeDam(sampleDam()).leftStorageTable);
}

TEST(RouteDam, staysAtTheFloorOfAReservoirThatRunsDry) {
  RoutingInput dam =
      basin(RatingCurve({-20, -10, 0}, {0, 500, 900}, RatingCurve::Shape::straight), LinearTable({0, 5}, {10, 10}));
  dam.startPool = 3;
  const RoutingResult result = routeDam(dam);
  EXPECT_TRUE(result.ranDry);
  EXPECT_EQ(result.rows.back().pool, 0);
  EXPECT_NEAR(result.rows.back().flows.total(), 10, 1e-9);
  EXPECT_LT(result.balanceError(), 1e-9);
}

TEST(RouteDam, comesToItsEndUnderATailwaterThatRisesLikeAWall) {
  RoutingInput dam = breachedDam();
  dam.outlets.tailwater = LinearTable({0, 60, 200, 1000, 4000}, {0, 2, 90000, 90000, 90000});
  const RoutingResult result = routeDam(dam);
  EXPECT_EQ(result.end, RoutingEnd::complete);
  EXPECT_LT(result.balanceError(), 1e-4);
}

TEST(RouteDam, endsAtItsBoundOnSteps) {
  RoutingInput dam = sampleDam();
  std::vector<double> hours;
  std::vector<double> flows;
  for (int i = 0; i < 100; ++i) {
    hours.push_back(i * 20000.0);
    flows.push_back(i % 2 == 0 ? 0 : 3000);
  }
  dam.inflow = LinearTable(hours, flows);
  dam.rowHours = 20000;
  const RoutingResult result = routeDam(dam);
  EXPECT_EQ(result.end, RoutingEnd::stepLimit);
  EXPECT_LT(result.rows.back().hours, hours.back());
  dam.stepShare = 0.5;
  EXPECT_GT(routeDam(dam).steps, 1.9 * static_cast<double>(result.steps));
}

TEST(RouteDam, givesTheSameTwice) {
  const RoutingResult a = routeDam(breachedDam());
  const RoutingResult b = routeDam(breachedDam());
  ASSERT_EQ(a.rows.size(), b.rows.size());
  for (std::size_t i = 0; i < a.rows.size(); ++i) EXPECT_EQ(a.rows[i].pool, b.rows[i].pool);
  EXPECT_EQ(a.breachWidth, b.breachWidth);
}

// An acre under a weir of 20 ft, C = 3.1, from 4 ft: h = (h0^-0.5 + C L t / 2A)^-2.
TEST(Drawdown, reachesAnElevationAtTheTimeOfTheClosedForm) {
  std::vector<double> heads;
  std::vector<double> discharges;
  for (int i = 0; i <= 50; ++i) {
    heads.push_back(i * 0.1);
    discharges.push_back(62 * std::pow(i * 0.1, 1.5));
  }
  RoutingInput dam = basin(RatingCurve(heads, discharges, RatingCurve::Shape::weir), LinearTable({0, 0.001}, {0, 0}));
  dam.startPool = 4;
  dam.rowHours = 0.001;
  dam.drawdown = DrawdownRequest{0.3153, 0, 240};
  const RoutingResult result = routeDam(dam);
  ASSERT_TRUE(result.drawdown);
  ASSERT_TRUE(result.drawdown->reached);
  EXPECT_NEAR(*result.drawdown->reached * 3600, 1800, 9);
}

// Between two rows of the flood the pool is taken to fall straight.
TEST(Drawdown, reachesAnElevationWithinTheFlood) {
  RoutingInput dam = sampleDam();
  dam.outlets.principal = {};
  dam.inflow = LinearTable({0, 2, 4, 40}, {0, 3000, 0, 0});
  const RoutingResult flood = routeDam(dam);
  std::size_t i = flood.rows.size() - 200;
  ASSERT_LT(flood.rows[i].pool, flood.rows[i - 1].pool);
  dam.drawdown = DrawdownRequest{0.5 * (flood.rows[i].pool + flood.rows[i - 1].pool), 0, 240};
  const RoutingResult result = routeDam(dam);
  EXPECT_NEAR(result.drawdown.value().reached.value_or(0), flood.rows[i].hours - 0.5 * dam.rowHours, 1e-6);
  EXPECT_EQ(result.drawdown->rows.size(), 1U);
}

TEST(Drawdown, byPercentIsOfTheFloodStorage) {
  RoutingInput dam = sampleDam();
  dam.drawdown = DrawdownRequest{std::nullopt, 85, 240};
  const RoutingResult result = routeDam(dam);
  ASSERT_TRUE(result.drawdown);
  const double low = dam.storage.volume(18);
  const double high = dam.storage.volume(result.pool.value);
  const double left = (dam.storage.volume(result.drawdown->targetElevation) - low) / (high - low);
  EXPECT_NEAR(left, 0.15, 1e-6);
  EXPECT_TRUE(result.drawdown->reached);
  EXPECT_NEAR(result.drawdown->rows.back().pool, result.drawdown->targetElevation, 0.5);
}

TEST(Drawdown, endsAtItsTimeWhereTheInflowHoldsThePool) {
  RoutingInput dam = sampleDam();
  dam.inflow = LinearTable({0, 2, 8, 12}, {20, 1000, 20, 20});
  dam.drawdown = DrawdownRequest{18.0, 0, 100};
  const RoutingResult result = routeDam(dam);
  ASSERT_TRUE(result.drawdown);
  EXPECT_FALSE(result.drawdown->reached);
  EXPECT_NEAR(result.drawdown->rows.back().hours, result.pool.hours + 100, 1e-6);
}

TEST(PoolOfOutflow, isTheHighestThatPassesNoMore) {
  const RoutingInput dam = sampleDam();
  EXPECT_NEAR(poolOfOutflow(dam.outlets, dam.storage, 0), 18, 1e-4);
  const DamErosion whole(dam.erosion);
  const double pool = poolOfOutflow(dam.outlets, dam.storage, 40);
  EXPECT_TRUE(isClose(dam.outlets.flows(pool, whole).total(), 40, 1e-6));
  EXPECT_EQ(poolOfOutflow(dam.outlets, dam.storage, 1e9), 36);
}

}  // namespace
}  // namespace kestra
