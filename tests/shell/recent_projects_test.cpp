#include "shell/recent_projects.h"

#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

using Paths = std::vector<std::string>;

struct RecentProjectsTest : testing::Test {
  RunningDesk desk;
  frmTopScreen& top = desk.shell.topScreen;

  Paths paths() const { return top.recent().paths(); }
};

TEST_F(RecentProjectsTest, standInTheMenuNewestFirst) {
  top.UpdateRecentProjects("/a");
  top.UpdateRecentProjects("/b");
  EXPECT_EQ(top.mnuRecentProject(1).caption(), "&1 /b");
  EXPECT_EQ(top.mnuRecentProject(2).caption(), "&2 /a");
  EXPECT_TRUE(top.mnuRecentProject(2).visible());
  EXPECT_FALSE(top.mnuRecentProject(3).visible());
}

TEST_F(RecentProjectsTest, moveToTheTopWithoutADuplicate) {
  for (const char* path : {"/a", "/b", "/c", "/a"}) top.UpdateRecentProjects(path);
  EXPECT_EQ(paths(), (Paths{"/a", "/c", "/b"}));
}

TEST_F(RecentProjectsTest, dropTheOldestOfEleven) {
  for (int i = 1; i <= 11; ++i) top.UpdateRecentProjects("/p" + std::to_string(i));
  EXPECT_EQ(paths().size(), 10U);
  EXPECT_EQ(paths().front(), "/p11");
  EXPECT_EQ(paths().back(), "/p2");
  EXPECT_EQ(top.mnuRecentProject(10).caption(), "&10 /p2");
}

TEST_F(RecentProjectsTest, closeUpWhenOneIsRemoved) {
  for (const char* path : {"/a", "/b", "/c"}) top.UpdateRecentProjects(path);
  top.RemoveRecentProject("/b");
  top.RemoveRecentProject("/unknown");
  EXPECT_EQ(paths(), (Paths{"/c", "/a"}));
  EXPECT_FALSE(top.mnuRecentProject(3).visible());
}

TEST_F(RecentProjectsTest, surviveARestartInTheirOrder) {
  for (int i = 1; i <= 10; ++i) top.UpdateRecentProjects("/p & q " + std::to_string(i));
  top.saveRecentProjects();
  EXPECT_EQ(desk.settings.get("ProjectHistory", "n", ""), "10");
  EXPECT_EQ(desk.settings.get("ProjectHistory", "1Project", ""), "/p & q 10");
  EXPECT_EQ(desk.settings.get("ProjectHistory", "10Project", ""), "/p & q 1");
  Application again(desk.ports(), "/app");
  again.shell.startUp("");
  EXPECT_EQ(again.shell.topScreen.recent().paths(), paths());
}

class RecentCount : public testing::TestWithParam<const char*> {};

TEST_P(RecentCount, outsideOneToTenShowsAnEmptyList) {
  ScriptedDesk desk;
  (void)desk.settings.set("ProjectHistory", {{"n", GetParam()}, {"1Project", "/a"}});
  Application app(desk.ports(), "/app");
  app.shell.startUp("");
  EXPECT_TRUE(app.shell.topScreen.recent().paths().empty());
  EXPECT_FALSE(app.shell.topScreen.mnuRecentProject(1).visible());
}

INSTANTIATE_TEST_SUITE_P(Counts, RecentCount, testing::Values("0", "11", "-1", "", "many", "99999999999999999999"));

TEST(RecentProjectsLoad, passesOverEntriesThatAreMissing) {
  ScriptedDesk desk;
  (void)desk.settings.set("ProjectHistory", {{"n", "3"}, {"1Project", "/a"}, {"3Project", "/c"}});
  Application app(desk.ports(), "/app");
  app.shell.startUp("");
  EXPECT_EQ(app.shell.topScreen.recent().paths(), (Paths{"/a", "/c"}));
}

struct BrokenSettings : MemorySettings {
  Status set(const std::string&, const Entries&) override {
    return Failure{FailureKind::full, "/s/settings.ini", "No space left on device"};
  }
};

TEST(RecentProjectsSave, saysWhenTheSettingsCannotBeWritten) {
  ScriptedDesk desk;
  BrokenSettings broken;
  Ports ports{desk.boxes,  desk.dialogs, broken,       desk.clipboard, desk.processes, desk.files,
              desk.events, desk.beeper,  desk.entropy, desk.clock,     desk.help};
  Application app(ports, "/app");
  app.shell.startUp("");
  app.shell.topScreen.mnuExit.click();
  EXPECT_TRUE(app.shell.ended());
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "The list of recent projects could not be saved. /s/settings.ini: No space left on device");
}

}  // namespace
}  // namespace kestra
