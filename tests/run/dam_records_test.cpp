#include "run/dam_records.h"

#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {
namespace {

TEST(DamRecords, areThreeTextsThatTogetherAreTheFile) {
  const std::string before = lines({"KESTRA", "OPTION"});
  const std::string hyd =
      lines({record({"HYD", "Storm", "1", "0"}) + "0C", "", record({"", "", "1", "2"}), "ENDTABLE"});
  const std::string after = lines({"STROUTE", "ENDRUN", "QUIL", "HYD       9", "          1", "ENDTABLE", "ENDRUN"});
  const DamRecords records = readDamRecords(before + hyd + after);
  EXPECT_EQ(records.beforeHyd, before);
  EXPECT_EQ(records.hydText, hyd);
  EXPECT_EQ(records.afterHydText, after) << "the hydrographs of spillways stay where they are";
  EXPECT_EQ(records.hydRecord(), record({"HYD", "Storm", "1", "0"}) + "0C");
}

TEST(DamRecords, getTheSystemsLineEnds) {
  const DamRecords records = readDamRecords("A\nHYDROGRAPH\nENDTABLE\nB");
  EXPECT_EQ(records.beforeHyd, "A\r\n");
  EXPECT_EQ(records.hydText, "HYDROGRAPH\r\nENDTABLE\r\n");
  EXPECT_EQ(records.afterHydText, "B\r\n");
}

TEST(DamRecords, tellWhatTheFlagsOfTheHydrographAskFor) {
  struct Case {
    const char* flags;
    bool iterate;
    bool variableStep;
  };
  for (const Case& c : {Case{"", false, false},
                        {"1", true, false},
                        {"0C", false, false},
                        {" V", false, true},
                        {"1V", true, true},
                        {"0V", false, true},
                        {"v1", false, false}}) {
    const DamRecords records = readDamRecords(lines({record({"HYD", "", "", ""}) + c.flags, "ENDTABLE"}));
    EXPECT_EQ(records.iterate, c.iterate) << c.flags;
    EXPECT_EQ(records.variableStep, c.variableStep) << c.flags;
  }
}

TEST(DamRecords, takeTheWordOfTheLastOptionRecord) {
  const auto drawdown = [](const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += lines({record({"OPTION", "", "", "", word})});
    return readDamRecords(text).drawdown;
  };
  EXPECT_FALSE(drawdown({}));
  EXPECT_TRUE(drawdown({"DRAWDOWN"}));
  EXPECT_FALSE(drawdown({"NOBREACH"}));
  EXPECT_FALSE(drawdown({"DRAWDOWN", ""}));
  EXPECT_TRUE(drawdown({"NOBREACH", "DRAWDOWN"}));
}

}  // namespace
}  // namespace kestra
