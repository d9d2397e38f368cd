#pragma once

#include <gtest/gtest.h>

#include <cmath>

namespace kestra {

// Within that part of the expected value.
inline testing::AssertionResult isClose(double value, double expected, double share = 0.005) {
  if (std::fabs(value - expected) <= share * std::fabs(expected)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << value << " is not within " << share * 100 << " % of " << expected;
}

}  // namespace kestra
