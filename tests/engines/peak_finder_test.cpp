#include "hydraulics/peak_finder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestra {
namespace {

TEST(PeakFinder, findsTheTopOfAParabolaBetweenItsPoints) {
  PeakFinder finder;
  for (const double t : {0.0, 1.0, 2.5, 3.0, 4.0}) finder.take(t, 10 - (t - 1.8) * (t - 1.8));
  EXPECT_NEAR(finder.peak().hours, 1.8, 1e-9);
  EXPECT_NEAR(finder.peak().value, 10, 1e-9);
}

TEST(PeakFinder, keepsAnEndThatIsGreatest) {
  PeakFinder rising;
  for (const double t : {0.0, 1.0, 2.0}) rising.take(t, t);
  EXPECT_EQ(rising.peak().hours, 2);
  PeakFinder falling;
  for (const double t : {0.0, 1.0, 2.0}) falling.take(t, -t);
  EXPECT_EQ(falling.peak().hours, 0);
  EXPECT_EQ(falling.peak().value, 0);
}

TEST(PeakFinder, takesTheLaterOfTwoPeaksWhenItIsHigher) {
  PeakFinder finder;
  const double values[] = {0, 5, 1, 7, 2};
  for (int i = 0; i < 5; ++i) finder.take(i, values[i]);
  EXPECT_GE(finder.peak().value, 7);
  EXPECT_NEAR(finder.peak().hours, 3, 0.5);
  EXPECT_FALSE(finder.peakIsNew());
}

TEST(PeakFinder, makesNoMountainOfAKink) {
  PeakFinder finder;
  finder.take(0, 0);
  finder.take(1, 100);
  finder.take(1.001, 99.9);
  EXPECT_LE(finder.peak().value, 200);
  EXPECT_GE(finder.peak().value, 100);
}

}  // namespace
}  // namespace kestra
