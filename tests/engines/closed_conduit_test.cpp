#include "hydraulics/closed_conduit.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engines/close_to.h"

namespace kestra {
namespace {

struct PipeRow {
  const char* name;
  ConduitSection section;
  double manning;
  double length;
  double losses;
  double head;
  double perFoot;
  double area;
  double discharge;
};

class FullConduit : public testing::TestWithParam<PipeRow> {};

TEST_P(FullConduit, carriesWhatIsWorkedByHand) {
  const PipeRow& row = GetParam();
  const double perFoot = conduitLossPerFoot(row.section, row.manning);
  EXPECT_TRUE(isClose(perFoot, row.perFoot));
  EXPECT_TRUE(isClose(row.section.area, row.area));
  EXPECT_TRUE(isClose(fullConduitDischarge(row.section, row.losses + perFoot * row.length, row.head), row.discharge));
}

INSTANTIATE_TEST_SUITE_P(
    Worked, FullConduit,
    testing::Values(PipeRow{"24 in", circularSection(24), 0.013, 150, 1.0, 15, 0.012418, 3.1416, 49.66},
                    PipeRow{"30 in", circularSection(30), 0.012, 200, 1.0, 20, 0.007858, 4.9087, 93.18},
                    PipeRow{"36 in", circularSection(36), 0.025, 120, 1.0, 12, 0.026747, 7.0686, 86.06},
                    PipeRow{"3x3", rectangularSection(3, 3, 0), 0.013, 150, 1.0, 15, 0.007232, 9.0, 159.20},
                    PipeRow{"4x4", rectangularSection(4, 4, 6), 0.012, 200, 1.0, 20, 0.003958, 15.5, 332.80},
                    PipeRow{"3x4", rectangularSection(3, 4, 4), 0.013, 100, 0.8, 10, 0.005748, 11.7778, 193.87}),
    [](const auto& row) { return "row" + std::to_string(row.index + 1); });

TEST(ConduitLoss, isThePublishedFigureOfAnEighteenInchPipe) {
  EXPECT_TRUE(isClose(conduitLossPerFoot(circularSection(18), 0.025), 0.0674));
}

TEST(ConduitLoss, isTheSameByDiameterInInchesAndByHydraulicRadius) {
  EXPECT_TRUE(isClose(conduitLossPerFoot(circularSection(30), 0.012), 5087 * 0.012 * 0.012 / std::pow(30, 4.0 / 3)));
}

TEST(RectangularSection, hasAreaAndRadiusOfAFilletedCulvert) {
  const ConduitSection section = rectangularSection(4, 4, 6);
  EXPECT_NEAR(section.area, 15.5, 1e-12);
  EXPECT_NEAR(section.hydraulicRadius, 1.04529, 1e-5);
  EXPECT_EQ(section.height, 4);
}

TEST(RectangularSection, holdsAFilletThatIsTooLarge) {
  EXPECT_NEAR(rectangularSection(2, 3, 60).area, 2 * 3 - 2.0, 1e-12);
}

TEST(Openings, passNothingWithoutHead) {
  EXPECT_EQ(fullConduitDischarge(circularSection(24), 1, -1), 0);
  EXPECT_EQ(orificeDischarge(0.6, 3, -0.1), 0);
  EXPECT_EQ(weirDischarge(3.1, 10, -0.1), 0);
}

TEST(CriticalFlowInCircle, hasAFroudeNumberOfOne) {
  // Half full: area pi D^2/8, width D, depth D/2.
  const CircleFlow flow = criticalFlowInCircle(2, 3.14159265358979);
  EXPECT_TRUE(isClose(flow.discharge, std::sqrt(32.17 * std::pow(3.14159265 / 2, 3) / 2), 1e-6));
  EXPECT_TRUE(isClose(flow.energy, 1 + 3.14159265 / 2 / 4, 1e-6));
}

}  // namespace
}  // namespace kestra
