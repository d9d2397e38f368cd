#include "base/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestra {
namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();

struct LenientCase {
  const char* text;
  double value;
};

class LenientNumber : public testing::TestWithParam<LenientCase> {};

TEST_P(LenientNumber, stopsAtTheFirstCharacterThatIsNoPartOfANumber) {
  EXPECT_EQ(lenientNumber(GetParam().text), GetParam().value) << '"' << GetParam().text << '"';
}

INSTANTIATE_TEST_SUITE_P(Texts, LenientNumber,
                         testing::Values(LenientCase{"1.5", 1.5}, LenientCase{"", 0}, LenientCase{"abc", 0},
                                         LenientCase{"1.5ft", 1.5}, LenientCase{" 12 34", 1234}, LenientCase{"\t7", 7},
                                         LenientCase{"-.5", -0.5}, LenientCase{"+3", 3}, LenientCase{"1e3", 1000},
                                         LenientCase{"1D-2", 0.01}, LenientCase{"1e", 1}, LenientCase{"1e+", 1},
                                         LenientCase{"1,5", 1}, LenientCase{"1.2.3", 1.2}, LenientCase{".", 0},
                                         LenientCase{"-", 0}, LenientCase{"--1", 0}, LenientCase{"5.", 5},
                                         LenientCase{"1e999", kInfinite}, LenientCase{"-1e999", -kInfinite},
                                         LenientCase{"1e-999", 0}, LenientCase{"inf", 0}, LenientCase{"nan", 0},
                                         LenientCase{"0x10", 0}));

TEST(LenientNumber, takesNumbersOfAnyLength) {
  EXPECT_EQ(lenientNumber(std::string(400, '9')), kInfinite);
  EXPECT_EQ(lenientNumber("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(lenientNumber(std::string(400, '0') + "1"), 1.0);
}

TEST(LenientNumber, isTheNearestOneHoweverItsDigitsStandInAField) {
  const std::pair<const char*, double> cases[] = {{"     0.1  ", 0.1},
                                                  {"  -123.456", -123.456},
                                                  {"999999999999999", 999999999999999.0},
                                                  {".000000000000001", 1e-15},
                                                  {"0.30000000000000004", 0.1 + 0.2},
                                                  {"123456789012345678", 123456789012345678.0},
                                                  {"1016.25   ", 1016.25},
                                                  {"-0", -0.0},
                                                  {"007", 7}};
  for (const auto& [text, value] : cases) EXPECT_EQ(lenientNumber(text), value) << text;
}

TEST(SingleNumber, isTheShortestThatStandsForTheNumber) {
  const std::pair<float, const char*> cases[] = {
      {0.1F, "0.1"}, {-2.5F, "-2.5"}, {16777216, "16777216"}, {1e20F, "1e+20"}, {0, "0"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(singleNumber(value), text);
}

TEST(WholeNumber, takesTheWholeTextOrNothing) {
  EXPECT_EQ(wholeNumber(" 12 "), 12);
  EXPECT_EQ(wholeNumber("-3"), -3);
  EXPECT_FALSE(wholeNumber(""));
  EXPECT_FALSE(wholeNumber("1.5"));
  EXPECT_FALSE(wholeNumber("12a"));
  EXPECT_FALSE(wholeNumber("99999999999999999999"));
}

TEST(GeneralNumber, givesTheShortestTextOfFifteenDigits) {
  EXPECT_EQ(generalNumber(0.5), "0.5");
  EXPECT_EQ(generalNumber(1234), "1234");
  EXPECT_EQ(generalNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(generalNumber(-0.0), "0");
  EXPECT_EQ(generalNumber(1e20), "1E+20");
  EXPECT_EQ(generalNumber(-1.5e-7), "-1.5E-07");
}

TEST(RealNumber, takesTheWholeTextOrNothing) {
  EXPECT_EQ(realNumber(" 12.50 "), 12.5);
  EXPECT_EQ(realNumber("+3"), 3);
  EXPECT_EQ(realNumber("-.5"), -0.5);
  EXPECT_EQ(realNumber("1E3"), 1000);
  for (const char* text : {"", " ", "+", "+-1", "1.5ft", "1 2", "1,5", "inf", "nan", "1e999", "0x10", "\t1"}) {
    EXPECT_FALSE(realNumber(text)) << text;
  }
}

TEST(DecimalNumber, neverHasAnExponent) {
  EXPECT_EQ(decimalNumber(0), "0");
  EXPECT_EQ(decimalNumber(-0.0), "0");
  EXPECT_EQ(decimalNumber(12000), "12000");
  EXPECT_EQ(decimalNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(decimalNumber(-2.5), "-2.5");
  EXPECT_EQ(decimalNumber(24.0 / 16999.0), "0.00141184775575034");
  EXPECT_EQ(decimalNumber(1.2e-7), "0.00000012");
  EXPECT_EQ(decimalNumber(1e20), "100000000000000000000");
  EXPECT_EQ(decimalNumber(99999.96, 6), "100000");
  EXPECT_EQ(decimalNumber(12.3 - 12, 12), "0.3");
  EXPECT_EQ(decimalNumber(-kInfinite), "-inf");
  EXPECT_EQ(decimalNumber(kInfinite), "inf");
  EXPECT_EQ(decimalNumber(std::numeric_limits<double>::quiet_NaN()), "nan");
}

}  // namespace
}  // namespace kestra
