#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kQuestion = "Warning: Do you want to save changes to the current file before exiting?";

struct Exit : testing::Test {
  WindowDesk desk;

  void expectLeft() {
    EXPECT_EQ(desk.state.projectDir + desk.state.currentFile, "");
    EXPECT_FALSE(desk.state.fileHasName || desk.state.fileIsNew || desk.state.fileDirty);
    EXPECT_EQ(desk.front(), "frmTopScreen");
    EXPECT_FALSE(desk.window.loaded());
    const frmTopScreen& top = desk.shell.topScreen;
    for (const Menu* command : {&top.mnuNewProject, &top.mnuOpenProject, &top.mnuDeleteProject, &top.mnuFile}) {
      EXPECT_TRUE(command->visible() && command->enabled()) << command->name();
    }
  }
};

TEST_F(Exit, goesBackToTheTopScreenWithoutAQuestionWhenNothingWasEdited) {
  desk.saveAs("/home/dam/pond.KSC");
  desk.window.mnuExit.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  expectLeft();
}

TEST_F(Exit, leavesEverythingInPlaceOnCancel) {
  desk.saveAs("/home/dam/pond.KSC");
  desk.edit("Lake");
  desk.window.setTitle("kept");
  for (const bool byFrame : {false, true}) {
    desk.boxes.answers = {BoxButton::cancel};
    if (byFrame) {
      EXPECT_FALSE(desk.app.host.closeByFrame(desk.window));
    } else {
      desk.window.mnuExit.click();
    }
    ASSERT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.boxes.shown[0].buttons, (std::vector<BoxButton>{BoxButton::yes, BoxButton::no, BoxButton::cancel}));
    EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
    EXPECT_EQ(desk.state.projectDir, "/home/dam");
    EXPECT_EQ(desk.state.currentFile, "/home/dam/pond.KSC");
    EXPECT_TRUE(desk.state.fileDirty && desk.state.fileHasName && desk.window.visible());
    EXPECT_FALSE(desk.state.bExiting);
    EXPECT_EQ(desk.window.title(), "kept");
    EXPECT_EQ(desk.shownTitle(), "Lake");
  }
}

TEST_F(Exit, staysWhenTheSaveDialogIsCancelled) {
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::yes};
  desk.cancelDialog();
  desk.window.mnuExit.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  EXPECT_EQ(desk.state.projectDir, "/home/dam");
  EXPECT_EQ(desk.shownTitle(), "Lake");
}

TEST_F(Exit, dropsWhatWasEditedOnNo) {
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::no};
  desk.window.mnuExit.click();
  expectLeft();
}

TEST_F(Exit, savesWhatWasEditedOnYes) {
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::yes};
  desk.choose("/home/dam/lake.KSC");
  EXPECT_FALSE(desk.app.host.closeByFrame(desk.window));
  expectLeft();
  EXPECT_EQ(desk.memory.content("/home/dam/lake.KSC").value_or("").substr(20, 4), "Lake");
}

}  // namespace
}  // namespace kestra
