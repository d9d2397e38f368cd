#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kPath = "/home/dam/pond.KSC";
constexpr const char* kQuestion = "Kestra Input: Do you want to save changes before building?";
constexpr const char* kReplace = "Save As...: The file /home/dam/pond.KSC already exists. Do you want to replace it?";
using Started = std::vector<std::string>;

struct Build : testing::Test {
  WindowDesk desk;
  Screen& summary = desk.app.summaryScreens.table;

  Build() {
    desk.window.mnuNew.click();
    desk.edit("Pond");
    desk.saveAs(kPath);
  }
};

TEST_F(Build, ofAnUnchangedFileAsksNothingAndShowsTheSummary) {
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.runs.started, Started{kPath});
  EXPECT_EQ(desk.runs.progressShown, std::vector<bool>{true});
  EXPECT_TRUE(summary.visible());
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_EQ(desk.memory.content("/home/dam/~temp.txt"), std::nullopt);
}

TEST_F(Build, comparesTheTextsAndNotTheFlag) {
  desk.edit("Lake");
  desk.edit("Pond");
  EXPECT_TRUE(desk.state.fileDirty);
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.runs.started, Started{kPath});
}

TEST_F(Build, ofAChangedFileAsksAndGoesOnWithTheOldOneOnNo) {
  const auto before = desk.memory.content(kPath);
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::no};
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  EXPECT_EQ(desk.runs.started, Started{kPath});
  EXPECT_EQ(desk.memory.content(kPath), before);
  EXPECT_TRUE(desk.state.fileDirty);
}

TEST_F(Build, savesOnYesByTheSaveAsCommand) {
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::yes, BoxButton::yes};
  desk.choose(kPath);
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kQuestion, kReplace}));
  EXPECT_EQ(desk.memory.content(kPath).value_or("").substr(20, 4), "Lake");
  EXPECT_EQ(desk.runs.started, Started{kPath});
}

TEST_F(Build, isNotStartedWhenTheSavingIsGivenUp) {
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::yes};
  desk.cancelDialog();
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.runs.started, Started());
}

TEST_F(Build, thatFailsShowsNoSummary) {
  desk.runs.failing = kPath;
  desk.window.mnuBuildFile.click();
  EXPECT_FALSE(summary.loaded());
  EXPECT_EQ(desk.front(), "frmKestra");
}

TEST_F(Build, withoutAFileAsksNothingItself) {
  desk.window.mnuNew.click();
  desk.edit("Lake");
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.runs.started, Started{""});
}

TEST_F(Build, fromAnotherScreenAlwaysAsksAndShowsNoSummary) {
  desk.app.host.hide(desk.window);
  desk.boxes.answers = {BoxButton::no};
  desk.window.mnuBuildFileFromOtherScreen.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  EXPECT_EQ(desk.runs.started, Started{kPath});
  EXPECT_FALSE(summary.loaded());
  EXPECT_EQ(desk.front(), "frmKestra");
  desk.window.mnuNew.click();
  desk.window.mnuBuildFileFromOtherScreen.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.runs.started.back(), "");
}

TEST_F(Build, isStartedAtTheEndOfTheInputScreens) {
  desk.app.host.show(desk.shell.input.auxSpillways);
  desk.shell.input.auxSpillways.cmbAuxSpillways.userSelect("0");
  desk.boxes.answers = {BoxButton::no};
  desk.shell.input.auxSpillways.cmdNext.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  EXPECT_EQ(desk.runs.started, Started{kPath});
}

TEST_F(Build, saysWhatIsMissingWhenNothingCanStartIt) {
  desk.shell.fileDesk.runs = nullptr;
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(),
            Boxes{"Build: The file cannot be built: the part of Kestra B that starts KestraSim.exe and TorveSim.exe "
                  "is missing."});
  EXPECT_FALSE(summary.loaded());
}

TEST_F(Build, tellsARunTimeFaultAndEnds) {
  desk.runs.onBuild = [] { throw RuntimeFault("subscript out of range"); };
  desk.window.mnuBuildFile.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Error Message: subscript out of range"});
}

}  // namespace
}  // namespace kestra
