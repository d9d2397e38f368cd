#include "run/hydrograph_table.h"

#include <gtest/gtest.h>

#include "base/fields.h"
#include "base/runtime_fault.h"
#include "run/run_desk.h"

namespace kestra {
namespace {

TEST(HydrographStep, isOneHourWhereTheFieldGivesNoneOrTooSmallAStep) {
  const std::pair<const char*, double> cases[] = {{"0.25", 0.25}, {"0.001", 0.001}, {"0.0009", 1}, {"", 1},
                                                  {"   ", 1},     {"-1", 1},        {"none", 1},   {"2h", 2}};
  for (const auto& [field, step] : cases) EXPECT_EQ(hydrographStep(record({"HYD", "title", field})), step) << field;
  EXPECT_EQ(hydrographStep("HYD"), 1);
}

TEST(HydrographTable, keepsTitleAndStartAndWritesFiveDischargesARow) {
  const std::string old = record({"HYD", "A storm", "0.5", "2"}) + "1V";
  EXPECT_EQ(hydrographTable(old, {0.25, {0, 1.5, 100, 1234567.891234, 1e-7, 7}}),
            lines({"HYD       A storm    0.25     2         ",
                   "                     0         1.5       100       1234567.8 0.0000001",
                   "                     7        ", "ENDTABLE"}));
}

TEST(HydrographTable, leavesTheStartBlankInAShortRecordAndNeedsNoRows) {
  EXPECT_EQ(hydrographTable("HYD", {1, {}}), lines({"HYD                  1                  ", "ENDTABLE"}));
  EXPECT_EQ(hydrographTable("HYD", {1, {1, 2, 3, 4, 5}}),
            lines({"HYD                  1                  ",
                   "                     1         2         3         4         5        ", "ENDTABLE"}));
}

TEST(TableNumber, beginsWithABlankOrASignAndHasNoExponent) {
  EXPECT_EQ(tableNumber(0.5), " 0.5");
  EXPECT_EQ(tableNumber(-2), "-2");
  EXPECT_EQ(tableNumber(1.25e-9), " 0.00000000125");
}

TEST(ResampleForRun, stretchesTheStepToExactly17000PointsHoweverSmallItIs) {
  const HydrographPoints points = {{0, 100}, {0, 50}};
  for (const double step : {0.005, 0.003, 0.001, 0.0}) {
    const ResampledHydrograph fine = resampleForRun(step, points);
    EXPECT_EQ(fine.flows.size(), 17000U) << step;
    EXPECT_EQ(fine.step, 100.0 / 16999) << step;
  }
  EXPECT_EQ(resampleForRun(100.0 / 16999, points).flows.size(), 17000U);
  EXPECT_EQ(resampleForRun(50, points).flows, (std::vector<double>{0, 25, 50}));
  EXPECT_TRUE(resampleForRun(1, {}).flows.empty());
}

}  // namespace
}  // namespace kestra
