// Over believable dams drawn at random: more inflow, a softer soil, a thinner cover or a lower crest never make a dam
// safer.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>

#include "engines/sample_dam.h"

namespace kestra {
namespace {

constexpr int kDams = 12;

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
  double flood, crest, erodibility, coverFactor, plasticity, index;
};

DamDraw drawDam(Draw& draw) {
  return {draw.between(2500, 8000), draw.between(29, 31), draw.between(0.5, 15),
          draw.between(0.3, 0.9),   draw.between(0, 20),  draw.between(3, 7)};
}

RoutingInput damOf(const DamDraw& drawn) {
  RoutingInput dam = breachedDam(drawn.erodibility);
  dam.inflow = LinearTable({0, 2, 8, 12}, {0, drawn.flood, 0, 0});
  dam.outlets.crest = CrestOverflow({{0, 35}, {60, drawn.crest}, {400, drawn.crest + 0.2}, {460, 35}},
                                    UnitDischarge::fromCoefficient(2.8));
  dam.erosion.section.crestElevation = drawn.crest;
  dam.erosion.slope.cover.maintenanceCode = 1;
  dam.erosion.slope.cover.coverFactor = drawn.coverFactor;
  dam.erosion.slope.cover.roughness = drawn.index;
  dam.erosion.slope.plasticityIndex = drawn.plasticity;
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
  EXPECT_GT(breached, 2);
}

INSTANTIATE_TEST_SUITE_P(Changes, NeverSafer,
                         testing::Values(WorseCase{"inflow", [](DamDraw& dam) { dam.flood *= 1.15; }},
                                         WorseCase{"soil", [](DamDraw& dam) { dam.erodibility *= 1.5; }},
                                         WorseCase{"cover", [](DamDraw& dam) { dam.coverFactor -= 0.25; }},
                                         WorseCase{"plasticity", [](DamDraw& dam) { dam.plasticity *= 0.5; }},
                                         WorseCase{"crest", [](DamDraw& dam) { dam.crest -= 0.7; }}),
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
