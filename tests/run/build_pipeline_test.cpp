#include "run/build_pipeline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/build_desk.h"

namespace kestra {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST_F(BuildPipelineTest, goesFromAControlFileToDigestsInstancesAndTheSummary) {
  EXPECT_TRUE(build());
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/dam.KSC", "TorveSim.exe /p/dam/dam1_0.V2D",
                                     "TorveSim.exe /p/dam/dam2_0.V2D"));
  EXPECT_EQ(text("/p/dam.AS2"), spillwayRun("2"));
  EXPECT_EQ(text("/p/dam/dam2_0.V2D"), spillwayRun("2"));
  EXPECT_EQ(text("/p/dam.DIS").substr(0, 5), "N/A\r\n");
  EXPECT_TRUE(has("/p/dam/dam1_0.DIS"));
  EXPECT_THAT(summary.calls, ElementsAre("load", "load", "enter 0 /p/dam.DIS as dam", "save /p/SUMMARY.IDE"));
  EXPECT_EQ(pipeline.whyNot(), "");
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(BuildPipelineTest, movesTheGraphDataOfEachInstanceButForTheThird) {
  EXPECT_TRUE(build());
  for (const char* n : {"1", "2", "4", "5", "6"}) {
    EXPECT_TRUE(has(std::string("/p/dam/dam1_0.DG") + n)) << n;
    EXPECT_FALSE(has(std::string("/p/dam1_0.DG") + n)) << n;
  }
  EXPECT_TRUE(has("/p/dam1_0.DG3"));
  EXPECT_FALSE(has("/p/dam/dam1_0.DG3"));
}

TEST_F(BuildPipelineTest, movesGraphDataWhateverTheLettersOfItsNameAndReplacesNothing) {
  processes.effects["/app/TorveSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
    memory.put(stemIn(request) + ".DIS", "x\r\n");
    memory.put("/p/dam1_0.dg1", "graph");
    return Exited{0};
  };
  EXPECT_TRUE(build());
  EXPECT_TRUE(has("/p/dam/dam1_0.dg1"));
  processes.effects["/app/TorveSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
    memory.put(stemIn(request) + ".DIS", "x\r\n");
    memory.put(stemIn(request) + ".DG1", "the solver's own");
    memory.put("/p/dam1_0.DG1", "graph");
    return Exited{0};
  };
  EXPECT_EQ(failing(), "/p/dam/dam1_0.DG1: File exists");
  EXPECT_EQ(text("/p/dam/dam1_0.DG1"), "the solver's own");
}

TEST_F(BuildPipelineTest, movesTheGaugeThroughEightStepsAndClosesTheProgressScreen) {
  GaugeWatch gauge(progress);
  EXPECT_TRUE(build(true));
  EXPECT_THAT(gauge.values, ElementsAre(0, 1, 2, 3, 4, 1, 5, 1, 6, 7, 8));
  EXPECT_FALSE(progress.visible());
}

TEST_F(BuildPipelineTest, movesTheGaugeOnWithoutAnySpillway) {
  open("/p/dam.KSC", kDam);
  GaugeWatch gauge(progress);
  EXPECT_TRUE(build(true));
  EXPECT_THAT(gauge.values, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8));
  EXPECT_TRUE(isDirectory(memory, "/p/dam"));
}

TEST_F(BuildPipelineTest, countsUpToEightInstancesAndShowsSharesOfMore) {
  open("/p/dam.KSC", kDam + spillwayRun("1"));
  const auto shown = [&](const char* total) {
    state.totalInstances = total;
    GaugeWatch gauge(progress);
    EXPECT_TRUE(build(true));
    return std::vector<int>(gauge.values.begin() + 5, gauge.values.end() - 4);
  };
  EXPECT_THAT(shown("1"), ElementsAre(1));
  EXPECT_THAT(shown("8"), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
  EXPECT_THAT(shown("9"), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8)) << "4.44 and 3.56 are both 4";
  EXPECT_THAT(shown("16"), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8)) << "halves go to the even number";
  EXPECT_THAT(started().size(), 8U);
}

