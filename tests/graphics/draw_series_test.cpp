#include "graphics/draw_series.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "base/runtime_fault.h"
#include "sheet_desk.h"

namespace kestra {
namespace {

struct TheLinesOfAGraph : testing::Test, SheetDesk {
  TheLinesOfAGraph() { window = {0, 10, 0, 10}; }
};

TEST_F(TheLinesOfAGraph, areDrawnEachWithItsPen) {
  series.begin(1);
  for (const double x : {0.0, 1.0, 2.0}) series.add(0, x, 10 * x);
  DrawSeriesLines(sheet, canvas);
  EXPECT_EQ(calls(), (Lines{"Scale -2.4 -1.05263157894737 11 13.6", "DrawMode 13", "DrawWidth 1", "ForeColor 102",
                            "DrawWidth 2", "DrawStyle 0", "Line 0 10 1 0"}));
}

TEST_F(TheLinesOfAGraph, haveALegendWhenThereAreSeveral) {
  series.begin(0);
  series.addSeries("One");
  series.addSeries("None");
  series.add(0, 0, 0);
  series.add(0, 5, 5);
  DrawSeriesLines(sheet, canvas);
  EXPECT_EQ(calls(), (Lines{"Scale -2.4 -1.05263157894737 12 13.6", "DrawMode 13", "DrawWidth 1",     //
                            "ForeColor 102", "DrawWidth 2", "DrawStyle 0", "Line 0 10 5 5",           //
                            "Line 10.1 1 10.6 1", "Print 10.7 0.7 One",                               //
                            "ForeColor 103", "DrawWidth 4", "DrawStyle 1", "Line 10.1 1.6 10.6 1.6",  //
                            "Print 10.7 1.3 None"}));
}

TEST_F(TheLinesOfAGraph, areATinyCircleForASinglePoint) {
  series.begin(1);
  series.add(0, 0.1, 0.3);
  DrawSeriesLines(sheet, canvas);
  ASSERT_EQ(canvas.log().calls().back().op, CanvasOp::Circle);
  // The place is the short decimal, not the nearest number of single precision.
  EXPECT_EQ(canvas.log().calls().back().numbers, (std::array<double, 4>{0.1, 10 - 0.3, 0.0006, 102}));
  EXPECT_EQ(calls("Line"), Lines{});
  EXPECT_EQ(calls("Print"), Lines{});
}

TEST_F(TheLinesOfAGraph, haveThePointsOfSinglePrecision) {
  series.begin(1);
  series.add(0, 0.1, 0);
  series.add(0, 0.2, 0);
  DrawSeriesLines(sheet, canvas);
  EXPECT_EQ(canvas.log().calls().back().numbers[0], static_cast<double>(0.1F));
}

// Points of a restless curve, as many as a series takes.
void fillWithNoise(SeriesStore& series, double width) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> y(-2, 12);
  series.begin(1);
  for (int i = 0; i < SeriesStore::kPoints; ++i) series.add(0, width * i / SeriesStore::kPoints, y(random));
}

TEST_F(TheLinesOfAGraph, areDrawnPointByPointWhereEveryCallIsToBeSeen) {
  window.Ymin = -5;
  window.Ymax = 15;
  fillWithNoise(series, 10);
  DrawSeriesLines(sheet, canvas);
  EXPECT_EQ(calls("Line").size(), SeriesStore::kPoints - 1U);
}

TEST_F(TheLinesOfAGraph, costWhatTheColumnsOfThePictureCost) {
  window.Ymin = -5;
  window.Ymax = 15;
  fillWithNoise(series, 10);
  canvas.setPixelColumns(400);
  DrawSeriesLines(sheet, canvas);
  EXPECT_LE(calls("Line").size(), 4 * 401U);
  EXPECT_GE(calls("Line").size(), 2 * 290U);
}

TEST_F(TheLinesOfAGraph, keepEveryPointWhenThereAreFewerThanColumns) {
  series.begin(1);
  for (int i = 0; i < 300; ++i) series.add(0, i / 100.0, i % 7);
  canvas.setPixelColumns(300);
  DrawSeriesLines(sheet, canvas);
  EXPECT_EQ(calls("Line").size(), 299U);
}

// Rows of pixels, from lowest to highest, that a line through some points covers in each column of its own stretch.
std::vector<std::pair<float, float>> coverage(const Series& series, const std::vector<int>& points, int columns) {
  std::vector<std::pair<float, float>> covered(static_cast<std::size_t>(columns), {1e9F, -1e9F});
  for (const int p : points) {
    const auto at = static_cast<std::size_t>(p);
    auto& [low, high] = covered[static_cast<std::size_t>(series.PlotX[at])];
    low = std::min(low, series.PlotY[at]);
    high = std::max(high, series.PlotY[at]);
  }
  return covered;
}

TEST(PointsForColumns, coverTheSamePixelsAsAllPointsDo) {
  SeriesStore store;
  fillWithNoise(store, 200);
  const Series& series = store(0);
  const auto points = pointsForColumns(series, 0, 200, 200);
  std::vector<int> all(SeriesStore::kPoints);
  for (int i = 0; i < SeriesStore::kPoints; ++i) all[static_cast<std::size_t>(i)] = i;
  EXPECT_LE(points.size(), 800U);
  EXPECT_TRUE(std::is_sorted(points.begin(), points.end()));
  EXPECT_EQ(coverage(series, points, 200), coverage(series, all, 200));
}

TEST(PointsForColumns, keepTheEndsOfEveryStretchSoThatColumnsJoinAsBefore) {
  SeriesStore store;
  store.begin(1);
  const float xs[] = {0.1F, 0.2F, 0.3F, 0.4F, 1.5F, 1.6F, 0.5F, 9, 8, 7};
  const float ys[] = {5, 9, 1, 4, 4, 4, 2, 1, 1, 3};
  for (int i = 0; i < 10; ++i) store.add(0, static_cast<double>(xs[i]), static_cast<double>(ys[i]));
  EXPECT_EQ(pointsForColumns(store(0), 0, 2, 2), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 9}));
  EXPECT_EQ(pointsForColumns(store(0), 0, 0, 2), (std::vector<int>{0, 1, 2, 9}));
  store.begin(1);
  EXPECT_EQ(pointsForColumns(store(0), 0, 2, 2), std::vector<int>{});
}

TEST(ASeriesStore, takesAsManySeriesAndPointsAsItHas) {
  SeriesStore store;
  store.begin(0);
  EXPECT_EQ(store.addSeries("a"), 0);
  EXPECT_EQ(store.SeriesCount, 1);
  for (int i = 0; i < SeriesStore::kPoints; ++i) EXPECT_TRUE(store.add(101, i, i));
  EXPECT_FALSE(store.add(101, 0, 0));
  EXPECT_EQ(store(101).PointCount(), 30001);
  EXPECT_THROW(store(102), RuntimeFault);
  EXPECT_THROW(store(-1), RuntimeFault);
  store.add(0, 1e300, -1e300);
  EXPECT_TRUE(std::isfinite(store(0).PlotX[0]) && std::isfinite(store(0).PlotY[0]));
  store.begin(3);
  EXPECT_EQ(store(101).PointCount(), 0);
  EXPECT_EQ(store(0).SeriesName, "");
}

}  // namespace
}  // namespace kestra
