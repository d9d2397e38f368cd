#include "graphics/summary_plot.h"

#include <gtest/gtest.h>

#include <limits>

#include "sheet_desk.h"

namespace kestra {
namespace {

TEST(AnAxisOfASummary, isWidenedToWholeTicks) {
  const struct {
    double low, high, roundLow, roundHigh, step;
  } cases[] = {
      {0, 1000, 0, 1000, 200},      // a thousand is one times ten to the third
      {0, 11, 0, 12, 2},            // one times ten, and something
      {0, 25, 0, 25, 5},            // up to five in front
      {0, 60, 0, 60, 10},           // six and more
      {13, 97, 10, 100, 10},        //
      {-3, 7.5, -4, 8, 2},          // the lower end goes down
      {-0.5, 0.5, -0.6, 0.6, 0.2},  // the exponent goes toward zero
      {0.001, 0.003, 0, 0.004, 0.002},
      {1020.5, 1026, 1020, 1026, 1},
  };
  for (const auto& each : cases) {
    const AxisScale axis = scaleAxis(each.low, each.high);
    EXPECT_DOUBLE_EQ(axis.low, each.roundLow) << each.low << " " << each.high;
    EXPECT_DOUBLE_EQ(axis.high, each.roundHigh) << each.low << " " << each.high;
    EXPECT_DOUBLE_EQ(axis.step, each.step) << each.low << " " << each.high;
  }
}

TEST(AnAxisOfASummary, needsARange) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const std::pair<double, double> cases[] = {{5, 5},     {5, 1},     {0, kInfinity}, {-kInfinity, 0},
                                             {kNone, 1}, {0, kNone}, {-1e308, 1e308}};
  for (const auto& [low, high] : cases) EXPECT_THROW(scaleAxis(low, high), ScalingFault) << low << " " << high;
}

struct ASummaryPlot : testing::Test, SheetDesk {
  SummaryPlot plot{{{1, 10}, {3, 30}, {2, 20}}, "Stress", "Peak", false};
};

TEST_F(ASummaryPlot, marksPointsThatCanBeSeen) {
  drawSummaryPlot(plot, lines, canvas);
  EXPECT_EQ(calls("PSet"), (Lines{"PSet 1 30", "PSet 3 10", "PSet 2 20"}));
  EXPECT_EQ(canvas.state().drawWidth, 5);
  const Lines texts = textsOn(canvas);
  EXPECT_EQ(texts.front(), "Summary Graphics");
  for (const char* text : {"Stress", "P", "k", "1", "10", "30"}) {
    EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end()) << text;
  }
}

TEST_F(ASummaryPlot, joinsItsPointsInTheirOrder) {
  plot.isLine = true;
  drawSummaryPlot(plot, lines, canvas);
  EXPECT_EQ(calls("PSet"), Lines{});
  const Lines drawn = calls("Line");
  ASSERT_GT(drawn.size(), 2U);
  EXPECT_EQ(drawn[drawn.size() - 2], "Line 1 30 3 10");
  EXPECT_EQ(drawn[drawn.size() - 1], "Line 3 10 2 20");
}

TEST_F(ASummaryPlot, widensAnAxisOfOneValue) {
  for (const double value : {0.0, 7.0, -1e15, 1e300}) {
    plot.points = {{value, value}, {value, value}};
    drawSummaryPlot(plot, lines, canvas);
    EXPECT_EQ(calls("PSet").size(), 2U) << value;
  }
}

TEST_F(ASummaryPlot, ofOnePointMarksItThoughALineIsWanted) {
  plot.points.resize(1);
  plot.isLine = true;
  drawSummaryPlot(plot, lines, canvas);
  EXPECT_EQ(calls("PSet").size(), 1U);
}

TEST_F(ASummaryPlot, putsALongLabelAboveTheAxis) {
  plot.yLabel = "Maximum Pool above Lowest Top of Dam (ft)";
  drawSummaryPlot(plot, lines, canvas);
  const Lines texts = textsOn(canvas);
  EXPECT_NE(std::find(texts.begin(), texts.end(), plot.yLabel), texts.end());
  plot.points[0].x = std::numeric_limits<double>::infinity();
  EXPECT_THROW(drawSummaryPlot(plot, lines, canvas), ScalingFault);
}

}  // namespace
}  // namespace kestra
