#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

constexpr const char* kOwner = "This is the flag file of a valid QUIL project directory, the owner is\r\nTORVE\r\n";

struct NewProject : testing::Test {
  RunningDesk desk;

  void expectBox(const std::string& text) {
    ASSERT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.boxes.shown[0].title, "New Project");
    EXPECT_EQ(desk.boxes.shown[0].text, text);
    EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::warning);
    EXPECT_EQ(desk.boxes.shown[0].buttons, std::vector<BoxButton>{BoxButton::ok});
    EXPECT_TRUE(desk.shell.newProject.visible());
    desk.boxes.shown.clear();
  }
};

TEST_F(NewProject, holdsItsFlagFileWithoutWritePermissionAndTheDefaultSummary) {
  makeProject(desk.shell, "/home", "dam");
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.memory.content("/home/dam/owner"), kOwner);
  EXPECT_FALSE(desk.memory.status("/home/dam/owner").value().writable);
  EXPECT_EQ(desk.memory.content("/home/dam/SUMMARY.IDE")->substr(0, 7), "12\r\n1\r\n");
  EXPECT_EQ(desk.memory.list("/home/dam").value().size(), 2U);
}

TEST_F(NewProject, isTheOpenOneWithTitlesMenusAndARecentEntry) {
  desk.state.fileDirty = true;
  makeProject(desk.shell, "/home", "dam");
  EXPECT_EQ(desk.state.projectDir, "/home/dam");
  EXPECT_FALSE(desk.state.fileDirty);
  EXPECT_FALSE(desk.state.fileIsNew);
  EXPECT_FALSE(desk.state.bExiting);
  EXPECT_EQ(desk.memory.currentDirectory(), "/home/dam");
  EXPECT_EQ(desk.shell.topScreen.title(), "Kestra B [ Project  /home/dam]");
  const frmKestra& input = desk.shell.inputWindow;
  EXPECT_EQ(input.title(), "Kestra B - Input Interface");
  EXPECT_TRUE(input.visible());
  for (const Menu* menu : {&input.mnuNew, &input.mnuOpen, &input.mnuImport, &input.mnuBuildFile, &input.mnuRebuildAll,
                           &input.mnuSpecifySum}) {
    EXPECT_TRUE(menu->enabled()) << menu->name();
  }
  EXPECT_FALSE(input.mnuSaveAs.enabled());
  EXPECT_EQ(desk.shell.topScreen.recent().paths(), std::vector<std::string>{"/home/dam"});
  EXPECT_FALSE(desk.shell.newProject.loaded());
}

TEST_F(NewProject, takesThePlaceOfTheOpenOneWithAllItsWindows) {
  makeProject(desk.shell, "/home", "first");
  desk.state.currentFile = "/home/first/a.KSC";
  desk.state.fileHasName = true;
  desk.shell.inputWindow.takeFile("/home/first/a.KSC");
  makeProject(desk.shell, "/home", "second");
  EXPECT_EQ(desk.state.projectDir, "/home/second");
  EXPECT_EQ(desk.state.currentFile, "");
  EXPECT_FALSE(desk.state.fileHasName);
  EXPECT_EQ(desk.shell.inputWindow.title(), "Kestra B - Input Interface");
  EXPECT_FALSE(desk.shell.inputWindow.mnuSaveAs.enabled());
}

TEST_F(NewProject, isRefusedInsideAProjectAndNotBesideIt) {
  makeProject(desk.shell, "/home", "dam");
  makeProject(desk.shell, "/home/dam", "inner");
  expectBox("QUIL project directories cannot be nested!");
  EXPECT_FALSE(desk.memory.status("/home/dam/inner"));
  desk.shell.newProject.dirList.userChoose("/home");
  desk.shell.newProject.txtEnterName.userReplace("dam/inner");
  desk.shell.newProject.cmdOK.click();
  expectBox("QUIL project directories cannot be nested!");
  desk.shell.newProject.txtEnterName.userReplace("beside");
  desk.shell.newProject.cmdOK.click();
  EXPECT_EQ(desk.state.projectDir, "/home/beside");
}

TEST_F(NewProject, isRefusedWhereSomethingStandsAlready) {
  desk.memory.putDirectory("/home/old");
  desk.memory.put("/home/file", "x");
  for (const char* name : {"old", "file", "", ".", "missing/.."}) {
    makeProject(desk.shell, "/home", name);
    expectBox("Project directory already exists, please try another name.");
  }
  EXPECT_EQ(desk.state.projectDir, "");
}

TEST_F(NewProject, needsAPathWithASeparator) {
  desk.shell.topScreen.mnuNewProject.click();
  desk.shell.newProject.dirList.userChoose("");
  desk.shell.newProject.txtEnterName.userReplace("dam");
  desk.shell.newProject.cmdOK.click();
  expectBox("You have given an invalid directory name!");
  desk.shell.newProject.txtEnterName.userReplace("/home/dam");
  desk.shell.newProject.cmdOK.click();
  EXPECT_EQ(desk.state.projectDir, "/home/dam");
}

TEST_F(NewProject, takesAnyNameThatADirectoryMayHave) {
  for (const char* name : {"two words", "it's \"quoted\"", "line\nfeed", "Stausee M\xC3\xB6hne"}) {
    makeProject(desk.shell, "/home", name);
    EXPECT_EQ(desk.state.projectDir, std::string("/home/") + name);
    EXPECT_TRUE(desk.memory.content(desk.state.projectDir + "/owner"));
  }
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(NewProject, thatCannotBeMadeSaysWhyAndChangesNothing) {
  makeProject(desk.shell, "/home", "first");
  makeProject(desk.shell, "/home", "missing/dam");
  expectBox("Unable to make the project directory /home/missing/dam: No such file or directory");
  EXPECT_EQ(desk.state.projectDir, "/home/first");
}

// Makes a second project on a disk that fails at the given call, and counts the calls; 0: no failure.
std::size_t makeSecondProject(RunningDesk& desk, std::size_t failing) {
  makeProject(desk.shell, "/home", "first");
  desk.shell.topScreen.mnuNewProject.click();
  desk.shell.newProject.dirList.userChoose("/home");
  desk.shell.newProject.txtEnterName.userReplace("dam");
  const std::size_t before = desk.files.calls().size();
  if (failing > 0) desk.files.failCall(before + failing, FailureKind::full);
  desk.shell.newProject.cmdOK.click();
  desk.files.failNothing();
  return desk.files.calls().size() - before;
}

TEST(NewProjectOnAFullDisk, isMadeWholeOrNotAtAllWhicheverStepFails) {
  RunningDesk clean;
  const std::size_t steps = makeSecondProject(clean, 0);
  EXPECT_GT(steps, 20U);
  std::size_t refused = 0;
  for (std::size_t step = 1; step <= steps; ++step) {
    RunningDesk desk;
    makeSecondProject(desk, step);
    EXPECT_EQ(desk.memory.content("/home/first/owner"), kOwner);
    if (desk.state.projectDir == "/home/dam") {
      EXPECT_EQ(desk.memory.content("/home/dam/owner"), kOwner) << step;
      EXPECT_TRUE(desk.memory.content("/home/dam/SUMMARY.IDE")) << step;
      continue;
    }
    ++refused;
    EXPECT_EQ(desk.state.projectDir, "/home/first");
    EXPECT_FALSE(desk.memory.status("/home/dam")) << step;
    EXPECT_EQ(desk.boxes.shown.size(), 1U) << step;
  }
  EXPECT_GT(refused, 8U);
}

}  // namespace
}  // namespace kestra
