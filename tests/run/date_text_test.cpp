#include "run/date_text.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(DateText, countsTwelveHoursTwiceAndLeavesMidnightOut) {
  EXPECT_EQ(dateText({2026, 3, 9, 13, 5, 7}), "3/9/2026 1:05:07 PM");
  EXPECT_EQ(dateText({2026, 12, 31, 0, 0, 1}), "12/31/2026 12:00:01 AM");
  EXPECT_EQ(dateText({2026, 12, 31, 12, 0, 0}), "12/31/2026 12:00:00 PM");
  EXPECT_EQ(dateText({2026, 12, 31, 11, 59, 59}), "12/31/2026 11:59:59 AM");
  EXPECT_EQ(dateText({2026, 12, 31, 0, 0, 0}), "12/31/2026");
}

}  // namespace
}  // namespace kestra
