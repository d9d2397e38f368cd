#include "results/breach_history.h"

#include <gtest/gtest.h>

#include "support/dam_output.h"

namespace kestra {
namespace {

std::string history(const std::vector<std::string>& discharges) {
  std::vector<std::string> lines = {"Time", "(hr)"};
  for (const std::string& discharge : discharges) lines.push_back(std::string(60, ' ') + rightIn(12, discharge));
  return joinLines(lines);
}

TEST(BreachHistory, givesTheHighestUnitDischargeBehindItsFirstFiveLines) {
  EXPECT_EQ(highestUnitDischarge(history({"99", "99", "99", "1.25", "NaN", "7.5", "******"})), 7.5);
}

TEST(BreachHistory, givesZeroWhereThereIsNone) {
  EXPECT_EQ(highestUnitDischarge(""), 0);
  EXPECT_EQ(highestUnitDischarge("1\n2\n3"), 0);
  EXPECT_EQ(highestUnitDischarge(history({"99", "99", "99"})), 0);
  EXPECT_EQ(highestUnitDischarge(history({"99", "99", "99"}) + "     1234\n"), 0);
}

}  // namespace
}  // namespace kestra
