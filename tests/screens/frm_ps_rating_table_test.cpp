#include "screens/frm_ps_rating_table.h"

#include <gtest/gtest.h>

#include "screens/frm_ps_conduit.h"
#include "screens/frm_ps_type.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

constexpr const char* kMissing = "Data Check: This cell must contain data.";
constexpr const char* kFalling = "Data Check: Values must be increasing.";

struct StructureTable : PlainScreen {
  StructureTable() : PlainScreen("frmStructureTable") {}
  Table grdTable{*this, "grdTable", {51, 5, 1, 1}};
};

struct Tailwater : testing::Test {
  InputDesk desk;
  frmPSType type{desk.context};
  frmPSConduit conduit{desk.context};
  frmPSRatingTable screen{desk.context};
  StructureTable structure;
  PlainScreen hydrograph{"frmHydrographData"};
  PlainScreen spillways{"frmAuxSpillways"};

  Tailwater() {
    desk.context.screens.psType = &type;
    desk.context.screens.psConduit = &conduit;
    for (Screen* each : std::initializer_list<Screen*>{&type, &conduit, &screen, &structure, &hydrograph, &spillways}) {
      desk.host.enter(*each);
    }
    desk.host.show(screen);
    screen.grdTable.userFocus();
  }
  std::string previous() {
    desk.host.show(screen);
    screen.cmdPrevious.click();
    EXPECT_FALSE(screen.visible());
    return desk.front();
  }
};

TEST_F(Tailwater, headsAndNumbersItsTable) {
  const Table& table = screen.grdTable;
  EXPECT_EQ(screen.title(), "Tailwater Rating Table");
  EXPECT_EQ(table.rows(), 51);
  EXPECT_EQ(table.columns(), 5);
  EXPECT_EQ(table.cell(0, 1), "Tailwater Elevation, ft");
  EXPECT_EQ(table.cell(0, 2), "Reservoir Outflow, cfs");
  EXPECT_EQ(table.cell(1, 0), "1");
  EXPECT_EQ(table.cell(50, 0), "50");
  EXPECT_EQ(table.columnWidth(0), 500);
  EXPECT_EQ(table.columnWidth(2), 1750);
  EXPECT_TRUE(table.centred(0) && table.centred(1));
  EXPECT_EQ(table.rowHeight(0), 560);
  EXPECT_EQ(screen.cmdPlot.caption(), "P&lot");
}

TEST_F(Tailwater, takesElevationOutflowNextRow) {
  typeInto(screen.grdTable, "1010.5\r0\r1010.5\r20\r");
  EXPECT_EQ(screen.grdTable.cell(1, 1), "1010.5");
  EXPECT_EQ(screen.grdTable.cell(1, 2), "0");
  EXPECT_EQ(screen.grdTable.cell(2, 1), "1010.5");
  EXPECT_EQ(screen.grdTable.cell(2, 2), "20");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{3, 1}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(Tailwater, refusesALowerElevationAndAnEmptyCell) {
  typeInto(screen.grdTable, "\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
  typeInto(screen.grdTable, "1010\r\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
  typeInto(screen.grdTable, "5\r1009.9\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kFalling});
  EXPECT_EQ(screen.grdTable.cell(2, 1), "");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{2, 1}));
}

TEST_F(Tailwater, movesFromTheLastOutflowToNext) {
  screen.grdTable.setCell(50, 1, "1010");
  screen.grdTable.userSelect({50, 2}, {50, 2});
  typeInto(screen.grdTable, "8\r");
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(Tailwater, takesNoKeysInTheColumnsThatAreNotUsed) {
  screen.grdTable.userSelect({1, 3}, {1, 3});
  typeInto(screen.grdTable, "5\r\b");
  EXPECT_EQ(desk.beeper.beeps, 3);
  EXPECT_EQ(screen.grdTable.cell(1, 3), "");
  EXPECT_TRUE(desk.takeBoxes().empty());
  screen.grdTable.userKey({0, "Left"});
  typeInto(screen.grdTable, "5");
  EXPECT_EQ(screen.grdTable.cell(1, 2), "5");
}

TEST_F(Tailwater, putsTheCursorOnTheFirstCellWhenTheTableGetsTheFocus) {
  screen.grdTable.userSelect({9, 2}, {9, 2});
  screen.cmdHelp.takeFocus();
  screen.grdTable.userFocus();
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
}

TEST_F(Tailwater, shiftsPointsDownRows) {
  typeInto(screen.grdTable, "1\r2\r3\r4\r");
  screen.grdTable.userSelect({1, 2}, {1, 2});
  screen.edit.mnuInsertPoint.click();
  EXPECT_EQ(screen.grdTable.cell(1, 1) + "," + screen.grdTable.cell(2, 1) + "," + screen.grdTable.cell(3, 2), ",1,4");
  EXPECT_EQ(screen.edit.mnuInsertPoint.name(), "mnuInsertRow");
  EXPECT_EQ(screen.edit.mnuDeletePoint.name(), "mnuDeleteRow");
}

TEST_F(Tailwater, leadsToTheAuxiliarySpillways) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmAuxSpillways");
  EXPECT_FALSE(screen.visible());
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\TailwaterRatingTable.htm"});
}

TEST_F(Tailwater, goesBackToTheConduitOrToTheTypeWithoutOne) {
  EXPECT_EQ(previous(), "frmPSConduit");
  type.optNone.userSelect();
  EXPECT_EQ(previous(), "frmPSType");
  type.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmPSRatingTable");
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmPSType");
  desk.host.show(screen);
  screen.edit.mnuExit.click();
  EXPECT_EQ(desk.front(), "frmPSType");
}

TEST_F(Tailwater, goesBackToTheHydrographWhereTheStructureHasDischargesOfItsOwn) {
  for (const int row : {1, 50}) {
    structure.grdTable.setCell(row, 2, "12");
    EXPECT_EQ(previous(), "frmHydrographData");
    structure.grdTable.setCell(row, 2, "  ");
    EXPECT_EQ(previous(), "frmPSConduit");
  }
}

}  // namespace
}  // namespace kestra
