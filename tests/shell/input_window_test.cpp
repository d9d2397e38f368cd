#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

struct InputWindow : testing::Test {
  WindowDesk desk;
};

TEST_F(InputWindow, leadsToTheFirstInputScreen) {
  desk.window.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmProjectInformation");
  EXPECT_FALSE(desk.window.visible());
}

TEST_F(InputWindow, letsAFileBeSavedOnceOneIsNewOrHasAName) {
  const struct {
    bool isNew, hasName, enabled;
  } table[] = {{false, false, false}, {true, false, true}, {false, true, true}, {true, true, true}};
  for (const auto& [isNew, hasName, enabled] : table) {
    desk.state.fileIsNew = isNew;
    desk.state.fileHasName = hasName;
    desk.app.host.show(desk.window);
    EXPECT_EQ(desk.window.mnuSaveAs.enabled(), enabled);
  }
}

TEST_F(InputWindow, hidesTheMenusOfTheFrameBehindItsOwn) {
  EXPECT_FALSE(desk.shell.topScreen.mnuFile.visible());
  EXPECT_FALSE(desk.shell.topScreen.mnuHelp.visible());
}

TEST_F(InputWindow, showsTheScreensOfOtherPartsWhereThereAreSome) {
  const std::pair<Menu*, const char*> table[] = {{&desk.window.mnuSummaryTable, "frmSummaryTable"},
                                                 {&desk.window.mnuSpecifySum, "frmSummaryFields"},
                                                 {&desk.window.mnuColors, "frmUpdateColors"},
                                                 {&desk.window.mnuSpecifyLines, "frmUpdateLines"}};
  std::deque<Screen> own;
  for (const auto& [command, name] : table) {
    EXPECT_EQ(command->visible(), desk.app.host.find(name) != nullptr) << name;
    if (desk.app.host.find(name) == nullptr) desk.app.host.enter(own.emplace_back(name, name));
  }
  desk.app.host.unload(desk.window);
  desk.app.host.show(desk.window);
  for (const auto& [command, name] : table) {
    EXPECT_TRUE(command->visible()) << name;
    command->click();
    EXPECT_EQ(desk.front(), name);
  }
}

TEST_F(InputWindow, asksForTheWindowsToBeLaidOut) {
  std::vector<WindowArrangement> asked;
  desk.window.mnuCascade.click();
  desk.app.host.onArrange = [&](WindowArrangement arrangement) { asked.push_back(arrangement); };
  desk.window.mnuCascade.click();
  desk.window.mnuTile.click();
  EXPECT_EQ(asked, (std::vector<WindowArrangement>{WindowArrangement::cascade, WindowArrangement::tile}));
}

TEST_F(InputWindow, listsTheWindowsUnderTheirTitles) {
  desk.window.mnuNew.click();
  EXPECT_EQ(desk.window.mnuWindowsArray(1).caption(), "Kestra B - Input Interface (New File)");
}

TEST_F(InputWindow, showsHelpAndDisclaimerAndAPicture) {
  desk.window.mnuContents.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{""});
  desk.window.mnuDisclaimer.click();
  EXPECT_EQ(desk.front(), "frmDisclaimer");
  EXPECT_FALSE(desk.window.Picture1.log().calls().empty());
}

TEST_F(InputWindow, hasNoCommandOnFilesWithoutAProject) {
  desk.window.mnuExit.click();
  const frmKestra& window = desk.window;
  for (const Menu* command :
       {&window.mnuNew, &window.mnuOpen, &window.mnuSaveAs, &window.mnuImport, &window.mnuBuildFile,
        &window.mnuRebuildAll, &window.mnuConvertAll, &window.mnuCheckFile, &window.mnuErrorTable}) {
    EXPECT_FALSE(command->enabled()) << command->name();
  }
  const auto before = desk.memory.paths();
  for (Menu* command : {&desk.window.mnuImport, &desk.window.mnuRebuildAll, &desk.window.mnuConvertAll}) {
    command->click();
  }
  EXPECT_EQ(desk.memory.paths(), before);
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST(HideInputScreens, hidesThoseThatAreOnShow) {
  WindowDesk desk;
  ScreenHost& host = desk.app.host;
  for (const char* name :
       {"frmAuxRatingTable", "frmAuxSpillwayProfile", "frmAuxSpillways", "frmDamSurface", "frmHydrographData",
        "frmPSConduit", "frmPSRatingTable", "frmPSType", "frmStructureTable", "Properties", "frmHeadcut"}) {
    host.show(*host.find(name));
  }
  HideInputScreens(host);
  EXPECT_EQ(host.shown(), (std::vector<Screen*>{host.find("frmHeadcut"), &desk.window, &desk.shell.topScreen}));
  EXPECT_TRUE(host.find("Properties")->loaded());
}

}  // namespace
}  // namespace kestra
