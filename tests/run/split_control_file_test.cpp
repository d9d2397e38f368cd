#include "run/split_control_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;

std::string surface(const std::string& number, const std::string& name, const std::string& analysis) {
  return PadField("ASSURFACE", 10) + number + PadField(name, 9) + PadField("3", 10) + PadField("50", 9) + analysis;
}

std::string rating(const std::string& number, const std::string& name, const std::string& analysis) {
  return PadField("ASRATING", 10) + number + PadField(name, 9) + analysis;
}

std::string run(const std::string& number, const std::string& label) {
  return lines({"QUIL      02/09/2002" + PadField(number, 10) + label, "BTMWIDTH  FEET      50", "ENDJOB", "ENDRUN"});
}

const std::string kDam = lines({"KESTRA    01/01/2009Dam", "ENDRUN"});

class SplitControlFileTest : public testing::Test, public RunDesk {
 protected:
  void split(const std::string& source) {
    memory.put("/p/dam.KSC", source);
    SplitControlFile(files, tables, "/p/dam.KSC", "/p/dam");
  }
};

TEST_F(SplitControlFileTest, writesARunIntoTheFileOfItsSpillway) {
  split(kDam + run("3", "c") + run("1", "a") + run("2", "b"));
  EXPECT_EQ(text("/p/dam.AS1"), run("1", "a"));
  EXPECT_EQ(text("/p/dam.AS2"), run("2", "b"));
  EXPECT_EQ(text("/p/dam.AS3"), run("3", "c"));
}

TEST_F(SplitControlFileTest, countsRunsThatGiveNoNumberAndNeverWritesOneOverAnother) {
  split(kDam + run("", "a") + run("1", "b") + run("7", "c"));
  EXPECT_EQ(text("/p/dam.AS1"), run("", "a"));
  EXPECT_EQ(text("/p/dam.AS2"), run("1", "b"));
  EXPECT_EQ(text("/p/dam.AS3"), run("7", "c"));
}

TEST_F(SplitControlFileTest, writesThreeRunsAtMostAndNoneOfBlankLines) {
  split(kDam + run("1", "a") + run("2", "b") + run("3", "c") + run("1", "d"));
  EXPECT_EQ(text("/p/dam.AS1"), run("1", "a"));
  split(kDam + "\r\n  \r\n");
  EXPECT_FALSE(has("/p/dam.AS1"));
}

TEST_F(SplitControlFileTest, keepsARunThatIsNotClosedAndTakesEitherLineEnd) {
  split("ENDRUN\nQUIL\nHYD");
  EXPECT_EQ(text("/p/dam.AS1"), "QUIL\r\nHYD\r\n");
}

TEST_F(SplitControlFileTest, removesOldSplitFilesWhenThereAreFewerSpillways) {
  split(kDam + run("1", "a") + run("2", "b"));
  memory.put("/p/dam.as3", "old");
  split(kDam);
  EXPECT_FALSE(has("/p/dam.AS1"));
  EXPECT_FALSE(has("/p/dam.AS2"));
  EXPECT_FALSE(has("/p/dam.as3"));
}

TEST_F(SplitControlFileTest, tellsNameAndAnalysisOfEachSpillwayOfTheDamsRun) {
  split(
      lines({"KESTRA", surface("1", "East", "2"), rating("2", "West", "2"), surface("3", "Long name", "1"), "ENDRUN"}) +
      lines({surface("3", "Run", "2"), "ENDRUN"}));
  EXPECT_THAT(tables.spillwayName, ElementsAre("East     ", "West     ", "Long name"));
  EXPECT_THAT(tables.spillwayAnalysisFlag, ElementsAre(true, true, false));
  EXPECT_THAT(tables.spillwayRatingFlag, ElementsAre(false, true, false));
  split(lines({"ENDRUN"}));
  EXPECT_THAT(tables.spillwayName, ElementsAre("", "", ""));
  EXPECT_THAT(tables.spillwayAnalysisFlag, ElementsAre(false, false, false));
  EXPECT_THAT(tables.spillwayRatingFlag, ElementsAre(false, false, false));
}

TEST_F(SplitControlFileTest, passesOverRecordsWithoutNumberOrTooShortForAnAnalysis) {
  split(lines({surface("0", "a", "2"), surface("4", "b", "2"), surface(" ", "c", "2"), surface("1", "d", ""),
               rating("2", "e", ""), "ENDRUN"}));
  EXPECT_THAT(tables.spillwayName, ElementsAre("", "", ""));
  EXPECT_THAT(tables.spillwayAnalysisFlag, ElementsAre(false, false, false));
}

TEST_F(SplitControlFileTest, doesNothingWithoutAPath) {
  memory.put("/p/dam.AS1", "old");
  tables.spillwayName[0] = "East";
  SplitControlFile(files, tables, "", "/p/dam");
  EXPECT_EQ(text("/p/dam.AS1"), "old");
  EXPECT_EQ(tables.spillwayName[0], "East");
}

TEST_F(SplitControlFileTest, leavesASourceThatIsASplitFileItself) {
  for (const char* name : {"/p/dam.AS1", "/p/dam.as3"}) {
    memory.put(name, run("1", "a"));
    memory.put("/p/dam.AS2", "old");
    SplitControlFile(files, tables, name, "/p/dam");
    EXPECT_EQ(text(name), run("1", "a"));
    EXPECT_FALSE(has("/p/dam.AS2"));
  }
}

TEST_F(SplitControlFileTest, leavesTheSplitAsFarAsItGotWhenTheDiskFillsUp) {
  memory.put("/p/dam.KSC", kDam + run("1", "a") + run("2", "b"));
  files.failEvery("write", FailureKind::full);
  SplitControlFile(files, tables, "/p/dam.KSC", "/p/dam");
  EXPECT_FALSE(has("/p/dam.AS1")) << "no half of a run";
  EXPECT_FALSE(has("/p/dam.AS2"));
  files.failNothing();
  SplitControlFile(files, tables, "/p/missing.KSC", "/p/dam");
  EXPECT_TRUE(boxes.shown.empty());
}

}  // namespace
}  // namespace kestra
