#include "run/spillway_case.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "base/runtime_fault.h"
#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kInstance = "/p/dam/dam1_0.V2D";
const std::string kHyd = "HYD       9                   C";
const std::string kOldTable = lines({kHyd, "          1", "ENDTABLE"});
const std::string kNewTable =
    lines({kHyd, "                    1         0         ", "                    7         8         ", "ENDTABLE"});

class SpillwayCaseTest : public testing::Test, public RunDesk {
 protected:
  SpillwayCaseTest() {
    memory.put("/p/dam.OUT", damOutput({{"0", "1", {"7"}}, {"1", "1", {"8"}}}));
    memory.put("/app/ASFILE", "companion");
    tables.spillwayName[0] = "East     ";
    solveSpillways();
  }
  std::string instance(const std::vector<std::string>& records, const std::string& table = kOldTable) {
    return lines({"QUIL      02/09/20021         East"}) + table + lines(records) + lines({"ENDJOB", "ENDRUN"});
  }
  void run(const std::string& text, int number = 1, const std::string& path = kInstance) {
    memory.put(path, text);
    RunSpillwayInstance(context, path, number);
  }
  // A dam solver that leaves a digest too, as alternatives need one.
  void solveAlternatives() {
    processes.effects["/app/KestraSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
      memory.put(stemIn(request) + ".OUT", "out");
      memory.put(stemIn(request) + ".DIS", lines({"a", "b", "c", "d", "e"}));
      return Exited{0};
    };
  }
};