TEST_F(BuildPipelineTest, neitherTouchesNorShowsTheProgressScreenInAnInternalRebuild) {
  GaugeWatch gauge(progress);
  open("/p/dam.KSC", kDam + lines({"QUIL      02/09/20021", record({"BTMWIDTH", "FEET", "1", "2"}), "ENDRUN"}));
  memory.put("/app/ASFILE", "");
  EXPECT_TRUE(build(false));
  EXPECT_THAT(gauge.values, IsEmpty());
  EXPECT_FALSE(progress.visible());
}

TEST_F(BuildPipelineTest, showsTheProgramThatRunsInTheProgressScreenOfARebuild) {
  progress.begin(3);
  std::vector<std::string> shown;
  events.onPump = [&] { shown.push_back(progress.lblWhat.caption()); };
  EXPECT_TRUE(build(false));
  EXPECT_THAT(shown, Contains("TorveSim.exe dam2_0.V2D  0:00"));
  EXPECT_EQ(progress.Gauge.value(), 0);
}

TEST_F(BuildPipelineTest, asksForAFileWhereNoneIsOpen) {
  state.currentFile.clear();
  boxes.answers = {BoxButton::yes};
  dialogs.files = {std::vector<std::string>{"/p/dam.KSC"}};
  EXPECT_TRUE(build());
  EXPECT_EQ(state.currentFile, "/p/dam.KSC");
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].title, "Build");
  EXPECT_EQ(boxes.shown[0].text, "No file is opened or created, choose a file to build?");
  EXPECT_EQ(boxes.shown[0].icon, BoxIcon::question);
  EXPECT_THAT(boxes.shown[0].buttons, ElementsAre(BoxButton::yes, BoxButton::no, BoxButton::cancel));
  ASSERT_EQ(dialogs.shownFiles.size(), 1U);
  EXPECT_EQ(dialogs.shownFiles[0].title, "Build File");
  EXPECT_EQ(dialogs.shownFiles[0].filter, "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC");
  EXPECT_EQ(dialogs.shownFiles[0].filterIndex, 2);
  EXPECT_EQ(dialogs.shownFiles[0].defaultName, "");
}

TEST_F(BuildPipelineTest, endsWithoutAWordWhenTheUserWantsNoFile) {
  state.currentFile.clear();
  for (const BoxButton answer : {BoxButton::no, BoxButton::cancel}) {
    boxes.answers = {answer};
    EXPECT_EQ(failing(), "");
    EXPECT_THAT(dialogs.shownFiles, IsEmpty());
  }
  using Answer = std::optional<std::vector<std::string>>;
  for (const Answer& answer : {Answer(), Answer(std::vector<std::string>{""}), Answer(std::vector<std::string>{})}) {
    boxes.answers = {BoxButton::yes};
    dialogs.files = {answer};
    EXPECT_EQ(failing(), "");
    EXPECT_EQ(state.currentFile, "");
  }
  EXPECT_THAT(started(), IsEmpty());
  EXPECT_EQ(boxes.shown.size(), 5U) << "no box but the question";
}

TEST_F(BuildPipelineTest, refusesANameWithoutADot) {
  const std::string words = "Illegal FileName. File Name must end with .KSC extension";
  open("/p/dam", kDam);
  EXPECT_EQ(failing(), words);
  EXPECT_THAT(takeBoxes(), ElementsAre("Error: " + words + " (critical)"));
  state.projectDir = "/p.x";
  open("/p.x/dam", kDam);
  EXPECT_EQ(failing(), words) << "a dot in a directory is none in the name";
}

