#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

struct DeleteProject : testing::Test {
  RunningDesk desk;

  DeleteProject() {
    makeProject(desk.shell, "/home", "dam");
    desk.memory.put("/home/dam/dam.KSC", "x");
    desk.memory.put("/home/dam/dam/dam1_0.DG1", "x");
  }

  void remove(const std::string& directory, std::deque<BoxButton> answers) {
    desk.boxes.answers = std::move(answers);
    desk.shell.topScreen.mnuDeleteProject.click();
    desk.shell.deleteProject.dirList.userChoose(directory);
    desk.shell.deleteProject.cmdOK.click();
  }

  void expectBoxes(const std::vector<std::string>& texts) {
    std::vector<std::string> shown;
    for (const MessageBox& box : desk.boxes.shown) {
      EXPECT_EQ(box.title, "Delete Project");
      shown.push_back(box.text);
    }
    EXPECT_EQ(shown, texts);
    desk.boxes.shown.clear();
  }

  const std::string question = "Do you really want to remove the QUIL project dam ?";
};

TEST_F(DeleteProject, removesTheOpenProjectAfterTheQuestionAndClosesIt) {
  remove("/home/dam", {BoxButton::yes});
  expectBoxes({question});
  EXPECT_FALSE(desk.memory.status("/home/dam"));
  EXPECT_EQ(desk.state.projectDir, "");
  EXPECT_FALSE(desk.shell.inputWindow.loaded());
  EXPECT_TRUE(desk.shell.topScreen.recent().paths().empty());
  EXPECT_EQ(desk.memory.currentDirectory(), "/app");
  EXPECT_FALSE(desk.state.bExiting);
  EXPECT_FALSE(desk.shell.deleteProject.loaded());
}

TEST_F(DeleteProject, asksWithYesAndNoAndKeepsAllOnNo) {
  remove("/home/dam", {BoxButton::no});
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].buttons, (std::vector<BoxButton>{BoxButton::yes, BoxButton::no}));
  EXPECT_TRUE(desk.memory.status("/home/dam/dam/dam1_0.DG1"));
  EXPECT_EQ(desk.state.projectDir, "/home/dam");
  EXPECT_EQ(desk.shell.topScreen.recent().paths().size(), 1U);
}

TEST_F(DeleteProject, leavesAnotherOpenProjectOpen) {
  makeProject(desk.shell, "/home", "other");
  remove("/home/dam", {BoxButton::yes});
  EXPECT_FALSE(desk.memory.status("/home/dam"));
  EXPECT_EQ(desk.state.projectDir, "/home/other");
  EXPECT_TRUE(desk.shell.inputWindow.visible());
  EXPECT_EQ(desk.shell.topScreen.recent().paths(), std::vector<std::string>{"/home/other"});
}

TEST_F(DeleteProject, needsTheOwnersMarkOnTheSecondLine) {
  desk.memory.putDirectory("/home/plain");
  desk.memory.put("/home/one/owner", "TORVE");
  desk.memory.put("/home/lower/owner", "x\r\ntorve\r\n");
  desk.memory.put("/home/blank/owner", "x\r\nTORVE \r\n");
  desk.memory.put("/home/empty/owner", "");
  for (const char* name : {"plain", "one", "lower", "blank", "empty"}) {
    remove(std::string("/home/") + name, {BoxButton::yes});
    expectBoxes({"This is not a valid project directory!"});
    EXPECT_TRUE(desk.memory.status(std::string("/home/") + name));
    EXPECT_TRUE(desk.shell.deleteProject.visible());
  }
  desk.memory.put("/home/lf/owner", "first, with a comma\nTORVE");
  remove("/home/lf", {BoxButton::yes});
  EXPECT_FALSE(desk.memory.status("/home/lf"));
}

TEST_F(DeleteProject, removesLinksAndNotWhatTheyLeadTo) {
  desk.memory.put("/home/outside/keep", "x");
  desk.memory.putLink("/home/dam/link", "/home/outside");
  desk.memory.putLink("/home/dam/file", "/home/outside/keep");
  remove("/home/dam", {BoxButton::yes});
  EXPECT_FALSE(desk.memory.status("/home/dam"));
  EXPECT_TRUE(desk.memory.content("/home/outside/keep"));
}

