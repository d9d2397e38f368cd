#include "screens/input_screen.h"

#include <gtest/gtest.h>

#include "screens/edit_menu.h"
#include "screens/frm_project_information.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

struct ProjectInformation : testing::Test {
  InputDesk desk;
  frmProjectInformation screen{desk.context};
  PlainScreen properties{"Properties"};
  PlainScreen damSurface{"frmDamSurface"};

  ProjectInformation() {
    for (Screen* each : std::initializer_list<Screen*>{&screen, &properties, &damSurface}) desk.host.enter(*each);
    desk.host.show(screen);
  }
};

TEST_F(ProjectInformation, startsWithTheSimpleTemplateAnEarthSlopeAndABreach) {
  EXPECT_EQ(screen.title(), "Project Information");
  EXPECT_TRUE(screen.optSimple.selected() && screen.optEarth.selected() && screen.optBreachAnalysis.selected());
  EXPECT_EQ(screen.txtWatershedID.text(), "");
  EXPECT_EQ(screen.cmdNext.caption(), "&Next Screen");
  EXPECT_EQ(screen.cmdPrevious.caption(), "&Previous Screen");
  EXPECT_EQ(screen.cmdHome.caption(), "Ho&me Screen");
  EXPECT_EQ(screen.cmdHelp.caption(), "&Help");
  EXPECT_EQ(screen.find("cmdPlot"), nullptr);
}

TEST_F(ProjectInformation, leadsToTheModelPropertiesOnlyWithABreachAnalysis) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "Properties");
  EXPECT_FALSE(screen.visible());
  screen.optNoBreachAnalysis.userSelect();
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmDamSurface");
}

TEST_F(ProjectInformation, goesBackToTheInputWindowByPreviousByHomeAndByTheFrame) {
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  desk.host.show(screen);
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  desk.host.show(screen);
  screen.txtWatershedID.userReplace("pond");
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_TRUE(screen.loaded());
  EXPECT_EQ(screen.txtWatershedID.text(), "pond");
  desk.state.bExiting = true;
  EXPECT_TRUE(desk.host.closeByFrame(screen));
  EXPECT_EQ(screen.txtWatershedID.text(), "");
}

TEST_F(ProjectInformation, showsItsHelpTopic) {
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\ProjectInformation.htm"});
}

TEST_F(ProjectInformation, undoesFieldsAndOptionsAndMarksTheFileAsEdited) {
  typeInto(screen.txtWatershedID, "po");
  screen.optBare.userSelect();
  desk.state.fileDirty = false;
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optEarth.selected());
  EXPECT_FALSE(screen.optBare.selected());
  EXPECT_TRUE(desk.state.fileDirty);
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtWatershedID.text(), "");
  screen.mnuUndo.click();
  screen.mnuRedo.click();
  EXPECT_EQ(screen.txtWatershedID.text(), "po");
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.optBare.selected());
  screen.mnuRedo.click();
  EXPECT_EQ(desk.history.steps(), 2U);
}

TEST_F(ProjectInformation, takesNoLineEndIntoAFieldOfOneLine) {
  screen.txtWatershedID.userReplace("a\r\nENDRUN");
  EXPECT_EQ(screen.txtWatershedID.text(), "a");
  screen.txtComments.userReplace("a\r\nb");
  EXPECT_EQ(screen.txtComments.text(), "a\r\nb");
}

TEST_F(ProjectInformation, forgetsWhatWasUndoneOnceSomethingElseIsDone) {
  screen.optBare.userSelect();
  screen.mnuUndo.click();
  screen.optRipRap.userSelect();
  EXPECT_FALSE(desk.history.canRedo());
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optEarth.selected());
}

TEST_F(ProjectInformation, keepsNoStepForACommandThatChangesNothing) {
  screen.cmdNext.click();
  screen.cmdHome.click();
  EXPECT_EQ(desk.history.steps(), 0U);
}

TEST_F(ProjectInformation, keepsNoStepForAnEditThatChangesNothing) {
  screen.txtWatershedID.userReplace("A");
  screen.mnuUndo.click();
  screen.optSimple.userSelect();
  screen.txtWatershedID.userReplace("");
  EXPECT_EQ(desk.history.steps(), 0U);
  screen.mnuRedo.click();
  EXPECT_EQ(screen.txtWatershedID.text(), "A");
}

TEST_F(ProjectInformation, partsWhatIsTypedOnTwoVisits) {
  typeInto(screen.txtWatershedID, "ab");
  screen.cmdNext.click();
  desk.host.show(screen);
  typeInto(screen.txtWatershedID, "cd");
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtWatershedID.text(), "ab");
}

TEST(UndoHistoryLimit, dropsTheOldestStep) {
  InputDesk desk;
  frmProjectInformation screen(desk.context);
  desk.host.enter(screen);
  for (std::size_t i = 0; i <= UndoHistory::kMostSteps; ++i) screen.txtWatershedID.userReplace(std::to_string(i));
  EXPECT_EQ(desk.history.steps(), UndoHistory::kMostSteps);
  while (desk.history.undo()) continue;
  EXPECT_EQ(screen.txtWatershedID.text(), "0");
  EXPECT_EQ(desk.history.bytes(), 0U);
}

TEST(UndoHistoryLimit, keepsOneOldTextForKeysTypedInARow) {
  InputDesk desk;
  frmProjectInformation screen(desk.context);
  desk.host.enter(screen);
  screen.txtComments.setText(std::string(1U << 20U, 'x'));
  for (int i = 0; i < 500; ++i) typeInto(screen.txtComments, "ab\b");
  EXPECT_EQ(desk.history.steps(), 1U);
  EXPECT_LT(desk.history.bytes(), 4U << 20U);
  desk.history.undo();
  EXPECT_EQ(screen.txtComments.text().size(), 1U << 20U);
  desk.history.redo();
  EXPECT_EQ(screen.txtComments.text().size(), (1U << 20U) + 500U);
}

TEST(UndoHistoryLimit, keepsItsMemoryWithinBounds) {
  InputDesk desk;
  frmProjectInformation screen(desk.context);
  desk.host.enter(screen);
  const std::string large(8U << 20U, 'x');
  for (int i = 0; i < 20; ++i) screen.txtComments.userReplace(large + std::to_string(i));
  EXPECT_LE(desk.history.bytes(), UndoHistory::kMostBytes);
  EXPECT_GE(desk.history.steps(), 5U);
}

}  // namespace
}  // namespace kestra
