#include "base/text.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(CharsFrom, countsCharactersAndStrayBytes) {
  EXPECT_EQ(charCount("h\xC3\xB6he"), 4U);
  EXPECT_EQ(charCount("h\xF6he"), 4U);
  EXPECT_EQ(charCount("\xE2\x82"), 2U);
  EXPECT_EQ(charsFrom("h\xC3\xB6he", 1, 2), "\xC3\xB6h");
  EXPECT_EQ(charsFrom("abc", 5), "");
  EXPECT_EQ(charsFrom("abc", 1), "bc");
}

TEST(Trim, takesBlanksOnly) {
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("\ta "), "\ta");
  EXPECT_EQ(trim("   "), "");
}

TEST(Case, changesAsciiLettersOnly) {
  EXPECT_EQ(toUpper("aZ\xC3\xB6"), "AZ\xC3\xB6");
  EXPECT_EQ(toLower("aZ1"), "az1");
  EXPECT_TRUE(equalIgnoringCase("Summary.IDT", "summary.idt"));
  EXPECT_FALSE(equalIgnoringCase("a", "ab"));
}

}  // namespace
}  // namespace kestra
