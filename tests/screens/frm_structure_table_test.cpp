#include "screens/structure_table_desk.h"

namespace kestra {
namespace {

constexpr const char* kMissing = "Data Check: This cell must contain data.";

TEST_F(StructureTable, isLaidOutOnLoad) {
  EXPECT_EQ(screen.title(), "Structure Table");
  EXPECT_EQ(screen.lblStructureID.caption(), "Structure Identifier:");
  EXPECT_EQ(screen.lblValleyFloor.caption(), "Dam Base Elevation, ft:");
  EXPECT_EQ(screen.lblStartRouting.caption(), "Start Routing, ft:");
  EXPECT_EQ(screen.optFEET.caption(), "elevation, ft");
  EXPECT_EQ(screen.optCFS.caption(), "output, cfs");
  EXPECT_EQ(screen.lblTable.caption(), "Principal Spillway Rating and Reservoir Stage-Storage");
  EXPECT_EQ(screen.cmdPlot.caption(), "P&lot");
  const Table& table = screen.grdTable;
  EXPECT_EQ(table.rows(), 51);
  EXPECT_EQ(table.columns(), 5);
  EXPECT_EQ(row(0), (Boxes{"Elevation, ft", "Principal Spillway Discharge, cfs ", "Reservoir Storage Volume, acre-ft",
                           "Reservoir Surface Area, acres"}));
  EXPECT_EQ(table.cell(1, 0), "1");
  EXPECT_EQ(table.cell(50, 0), "50");
  EXPECT_EQ(table.columnWidth(0), 500);
  EXPECT_EQ(table.columnWidth(4), 1750);
  EXPECT_EQ(table.rowHeight(0), 560);
  EXPECT_TRUE(table.centred(0) && table.centred(1) && table.centred(4));
  EXPECT_EQ(screen.find("optFeet"), &screen.optFEET);
}

TEST_F(StructureTable, walksToTheHydrographAndBackToTheDam) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmHydrographData");
  desk.host.show(screen);
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmDamSurface");
  desk.host.show(screen);
  screen.editMenu.mnuExit.click();
  EXPECT_EQ(desk.front(), "frmDamSurface");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, Boxes{"html\\StructureTable.htm"});
}

TEST_F(StructureTable, offersADischargeAsStartOnlyWithoutBreachAnalysis) {
  EXPECT_TRUE(screen.optFEET.selected());
  EXPECT_FALSE(screen.optCFS.visible());
  project.optNoBreachAnalysis.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.optCFS.visible());
  screen.optCFS.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.optCFS.selected());
  project.optBreachAnalysis.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.optFEET.selected());
  EXPECT_FALSE(screen.optCFS.selected());
  EXPECT_FALSE(screen.optCFS.visible());
}

TEST_F(StructureTable, isEnteredRowByRowAndWantsAnElevation) {
  typeInto(screen.grdTable, "-5\r\r12\r\r7\r");
  EXPECT_EQ(row(1), (Boxes{"-5", "", "12", ""}));
  EXPECT_EQ(row(2), (Boxes{"7", "", "", ""}));
  enterAt(3, 1);
  EXPECT_EQ(desk.takeBoxes(), Boxes{kMissing});
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{3, 1}));
  enterAt(1, 4);
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{2, 1}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, takesElevationsThatFall) {
  typeInto(screen.grdTable, "9\r\r\r\r8\r");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{2, 2}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, goesToNextFromTheLastCell) {
  screen.grdTable.setCell(50, 4, "1");
  enterAt(50, 4);
  EXPECT_EQ(desk.takeBoxes(), Boxes{kMissing});
  EXPECT_EQ(screen.grdTable.cell(50, 4), "");
  screen.grdTable.setCell(50, 1, "1");
  screen.grdTable.setCell(50, 4, "2");
  enterAt(50, 4);
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
}

TEST_F(StructureTable, startsAtTheFirstCellWhenItGetsTheFocus) {
  screen.grdTable.setCursor({7, 3});
  screen.txtStructureID.userFocus();
  screen.grdTable.userFocus();
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
}

TEST_F(StructureTable, isClearedInOneStepThatCanBeUndone) {
  screen.grdTable.setCell(1, 1, "7");
  screen.grdTable.setCell(50, 4, "8");
  screen.grdTable.userSelect({3, 2}, {5, 4});
  screen.clearTable();
  EXPECT_EQ(row(1)[0] + row(50)[3], "");
  EXPECT_EQ(screen.grdTable.cell(1, 0), "1");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(screen.grdTable.corner(), (CellPosition{1, 1}));
  EXPECT_TRUE(desk.state.fileDirty);
  screen.mnuUndo.click();
  EXPECT_EQ(row(1)[0] + row(50)[3], "78");
}

TEST_F(StructureTable, isSetUpAnewByItsHelpers) {
  screen.grdTable.setCell(2, 0, "x");
  screen.grdTable.setColumnWidth(4, 1);
  screen.grdTable.setRowHeight(0, 1);
  screen.setRowNum();
  screen.setColWidth();
  screen.setRowHeight();
  EXPECT_EQ(screen.grdTable.cell(2, 0), "2");
  EXPECT_EQ(screen.grdTable.columnWidth(4), 1750);
  EXPECT_EQ(screen.grdTable.rowHeight(0), 560);
}

TEST_F(StructureTable, isEditedByTheCommandsOfItsMenu) {
  typeInto(screen.grdTable, "1\r2\r3\r4\r5");
  screen.grdTable.userSelect({1, 1}, {1, 1});
  screen.editMenu.mnuInsertPoint.click();
  EXPECT_EQ(screen.editMenu.mnuInsertPoint.name(), "mnuInsertRow");
  EXPECT_EQ(row(2), (Boxes{"1", "2", "3", "4"}));
  screen.editMenu.mnuDeletePoint.click();
  EXPECT_EQ(row(1), (Boxes{"1", "2", "3", "4"}));
}

TEST_F(StructureTable, offersTheStartThatAnUndoneAnalysisLeaves) {
  project.optNoBreachAnalysis.userSelect();
  desk.host.show(screen);
  screen.optCFS.userSelect();
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optFEET.selected() && screen.optCFS.visible());
  screen.mnuUndo.click();
  EXPECT_TRUE(project.optBreachAnalysis.selected());
  EXPECT_FALSE(screen.optCFS.visible());
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.optCFS.visible());
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.optCFS.selected());
}

}  // namespace
}  // namespace kestra
