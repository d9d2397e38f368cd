#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/result.h"

// What tests say about results: EXPECT_TRUE(succeeded(...)), EXPECT_TRUE(failed(..., kind, reason)).
namespace kestra {

template <class T>
testing::AssertionResult succeeded(const Result<T>& result) {
  if (result) return testing::AssertionSuccess();
  return testing::AssertionFailure() << result.failure().path << ": " << result.failure().reason << " (kind "
                                     << static_cast<int>(result.failure().kind) << ")";
}

template <class T>
testing::AssertionResult failed(const Result<T>& result, FailureKind kind, const std::string& reason) {
  if (result) return testing::AssertionFailure() << "succeeded";
  if (result.failure().kind == kind && result.failure().reason == reason) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "failed as kind " << static_cast<int>(result.failure().kind) << ": "
                                     << result.failure().reason;
}

}  // namespace kestra
