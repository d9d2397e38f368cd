#pragma once

#include <gtest/gtest.h>

#include <cmath>

namespace kestra {

// Within a part of the expected value; what a table prints as a short number is as good as its last digit.
inline void expectWithin(double value, double expected, double part, double lastDigit = 0) {
  EXPECT_NEAR(value, expected, part * std::abs(expected) + lastDigit / 2);
}

}  // namespace kestra
