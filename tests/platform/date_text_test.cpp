#include "platform/date_text.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(DateText, hasTheMonthFirstAndTwoDigitsOfEachPart) {
  EXPECT_EQ(dateText({2009, 2, 9, 14, 3, 5}), "02/09/2009 14:03:05");
  EXPECT_EQ(dateText({1970, 12, 31, 0, 59, 10}), "12/31/1970 00:59:10");
}

}  // namespace
}  // namespace kestra
