#include "screens/frm_aux_rating_table.h"

#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

constexpr const char* kMissing = "Data Check: This cell must contain data.";

// Two spillways given by ratings alone, the first on show.
struct AuxRating : testing::Test {
  AuxDesk desk;
  frmAuxRatingTable& screen = desk.rating;
  Table& first = screen.grdTable(0);
  Table& second = screen.grdTable(1);

  AuxRating() {
    desk.chooseSpillways({"North", "South"});
    for (int i : {0, 1}) desk.spillways.optRating(i).userSelect();
    desk.spillways.cmdNext.click();
  }
};

TEST_F(AuxRating, holdsFiftyPointsForEachSpillway) {
  EXPECT_EQ(screen.Frame2.caption(), "Rating Table");
  EXPECT_EQ(screen.cmdPlot.caption(), "P&lot");
  EXPECT_FALSE(screen.cmdPlot.hasAction());
  for (int i = 0; i < kAuxSpillways; ++i) {
    const Table& table = screen.grdTable(i);
    EXPECT_EQ(table.rows(), 51);
    EXPECT_EQ(table.columns(), 5);
    EXPECT_EQ(table.cell(0, 1), "Elevation, ft");
    EXPECT_EQ(table.cell(0, 2), "Discharge, cfs ");
    EXPECT_EQ(table.cell(1, 0), "1");
    EXPECT_EQ(table.cell(50, 0), "50");
    EXPECT_TRUE(table.centred(0) && table.centred(1));
    EXPECT_EQ(table.columnWidth(0), 500);
    EXPECT_EQ(table.columnWidth(2), 1750);
    EXPECT_EQ(table.rowHeight(0), 560);
  }
}

TEST_F(AuxRating, isTitledAtLoadAndAtActivation) {
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Rating Table: North");
  AuxDesk other;
  other.spillways.txtsway(0).userReplace("East");
  other.host.load(other.rating);
  EXPECT_EQ(other.rating.title(), "Auxiliary Spillway: East");
  other.host.show(other.rating);
  EXPECT_EQ(other.rating.title(), "Auxiliary Spillway: East");
  for (int i = 0; i < kAuxSpillways; ++i) EXPECT_FALSE(other.rating.grdTable(i).visible());
}

TEST_F(AuxRating, showsTheTableOfTheSpillwayBeingEdited) {
  EXPECT_TRUE(first.visible());
  EXPECT_FALSE(second.visible() || screen.grdTable(2).visible());
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmAuxRatingTable");
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Rating Table: South");
  EXPECT_FALSE(first.visible());
  EXPECT_TRUE(second.visible());
  screen.cmdPrevious.click();
  EXPECT_TRUE(first.visible());
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Rating Table: North");
}

TEST_F(AuxRating, takesElevationAndDischargeRowByRowInAnyOrder) {
  typeInto(first, "9\r5\r-3\r0\r");
  EXPECT_EQ(first.cell(1, 1), "9");
  EXPECT_EQ(first.cell(1, 2), "5");
  EXPECT_EQ(first.cell(2, 1), "-3");
  EXPECT_EQ(first.cell(2, 2), "0");
  EXPECT_EQ(first.cursor(), (CellPosition{3, 1}));
  EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
  EXPECT_TRUE(desk.state.fileDirty);
}

TEST_F(AuxRating, wantsBothValuesOfAPoint) {
  typeInto(first, "\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
  EXPECT_EQ(first.cursor(), (CellPosition{1, 1}));
  typeInto(first, "9\r\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
  EXPECT_EQ(first.cursor(), (CellPosition{1, 2}));
}

TEST_F(AuxRating, leavesTheLastPointForTheNextButton) {
  first.userFocus();
  first.userSetBlock({50, 1}, {{"9", "5"}});
  first.userSelect({50, 2}, {50, 2});
  typeInto(first, "\r");
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
}

TEST_F(AuxRating, refusesKeysBesideTheTwoColumnsAndLetters) {
  typeInto(first, "e");
  EXPECT_EQ(desk.beeper.beeps, 1);
  first.userSelect({1, 3}, {1, 3});
  typeInto(first, "1\r\b");
  EXPECT_EQ(desk.beeper.beeps, 4);
  EXPECT_EQ(first.cell(1, 3), "");
  first.userKey({0, "Left"});
  EXPECT_EQ(first.cursor(), (CellPosition{1, 2}));
}

TEST_F(AuxRating, editsTheTableOfTheSpillwayOnShow) {
  first.setCell(1, 1, "1");
  second.setCell(1, 1, "2");
  screen.cmdNext.click();
  screen.edit.mnuSelectAll.click();
  screen.edit.mnuCut.click();
  EXPECT_EQ(first.cell(1, 1), "1");
  EXPECT_EQ(second.cell(1, 1), "");
  EXPECT_TRUE(desk.clipboard.text().starts_with("2\t"));
  EXPECT_NE(screen.find("mnuInsertRow"), nullptr);
  screen.edit.mnuExit.click();
  EXPECT_TRUE(first.visible());
}

TEST_F(AuxRating, pastesNoMoreThanItHolds) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += std::to_string(i) + "\t1\t2\t3\t4\t5\n";
  desk.clipboard.setText(text);
  first.userFocus();
  screen.edit.mnuPaste.click();
  EXPECT_EQ(first.cell(50, 1), "49");
  EXPECT_EQ(first.cell(50, 4), "3");
  EXPECT_EQ(first.cell(0, 1), "Elevation, ft");
}

TEST_F(AuxRating, goesHomeAndHelps) {
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\AuxiliarySpillwayRatingTable.htm"});
}

TEST_F(AuxRating, isEmptyAgainOnceUnloaded) {
  first.userSetBlock({1, 1}, {{"9", "5"}});
  desk.host.unload(screen);
  EXPECT_EQ(first.cell(1, 1), "");
  desk.host.show(screen);
  EXPECT_EQ(first.cell(0, 1), "Elevation, ft");
}

}  // namespace
}  // namespace kestra
