#include "graphics/scaling.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestra {
namespace {

struct Case {
  View given;
  View rounded;
  double XStep;
  double YStep;
};

void expectNear(const View& a, const View& b) {
  EXPECT_NEAR(a.Xmin, b.Xmin, 1e-9);
  EXPECT_NEAR(a.Xmax, b.Xmax, 1e-9);
  EXPECT_NEAR(a.Ymin, b.Ymin, 1e-9);
  EXPECT_NEAR(a.Ymax, b.Ymax, 1e-9);
}

TEST(Scaling, roundsTheWindowToWholeTicks) {
  const Case cases[] = {
      {{0, 137, 0, 137}, {0, 140, 0, 140}, 20, 20},
      {{0, 1000, 0, 1000}, {0, 1000, 0, 1000}, 200, 200},
      {{0, 60, 0, 30}, {0, 60, 0, 30}, 10, 5},
      {{0, 11, 0, 10}, {0, 12, 0, 10}, 2, 2},
      {{3.2, 7.9, 1016.3, 1024.8}, {3, 8, 1016, 1025}, 0.5, 1},
      {{-6, 5, 0, 7}, {-6, 6, 0, 7}, 2, 1},
      {{0, 7, -6, 5}, {0, 7, -8, 6}, 1, 2},
      {{0, 7, -5, 6}, {0, 7, -6, 6}, 1, 2},
      {{0, 7, -1, 10}, {0, 7, 0, 10}, 1, 2},
      {{0, 0.05, 0, 0.5}, {0, 0.06, 0, 0.6}, 0.02, 0.2},
      {{0, 1e30, 0, 3e-4}, {0, 1e30, 0, 0.001}, 2e29, 2e-4},
  };
  for (const Case& c : cases) {
    View window = c.given;
    ScaleMemo memo;
    const Steps steps = Scaling(window, memo);
    SCOPED_TRACE(testing::Message() << c.given.Xmin << " to " << c.given.Xmax << ", " << c.given.Ymin);
    EXPECT_DOUBLE_EQ(steps.XStep, c.XStep);
    EXPECT_DOUBLE_EQ(steps.YStep, c.YStep);
    expectNear(window, c.rounded);
    EXPECT_EQ(memo.XStep, steps.XStep);
    EXPECT_EQ(memo.YStep, steps.YStep);
    EXPECT_EQ((View{memo.MemoXmin, memo.MemoXmax, memo.MemoYmin, memo.MemoYmax}), window);
    EXPECT_EQ(memo.MemoXRange, window.xRange());
    EXPECT_EQ(memo.MemoYRange, window.yRange());
  }
}

TEST(Scaling, widensRangesThatAreTooSmallOrNegative) {
  const View cases[] = {{0, 10, 5, 5}, {0, 10, 5, 5.0004}, {0, 10, 5, 3}};
  for (View window : cases) {
    ScaleMemo memo;
    const Steps steps = Scaling(window, memo);
    EXPECT_DOUBLE_EQ(steps.YStep, 0.0002);
    EXPECT_NEAR(window.Ymin, 5, 1e-9);
    EXPECT_NEAR(window.Ymax, 5.001, 1e-9);
  }
}

TEST(Scaling, leavesAWindowThatWasOnlyMovedAsItIs) {
  View window = {0, 137, 0, 137};
  ScaleMemo memo;
  Scaling(window, memo);
  window = {7, 147, -13, 127};
  const Steps steps = Scaling(window, memo);
  EXPECT_EQ(steps.XStep, 20);
  EXPECT_EQ(steps.YStep, 20);
  EXPECT_EQ(window, (View{7, 147, -13, 127}));
  window = {7, 147, -13, 128};
  Scaling(window, memo);
  EXPECT_EQ(window, (View{0, 160, 0, 140}));
}

TEST(Scaling, doesNotTakeAnEmptyWindowForOneThatWasMoved) {
  View window;
  ScaleMemo memo;
  Scaling(window, memo);
  EXPECT_NEAR(window.Xmax, 0.001, 1e-12);
}

TEST(Scaling, findsNoScaleForAWindowWithoutBounds) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const View cases[] = {{0, kInfinite, 0, 1}, {0, 1, -kInfinite, 1}, {0, kNone, 0, 1}, {-1e308, 1.7e308, 0, 1}};
  for (View window : cases) {
    ScaleMemo memo;
    EXPECT_THROW(Scaling(window, memo), ScalingFault);
    EXPECT_EQ(memo.XStep, 0);
  }
}

TEST(AView, flipsYBothWaysAlike) {
  const View view = {0, 1, 10, 30};
  EXPECT_EQ(view.flipped(12), 28);
  EXPECT_EQ(view.flipped(view.flipped(12)), 12);
}

}  // namespace
}  // namespace kestra
