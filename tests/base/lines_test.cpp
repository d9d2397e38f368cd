#include "base/lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestra {
namespace {

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  LineReader reader(text);
  std::string_view line;
  while (reader.next(line)) lines.emplace_back(line);
  EXPECT_EQ(reader.lineNumber(), lines.size());
  return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, takesBothLineEndsAlike) {
  EXPECT_EQ(linesOf("a\r\nb\nc"), (Lines{"a", "b", "c"}));
  EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
}

TEST(LineReader, keepsEmptyLinesAndLoneCarriageReturns) {
  EXPECT_EQ(linesOf("\r\n\na\rb\n"), (Lines{"", "", "a\rb"}));
  EXPECT_EQ(linesOf(""), Lines{});
}

}  // namespace
}  // namespace kestra
