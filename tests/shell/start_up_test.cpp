#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

TEST(StartUp, setsTheStateAndShowsTheTopScreenAlone) {
  RunningDesk desk;
  EXPECT_EQ(desk.state.solverPath, "/app/QUIL.exe");
  EXPECT_TRUE(desk.state.fileIsNew);
  EXPECT_FALSE(desk.state.fileDirty || desk.state.fileHasName || desk.state.bExiting);
  EXPECT_EQ(desk.state.currentSpillwayNumber, "1");
  EXPECT_EQ(desk.state.windowOpen, (std::array<bool, 7>{}));
  EXPECT_EQ(desk.app.host.shown(), std::vector<Screen*>{&desk.shell.topScreen});
  EXPECT_EQ(desk.shell.topScreen.title(), "Kestra B");
  EXPECT_EQ(desk.shell.topScreen.width(), 11600);
  EXPECT_EQ(desk.shell.topScreen.height(), 7605);
}

TEST(StartUp, readsTheFieldTitlesAndGivesTheFrameTheFirstColour) {
  ScriptedDesk desk;
  desk.memory.put("/app/Summary.idt", "\"A\",\"B\"");
  (void)desk.settings.set("ColorList", {{"0", "255"}});
  Application app(desk.ports(), "/app");
  app.shell.startUp("");
  EXPECT_EQ(app.shell.catalogues.fieldTitles[0].size(), 2U);
  EXPECT_EQ(app.shell.topScreen.backColor(), 255U);
}

struct CommandLine : testing::Test {
  ScriptedDesk desk;
  CommandLine() {
    desk.memory.put("/home/dam/owner", "");
    for (const char* name : {"a.KSC", "two words.KSC"}) {
      desk.memory.put(std::string("/home/dam/") + name, "KESTRA    01/01/2009Pond\r\nENDRUN\r\n");
    }
  }
};

TEST_F(CommandLine, opensTheFilesDirectoryAsTheProjectAndTheFile) {
  Application app(desk.ports(), "/app");
  app.shell.startUp("/home/dam/a.KSC");
  EXPECT_FALSE(app.shell.ended());
  EXPECT_EQ(app.state.projectDir, "/home/dam");
  EXPECT_EQ(app.state.currentFile, "/home/dam/a.KSC");
  EXPECT_TRUE(app.state.fileHasName);
  EXPECT_FALSE(app.state.fileDirty);
  EXPECT_EQ(app.shell.topScreen.title(), "Kestra B [Project  /home/dam]");
  EXPECT_EQ(app.shell.inputWindow.title(), "Kestra B ( /home/dam/a.KSC )");
  EXPECT_TRUE(app.shell.inputWindow.mnuSaveAs.enabled());
  EXPECT_EQ(app.host.shown().front(), &app.shell.inputWindow);
  EXPECT_EQ(app.shell.topScreen.recent().paths(), std::vector<std::string>{"/home/dam"});
  EXPECT_EQ(app.shell.input.projectInformation.txtWatershedID.text(), "Pond");
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(CommandLine, namesAFileThatCannotBeTakenInWhichIsToldAndOpenWithEmptyScreens) {
  Application app(desk.ports(), "/app");
  app.shell.startUp("/home/dam/none.KSC");
  EXPECT_FALSE(app.shell.ended());
  EXPECT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(app.state.currentFile, "/home/dam/none.KSC");
  EXPECT_EQ(app.shell.inputWindow.title(), "Kestra B ( /home/dam/none.KSC )");
  EXPECT_EQ(app.shell.input.projectInformation.txtWatershedID.text(), "");
}

TEST_F(CommandLine, mayStandInQuotesAndMayBeRelative) {
  for (const char* line : {"\"/home/dam/two words.KSC\"", "dam/two words.KSC", "./dam/../dam/two words.KSC"}) {
    (void)desk.memory.changeDirectory("/home");
    Application app(desk.ports(), "/app");
    app.shell.startUp(line);
    EXPECT_EQ(app.state.currentFile, "/home/dam/two words.KSC") << line;
  }
}

TEST_F(CommandLine, ofOneCharacterIsIgnored) {
  Application app(desk.ports(), "/app");
  app.shell.startUp("a");
  EXPECT_FALSE(app.shell.ended());
  EXPECT_EQ(app.state.currentFile, "");
  EXPECT_EQ(app.state.projectDir, "");
}

TEST_F(CommandLine, outsideAProjectEndsTheProgramAfterAMessage) {
  for (const char* line : {"/home/a.KSC", "/nowhere/a.KSC", "ab", "\"\""}) {
    desk.boxes.shown.clear();
    Application app(desk.ports(), "/app");
    app.shell.startUp(line);
    EXPECT_TRUE(app.shell.ended()) << line;
    ASSERT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.boxes.shown[0].title, "Open Project");
    EXPECT_EQ(desk.boxes.shown[0].text, "This is not a valid QUIL project directory!");
  }
}

TEST(Help, isShownFromTheMenus) {
  RunningDesk desk;
  desk.shell.topScreen.mnuContents.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{""});
  desk.shell.topScreen.mnuAboutTorve.click();
  EXPECT_TRUE(desk.shell.about.visible());
  desk.shell.about.cmdOK.click();
  EXPECT_FALSE(desk.shell.about.loaded());
  desk.shell.topScreen.mnuDisclaimer.click();
  EXPECT_TRUE(desk.shell.disclaimer.visible());
}

}  // namespace
}  // namespace kestra
