#include "results/output_line.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(OutputLine, givesColumnsFromOneCountedInCharacters) {
  const OutputLine plain("abcdefgh");
  EXPECT_EQ(plain.columns(1, 3), "abc");
  EXPECT_EQ(plain.columns(7, 10), "gh");
  EXPECT_EQ(plain.columns(9, 10), "");
  EXPECT_EQ(plain.length(), 8U);
  const OutputLine umlauts("äbüdef");
  EXPECT_EQ(umlauts.columns(1, 3), "äbü");
  EXPECT_EQ(umlauts.columns(4, 10), "def");
  EXPECT_EQ(umlauts.length(), 6U);
}

TEST(TableRows, endAtABlankLineAndLeaveMessagesOut) {
  LineReader lines("one\n  ***** ERROR x\n***** WARNING\n***\ntwo\n   \nthree\n");
  OutputLine row;
  std::vector<std::string> rows;
  while (nextTableRow(lines, row)) rows.emplace_back(row.text());
  EXPECT_EQ(rows, (std::vector<std::string>{"one", "***", "two"}));
  std::string_view next;
  ASSERT_TRUE(lines.next(next));
  EXPECT_EQ(next, "three");
}

TEST(SkippedLines, endWithTheText) {
  LineReader lines("one\ntwo\n");
  skipLines(lines, 5);
  std::string_view next;
  EXPECT_FALSE(lines.next(next));
}

}  // namespace
}  // namespace kestra