TEST_F(SpillwayCaseTest, runsTheSpillwaySolverAndCompletesItsDigest) {
  run(instance({"BTMWIDTH  FEET      50"}));
  EXPECT_THAT(started(), ElementsAre("TorveSim.exe " + kInstance));
  EXPECT_EQ(text("/p/dam/dam1_0.DIS"), lines({"East     ", "line 1", "line 2", "line 3", "line 4", "N/A", "line 5",
                                              "line 6", "line 7", "line 8"}));
  EXPECT_THAT(summary.calls, ElementsAre("load"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(processes.requests.front().outputFile, "/p/dam.log");
}

TEST_F(SpillwayCaseTest, buildsTheDigestOfAStabilityAnalysisFromTheDamsFiles) {
  tables.spillwayAnalysisFlag[0] = true;
  memory.put("/p/dam.DIS", lines({"title", "100", "1203.5"}));
  run(instance({}));
  const std::string digest = text("/p/dam/dam1_0.DIS");
  EXPECT_THAT(digest, testing::StartsWith(lines({"East", "N/A", "0", "1203.5", "N/A", "N/A"})));
  EXPECT_EQ(std::count(digest.begin(), digest.end(), '\n'), 35);
}

TEST_F(SpillwayCaseTest, refreshesTheHydrographWhenTheDamHasRunSince) {
  const std::vector<std::string> link = {"KESTRA    1         /p/dam.KSC", "MODIFIED  1/1/2000 1:00:00 AM", "X"};
  run(instance(link, lines({kHyd, "                    5", "ENDTABLE"})));
  EXPECT_EQ(text(kInstance), instance({"X"}, kNewTable));
  EXPECT_THAT(memory.paths(), testing::Not(testing::Contains(testing::EndsWith("V2D~"))));
}

TEST_F(SpillwayCaseTest, looksForADamFileWithoutADirectoryInTheProject) {
  (void)memory.changeDirectory("/app");
  run(instance({"KESTRA    1         dam.KSC"}));
  EXPECT_EQ(text(kInstance), instance({}, kNewTable));
}

TEST_F(SpillwayCaseTest, leavesTheHydrographOfTheSameDateUnlessItIsNone) {
  const std::vector<std::string> link = {"KESTRA    1         /p/dam.KSC", "MODIFIED  01/01/1970 00:00:00"};
  const std::string table = lines({kHyd, "                    5", "ENDTABLE"});
  run(instance(link, table));
  EXPECT_EQ(text(kInstance), instance({}, table));
  run(instance(link));
  EXPECT_EQ(text(kInstance), instance({}, kNewTable)) << "a file that was saved and built within one second";
}

TEST_F(SpillwayCaseTest, refreshesAHydrographThatIsNoneWithoutARecordedDate) {
  run(instance({"KESTRA    1         /p/dam.KSC"}));
  EXPECT_EQ(text(kInstance), instance({}, kNewTable)) << "the dam had not been run when the file was saved";
}

TEST_F(SpillwayCaseTest, leavesTheHydrographWithoutARecordedDateOrLink) {
  const std::string table = lines({kHyd, "                    5", "ENDTABLE"});
  run(instance({"KESTRA    1         /p/dam.KSC"}, table));
  EXPECT_EQ(text(kInstance), instance({}, table));
  run(instance({"MODIFIED  1/1/2000"}));
  EXPECT_EQ(text(kInstance), instance({}));
  run(instance({"KESTRA    0         /p/dam.KSC", "MODIFIED  1/1/2000"}));
  EXPECT_EQ(text(kInstance), instance({}));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(SpillwayCaseTest, leavesTheHydrographWhereTheDamsOutputCannotBeRead) {
  const std::vector<std::string> link = {"KESTRA    1         /p/dam.KSC", "MODIFIED  1/1/2000"};
  memory.put("/p/dam.OUT", "Error\r\n");
  run(instance(link));
  EXPECT_EQ(text(kInstance), instance({}));
  (void)memory.removeFile("/p/dam.OUT");
  run(instance(link));
  EXPECT_EQ(text(kInstance), instance({}));
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(started().size(), 2U);
}

TEST_F(SpillwayCaseTest, removesWhatAnEarlierRunHasLeft) {
  memory.put("/p/dam/dam1_0/sub/a.OUT", "old");
  memory.put("/p/dam/dam1_0.dis", "old");
  processes.effects.clear();
  run(instance({}));
  EXPECT_FALSE(has("/p/dam/dam1_0/sub/a.OUT"));
  EXPECT_FALSE(isDirectory(memory, "/p/dam/dam1_0"));
  EXPECT_FALSE(has("/p/dam/dam1_0.dis"));
}

TEST_F(SpillwayCaseTest, tellsAMissingDigestInABox) {
  processes.effects.clear();
  run(instance({}));
  EXPECT_THAT(takeBoxes(), ElementsAre("Error Message: Unable to build the summary file for dam1_0. (warning)"));
  EXPECT_THAT(told, ElementsAre("TorveSim.exe could not be started from /app: No such file or directory."));
}

TEST_F(SpillwayCaseTest, doesNothingForAFileOutsideTheProject) {
  for (const char* path : {"/p2/dam/dam1_0.V2D", "/q/x.V2D", "/p/../q/x.V2D"}) {
    memory.put(absolutePath(path, "/"), instance({}));
    RunSpillwayInstance(context, path, 1);
  }
  state.projectDir.clear();
  RunSpillwayInstance(context, kInstance, 1);
  EXPECT_THAT(started(), IsEmpty());
  EXPECT_THAT(summary.calls, IsEmpty());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(SpillwayCaseTest, removesNoDirectoryForAFileWithoutAName) {
  memory.put("/p/dam/kept.DIS", "x");
  for (const char* path : {"/p/.V2D", "/p/..V2D", "/p/dam/...V2D", "/p/dam", "/p/dam/"}) {
    RunSpillwayInstance(context, path, 1);
    EXPECT_TRUE(has("/p/dam/kept.DIS")) << path;
  }
  EXPECT_THAT(started(), IsEmpty());
}

TEST_F(SpillwayCaseTest, knowsTheProjectWhateverTheLettersOfItsName) {
  memory.put("/P/dam/dam1_0.V2D", instance({}));
  RunSpillwayInstance(context, " /P/dam/dam1_0.V2D ", 1);
  EXPECT_THAT(started(), ElementsAre("TorveSim.exe /P/dam/dam1_0.V2D"));
}

TEST_F(SpillwayCaseTest, findsTheInstanceWhateverTheLettersOfItsPath) {
  memory.put("/p/dam/dam1_0.V2D", instance({}));
  RunSpillwayInstance(context, "/P/Dam/DAM1_0.v2d", 1);
  EXPECT_THAT(started(), ElementsAre("TorveSim.exe /p/dam/dam1_0.V2D"));
  EXPECT_TRUE(has("/p/dam/dam1_0.DIS"));
}

TEST_F(SpillwayCaseTest, refreshesTheSummaryTableWhileItIsOpen) {
  state.windowOpen[2] = true;
  run(instance({}));
  EXPECT_THAT(summary.calls, ElementsAre("load", "refresh table"));
}

TEST_F(SpillwayCaseTest, refreshesTheGraphsAfterEachAlternativeWhileTheyAreOpen) {
  solveAlternatives();
  state.windowOpen[3] = true;
  run(instance({record({"BTMWIDTH", "FEET", "50", "60"})}));
  EXPECT_THAT(std::vector<std::string>(summary.calls.begin(), summary.calls.begin() + 3),
              ElementsAre("enter 25 /p/dam/dam1_0/a.DIS as dam1_0/a", "save /p/SUMMARY.IDE", "refresh graphs"));
}

TEST_F(SpillwayCaseTest, runsEachWidthWithEachCrestByTheDamSolver) {
  solveAlternatives();
  state.windowOpen[2] = true;
  const std::string crests = record({"ASCREST", "FEET", "1200", "1201"});
  run(instance({record({"BTMWIDTH", "FEET", "50", "60"}), crests}));
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/dam/dam1_0/a.v2c", "KestraSim.exe /p/dam/dam1_0/b.v2c",
                                     "KestraSim.exe /p/dam/dam1_0/c.v2c", "KestraSim.exe /p/dam/dam1_0/d.v2c"));
  EXPECT_EQ(text("/p/dam/dam1_0/a.v2c"), instance({"BTMWIDTH  FEET      50", "ASCREST   FEET      1200"}));
  EXPECT_EQ(text("/p/dam/dam1_0/b.v2c"), instance({"BTMWIDTH  FEET      60", "ASCREST   FEET      1200"}));
  EXPECT_EQ(text("/p/dam/dam1_0/d.v2c"), instance({"BTMWIDTH  FEET      60", "ASCREST   FEET      1201"}));
  EXPECT_EQ(text("/p/dam/dam1_0/ASFILE"), "companion");
  EXPECT_EQ(text("/p/dam/dam1_0/c.DIS"), lines({"East     ", "a", "b", "c", "d", "N/A", "e"}));
  EXPECT_THAT(
      std::vector<std::string>(summary.calls.begin(), summary.calls.begin() + 4),
      ElementsAre("enter 25 /p/dam/dam1_0/a.DIS as dam1_0/a", "save /p/SUMMARY.IDE", "modify 1", "refresh open files"));
  EXPECT_EQ(summary.calls.size(), 4U * 4 + 2);
  EXPECT_EQ(summary.calls[16], "load");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(SpillwayCaseTest, replacesOnlyTheRecordThatNamesSeveralValues) {
  solveAlternatives();
  const std::string width = record({"BTMWIDTH", "FEET", "50"});
  run(instance({width, record({"ASCREST", "FEET", "1200", "", "1202"})}));
  EXPECT_EQ(text("/p/dam/dam1_0/b.v2c"), instance({width, "ASCREST   FEET      1202"}));
  EXPECT_EQ(started().size(), 2U);
  run(instance(
      {record({"BTMWIDTH", "FEET", "1", "2", "3", "4", "5"}), record({"ASCREST", "FEET", "1", "2", "3", "4", "5"})}));
  EXPECT_EQ(started().back(), "KestraSim.exe /p/dam/dam1_0/y.v2c");
}

TEST_F(SpillwayCaseTest, stopsAtAnAlternativeThatLeavesNoDigestAndKeepsTheEntriesBefore) {
  processes.effects["/app/KestraSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
    if (stemIn(request).ends_with("/a")) memory.put(stemIn(request) + ".DIS", lines({"a", "b", "c", "d"}));
    return Exited{0};
  };
  run(instance({record({"BTMWIDTH", "FEET", "1", "2", "3"})}));
  EXPECT_EQ(started().size(), 2U);
  EXPECT_THAT(takeBoxes(), ElementsAre("Error Message: Unable to build the summary file for b. (warning)"));
  EXPECT_THAT(summary.calls, ElementsAre("enter 25 /p/dam/dam1_0/a.DIS as dam1_0/a", "save /p/SUMMARY.IDE", "load"));
}

TEST_F(SpillwayCaseTest, tellsAFailureAsOneOfTheOutput) {
  (void)memory.removeFile("/app/ASFILE");
  run(instance({record({"BTMWIDTH", "FEET", "1", "2"})}));
  EXPECT_THAT(takeBoxes(), ElementsAre("Error Message: Parse Output File Error: /app/ASFILE: No such file or directory "
                                       "(warning)"));
  RunSpillwayInstance(context, "/p/dam/none.V2D", 1);
  EXPECT_THAT(takeBoxes(), ElementsAre("Error Message: Parse Output File Error: /p/dam/none.V2D: No such file or "
                                       "directory (warning)"));
  run(instance({}), 4);
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Error Message: Parse Output File Error: There is no auxiliary spillway 4. (warning)"));
}

TEST_F(SpillwayCaseTest, tellsADirectoryThatHasGoneWhileTheInstanceWasPrepared) {
  memory.put(kInstance, instance({}));
  files.failEvery("canonical", FailureKind::other);
  RunSpillwayInstance(context, kInstance, 1);
  EXPECT_THAT(takeBoxes(), testing::Not(IsEmpty()));
}

TEST_F(SpillwayCaseTest, filtersTheOutputWhereTheFirstRecordSaysSo) {
  const auto first = [](const char* flags) {
    return record({"QUIL", "02/09/2002", "1", "", "", "", ""}) + flags + "\r\n";
  };
  run(first("F") + lines({"ENDJOB", "ENDRUN"}));
  // Two lines are put in front of and into the digest after its lines 15 and 16 would have been blanked.
  EXPECT_EQ(text("/p/dam/dam1_0.DIS").substr(0, 10), "East     \r");
  processes.effects["/app/TorveSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
    std::string digest;
    for (int i = 1; i <= 20; ++i) digest += std::to_string(i) + "\r\n";
    memory.put(stemIn(request) + ".DIS", digest);
    return Exited{0};
  };
  run(first(" 8") + lines({"ENDJOB", "ENDRUN"}));
  EXPECT_NE(text("/p/dam/dam1_0.DIS").find("14\r\n N/A\r\n N/A\r\n17\r\n"), std::string::npos);
  run(first("") + lines({"ENDJOB", "ENDRUN"}));
  EXPECT_NE(text("/p/dam/dam1_0.DIS").find("14\r\n15\r\n16\r\n17\r\n"), std::string::npos);
}

}  // namespace
}  // namespace kestra
