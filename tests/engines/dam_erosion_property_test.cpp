#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include "engines/erosion_runs.h"

// What must hold for every dam: over random believable dams, and over absurd ones.
namespace kestra {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

// The same numbers on every machine, unlike the distributions of the library.
class Numbers {
 public:
  explicit Numbers(std::uint64_t seed) : bits_(seed) {}
  double between(double low, double high) { return low + (high - low) * static_cast<double>(bits_() >> 11U) * 0x1p-53; }
  double magnitude(double low, double high) { return low * std::pow(high / low, between(0, 1)); }
  template <std::size_t N>
  double oneOf(const double (&values)[N]) {
    return values[bits_() % N];
  }

 private:
  std::mt19937_64 bits_;
};

DamErosionInput believableDam(Numbers& numbers) {
  DamErosionInput dam;
  const double height = numbers.magnitude(8, 200);
  dam.section = {100 + height,
                 100,
                 numbers.between(1.5, 4),
                 numbers.between(6, 40),
                 numbers.between(1.5, 4),
                 numbers.magnitude(100, 3000),
                 {}};
  dam.slope.surface = numbers.between(0, 1) < 0.5 ? SlopeSurface::vegetated : SlopeSurface::bare;
  dam.slope.cover.roughness = numbers.between(3, 7.6);
  dam.slope.cover.coverFactor = numbers.between(0.3, 0.9);
  dam.slope.cover.maintenanceCode = 1 + static_cast<int>(numbers.between(0, 3));
  dam.slope.plasticityIndex = numbers.between(0, 30);
  dam.soil.model = numbers.between(0, 1) < 0.5 ? HeadcutModel::energy : HeadcutModel::stress;
  dam.soil.erodibility = numbers.magnitude(0.05, 20);
  dam.soil.criticalStress = numbers.between(0, 0.2);
  dam.soil.advanceCoefficient = numbers.between(1, 3) * dam.soil.erodibility;
  dam.soil.bank = {numbers.between(105, 135), numbers.magnitude(200, 3000)};
  return dam;
}

struct Water {
  double head, hours, tailwater;
};

DamErosion eroded(const DamErosionInput& dam, const Water& water) {
  DamErosion erosion(dam);
  const double peak = water.hours / 3;
  const double dt = water.hours / 400;
  for (int i = 0; i < 400; ++i) {
    const double middle = (i + 0.5) * dt;
    const double head = water.head * (middle < peak ? middle / peak : (water.hours - middle) / (water.hours - peak));
    ErosionStep step = overtopping(dam, i * dt, dt, head);
    step.tailwater = water.tailwater;
    erosion.advance(step);
  }
  return erosion;
}

// Every stage as early and the sill as low, but for a thousandth that the steps may cost; and as wide, but for the few
// percent by which a headcut that forms later, under more water, may start wider.
void expectNoSafer(const DamErosion& worse, const DamErosion& better) {
  for (auto event : {&ErosionEvents::slopeLost, &ErosionEvents::breachInitiated, &ErosionEvents::breachCompleted})
    EXPECT_LE(when(worse.events().*event), when(better.events().*event) * 1.001);
  EXPECT_LE(worse.row().breach.sill, better.row().breach.sill + 0.01);
  EXPECT_GE(worse.breachWidth(), better.breachWidth() * 0.96);
}

struct Worsening {
  const char* name;
  void (*apply)(DamErosionInput&, Water&);
};
constexpr Worsening kWorsenings[] = {
    {"more water", [](DamErosionInput&, Water& water) { water.head *= 1.2; }},
    {"more erodible soil", [](DamErosionInput& dam, Water&) { dam.soil.erodibility *= 1.5; }},
    {"faster advance", [](DamErosionInput& dam, Water&) { dam.soil.advanceCoefficient *= 1.5; }},
    {"looser grains", [](DamErosionInput& dam, Water&) { dam.soil.criticalStress /= 2; }},
    {"weaker bank", [](DamErosionInput& dam, Water&) { dam.soil.bank.undrainedStrength /= 1.5; }},
    {"heavier bank", [](DamErosionInput& dam, Water&) { dam.soil.bank.unitWeight *= 1.1; }},
    {"thinner cover", [](DamErosionInput& dam, Water&) { dam.slope.cover.coverFactor /= 2; }},
    {"patchy cover", [](DamErosionInput& dam, Water&) { dam.slope.cover.maintenanceCode = 3; }},
    {"leaner soil", [](DamErosionInput& dam, Water&) { dam.slope.plasticityIndex /= 2; }},
    {"no cover", [](DamErosionInput& dam, Water&) { dam.slope.surface = SlopeSurface::bare; }},
};

TEST(DamErosion, makesNoDamBreachLaterByANarrowerCrest) {
  Numbers numbers(21);
  for (int i = 0; i < 300; ++i) {
    SCOPED_TRACE(i);
    const DamErosionInput dam = believableDam(numbers);
    const Water water = {numbers.magnitude(0.2, 4), numbers.magnitude(2, 60), numbers.between(60, 110)};
    DamErosionInput narrower = dam;
    narrower.section.crestWidth *= 0.7;
    const DamErosion as = eroded(dam, water);
    const DamErosion worse = eroded(narrower, water);
    EXPECT_LE(when(worse.events().breachInitiated), when(as.events().breachInitiated));
    EXPECT_LE(when(worse.events().breachCompleted), when(as.events().breachCompleted));
    EXPECT_LE(worse.row().breach.sill, as.row().breach.sill);
  }
}

TEST(DamErosion, makesNoDamSaferByMoreWaterWeakerSoilOrThinnerCover) {
  Numbers numbers(20);
  for (int i = 0; i < 300; ++i) {
    const DamErosionInput dam = believableDam(numbers);
    const Water water = {numbers.magnitude(0.2, 4), numbers.magnitude(2, 60), numbers.between(60, 110)};
    const DamErosion as = eroded(dam, water);
    for (const Worsening& worsening : kWorsenings) {
      SCOPED_TRACE(std::string(worsening.name) + ", dam " + std::to_string(i));
      DamErosionInput worse = dam;
      Water worseWater = water;
      worsening.apply(worse, worseWater);
      expectNoSafer(eroded(worse, worseWater), as);
    }
  }
}

TEST(DamErosion, answersAbsurdInputWithNumbers) {
  constexpr double kAbsurd[] = {0, -1, 1, 1e-300, 1e300, -1e300, kNaN, kInfinite, -kInfinite, 12.5, 1e5};
  Numbers numbers(7);
  for (int i = 0; i < 400; ++i) {
    SCOPED_TRACE(i);
    const auto odd = [&] { return numbers.oneOf(kAbsurd); };
    DamErosionInput dam = believableDam(numbers);
    dam.slope.surface = static_cast<SlopeSurface>(i % 3);
    for (double* value : {&dam.section.crestElevation, &dam.section.upstreamSlope, &dam.section.crestWidth,
                          &dam.section.downstreamSlope, &dam.section.crestLength, &dam.slope.cover.roughness,
                          &dam.slope.riprap.medianFeet, &dam.slope.riprap.uniformity, &dam.slope.cover.diameterInches,
                          &dam.soil.erodibility, &dam.soil.criticalStress, &dam.soil.advanceCoefficient,
                          &dam.soil.bank.unitWeight, &dam.soil.bank.undrainedStrength, &dam.breachCoefficient})
      if (numbers.between(0, 1) < 0.3) *value = odd();
    DamErosion erosion(dam);
    for (int step = 0; step < 12; ++step) {
      erosion.advance({step * 1.0, numbers.between(0, 1) < 0.8 ? 1.0 : odd(), odd(), odd(), odd(), odd()});
      for (double number : numbersOf(erosion)) ASSERT_TRUE(std::isfinite(number));
    }
  }
}

}  // namespace
}  // namespace kestra
