#include "results/routing_table.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(RoutingTable, isEnteredBehindTheLineOfUnitsAndOneMore) {
  LineReader lines("headings\n   (hr)   (cfs)\n ---\nfirst\nsecond\n\nbehind\n");
  ASSERT_TRUE(enterRoutingTable(lines));
  OutputLine row;
  ASSERT_TRUE(nextTableRow(lines, row));
  EXPECT_EQ(row.text(), "first");
  ASSERT_TRUE(nextTableRow(lines, row));
  EXPECT_EQ(row.text(), "second");
  EXPECT_FALSE(nextTableRow(lines, row));
}

TEST(RoutingTable, isNotEnteredWithoutItsHeading) {
  for (const char* text : {"", "no units\nhere\n", "x\n Hydrograph Routing \n(hr)\n-\n1\n"}) {
    LineReader lines(text);
    EXPECT_FALSE(enterRoutingTable(lines)) << text;
    EXPECT_EQ(lines.lineNumber(), 0U) << text;
  }
}

TEST(RoutingTable, hasTheSpillwaysSideBySide) {
  EXPECT_EQ(routingSpillway(1), 31);
  EXPECT_EQ(routingSpillway(3), 51);
}

}  // namespace
}  // namespace kestra
