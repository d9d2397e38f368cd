#include "hydraulics/dam_outlets.h"

#include <gtest/gtest.h>

#include "engines/close_to.h"
#include "engines/sample_dam.h"

namespace kestra {
namespace {

const DamErosion& wholeDam() {
  static const DamErosion kWhole(sampleDam().erosion);
  return kWhole;
}

TEST(DamOutlets, runOneAfterAnotherAsThePoolRises) {
  const DamOutlets outlets = sampleDam().outlets;
  const OutletFlows low = outlets.flows(18, wholeDam());
  EXPECT_EQ(low.total(), 0);
  EXPECT_EQ(low.tailwater, 0);
  const OutletFlows riser = outlets.flows(20, wholeDam());
  EXPECT_GT(riser.principal, 0);
  EXPECT_EQ(riser.auxiliary[0], 0);
  const OutletFlows bywash = outlets.flows(27, wholeDam());
  EXPECT_EQ(bywash.auxiliary[0], 150);
  EXPECT_EQ(bywash.crest, 0);
  EXPECT_GT(outlets.flows(30.5, wholeDam()).crest, 0);
}

TEST(DamOutlets, agreeWithTheTailwaterThatTheyMake) {
  const DamOutlets outlets = sampleDam().outlets;
  for (const double pool : {18.5, 20.0, 26.0, 30.0, 31.0, 33.0}) {
    const OutletFlows flows = outlets.flows(pool, wholeDam());
    EXPECT_NEAR(flows.tailwater, outlets.tailwaterOf(flows.total()), 1e-6) << pool;
    const OutletFlows again = outlets.flowsAt(pool, flows.tailwater, wholeDam());
    EXPECT_TRUE(isClose(again.total(), flows.total(), 1e-9)) << pool;
  }
}

TEST(DamOutlets, passLessUnderAHighTailwater) {
  DamOutlets outlets = sampleDam().outlets;
  const double free = outlets.flows(29, wholeDam()).total();
  outlets.tailwater = LinearTable({0, 500}, {20, 28});
  const OutletFlows drowned = outlets.flows(29, wholeDam());
  EXPECT_LT(drowned.total(), free);
  EXPECT_LT(drowned.auxiliary[0], outlets.auxiliary[0].at(29));
}

TEST(DamOutlets, needNoTailwater) {
  DamOutlets outlets = sampleDam().outlets;
  outlets.tailwater = LinearTable();
  EXPECT_GT(outlets.flows(29, wholeDam()).total(), 0);
}

TEST(DamOutlets, neverPassLessWhenThePoolRises) {
  DamOutlets outlets = sampleDam().outlets;
  outlets.tailwater = LinearTable({0, 200, 1000, 4000}, {0, 12, 22, 31});
  double before = 0;
  for (double pool = 17; pool < 38; pool += 0.01) {
    const double total = outlets.flows(pool, wholeDam()).total();
    EXPECT_GE(total, before * (1 - 1e-9)) << pool;
    before = total;
  }
}

TEST(DamOutlets, knowTheirCrests) {
  EXPECT_EQ(sampleDam().outlets.crests(), (std::vector<double>{18, 25, 30}));
  EXPECT_EQ(sampleDam().outlets.lowestSpillwayCrest(), 18);
  DamOutlets crestOnly = sampleDam().outlets;
  crestOnly.principal = {};
  crestOnly.auxiliary = {};
  EXPECT_EQ(crestOnly.crests(), std::vector<double>{30});
  EXPECT_EQ(crestOnly.lowestSpillwayCrest(), 30);
}

TEST(PrincipalCrest, isTheLowStageOrWhereARatingBeginsToFlow) {
  DropInletSpillway drop;
  drop.inlet.highCrest = 20;
  EXPECT_EQ(principalCrest(drop), 20);
  drop.inlet.twoStage = true;
  drop.inlet.lowCrest = 15;
  EXPECT_EQ(principalCrest(drop), 15);
  EXPECT_EQ(principalCrest(RatingCurve({0, 10, 20}, {0, 0, 50}, RatingCurve::Shape::straight)), 10);
  EXPECT_EQ(principalCrest(std::monostate()), std::nullopt);
}

TEST(DamOutlets, giveTheBreachItsPartOfTheCrest) {
  const RoutingInput dam = breachedDam(20);
  DamErosion erosion(dam.erosion);
  for (int i = 0; i < 2000 && erosion.breachWidth() <= 0; ++i) erosion.advance({i * 0.01, 0.01, 31.5, 0, 1.5, 4.5});
  ASSERT_GT(erosion.breachWidth(), 0);
  const OutletFlows whole = dam.outlets.flowsAt(31, 0, wholeDam());
  const OutletFlows breached = dam.outlets.flowsAt(31, 0, erosion);
  EXPECT_GT(breached.breach, 0);
  EXPECT_LT(breached.crest, whole.crest);
  EXPECT_EQ(breached.overDam(), breached.crest + breached.breach);
}

}  // namespace
}  // namespace kestra
