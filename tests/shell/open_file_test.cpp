#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kQuestion = "Warning: Do you want to save changes before opening another file?";
constexpr const char* kOutside = "Warning: First, you must import the file into the current QUIL project directory.";
constexpr const char* kInvalid = "Error Message: Invalid Filename";

struct Open : testing::Test {
  WindowDesk desk;

  Open() {
    desk.memory.put("/home/dam/pond.KSC", "KESTRA    01/01/2009Pond\r\nENDRUN\r\n");
    desk.memory.put("/home/dam/lake.ksc", "KESTRA    01/01/2009Lake\r\nENDRUN\r\n");
    desk.memory.put("/home/other/far.KSC", "KESTRA    01/01/2009Far\r\nENDRUN\r\n");
  }
  void expectOpen(const std::string& path, const std::string& title) {
    EXPECT_EQ(desk.state.currentFile, path);
    EXPECT_TRUE(desk.state.fileHasName);
    EXPECT_FALSE(desk.state.fileIsNew || desk.state.fileDirty);
    EXPECT_EQ(desk.window.title(), "Kestra B ( " + path + " )");
    EXPECT_TRUE(desk.window.mnuSaveAs.enabled());
    EXPECT_EQ(desk.shownTitle(), title);
    EXPECT_EQ(desk.front(), "frmKestra");
  }
};

TEST_F(Open, takesAFileOfTheProjectIntoTheScreens) {
  desk.window.mnuNew.click();
  desk.app.host.show(desk.shell.input.damSurface);
  desk.open("/home/dam/pond.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  expectOpen("/home/dam/pond.KSC", "Pond");
  EXPECT_FALSE(desk.shell.input.damSurface.visible());
  EXPECT_EQ(desk.shell.history.steps(), 0U);
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 1U);
  EXPECT_EQ(desk.dialogs.shownFiles[0].kind, FileDialog::Kind::open);
  EXPECT_EQ(desk.dialogs.shownFiles[0].filter, "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC");
}

TEST_F(Open, closesTheOtherWindows) {
  Screen graph{"frmGraphTest", "Graph"};
  desk.app.host.enter(graph);
  desk.shell.topScreen.windows().enter(WindowSlot::outputGraph, graph, nullptr);
  desk.shell.topScreen.windows().AddData(3);
  desk.app.host.show(graph);
  desk.open("/home/dam/pond.KSC");
  EXPECT_FALSE(graph.loaded());
  EXPECT_FALSE(desk.state.windowOpen[3]);
}

TEST_F(Open, keepsTheMainRunAsItWasRead) {
  desk.open("/home/dam/pond.KSC");
  EXPECT_EQ(desk.shell.controlFiles.texts.controlText, "KESTRA    01/01/2009Pond\r\nENDRUN\r\n");
}

TEST_F(Open, tellsOfAJobWithMorePartsThanThereAreRuns) {
  std::string text = "QUIL      01/01/2009Job\r\n";
  for (int part = 0; part <= 101; ++part) text += "SAVMOV    0\r\n";
  desk.memory.put("/home/dam/job.KSC", text);
  desk.open("/home/dam/job.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Error Message: /home/dam/job.KSC: subscript out of range"});
  expectOpen("/home/dam/job.KSC", "Job");
}

TEST_F(Open, findsTheFileByALinkARelativeNameOrAnotherLetterCase) {
  desk.memory.putLink("/link", "/home/dam");
  const std::pair<const char*, const char*> table[] = {{"pond.KSC", "/home/dam/pond.KSC"},
                                                       {"./x/../pond.KSC", "/home/dam/pond.KSC"},
                                                       {"/link/pond.KSC", "/link/pond.KSC"},
                                                       {"/home/dam/POND.ksc", "/home/dam/pond.KSC"}};
  for (const auto& [name, path] : table) {
    desk.window.mnuNew.click();
    desk.open(name);
    expectOpen(path, "Pond");
  }
  desk.open("lake.ksc");
  expectOpen("/home/dam/lake.ksc", "Lake");
}

