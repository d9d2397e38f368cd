#include "base/quoted_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestra {
namespace {

std::vector<std::string> valuesOf(std::string_view text) {
  std::vector<std::string> values;
  QuotedListReader reader(text);
  while (auto value = reader.next()) values.push_back(*value);
  return values;
}

using Values = std::vector<std::string>;

TEST(QuotedListReader, takesValuesByCommaAndByLine) {
  EXPECT_EQ(valuesOf("12\r\n 1 ,2\n3"), (Values{"12", "1", "2", "3"}));
  EXPECT_EQ(valuesOf("a,,b\n"), (Values{"a", "", "b"}));
  EXPECT_EQ(valuesOf("a\r\n\r\nb"), (Values{"a", "", "b"}));
  EXPECT_EQ(valuesOf(""), Values{});
}

TEST(QuotedListReader, keepsCommasAndLineEndsInsideQuotes) {
  EXPECT_EQ(valuesOf("\"a, b\",\"c\r\nd\"\r\n\"e\""), (Values{"a, b", "c\r\nd", "e"}));
  EXPECT_EQ(valuesOf("\"open"), (Values{"open"}));
  EXPECT_EQ(valuesOf("\"a\" rest, b"), (Values{"a", "b"}));
}

TEST(QuotedLine, isReadBackAsItStands) {
  for (const char* value : {"x, y", "", "a\"b", "\"", "\"\"", "\"all\"", "a\r\nb", " blanks "}) {
    EXPECT_EQ(valuesOf(quotedLine(value) + quotedLine("next")), (Values{value, "next"}));
  }
}

TEST(QuotedListReader, tellsWhetherAValueStoodInQuotes) {
  QuotedListReader reader("1,\"2\",3");
  std::string quoted;
  while (reader.next()) quoted += reader.quoted() ? 'q' : '-';
  EXPECT_EQ(quoted, "-q-");
}

}  // namespace
}  // namespace kestra
