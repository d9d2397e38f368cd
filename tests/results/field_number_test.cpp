#include "results/field_number.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/numbers.h"

namespace kestra {
namespace {

TEST(FieldNumber, isTheNumberThatTheLenientConversionReads) {
  for (const char* field : {"0",
                            "      0.00",
                            "     12.50",
                            "12.50     ",
                            "-12.5",
                            "+12.5",
                            ".5",
                            "5.",
                            "-.5",
                            "1 2",
                            "- 5",
                            "1E3",
                            "1D-3",
                            "\t7\t",
                            "123456789012345",
                            "0.000000000000001",
                            "1234567890123456789012",
                            "0.1",
                            "2.675",
                            "12cfs",
                            "1.2.3",
                            "99999999.99",
                            "-0.0",
                            "9007199254740993",
                            "0000000000000000000001.5",
                            "1e999",
                            "-1e999"}) {
    const auto number = fieldNumber(field);
    ASSERT_TRUE(number) << field;
    EXPECT_EQ(*number, lenientNumber(field)) << field;
  }
}

TEST(FieldNumber, isNothingWhereNoneBegins) {
  for (const char* field :
       {"", "          ", "**********", "NaN", "inf", "x1", "-", ".", "- .", "-.e5", "e5", "\x80"}) {
    EXPECT_FALSE(fieldNumber(field)) << field;
  }
}

TEST(Extremes, ofNothingAreNothing) {
  Extremes extremes;
  extremes.add("");
  extremes.add("NaN");
  extremes.add("1e999");
  extremes.add(std::numeric_limits<double>::quiet_NaN());
  EXPECT_FALSE(extremes.highest());
  EXPECT_FALSE(extremes.lowest());
}

TEST(Extremes, holdAlsoBelowZero) {
  Extremes extremes;
  for (const char* field : {"-7", "*", "-5.5", "-9"}) extremes.add(field);
  EXPECT_EQ(extremes.highest(), -5.5);
  EXPECT_EQ(extremes.lowest(), -9.0);
}

}  // namespace
}  // namespace kestra