TEST_F(Open, leavesNoValueOfTheFormerFile) {
  desk.shell.input.context.aux.auxProfile[0].txtBottom = "40";
  desk.app.host.load(desk.shell.input.damSurface);
  desk.shell.input.damSurface.txtCrestWidth.setText("12");
  desk.open("/home/dam/pond.KSC");
  EXPECT_EQ(desk.shell.input.context.aux.auxProfile[0].txtBottom, "");
  EXPECT_EQ(desk.shell.input.damSurface.txtCrestWidth.text(), "");
}

TEST_F(Open, changesNothingWhenNoGoodFileWasChosen) {
  desk.memory.putDirectory("/home/dam/dir.KSC");
  desk.memory.put("/home/dam/long.KSC", "KESTRA\r\n" + std::string(65537, 'x'));
  struct Row {
    const char* chosen;  // null: cancelled
    Boxes told;
  };
  const std::string tooLong =
      desk.shell.controlFiles.refusal(desk.shell.controlFiles.checkLoadable("/home/dam/long.KSC").failure());
  const Row table[] = {{nullptr, {}},
                       {"", {}},
                       {"/home/other/far.KSC", {kOutside}},
                       {"/home/dam/sub/pond.KSC", {kOutside}},
                       {"/pond.KSC", {kOutside}},
                       {"/home/dam/none.KSC", {kInvalid}},
                       {"/home/dam/dir.KSC", {kInvalid}},
                       {"/home/dam/long.KSC", {"Error Message: " + tooLong}}};
  desk.open("/home/dam/pond.KSC");
  desk.shell.input.projectInformation.txtComments.setText("kept");
  for (const Row& row : table) {
    if (row.chosen == nullptr) {
      desk.cancelDialog();
    } else {
      desk.choose(row.chosen);
    }
    desk.window.mnuOpen.click();
    EXPECT_EQ(desk.takeBoxes(), row.told) << (row.chosen != nullptr ? row.chosen : "cancelled");
    expectOpen("/home/dam/pond.KSC", "Pond");
    EXPECT_EQ(desk.shell.input.projectInformation.txtComments.text(), "kept");
  }
}

TEST_F(Open, takesTheProjectsDirectoryWhateverItsLetterCase) {
  desk.open("/HOME/DAM/pond.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes{kInvalid});
}

TEST_F(Open, asksToSaveWhatWasEdited) {
  desk.edit("Typed");
  desk.boxes.answers = {BoxButton::yes};
  desk.choose("/home/dam/typed.KSC");
  desk.open("/home/dam/pond.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  expectOpen("/home/dam/pond.KSC", "Pond");
  EXPECT_NE(desk.memory.content("/home/dam/typed.KSC"), std::nullopt);
}

TEST_F(Open, keepsWhatWasSavedWhenItsOwnDialogIsCancelled) {
  desk.edit("Typed");
  desk.boxes.answers = {BoxButton::yes};
  desk.choose("/home/dam/typed.KSC");
  desk.cancelDialog();
  desk.window.mnuOpen.click();
  EXPECT_EQ(desk.state.currentFile, "/home/dam/typed.KSC");
  EXPECT_EQ(desk.window.title(), "Kestra B [ /home/dam/typed.KSC ]");
  EXPECT_EQ(desk.shownTitle(), "Typed");
  EXPECT_FALSE(desk.state.fileDirty);
}

TEST_F(Open, stopsWhenTheSaveDialogIsCancelled) {
  desk.edit("Typed");
  desk.boxes.answers = {BoxButton::yes};
  desk.cancelDialog();
  desk.window.mnuOpen.click();
  EXPECT_EQ(desk.dialogs.shownFiles.size(), 1U);
  EXPECT_EQ(desk.shownTitle(), "Typed");
}

}  // namespace
}  // namespace kestra
