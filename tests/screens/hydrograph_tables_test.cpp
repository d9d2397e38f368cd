#include "screens/hydrograph_tables.h"

#include <gtest/gtest.h>

#include <limits>

#include "controls/screen.h"

namespace kestra {
namespace {

using Numbers = std::vector<double>;

struct HydrographTable : testing::Test {
  Screen screen{"frmTest", "Test"};
  Table constant{screen, "grdTable", {6, 2, 1, 1}};
  Table variable{screen, "varTable", {6, 2, 1, 0}};

  void put(Table& table, int column, const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) table.setCell(static_cast<int>(i) + 1, column, texts[i]);
  }
};

TEST_F(HydrographTable, givesThePointsThatHaveTimeAndDischarge) {
  put(variable, 0, {"0", "1", " ", "2.5"});
  put(variable, 1, {"5", "", "6", "7"});
  const HydrographPoints points = loadTiQiArrays(variable);
  EXPECT_EQ(points.times, (Numbers{0, 2.5}));
  EXPECT_EQ(points.flows, (Numbers{5, 7}));
}

TEST_F(HydrographTable, givesDischargesTheTimesOfTheirRows) {
  put(constant, 1, {"5", "", "6"});
  EXPECT_EQ(constantPoints(constant, 0.5).times, (Numbers{0, 1}));
  EXPECT_EQ(constantPoints(constant, 0.5).flows, (Numbers{5, 6}));
  put(constant, 1, {"", "4"});
  EXPECT_EQ(constantPoints(constant, 0.5).flows, (Numbers{0, 4, 6}));
  put(constant, 1, {"", "", ""});
  EXPECT_TRUE(constantPoints(constant, 0.5).times.empty());
}

TEST_F(HydrographTable, countsFiveThousandDischarges) {
  Table large{screen, "large", {5004, 2, 1, 1}};
  for (int row = 1; row < large.rows(); ++row) large.setCell(row, 1, "1");
  EXPECT_EQ(constantPoints(large, 1).times.size(), 5000U);
}

TEST_F(HydrographTable, writesTimesOfTenCharacters) {
  numberTimes(constant, 0.1);
  EXPECT_EQ(constant.cell(1, 0), "0         ");
  EXPECT_EQ(constant.cell(4, 0), "0.3       ");
  numberTimes(constant, 1.0 / 3);
  EXPECT_EQ(constant.cell(2, 0), "0.33333333");
  numberTimes(constant, 1e-9);
  EXPECT_EQ(constant.cell(3, 0), "0.00000000");
  numberTimes(constant, std::numeric_limits<double>::infinity());
  EXPECT_EQ(constant.cell(3, 0), "");
  EXPECT_EQ(constant.cell(0, 0), "");
}

TEST_F(HydrographTable, writesDischargesCutAndNotRounded) {
  put(constant, 1, {"1", "2", "3", "4", "5"});
  fillFlows(constant, {200.0 / 3, 1e-7, 1e11, 12.5});
  EXPECT_EQ(constant.cell(1, 1), "66.6666666");
  EXPECT_EQ(constant.cell(2, 1), "0.0000001");
  EXPECT_EQ(constant.cell(3, 1), "1000000000");
  EXPECT_EQ(constant.cell(4, 1), "12.5");
  EXPECT_EQ(constant.cell(5, 1), "");
}

}  // namespace
}  // namespace kestra
