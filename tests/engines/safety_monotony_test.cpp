// Over believable dams drawn at random: more inflow, a softer soil, a thinner cover or a lower crest never make a dam
// safer.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <variant>
#include <vector>

#include "engines/sample_dam.h"

namespace kestra {
namespace {

constexpr int kDams = 24;

// Numerical Recipes' quick generator: x' = 1664525 x + 1013904223 modulo 2^32.
class Draw {
 public:
  explicit Draw(std::uint32_t seed) : state_(seed) {}
  double between(double low, double high) {
    state_ = 1664525U * state_ + 1013904223U;
    return low + (high - low) * (state_ >> 8U) / static_cast<double>(1U << 24U);
  }

 private:
  std::uint32_t state_;
};

struct DamDraw {
  double height, flood, hours, freeboard, erodibility, coverFactor, plasticity, index;
  double crestWidth, upstreamSlope, downstreamSlope, length, reservoir;
  int code;
  bool stress, byCoefficient;
};

DamDraw drawDam(Draw& draw) {
  DamDraw dam;
  dam.height = draw.between(12, 60);
  dam.reservoir = draw.between(0.5, 3);
  dam.length = draw.between(200, 900);
  dam.flood = draw.between(4, 12) * dam.length;
  dam.hours = draw.between(6, 18);
  dam.freeboard = draw.between(-0.5, 0.5);
  dam.erodibility = draw.between(0.5, 15);
  dam.coverFactor = draw.between(0.3, 0.9);
  dam.plasticity = draw.between(0, 20);
  dam.index = draw.between(3, 7);
  dam.crestWidth = draw.between(8, 25);
  dam.upstreamSlope = draw.between(2, 4);
  dam.downstreamSlope = draw.between(1.5, 3.5);
  dam.code = 1 + static_cast<int>(draw.between(0, 2.999));
  dam.stress = draw.between(0, 1) < 0.5;
  dam.byCoefficient = draw.between(0, 1) < 0.5;
  return dam;
}

RoutingInput damOf(const DamDraw& drawn) {
  RoutingInput dam = breachedDam(drawn.erodibility);
  const double height = drawn.height;
  std::vector<StorageRow> rows;
  for (const double part : {0.0, 0.25, 0.5, 0.75, 1.0, 1.2}) {
    rows.push_back({part * height, 0, drawn.reservoir * height * part * (1 + part)});
  }
  dam.storage = StageStorage(rows, StorageBasis::areas);
  DropInletSpillway riser = std::get<DropInletSpillway>(dam.outlets.principal);
  riser.inlet.highCrest = 0.6 * height;
  dam.outlets.principal = riser;
  dam.outlets.auxiliary[0] =
      RatingCurve({0.85 * height, 0.9 * height, height, 1.2 * height}, {0, 60, 300, 900}, RatingCurve::Shape::straight);
  const double crest = height + drawn.freeboard;
  const UnitDischarge unit =
      drawn.byCoefficient ? UnitDischarge::fromCoefficient(2.8)
                          : UnitDischarge::fromSurface(
                                {drawn.crestWidth, drawn.index, drawn.upstreamSlope, drawn.index}, 0.5 * height + 15);
  dam.outlets.crest = CrestOverflow(
      {{0, height + 5}, {60, crest}, {60 + drawn.length, crest + 0.2}, {120 + drawn.length, height + 5}}, unit);
  dam.outlets.tailwater = LinearTable({0, 20000}, {0, 0.15 * height});
  dam.startPool = 0.6 * height;
  dam.inflow = LinearTable({0, drawn.hours / 6, drawn.hours * 2 / 3, drawn.hours}, {0, drawn.flood, 0, 0});
  DamErosionInput& erosion = dam.erosion;
  erosion.section = {crest, 0, drawn.upstreamSlope, drawn.crestWidth, drawn.downstreamSlope, drawn.length + 120, {}};
  erosion.slope.cover.maintenanceCode = drawn.code;
  erosion.slope.cover.coverFactor = drawn.coverFactor;
  erosion.slope.cover.roughness = drawn.index;
  erosion.slope.plasticityIndex = drawn.plasticity;
  erosion.soil.model = drawn.stress ? HeadcutModel::stress : HeadcutModel::energy;
  erosion.soil.bank = {120, 800};
  return dam;
}

double hoursOr(const std::optional<double>& hours) {
  return hours.value_or(std::numeric_limits<double>::infinity());
}

// The second dam fails no later than the first, to within a step, and lets no less over it before.
void expectNotSafer(const RoutingInput& before, const RoutingInput& after, int dam) {
  constexpr double kStep = 0.02;  // h
  const RoutingResult a = routeDam(before);
  const RoutingResult b = routeDam(after);
  EXPECT_LE(hoursOr(b.events.slopeLost), hoursOr(a.events.slopeLost) + kStep) << dam;
  EXPECT_LE(hoursOr(b.events.headcutFormed), hoursOr(a.events.headcutFormed) + kStep) << dam;
  EXPECT_LE(hoursOr(b.events.breachInitiated), hoursOr(a.events.breachInitiated) + kStep) << dam;
  EXPECT_LE(hoursOr(b.overtoppingBegins), hoursOr(a.overtoppingBegins) + kStep) << dam;
  if (b.events.breachInitiated || a.events.breachInitiated) return;
  EXPECT_GE(b.outflow.value, a.outflow.value * 0.999) << dam;
}

struct WorseCase {
  const char* name;
  std::function<void(DamDraw&)> worse;
};

class NeverSafer : public testing::TestWithParam<WorseCase> {};

TEST_P(NeverSafer, whenItIsWorse) {
  Draw draw(20090101);
  int breached = 0;
  for (int i = 0; i < kDams; ++i) {
    const DamDraw drawn = drawDam(draw);
    DamDraw worse = drawn;
    GetParam().worse(worse);
    expectNotSafer(damOf(drawn), damOf(worse), i);
    breached += routeDam(damOf(worse)).events.breachInitiated.has_value();
  }
  EXPECT_GT(breached, 3);
}

INSTANTIATE_TEST_SUITE_P(Changes, NeverSafer,
                         testing::Values(WorseCase{"inflow", [](DamDraw& dam) { dam.flood *= 1.15; }},
                                         WorseCase{"soil", [](DamDraw& dam) { dam.erodibility *= 1.5; }},
                                         WorseCase{"cover", [](DamDraw& dam) { dam.coverFactor -= 0.25; }},
                                         WorseCase{"plasticity", [](DamDraw& dam) { dam.plasticity *= 0.5; }},
                                         WorseCase{"gaps", [](DamDraw& dam) { dam.code = 3; }},
                                         WorseCase{"crest", [](DamDraw& dam) { dam.freeboard -= 0.7; }}),
                         [](const auto& tested) { return std::string(tested.param.name); });

// Without a breach the pool says all.
TEST(HighestPool, risesWithTheInflowAndWithAStoppedOutlet) {
  double before = 0;
  for (const double flood : {100.0, 500.0, 1000.0, 2000.0, 4000.0, 8000.0}) {
    RoutingInput dam = sampleDam(flood);
    const double pool = routeDam(dam).pool.value;
    EXPECT_GE(pool, before);
    before = pool;
    dam.outlets.principal = {};
    EXPECT_GE(routeDam(dam).pool.value, pool);
  }
}

}  // namespace
}  // namespace kestra
