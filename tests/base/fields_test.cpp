#include "base/fields.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

struct PadCase {
  const char* text;
  int width;
  const char* field;
};

class PadFieldTest : public testing::TestWithParam<PadCase> {};

TEST_P(PadFieldTest, padsOnTheRightAndCutsTheTail) {
  EXPECT_EQ(PadField(GetParam().text, GetParam().width), GetParam().field);
}

INSTANTIATE_TEST_SUITE_P(Widths, PadFieldTest,
                         testing::Values(PadCase{"1.5", 10, "1.5       "}, PadCase{"", 10, "          "},
                                         PadCase{"12345678901", 10, "1234567890"}, PadCase{"123456", 5, "12345"},
                                         PadCase{"1", 1, "1"}, PadCase{"", 1, " "}, PadCase{"ab", 0, ""},
                                         PadCase{"ab", -1, ""}, PadCase{"  a", 5, "  a  "},
                                         PadCase{"ab", 20, "ab          "}, PadCase{"h\xC3\xB6he", 5, "h\xC3\xB6he "},
                                         PadCase{"\xC3\xB6\xC3\xB6", 1, "\xC3\xB6"},
                                         PadCase{"h\xF6he", 5, "h\xF6he "}));

TEST(Columns, countFromOneAndStopAtTheEndOfTheLine) {
  EXPECT_EQ(columns("KESTRA    01/01/2009", 11, 10), "01/01/2009");
  EXPECT_EQ(columns("KESTRA", 1, 10), "KESTRA");
  EXPECT_EQ(columns("KESTRA", 7, 10), "");
  EXPECT_EQ(columns("\xC3\xB6\xC3\xB6"
                    "abc",
                    3, 2),
            "ab");
}

struct PopCase {
  const char* text;
  const char* line;
  const char* rest;
};

class PopLineTest : public testing::TestWithParam<PopCase> {};

TEST_P(PopLineTest, takesTheFirstLine) {
  std::string_view rest = GetParam().text;
  EXPECT_EQ(PopLine(rest), GetParam().line);
  EXPECT_EQ(rest, GetParam().rest);
}

INSTANTIATE_TEST_SUITE_P(Texts, PopLineTest,
                         testing::Values(PopCase{"one\r\ntwo\r\n", "one", "two\r\n"}, PopCase{"last", "last", ""},
                                         PopCase{"", "", ""}, PopCase{"\r\nb", "", "b"}, PopCase{"lone\nb", "lon", "b"},
                                         PopCase{"\nb", "", "b"}, PopCase{"a\rb\r\nc", "a\rb", "c"},
                                         PopCase{"h\xC3\xB6\nb", "h", "b"}));

TEST(NextTabField, takesTheTextBeforeTheFirstTab) {
  std::string_view line = "a\t\tb";
  EXPECT_EQ(nextTabField(line), "a");
  EXPECT_EQ(nextTabField(line), "");
  EXPECT_EQ(nextTabField(line), "b");
  EXPECT_EQ(line, "");
  EXPECT_EQ(nextTabField(line), "");
}

}  // namespace
}  // namespace kestra