TEST_F(DeleteProject, saysWhenNotAllCouldBeRemovedAndLeavesAProject) {
  desk.memory.put("/home/dam/stuck/file", "x");
  desk.memory.setMode("/home/dam/stuck", true, false);
  desk.shell.input.projectInformation.txtWatershedID.userReplace("typed");
  remove("/home/dam", {BoxButton::yes});
  expectBoxes({question, "Unable to remove all files in the project directory."});
  EXPECT_EQ(desk.state.projectDir, "/home/dam");
  EXPECT_EQ(desk.shell.input.projectInformation.txtWatershedID.text(), "typed");
  EXPECT_TRUE(desk.state.fileDirty);
  EXPECT_EQ(desk.memory.currentDirectory(), "/home/dam");
  EXPECT_TRUE(desk.memory.content("/home/dam/owner"));
  EXPECT_FALSE(desk.memory.content("/home/dam/dam.KSC"));
  desk.memory.setMode("/home/dam/stuck", true, true);
  remove("/home/dam", {BoxButton::yes});
  EXPECT_FALSE(desk.memory.status("/home/dam"));
}

TEST_F(DeleteProject, putsTheFlagBackWhenOnlyTheDirectoryCouldNotBeRemoved) {
  desk.memory.setMode("/home", true, false);
  remove("/home/dam", {BoxButton::yes});
  expectBoxes({question, "Unable to remove all files in the project directory."});
  EXPECT_TRUE(desk.memory.content("/home/dam/owner"));
  desk.memory.setMode("/home", true, true);
  remove("/home/dam", {BoxButton::yes});
  EXPECT_FALSE(desk.memory.status("/home/dam"));
}

TEST_F(DeleteProject, throughALinkRemovesTheProjectAndItsRecentEntry) {
  desk.memory.putLink("/home/link", "/home/dam");
  remove("/home/link", {BoxButton::yes});
  expectBoxes({"Do you really want to remove the QUIL project link ?"});
  EXPECT_FALSE(desk.memory.status("/home/dam"));
  EXPECT_EQ(desk.state.projectDir, "");
  EXPECT_TRUE(desk.shell.topScreen.recent().paths().empty());
}

TEST_F(DeleteProject, closesAnOpenProjectThatLiesDeeperInTheDeletedOne) {
  desk.memory.putDirectory("/home/dam/deep");
  makeProject(desk.shell, "/home/dam/deep", "inner");
  EXPECT_EQ(desk.state.projectDir, "/home/dam/deep/inner");
  remove("/home/dam", {BoxButton::yes});
  EXPECT_EQ(desk.state.projectDir, "");
  EXPECT_TRUE(desk.shell.topScreen.recent().paths().empty());
}

TEST_F(DeleteProject, isRefusedWhileAnotherProgramHasAProjectDeeperInIt) {
  desk.memory.put("/home/dam/sub/inner/owner", "x\r\nTORVE\r\n");
  desk.memory.holdLock("/home/dam/sub/inner/owner", "program kestra, process 7, of user ann");
  remove("/home/dam", {BoxButton::yes});
  expectBoxes({question, "This project is open in program kestra, process 7, of user ann and cannot be removed now."});
  EXPECT_TRUE(desk.memory.content("/home/dam/dam.KSC"));
}

TEST_F(DeleteProject, isRefusedWhileAnotherProgramHasTheProject) {
  desk.memory.put("/home/b/owner", "x\r\nTORVE\r\n");
  desk.memory.holdLock("/home/b/owner", "program kestra, process 7, of user ann");
  remove("/home/b", {BoxButton::yes});
  expectBoxes({"Do you really want to remove the QUIL project b ?",
               "This project is open in program kestra, process 7, of user ann and cannot be removed now."});
  EXPECT_TRUE(desk.memory.content("/home/b/owner"));
}

}  // namespace
}  // namespace kestra
