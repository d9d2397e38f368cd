#include "graphics/clipped_line.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/canvas_calls.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// The calls for a segment in the window 0 to 10, 0 to 5.
Lines drawn(double x1, double y1, double x2, double y2, int fill = kNoFill) {
  RecordingCanvas canvas;
  DrawClippedLine(x1, y1, x2, y2, 0, 0, 10, 5, canvas, fill);
  return callsOf(canvas);
}

TEST(AClippedLine, isDrawnAsFarAsItLiesInTheWindowWithYTurnedOver) {
  const struct {
    double x1, y1, x2, y2;
    Lines calls;
  } cases[] = {
      {1, 1, 9, 2, {"Line 1 4 9 3"}},                     // within
      {9, 2, 1, 1, {"Line 9 3 1 4"}},                     // its direction stays
      {0, 0, 10, 5, {"Line 0 5 10 0"}},                   // corner to corner
      {-4, 1, 6, 1, {"Line 0 4 6 4"}},                    // left
      {6, 1, 14, 1, {"Line 6 4 10 4"}},                   // right
      {14, 1, 6, 1, {"Line 10 4 6 4"}},                   // right, backwards
      {2, 3, 6, 7, {"Line 2 2 4 0"}},                     // top
      {6, -2, 4, 2, {"Line 5 5 4 3"}},                    // bottom
      {-2, 4, 2, 8, {}},                                  // past a corner
      {-2, 2, 12, 2, {"Line 0 3 10 3"}},                  // right through
      {-2, -1, 12, 6, {"Line 0 5 10 0"}},                 // through two corners
      {12, 6, -2, -1, {"Line 10 0 0 5"}},                 // and back
      {-1, 1, 1, -1, {}},                                 // touches a corner
      {-5, 1, -2, 3, {}},                                 // aside
      {1, 7, 4, 6, {}},                                   // above
      {0, 2, -3, 2, {}},                                  // outward from the edge
      {-5, 0, 5, 0, {"Line 0 5 5 5"}},                    // along the bottom
      {10, -5, 10, 3, {"Line 10 5 10 2"}},                // along the right edge
      {3, 3, 3, 3, {"Line 3 2 3 2"}},                     // a point
      {20, 20, 20, 20, {}},                               // a point outside
      {4, -3.297177588099758, 6.256594949739789, 0, {}},  // up to the edge from outside
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.x1 << " " << c.y1 << " " << c.x2 << " " << c.y2);
    EXPECT_EQ(drawn(c.x1, c.y1, c.x2, c.y2), c.calls);
  }
}

TEST(AClippedLine, leavesTheWindowAHairAsideWhereItIsUpright) {
  // The slope is 20 over 0.0001.
  EXPECT_EQ(drawn(5, -10, 5, 10), (Lines{"Line 5.00005 5 5.000075 0"}));
  EXPECT_EQ(drawn(5, 1, 5, 11), (Lines{"Line 5 4 5.00004 0"}));
}

TEST(AClippedLine, isFilledDownToTheBottomInBands) {
  const Lines level = drawn(2, 3, 4, 3, kFill);
  EXPECT_EQ(level, (Lines{"Line 2 2 4 2", "FilledBox 2 2 4 5"}));
  EXPECT_EQ(drawn(2, 0, 4, 0.025, kFill),
            (Lines{"Line 2 5 4 4.975", "Box 3 4.975 4 4.9875", "Box 2 4.9875 4 5", "FilledBox 2 5 4 5"}));
  EXPECT_EQ(drawn(4, 3, 2, 3.01, kFill), (Lines{"Line 4 2 2 1.99", "Box 4 1.99 2 2", "FilledBox 4 2 2 5"}));
  EXPECT_EQ(drawn(-3, 6, -1, 7, kFill), Lines{});
  EXPECT_EQ(drawn(0, 0, 10, 5, kFill).size(), 402U);
}

TEST(AClippedLine, isNeverDrawnOutsideTheWindow) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(-15, 25);
  int parts = 0;
  for (int i = 0; i < 20000; ++i) {
    RecordingCanvas canvas;
    DrawClippedLine(place(random), place(random), place(random), place(random), 0, 0, 10, 5, canvas, kNoFill);
    for (const CanvasCall& call : canvas.log().calls()) {
      ++parts;
      for (int k = 0; k < 4; ++k) {
        const double value = call.numbers[static_cast<std::size_t>(k)];
        EXPECT_GE(value, 0);
        EXPECT_LE(value, k % 2 == 0 ? 10 : 5);
      }
    }
  }
  EXPECT_GT(parts, 2000);
}

TEST(AClippedLine, drawsNothingForPlacesBeyondAllNumbers) {
  EXPECT_EQ(drawn(0, -1e308, 1, 1e308), Lines{});
}

}  // namespace
}  // namespace kestra
