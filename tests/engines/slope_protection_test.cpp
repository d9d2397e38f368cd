#include "hydraulics/slope_protection.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestra {
namespace {

DamErosionInput turf() {
  DamErosionInput input;
  input.slope.cover.roughness = 5.6;
  input.slope.cover.coverFactor = 0.9;
  input.slope.cover.maintenanceCode = 2;
  input.slope.plasticityIndex = 15;
  return input;
}

TEST(SlopeProtection, ofTurfIsLostWhenTheStressHasWorkedLongEnough) {
  SlopeProtection slope(turf());  // under 4 cfs/ft 0.970 lb/ft^2, of which 3.083 lb h/ft^2 are borne
  EXPECT_FALSE(slope.advance(1, 4));
  EXPECT_NEAR(slope.state().grossStress, 8.18, 0.01);
  EXPECT_NEAR(slope.state().grossPercent, 100 * 8.18 / 13.5, 0.1);
  EXPECT_NEAR(slope.state().effectiveStress, 0.970, 0.001);
  EXPECT_NEAR(slope.state().stressTime, 0.970, 0.001);
  EXPECT_NEAR(slope.state().stressTimePercent, 31.5, 0.1);
  EXPECT_NEAR(slope.hoursLeft(), 2.18, 0.01);
  const double left = slope.hoursLeft();
  const auto lost = slope.advance(5, 4);
  ASSERT_TRUE(lost);
  EXPECT_DOUBLE_EQ(*lost, left);
  EXPECT_EQ(slope.hoursLeft(), 0);
  EXPECT_FALSE(slope.advance(5, 4)) << "it is lost once";
  EXPECT_NEAR(slope.state().stressTime, 0.970 * 11, 0.01) << "and the stress told on";
}

TEST(SlopeProtection, ofTurfIsTornOffByAGrossStressThatNoneStands) {
  SlopeProtection slope(turf());
  EXPECT_FALSE(slope.advance(0.01, 12));
  const auto lost = slope.advance(0.01, 13);
  ASSERT_TRUE(lost);
  EXPECT_LT(*lost, 0.01);
  EXPECT_GT(slope.state().grossPercent, 100);
}

TEST(SlopeProtection, standsForeverWithoutWater) {
  for (SlopeSurface surface : {SlopeSurface::vegetated, SlopeSurface::bare, SlopeSurface::riprap}) {
    DamErosionInput input = turf();
    input.slope.surface = surface;
    SlopeProtection slope(input);
    EXPECT_FALSE(slope.advance(1000, 0));
    EXPECT_EQ(slope.hoursLeft(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(slope.state().stressTimePercent, 0);
  }
}

TEST(SlopeProtection, ofRiprapIsLostWhenTheAllowedDischargeIsPassedBetweenTwoSteps) {
  DamErosionInput input;
  input.slope.surface = SlopeSurface::riprap;
  const double allowed = riprapAllowable(input.slope.riprap, 1.0 / 3);
  SlopeProtection slope(input);
  EXPECT_FALSE(slope.advance(2, 0.5 * allowed));
  EXPECT_NEAR(slope.state().dischargePercent, 50, 1e-9);
  EXPECT_EQ(slope.state().grossStress, 0);
  const auto lost = slope.advance(2, 1.3 * allowed);  // 1.25 h after the middle of the last step
  ASSERT_TRUE(lost);
  EXPECT_NEAR(*lost, 0.25, 1e-9);
}

TEST(SlopeProtection, ofRiprapThatWouldNotLieIsLostUnderTheFirstWater) {
  DamErosionInput input;
  input.slope.surface = SlopeSurface::riprap;
  input.section.downstreamSlope = 0.5;
  SlopeProtection slope(input);
  EXPECT_FALSE(slope.advance(1, 0));
  const auto lost = slope.advance(1, 0.5);
  ASSERT_TRUE(lost);
  EXPECT_LE(slope.state().dischargePercent, 9999);
}

TEST(SlopeProtection, ofBareSoilIsLostAsSoonAsItsGrainsMove) {
  DamErosionInput input = turf();
  input.slope.surface = SlopeSurface::bare;
  input.slope.cover.roughness = 0.025;
  input.soil.criticalStress = 0.5;
  SlopeProtection slope(input);
  EXPECT_FALSE(slope.advance(0.1, 0.05)) << "0.13 lb/ft^2";
  EXPECT_TRUE(slope.advance(0.1, 1));
  input.soil.criticalStress = 0;
  EXPECT_TRUE(SlopeProtection(input).advance(0.1, 0.05)) << "the finest grains move under 0.02 lb/ft^2";
}

TEST(SlopeProtection, lastsNoLongerWithMoreWaterLessCoverOrLessPlasticity) {
  const auto hours = [](const DamErosionInput& input, double q) {
    SlopeProtection slope(input);
    return slope.advance(1e6, q).value_or(1e9);
  };
  for (double q = 0.25; q < 12; q *= 1.4) {
    DamErosionInput better = turf();
    better.slope.cover.maintenanceCode = 1;
    DamErosionInput thinner = better;
    thinner.slope.cover.coverFactor = 0.5;
    DamErosionInput shorter = better;
    shorter.slope.cover.roughness = 4.44;
    DamErosionInput leaner = better;
    leaner.slope.plasticityIndex = 5;
    DamErosionInput broken = turf();
    broken.slope.cover.maintenanceCode = 3;
    EXPECT_LE(hours(better, q * 1.4), hours(better, q));
    EXPECT_LE(hours(thinner, q), hours(better, q));
    EXPECT_LE(hours(shorter, q), hours(better, q));
    EXPECT_LE(hours(leaner, q), hours(better, q));
    EXPECT_LE(hours(turf(), q), hours(better, q));
    EXPECT_LE(hours(broken, q), hours(turf(), q));
  }
}

}  // namespace
}  // namespace kestra
