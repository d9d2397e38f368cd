// The surface conditions, above all while their last row, the root depths, is not shown.
#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

using Texts = std::vector<std::string>;

const AuxReach kUpper = {"1", "2", "5.6", "0.8", "1", "0.5"};
const AuxReach kLower = {"2", "3", "7.6", "0.9", "2", "0.6"};

// Two reaches of a spillway, the cursor on the first value of the upper one.
struct Conditions : testing::Test {
  AuxDesk desk;
  frmAuxSpillwayProfile& screen = desk.profile;
  Table& table = screen.grdCond;

  void open(OptionButton& analysis) {
    desk.stored().reaches[0] = kUpper;
    desk.stored().reaches[1] = kLower;
    desk.openProfile(analysis);
    table.userFocus();
    select({0, 1}, {0, 1});
  }
  void openStability() { open(desk.spillways.optStability(0)); }
  void select(CellPosition from, CellPosition to) { table.userSelect(from, to); }
  // What the store holds of the first three reaches once the screen has stored what it shows.
  std::vector<AuxReach> stored() {
    screen.storeShown();
    const auto& reaches = desk.stored().reaches;
    return {reaches.begin(), reaches.begin() + 3};
  }
};

TEST_F(Conditions, moveRootDepthsThatAreNotShownAlongWithTheirReaches) {
  openStability();
  EXPECT_EQ(table.cell(5, 0), "");
  EXPECT_FALSE(table.rowShown(5));
  select({3, 2}, {3, 2});
  screen.edit.mnuInsertPoint.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{kUpper, {}, kLower}));
  select({0, 1}, {0, 1});
  screen.edit.mnuDeletePoint.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{{}, kLower, {}}));
  screen.mnuUndo.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{kUpper, {}, kLower}));
}

TEST_F(Conditions, takeNoPastedRootDepthWhileTheyAreNotShown) {
  openStability();
  desk.clipboard.setText("7\r\n8\r\n9\r\n10\r\n11\r\n12\r\n");
  screen.edit.mnuPaste.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{{"7", "8", "9", "10", "11", "0.5"}, kLower, {}}));
  screen.mnuUndo.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{kUpper, kLower, {}}));
}

TEST_F(Conditions, takePastedRootDepthsThatAreShown) {
  open(desk.spillways.optQUIL(0));
  desk.clipboard.setText("7\r\n8\r\n9\r\n10\r\n11\r\n12\r\n");
  screen.edit.mnuPaste.click();
  EXPECT_EQ(stored()[0], (AuxReach{"7", "8", "9", "10", "11", "12"}));
}

TEST_F(Conditions, areSelectedAndCutWithoutWhatIsNotShown) {
  openStability();
  screen.edit.mnuSelectAll.click();
  EXPECT_EQ(table.firstSelected(), (CellPosition{0, 1}));
  EXPECT_EQ(table.lastSelected(), (CellPosition{4, 20}));
  screen.edit.mnuCut.click();
  const std::string blank = std::string(18, '\t') + "\r\n";
  const std::string cut = "1\t2" + blank + "2\t3" + blank + "5.6\t7.6" + blank + "0.8\t0.9" + blank + "1\t2" + blank;
  EXPECT_EQ(desk.clipboard.text(), cut);
  EXPECT_EQ(stored(), (std::vector<AuxReach>{{"", "", "", "", "", "0.5"}, {"", "", "", "", "", "0.6"}, {}}));
  screen.edit.mnuPaste.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{kUpper, kLower, {}}));
}

TEST_F(Conditions, areSelectedAndCutWithTheRootDepthsThatAreShown) {
  open(desk.spillways.optNone(0));
  screen.edit.mnuSelectAll.click();
  EXPECT_EQ(table.lastSelected(), (CellPosition{5, 20}));
  screen.edit.mnuCut.click();
  EXPECT_EQ(stored(), std::vector<AuxReach>(3));
}

