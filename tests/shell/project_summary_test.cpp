#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

struct ProjectSummary : testing::Test, ScriptedDesk {
  ProjectSummary() {
    memory.put("/app/Summary.idt", "\"Title\",\"Crest\"");
    memory.put("/app/Summary.ids", "\"Name\"");
    memory.put("/home/a/owner", "");
    memory.put("/home/a/SUMMARY.IDE", "1\n2\n0\n\"run\"\n");
    memory.put("/home/a/run.DIS", "Larkmoor\n1004\n");
    memory.put("/home/b/owner", "");
    app.shell.startUp("");
  }
  void open(const std::string& directory) {
    app.shell.topScreen.mnuOpenProject.click();
    app.shell.openProject.dirList.userChoose(directory);
    app.shell.openProject.cmdOK.click();
  }

  Application app{ports(), "/app"};
};

TEST_F(ProjectSummary, comesWithTheProjectAndGoesWithIt) {
  EXPECT_TRUE(app.summary.entries().empty());
  open("/home/a");
  ASSERT_EQ(app.summary.entries().size(), 1U);
  EXPECT_EQ(app.summary.entries()[0].values[1], "1004");
  open("/home/b");
  EXPECT_TRUE(app.summary.entries().empty());
  open("/home/a");
  app.shell.inputWindow.mnuExit.click();
  EXPECT_EQ(app.state.projectDir, "");
  EXPECT_TRUE(app.summary.entries().empty());
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ProjectSummary, comesWithAControlFileOnTheCommandLine) {
  memory.put("/home/a/run.KSC", "");
  app.shell.startUp("/home/a/run.KSC");
  EXPECT_EQ(app.summary.entryNames(), std::vector<std::string>{"run"});
}

TEST_F(ProjectSummary, ofANewProjectHasTheDefaultSelection) {
  makeProject(app.shell, "/home", "new");
  EXPECT_EQ(app.summary.selection().selectedFields, defaultSummarySelection().selectedFields);
  EXPECT_TRUE(app.summary.entries().empty());
}

TEST_F(ProjectSummary, hasItsFieldsChosenFromTheInputWindow) {
  EXPECT_FALSE(app.shell.inputWindow.mnuSpecifySum.enabled());
  open("/home/a");
  app.shell.inputWindow.mnuSpecifySum.click();
  EXPECT_EQ(app.host.shown().front(), &app.summaryScreens.fields);
  EXPECT_EQ(app.summaryScreens.fields.lstSelected(0).items(), std::vector<std::string>{"Crest"});
  open("/home/b");
  EXPECT_FALSE(app.summaryScreens.fields.loaded());
}

}  // namespace
}  // namespace kestra
