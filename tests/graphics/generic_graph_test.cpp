#include "graphics/generic_graph.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "sheet_desk.h"

namespace kestra {
namespace {

struct AGenericGraph : testing::Test, SheetDesk {
  std::vector<GenericPoint> table = {{2, 30}, {4, 10}, {12, 20}};

  void draw() {
    DrawGenericGraph(sheet, {table, "Rating", false, [](AbstractCanvas& c) { c.PSet(1, 1); }}, canvas);
  }
};

TEST_F(AGenericGraph, findsTheExtentsOfItsTable) {
  EXPECT_TRUE(FindMinMax(table, "Rating", false, window));
  EXPECT_EQ(window, (View{2, 12, 10, 30}));
}

TEST_F(AGenericGraph, leavesATenthOfRoomRoundAHydrograph) {
  EXPECT_TRUE(FindMinMax(table, "Hydrograph", false, window));
  EXPECT_EQ(window, (View{1, 13, 8, 32}));
  EXPECT_TRUE(FindMinMax(table, "Hydrograph", true, window));
  EXPECT_EQ(window, (View{2, 12, 10, 30}));
}

TEST_F(AGenericGraph, looksAtTheRowsZeroToHundredAndOne) {
  table.assign(103, {1, 1});
  table[101] = {5, 6};
  table[102] = {500, 600};
  EXPECT_TRUE(FindMinMax(table, "", false, window));
  EXPECT_EQ(window, (View{1, 5, 1, 6}));
}

TEST_F(AGenericGraph, isDrawnFromFrameToLabels) {
  canvas.Line(0, 0, 1, 1);
  draw();
  const Lines all = calls();
  EXPECT_EQ(window, (View{2, 12, 10, 30}));
  EXPECT_EQ(Lines(all.begin(), all.begin() + 4),
            (Lines{"Visible 1", "BackColor 100", "Scale -0.4 7.89473684210526 13 37.2", "DrawMode 13"}));
  EXPECT_EQ(textsOn(canvas).back(), "");
  EXPECT_NE(std::find(all.begin(), all.end(), "Print 5.45 31.7785263157895 X Label"), all.end());
  EXPECT_EQ(all[all.size() - 2], "PSet 1 1");
  EXPECT_EQ(all.back(), "Scale -0.4 7.89473684210526 13 37.2");
}

TEST_F(AGenericGraph, keepsTheWindowThatItFinds) {
  window = {0, 5, 0, 5};
  draw();
  EXPECT_EQ(window, (View{0, 5, 0, 5}));
  window = {3, 3, 0, 0};
  draw();
  EXPECT_EQ(window.Xmin, 3);
  EXPECT_NEAR(window.Xmax, 3.001, 1e-9);
}

TEST_F(AGenericGraph, isNotDrawnWithoutATable) {
  table.clear();
  draw();
  EXPECT_EQ(calls(), Lines{});
}

}  // namespace
}  // namespace kestra
