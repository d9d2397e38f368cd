#include <gtest/gtest.h>

#include "platform/files.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

struct OpenProject : testing::Test {
  RunningDesk desk;

  OpenProject() {
    desk.memory.put("/home/a/owner", "x\r\nTORVE\r\n");
    desk.memory.put("/home/b/owner", "other contents");
    desk.memory.putDirectory("/home/plain");
  }

  void open(const std::string& directory) {
    desk.shell.topScreen.mnuOpenProject.click();
    desk.shell.openProject.dirList.userChoose(directory);
    desk.shell.openProject.cmdOK.click();
  }

  void expectBox(const std::string& text) {
    ASSERT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.boxes.shown[0].title, "Open Project");
    EXPECT_EQ(desk.boxes.shown[0].text, text);
    EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::warning);
    desk.boxes.shown.clear();
  }

  std::vector<std::string> recent() { return desk.shell.topScreen.recent().paths(); }
};

using Paths = std::vector<std::string>;

TEST_F(OpenProject, takesADirectoryWithAFlagFileWhateverIsInIt) {
  for (const char* directory : {"/home/a", "/home/b"}) {
    open(directory);
    EXPECT_EQ(desk.state.projectDir, directory);
    EXPECT_EQ(desk.shell.topScreen.title(), "Kestra B [Project  " + std::string(directory) + "]");
    EXPECT_EQ(desk.shell.inputWindow.title(), "Kestra B - Input Interface");
    EXPECT_TRUE(desk.shell.inputWindow.mnuBuildFile.enabled());
    EXPECT_FALSE(desk.shell.inputWindow.mnuSaveAs.enabled());
    EXPECT_FALSE(desk.shell.openProject.loaded());
    EXPECT_EQ(desk.memory.currentDirectory(), directory);
  }
  EXPECT_EQ(recent(), (Paths{"/home/b", "/home/a"}));
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(OpenProject, refusesADirectoryWithoutAFlagFileAndStays) {
  desk.memory.putDirectory("/home/odd/owner");
  for (const char* directory : {"/home/plain", "/home/odd", "/"}) {
    open(directory);
    expectBox("This is not a valid QUIL project directory!");
    EXPECT_TRUE(desk.shell.openProject.visible());
  }
  EXPECT_EQ(desk.state.projectDir, "");
}

TEST_F(OpenProject, findsTheFlagFileWhateverItsLetterCase) {
  desk.memory.put("/home/upper/OWNER", "");
  open("/home/upper");
  EXPECT_EQ(desk.state.projectDir, "/home/upper");
}

TEST_F(OpenProject, saysWhenTheProjectIsOpenAlreadyByWhateverLink) {
  desk.memory.putLink("/home/link", "/home/a");
  open("/home/a");
  open("/home/a");
  expectBox("This project is already open.");
  open("/home/link");
  expectBox("This project is already open.");
  EXPECT_EQ(recent(), Paths{"/home/a"});
}

TEST_F(OpenProject, ofARecentEntryHasItsOwnMessagesAndTakesAFailingEntryOff) {
  open("/home/a");
  open("/home/b");
  desk.shell.topScreen.UpdateRecentProjects("/home/gone");
  desk.shell.topScreen.UpdateRecentProjects("/home/closed");
  desk.memory.putDirectory("/home/closed");
  desk.memory.setMode("/home/closed", false, false);
  desk.shell.topScreen.mnuRecentProject(1).click();
  expectBox("Unable to open project directory!");
  desk.shell.topScreen.mnuRecentProject(1).click();
  expectBox("This is not a valid Kestra B project directory!");
  EXPECT_EQ(recent(), (Paths{"/home/b", "/home/a"}));
  desk.shell.topScreen.mnuRecentProject(1).click();
  expectBox("This project is already open.");
  EXPECT_EQ(recent(), (Paths{"/home/b", "/home/a"}));
  desk.shell.topScreen.mnuRecentProject(2).click();
  EXPECT_EQ(desk.state.projectDir, "/home/a");
  EXPECT_EQ(recent(), (Paths{"/home/a", "/home/b"}));
}

TEST_F(OpenProject, thatAnotherProgramHasIsForLookingOnly) {
  desk.memory.holdLock("/home/a/owner", "program kestra, process 7, of user ann");
  open("/home/a");
  expectBox(
      "This project is open in program kestra, process 7, of user ann. You can look at it here, but nothing in it can "
      "be "
      "changed.");
  EXPECT_EQ(desk.state.projectDir, "/home/a");
  EXPECT_TRUE(desk.state.projectReadOnly);
  desk.memory.holdLock("/home/a/owner", "");
  open("/home/a");
  expectBox("This project is already open.");
  EXPECT_FALSE(desk.state.projectReadOnly);
}

TEST_F(OpenProject, forLookingOnlyChangesNothingInIt) {
  desk.memory.holdLock("/home/a/owner", "program kestra, process 7, of user ann");
  desk.memory.put("/home/a/old.STR", "old");
  desk.memory.putLink("/home/link", "/home/a");
  open("/home/a");
  desk.boxes.shown.clear();
  FileSystem& files = desk.app.ports.files;
  for (const char* path : {"/home/a/old.STR", "/home/link/old.STR", "old.STR", "/home/a/new"}) {
    EXPECT_TRUE(writeWholeFile(files, path, "new").failedAs(FailureKind::denied)) << path;
  }
  EXPECT_TRUE(files.removeFile("/home/a/old.STR").failedAs(FailureKind::denied));
  EXPECT_TRUE(files.makeDirectory("/home/a/deep").failedAs(FailureKind::denied));
  EXPECT_TRUE(files.rename("/home/a/old.STR", "/home/b/x").failedAs(FailureKind::denied));
  EXPECT_EQ(desk.memory.content("/home/a/old.STR"), "old");
  EXPECT_TRUE(writeWholeFile(files, "/home/plain/x", "new"));
  open("/home/b");
  EXPECT_TRUE(writeWholeFile(files, "/home/b/x", "new"));
}

TEST_F(OpenProject, takesTheOpenProjectsRecentEntryOffOnceItsDirectoryIsGone) {
  open("/home/a");
  (void)desk.memory.removeFile("/home/a/owner");
  desk.shell.topScreen.mnuRecentProject(1).click();
  expectBox("This is not a valid Kestra B project directory!");
  EXPECT_TRUE(recent().empty());
}

TEST_F(OpenProject, clearsTheInputOfTheProjectBefore) {
  open("/home/a");
  desk.app.host.show(desk.shell.input.projectInformation);
  desk.shell.input.projectInformation.txtWatershedID.userReplace("typed");
  EXPECT_TRUE(desk.state.fileDirty);
  open("/home/b");
  EXPECT_EQ(desk.shell.input.projectInformation.txtWatershedID.text(), "");
  EXPECT_FALSE(desk.shell.input.projectInformation.visible());
  EXPECT_FALSE(desk.state.fileDirty);
  EXPECT_EQ(desk.shell.history.steps(), 0U);
}

TEST_F(OpenProject, givesSpillwaysAndSamplingTheirInitialValues) {
  open("/home/a");
  desk.state.numAuxSpillways = desk.state.curAuxSpillway = 2;
  desk.state.totalInstances = "50";
  desk.state.lhsSeed = "77";
  desk.state.bRandomSample = true;
  open("/home/b");
  EXPECT_EQ(desk.state.numAuxSpillways, 0);
  EXPECT_EQ(desk.state.curAuxSpillway, 0);
  EXPECT_EQ(desk.state.totalInstances, "1");
  EXPECT_EQ(desk.state.lhsSeed, "1");
  EXPECT_FALSE(desk.state.bRandomSample);
}

TEST_F(OpenProject, startsItsListsAtTheCurrentDirectoryAndFollowsTheDrive) {
  desk.memory.putDirectory("/mnt/disk/deep");
  desk.memory.setRoots({"/", "/mnt/disk"});
  desk.shell.topScreen.mnuOpenProject.click();
  frmOpenProject& screen = desk.shell.openProject;
  EXPECT_EQ(screen.dirList.path(), "/home");
  EXPECT_EQ(screen.drvList.text(), "/");
  EXPECT_TRUE(screen.dirList.userChoose("/mnt/disk/deep"));
  EXPECT_EQ(screen.drvList.text(), "/mnt/disk");
  EXPECT_TRUE(screen.drvList.userSelect(std::string_view("/")));
  EXPECT_EQ(screen.dirList.path(), "/");
  EXPECT_FALSE(screen.dirList.userChoose("/nowhere"));
  EXPECT_EQ(screen.dirList.path(), "/");
  screen.dirList.userChoose("a/../b");
  EXPECT_EQ(screen.dirList.path(), "/home/b");
  screen.cmdCancel.click();
  EXPECT_FALSE(screen.loaded());
}

TEST_F(OpenProject, goesBackToTheTopScreenByExit) {
  open("/home/a");
  EXPECT_FALSE(desk.shell.topScreen.mnuFile.visible());
  EXPECT_FALSE(desk.shell.topScreen.mnuHelp.visible());
  EXPECT_FALSE(desk.app.host.closeByFrame(desk.shell.inputWindow));
  EXPECT_EQ(desk.state.projectDir, "");
  EXPECT_EQ(desk.shell.topScreen.title(), "Kestra B");
  EXPECT_TRUE(desk.shell.topScreen.mnuFile.visible());
  EXPECT_FALSE(desk.shell.inputWindow.loaded());
  EXPECT_FALSE(desk.state.windowOpen[1]);
  EXPECT_FALSE(desk.state.bExiting);
}

}  // namespace
}  // namespace kestra
