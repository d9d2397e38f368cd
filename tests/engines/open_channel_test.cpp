#include "hydraulics/open_channel.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engines/close_to.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

struct RetardanceRow {
  double index;
  double n[10];
  double lowest;
};

class GrassRoughness : public testing::TestWithParam<RetardanceRow> {};

TEST_P(GrassRoughness, runsAlongTheCurveOfItsClass) {
  constexpr double kVr[] = {0.1, 0.3, 0.5, 1, 2, 3, 5, 10, 20, 36};
  for (int i = 0; i < 10; ++i) EXPECT_TRUE(isClose(grassRoughness(GetParam().index, kVr[i]), GetParam().n[i]));
  // Below the lowest VR the roughness does not grow any more.
  const double lowest = GetParam().lowest;
  EXPECT_DOUBLE_EQ(grassRoughness(GetParam().index, 0.5 * lowest), grassRoughness(GetParam().index, 0));
  EXPECT_LT(grassRoughness(GetParam().index, 1.01 * lowest), grassRoughness(GetParam().index, 0.9 * lowest));
  EXPECT_DOUBLE_EQ(grassRoughness(GetParam().index, 36), grassRoughness(GetParam().index, 500));
}

INSTANTIATE_TEST_SUITE_P(
    Classes, GrassRoughness,
    testing::Values(
        RetardanceRow{10.0, {0.3835, 0.3835, 0.3835, 0.3042, 0.1674, 0.1252, 0.0925, 0.0685, 0.0576, 0.0550}, 0.791},
        RetardanceRow{7.64, {0.3181, 0.3181, 0.2627, 0.1509, 0.0956, 0.0766, 0.0608, 0.0483, 0.0423, 0.0408}, 0.403},
        RetardanceRow{5.60, {0.2502, 0.1745, 0.1236, 0.0823, 0.0589, 0.0501, 0.0423, 0.0357, 0.0324, 0.0316}, 0.186},
        RetardanceRow{4.44, {0.2062, 0.1058, 0.0805, 0.0583, 0.0448, 0.0393, 0.0344, 0.0301, 0.0279, 0.0273}, 0.104},
        RetardanceRow{2.88, {0.0847, 0.0540, 0.0452, 0.0367, 0.0309, 0.0284, 0.0261, 0.0239, 0.0227, 0.0224}, 0.035}));

const Trapezoid kSpillway{100, 3};

struct ChannelRow {
  double discharge;
  double critical;
  double velocity;
  double energy;
  double normalGrass;
  double nGrass;
  double normalManning;
};

class Channel : public testing::TestWithParam<ChannelRow> {};

TEST_P(Channel, hasTheCriticalAndNormalDepthsOfTheTable) {
  const ChannelRow& row = GetParam();
  const double critical = criticalDepth(kSpillway, row.discharge);
  EXPECT_TRUE(isClose(critical, row.critical));
  EXPECT_TRUE(isClose(row.discharge / kSpillway.area(critical), row.velocity));
  EXPECT_TRUE(isClose(specificEnergy(kSpillway, row.discharge, critical), row.energy));
  const double grass = normalDepth(kSpillway, row.discharge, 0.03, 5.6);
  EXPECT_TRUE(isClose(grass, row.normalGrass));
  EXPECT_TRUE(isClose(grassRoughness(5.6, row.discharge / kSpillway.perimeter(grass)), row.nGrass));
  EXPECT_TRUE(isClose(normalDepth(kSpillway, row.discharge, 0.03, 0.03), row.normalManning));
}

INSTANTIATE_TEST_SUITE_P(Discharges, Channel,
                         testing::Values(ChannelRow{100, 0.3134, 3.161, 0.4687, 0.5086, 0.0838, 0.2750},
                                         ChannelRow{500, 0.9109, 5.343, 1.3546, 0.8933, 0.0430, 0.7207},
                                         ChannelRow{1000, 1.4381, 6.666, 2.1287, 1.2204, 0.0362, 1.0903},
                                         ChannelRow{3000, 2.9447, 9.361, 4.3064, 2.1704, 0.0318, 2.0957},
                                         ChannelRow{5000, 4.0893, 10.891, 5.9326, 2.9225, 0.0316, 2.8347}));

TEST(CriticalDepth, ofATriangleIsThatOfTheClosedForm) {
  // Q^2 2 z y / (g z^3 y^6) = 1
  const double expected = std::pow(2 * 50.0 * 50.0 / (32.17 * 4), 0.2);
  EXPECT_TRUE(isClose(criticalDepth({0, 2}, 50), expected, 1e-6));
}

TEST(WideFrictionSlope, isThatOfAVeryWideChannel) {
  EXPECT_TRUE(isClose(frictionSlope({1e5, 0}, 4e5, 1.2, 0.04), wideFrictionSlope(4, 1.2, 0.04), 1e-4));
}

}  // namespace
}  // namespace kestra