TEST_F(Conditions, endASelectionBeforeTheRowThatIsNotShown) {
  openStability();
  select({5, 2}, {3, 1});
  EXPECT_EQ(table.lastSelected(), (CellPosition{4, 2}));
  screen.edit.mnuDelete.click();
  EXPECT_EQ(stored(), (std::vector<AuxReach>{{"1", "2", "5.6", "", "", "0.5"}, {"2", "3", "7.6", "", "", "0.6"}, {}}));
}

TEST_F(Conditions, areLeftAloneWhereOnlyTheRowThatIsNotShownIsSelected) {
  openStability();
  desk.clipboard.setText("9");
  EditMenu& edit = screen.edit;
  for (Menu* menu :
       {&edit.mnuCopy, &edit.mnuCut, &edit.mnuPaste, &edit.mnuDelete, &edit.mnuInsertCell, &edit.mnuDeleteCell}) {
    select({5, 1}, {5, 2});
    menu->click();
    EXPECT_EQ(stored(), (std::vector<AuxReach>{kUpper, kLower, {}})) << menu->name();
    EXPECT_EQ(desk.clipboard.text(), "9") << menu->name();
  }
}

TEST_F(Conditions, bringTheCursorBackFromARowThatIsShownNoMore) {
  open(desk.spillways.optQUIL(0));
  select({5, 3}, {5, 3});
  screen.cmdPrevious.click();
  desk.spillways.optStability(0).userSelect();
  desk.spillways.cmdNext.click();
  EXPECT_EQ(table.cursor(), (CellPosition{4, 3}));
}

TEST_F(Conditions, showTheRootDepthsWhileTheirAnalysisIsUndone) {
  openStability();
  table.userSetBlock({0, 1}, {{"7"}});
  const std::size_t steps = desk.history.steps();
  for (std::size_t i = 0; i < steps; ++i) screen.mnuUndo.click();
  EXPECT_FALSE(desk.history.canUndo());
  EXPECT_EQ(table.cell(5, 0), "Pot Root Depth");
  EXPECT_TRUE(table.rowShown(5));
  EXPECT_EQ(stored(), (std::vector<AuxReach>{kUpper, kLower, {}}));
  for (std::size_t i = 0; i < steps; ++i) screen.mnuRedo.click();
  EXPECT_FALSE(desk.history.canRedo());
  EXPECT_EQ(table.cell(5, 0), "");
  EXPECT_FALSE(table.rowShown(5));
  EXPECT_EQ(stored(), (std::vector<AuxReach>{{"7", "2", "5.6", "0.8", "1", "0.5"}, kLower, {}}));
}

TEST_F(Conditions, areEnteredToTheLastRowThatIsShownByPageDown) {
  openStability();
  for (int presses = 0; presses < 2; ++presses) {
    table.userKey({0, "PageDown"});
    EXPECT_EQ(table.cursor(), (CellPosition{4, 1}));
  }
  screen.cmdPrevious.click();
  desk.spillways.optQUIL(0).userSelect();
  desk.spillways.cmdNext.click();
  table.userKey({0, "PageDown"});
  EXPECT_EQ(table.cursor(), (CellPosition{5, 1}));
}

TEST_F(Conditions, leadToNextBehindTheLastCell) {
  struct Case {
    OptionButton& analysis;
    int lastRow;
  };
  for (const Case& c : {Case{desk.spillways.optQUIL(0), 5}, Case{desk.spillways.optStability(0), 4}}) {
    desk.host.show(desk.spillways);
    open(c.analysis);
    select({c.lastRow, 19}, {c.lastRow, 19});
    typeInto(table, "\r");
    EXPECT_EQ(table.cursor(), (CellPosition{0, 20}));
    EXPECT_EQ(desk.host.focus(), &table);
    select({c.lastRow, 20}, {c.lastRow, 20});
    typeInto(table, "3\r");
    EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
    EXPECT_EQ(table.cell(c.lastRow, 20), "3");
  }
  EXPECT_EQ(desk.takeBoxes(), Texts{});
  EXPECT_EQ(desk.beeper.beeps, 0);
}

}  // namespace
}  // namespace kestra