TEST_F(BuildPipelineTest, asksOfANameNoMoreThanADotAndKeepsTheFile) {
  for (const char* path : {"/p/pond.dat", "/p/pond.", "/p/a.b.txt", "/p/my_pond.dat"}) {
    open(path, kDam + spillwayRun("2"));
    EXPECT_TRUE(build()) << path;
    EXPECT_EQ(text(path), kDam + spillwayRun("2"));
    EXPECT_THAT(started(), Contains(std::string("KestraSim.exe ") + path));
    EXPECT_THAT(takeBoxes(), IsEmpty()) << path;
  }
  EXPECT_TRUE(has("/p/a.b/a2_0.V2D"));
}

TEST_F(BuildPipelineTest, leavesASplitFileAsItIs) {
  open("/p/pond.as1", kDam + spillwayRun("1"));
  memory.put("/p/pond.OUT", "old");
  EXPECT_EQ(failing(), "/p/pond.as1 is a split file, which a build would write anew.");
  EXPECT_EQ(text("/p/pond.as1"), kDam + spillwayRun("1"));
  EXPECT_TRUE(has("/p/pond.OUT"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(BuildPipelineTest, endsWithoutABoxForAFileOutsideTheProject) {
  for (const char* path :
       {"/q/dam.KSC", "/p/sub/dam.KSC", "/p2/a-name-that-is-much-longer.KSC", "/dam.KSC", "dam.KSC"}) {
    if (path[0] == '/') memory.put(path, kDam);
    memory.put("/p/dam.OUT", "old");
    state.currentFile = path;
    if (state.currentFile == "dam.KSC") (void)memory.changeDirectory("/app");
    EXPECT_EQ(failing(), std::string(path) + " stands outside the project /p.");
    EXPECT_TRUE(has("/p/dam.OUT"));
  }
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_THAT(started(), IsEmpty());
}

TEST_F(BuildPipelineTest, neverTakesTheProjectItselfForAResultsDirectory) {
  for (const char* path : {"/p/.KSC", "/p/..KSC", "/p/...KSC"}) {
    open(path, kDam);
    EXPECT_EQ(failing(), std::string(path) + " stands outside the project /p.");
  }
  EXPECT_TRUE(has("/p/dam.KSC"));
}

TEST_F(BuildPipelineTest, namesARunByAllButItsLastExtensionAndInstancesUpToTheFirstDot) {
  open("/p/a.b.KSC", kDam + spillwayRun("2"));
  EXPECT_TRUE(build());
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/a.b.KSC", "TorveSim.exe /p/a.b/a2_0.V2D"));
  EXPECT_TRUE(has("/p/a.b/a2_0.DG1"));
  EXPECT_THAT(summary.calls, Contains("enter 0 /p/a.b.DIS as a.b"));
}

TEST_F(BuildPipelineTest, deletesWhatAnEarlierBuildHasLeft) {
  for (const char* name : {"dam.OUT", "dam.BRE", "dam.HCT", "dam.DIS", "dam.AS3", "dam.log", "dam.V2D",
                           "dam/dam1_7.DIS", "dam/noextension", "dam_1.LSP", "dam_1.LHI"}) {
    memory.put(std::string("/p/") + name, "old");
  }
  for (const char* name : {"dam.V2C", "dam2.KSC", "dam2.OUT", "dam/sub/x.OUT"}) {
    memory.put(std::string("/p/") + name, "kept");
  }
  processes.effects["/app/KestraSim.exe"] = [this](const ProcessRequest&) -> ProcessOutcome {
    for (const char* name : {"dam.OUT", "dam.BRE", "dam.HCT", "dam.DIS", "dam.AS3", "dam.V2D", "dam/dam1_7.DIS"}) {
      EXPECT_FALSE(has(std::string("/p/") + name)) << name;
    }
    return Exited{0};
  };
  EXPECT_TRUE(build());
  for (const char* name : {"dam/noextension", "dam_1.LSP", "dam_1.LHI"}) {
    EXPECT_FALSE(has(std::string("/p/") + name)) << name;
  }
  for (const char* name : {"dam.V2C", "dam2.KSC", "dam2.OUT", "dam/sub/x.OUT"}) {
    EXPECT_EQ(text(std::string("/p/") + name), "kept") << name;
  }
  EXPECT_NE(text("/p/dam.log"), "old");
}

TEST_F(BuildPipelineTest, deletesTheOldFilesOfANameWithAnUnderscoreToo) {
  memory.put("/p/dam_1.OUT", "old");
  open("/p/dam_1.KSC", kDam);
  processes.effects.clear();
  EXPECT_TRUE(build());
  EXPECT_FALSE(has("/p/dam_1.OUT"));
}

TEST_F(BuildPipelineTest, reachesItsEndWithoutTheSolvers) {
  processes.effects.clear();
  EXPECT_TRUE(build());
  EXPECT_THAT(told, ElementsAre("KestraSim.exe could not be started from /app: No such file or directory.",
                                "TorveSim.exe could not be started from /app: No such file or directory.",
                                "TorveSim.exe could not be started from /app: No such file or directory."));
  EXPECT_THAT(takeBoxes(), ElementsAre("Error Message: Unable to build the summary file for dam1_0. (warning)",
                                       "Error Message: Unable to build the summary file for dam2_0. (warning)"));
  EXPECT_FALSE(has("/p/dam.DIS"));
  EXPECT_THAT(summary.calls, Contains("enter 0 /p/dam.DIS as dam"));
  EXPECT_NE(text("/p/dam.log").find("KestraSim.exe could not be started from /app: No such file"), std::string::npos);
}

TEST_F(BuildPipelineTest, keepsOnTheProgressScreenWhatIsMissingUntilTheNextBuild) {
  processes.effects.erase("/app/KestraSim.exe");
  std::vector<std::string> shown;
  events.onPump = [&] { shown.push_back(progress.lblTold.caption()); };
  EXPECT_TRUE(build(true));
  EXPECT_EQ(shown.front(), "");
  EXPECT_EQ(shown.back(), "KestraSim.exe could not be started from /app: No such file or directory.");
}

TEST_F(BuildPipelineTest, goesOnBehindAControlFileThatCannotBeRead) {
  state.currentFile = "/p/none.KSC";
  EXPECT_TRUE(build());
  EXPECT_THAT(takeBoxes(), ElementsAre("Error: Computation Error: /p/none.KSC: No such file or directory (critical)"));
}

TEST_F(BuildPipelineTest, endsWhereTheResultsDirectoryCannotBeMadeOrEmptied) {
  memory.put("/p/dam", "a file of that name");
  EXPECT_EQ(failing(), "/p/dam: File exists");
  (void)memory.removeFile("/p/dam");
  memory.put("/p/dam/old.DIS", "old");
  memory.setMode("/p/dam", true, false);
  EXPECT_EQ(failing(), "/p/dam/old.DIS: Permission denied");
  memory.put("/elsewhere/x", "x");
  memory.setMode("/p/dam", true, true);
  (void)removeTree(memory, "/p/dam");
  memory.putLink("/p/dam", "/elsewhere");
  EXPECT_FALSE(build());
  EXPECT_TRUE(has("/elsewhere/x")) << "nothing is deleted through a link";
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_TRUE(has("/p/dam.DIS")) << "what was produced stays";
}

TEST_F(BuildPipelineTest, endsAndSaysSoWhenTheDiskIsFull) {
  memory.put("/p/dam.DIS", "old");
  memory.put("/p/other.OUT", "other");
  files.failEvery("write", FailureKind::full);
  EXPECT_TRUE(build()) << "no split file could be written, and so there is no spillway to run";
  EXPECT_THAT(told, ElementsAre("/p/dam.DIS: made to fail"));
  files.failNothing();
  int solved = 0;
  processes.effects["/app/TorveSim.exe"] = [&](const ProcessRequest&) -> ProcessOutcome {
    if (++solved == 1) files.failEvery("write", FailureKind::full);
    return Exited{1};
  };
  EXPECT_EQ(failing(), "/p/dam/dam2_0.V2D: made to fail");
  EXPECT_FALSE(has("/p/dam/dam2_0.V2D"));
  EXPECT_EQ(text("/p/other.OUT"), "other");
  EXPECT_THAT(memory.paths(), Not(Contains(testing::EndsWith(".tmp"))));
}

TEST_F(BuildPipelineTest, endsWhenTheProjectIsRemovedMeanwhile) {
  processes.effects["/app/KestraSim.exe"] = [this](const ProcessRequest&) -> ProcessOutcome {
    (void)removeTree(memory, "/p");
    return Exited{0};
  };
  EXPECT_EQ(failing(), "/p/dam: No such file or directory");
}

TEST_F(BuildPipelineTest, endsAndLeavesTheProgressScreenWhenTheUserStopsAProgram) {
  memory.put("/p/other/other1_0.DIS", "other");
  events.onPump = [this] {
    if (progress.lblWhat.caption().starts_with("TorveSim.exe dam2_0")) progress.cmdStop.click();
  };
  EXPECT_FALSE(build(true));
  EXPECT_EQ(pipeline.whyNot(), "Stopped before TorveSim.exe ran.");
  EXPECT_TRUE(progress.visible());
  EXPECT_EQ(progress.lblTold.caption(), "Stopped before TorveSim.exe ran.");
  EXPECT_TRUE(has("/p/dam/dam1_0.DIS"));
  EXPECT_EQ(text("/p/other/other1_0.DIS"), "other");
  EXPECT_THAT(summary.calls, ElementsAre("load")) << "the run is not entered";
  EXPECT_THAT(takeBoxes(), IsEmpty());
  events.onPump = {};
  EXPECT_TRUE(build(false)) << "what runs behind it is not stopped";
  EXPECT_TRUE(build(true)) << "the next build begins anew";
  EXPECT_FALSE(progress.visible());
}

TEST_F(BuildPipelineTest, leavesAProgressScreenThatCanBeClosedWhenItFails) {
  open("/p/dam", kDam);
  EXPECT_FALSE(build(true));
  EXPECT_TRUE(progress.visible());
  EXPECT_TRUE(host.closeByFrame(progress));
  EXPECT_FALSE(progress.visible());
}

TEST_F(BuildPipelineTest, holdsTheRecordsOfTheSpillwayThatItBuiltLast) {
  EXPECT_TRUE(build());
  EXPECT_EQ(tables.spillwayControlText, spillwayRun("2"));
}

TEST_F(BuildPipelineTest, changesNothingInAProjectThatIsOpenForLookingOnly) {
  memory.put("/p/dam.OUT", "old");
  state.projectReadOnly = true;
  EXPECT_EQ(failing(), "The project is open in another program.");
  EXPECT_EQ(text("/p/dam.OUT"), "old");
  EXPECT_THAT(started(), IsEmpty());
}

TEST_F(BuildPipelineTest, refreshesTheWindowsWithResultsWhileTheyAreOpen) {
  open("/p/dam.KSC", kDam);
  state.windowOpen[2] = true;
  EXPECT_TRUE(build());
  EXPECT_THAT(summary.calls,
              ElementsAre("enter 0 /p/dam.DIS as dam", "save /p/SUMMARY.IDE", "modify 1", "refresh open files"));
  state.windowOpen[3] = true;
  summary.calls.clear();
  EXPECT_TRUE(build());
  EXPECT_THAT(summary.calls, ElementsAre("enter 0 /p/dam.DIS as dam", "save /p/SUMMARY.IDE", "modify 2",
                                         "refresh open files", "refresh graphs"));
  state.windowOpen[2] = false;
  summary.calls.clear();
  EXPECT_TRUE(build());
  EXPECT_THAT(summary.calls, ElementsAre("enter 0 /p/dam.DIS as dam", "save /p/SUMMARY.IDE", "refresh graphs"));
}

}  // namespace
}  // namespace kestra
