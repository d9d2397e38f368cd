#include "kestrasim/columns.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestra {
namespace {

struct FigureCase {
  double value;
  int width;
  int decimals;
  const char* figure;
  bool overflowed;
};

class Figure : public testing::TestWithParam<FigureCase> {};

TEST_P(Figure, standsInItsColumnsWithABlankBefore) {
  ColumnLine line;
  line.number(GetParam().value, GetParam().width, GetParam().decimals);
  EXPECT_EQ(line.line(), GetParam().figure);
  EXPECT_EQ(line.overflowed(), GetParam().overflowed);
}

constexpr double kInfinite = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Values, Figure,
    testing::Values(FigureCase{1.5, 10, 3, "     1.500", false}, FigureCase{-0.0001, 10, 3, "     0.000", false},
                    FigureCase{0, 10, 1, "       0.0", false}, FigureCase{123456.789, 10, 3, " 123456.79", false},
                    FigureCase{1234567.25, 10, 3, " 1234567.2", false},
                    FigureCase{123456789, 10, 2, " 99999999.", true}, FigureCase{-123456789, 10, 2, " -9999999.", true},
                    FigureCase{1e300, 12, 2, " 9999999999.", true}, FigureCase{kInfinite, 10, 2, " 99999999.", true},
                    FigureCase{std::numeric_limits<double>::quiet_NaN(), 10, 2, " 99999999.", true},
                    FigureCase{99999.996, 9, 2, " 100000.0", false}));

TEST(FixedNumber, neverHasAnExponentOrANegativeZero) {
  EXPECT_EQ(fixedNumber(1e20, 1), "100000000000000000000.0");
  EXPECT_EQ(fixedNumber(1e-20, 4), "0.0000");
  EXPECT_EQ(fixedNumber(-1e-20, 4), "0.0000");
  EXPECT_EQ(fixedNumber(-2.5, 0), "-2");
}

TEST(ColumnLine, joinsItsFields) {
  EXPECT_EQ(ColumnLine().words("At").number(2, 6, 1).blanks(2).text("end", 5).line(), "At   2.0    end");
}

}  // namespace
}  // namespace kestra
