#include "screens/frm_hydrograph_data.h"

#include <gtest/gtest.h>

#include "screens/frm_project_information.h"
#include "screens/frm_structure_table.h"
#include "support/hydrograph_desk.h"

namespace kestra {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kConstantStep = "Data Check: Constant time increment must greater than 0.";
constexpr const char* kFinalStep = "Data Check: Time increment must greater than 0.";
constexpr const char* kToVariable = "Convert from Constant Time to Variable Time";
constexpr const char* kToConstant = "Convert from Variable Time to Constant Time";

struct HydrographData : testing::Test, HydrographDesk {
  HydrographData() { host.show(screen); }
  void setIncrement(const std::string& text) {
    screen.txtConst.userReplace(text);
    screen.txtConst.userLeave();
  }
};

TEST_F(HydrographData, isLaidOutOnLoad) {
  EXPECT_EQ(screen.lblTitle.caption(), "Title:");
  EXPECT_EQ(screen.lblStartTime.caption(), "Start Time (hrs):");
  EXPECT_EQ(screen.frameDataInputFormat.caption(), "Data Input Format");
  EXPECT_EQ(screen.optConst.caption(), "Constant Time Increment (hrs):");
  EXPECT_EQ(screen.optVariable.caption(), "Variable Time Increment:");
  EXPECT_EQ(screen.Label3.caption(), "Final Time Increment (hrs):");
  EXPECT_EQ(screen.frameConversion.caption(), "Hydrograph Data Conversion");
  EXPECT_EQ(screen.frameAdjust.caption(), "Adjust Computational Time Increment");
  EXPECT_EQ(screen.chkAdjustTimeIncrement.caption(), "Automatically adjust time increment during run");
  EXPECT_EQ(screen.chk10daydrawdown.caption(), "Compute drawdown:");
  EXPECT_EQ(screen.lblDrawdownTime.caption(), "Reference Time (hrs):");
  EXPECT_EQ(screen.txtDrawdownTime.text(), "240");
  EXPECT_EQ(screen.lblDrawdownElevation.caption(), "Reference Elevation:");
  EXPECT_EQ(screen.optPercent.caption(), "%");
  EXPECT_EQ(screen.optFeet.caption(), "ft");
  EXPECT_TRUE(screen.optPercent.selected());
  EXPECT_EQ(screen.cmdPlot.caption(), "P&lot");
  for (const Table* table : {&screen.grdTable, &screen.varTable}) {
    EXPECT_EQ(table->rows(), 5001);
    EXPECT_EQ(table->columns(), 2);
    EXPECT_EQ(table->cell(0, 0), " Time, hrs");
    EXPECT_EQ(table->cell(0, 1), " Discharge, cfs");
  }
  EXPECT_EQ(screen.grdTable.fixedColumns(), 1);
  EXPECT_EQ(screen.varTable.fixedColumns(), 0);
}

TEST_F(HydrographData, hasTheTitleOfItsTableOnceItWasShown) {
  frmHydrographData fresh(context);
  EXPECT_EQ(fresh.title(), "Reservoir Inflow Hydrograph Data Table");
  EXPECT_EQ(screen.title(), "Hydrograph Data Table");
  EXPECT_EQ(host.focus(), &screen.txtTitle);
}

TEST_F(HydrographData, leadsPastThePrincipalSpillwayWhenTheStructureTableHasDischarges) {
  screen.cmdNext.click();
  EXPECT_EQ(front(), "frmPSType");
  structure.grdTable.setCell(50, 2, "1");
  host.show(screen);
  screen.cmdNext.click();
  EXPECT_EQ(front(), "frmPSRatingTable");
  host.show(screen);
  screen.cmdPrevious.click();
  EXPECT_EQ(front(), "frmStructureTable");
  screen.cmdHelp.click();
  EXPECT_EQ(help.topics, Texts{"html\\HydrographDataTable.htm"});
}

TEST_F(HydrographData, findsDischargesInRowsOneToFiftyThatAreNotBlank) {
  EXPECT_FALSE(hasStructureDischarge(context));
  structure.grdTable.setCell(1, 1, "1");
  structure.grdTable.setCell(1, 3, "1");
  structure.grdTable.setCell(7, 2, "   ");
  EXPECT_FALSE(hasStructureDischarge(context));
  for (const int row : {1, 25, 50}) {
    structure.grdTable.setCell(row, 2, " 0 ");
    EXPECT_TRUE(hasStructureDischarge(context)) << row;
    structure.grdTable.setCell(row, 2, "");
  }
  EXPECT_FALSE(hasStructureDischarge(context));
}

TEST_F(HydrographData, showsWhatBelongsToItsForm) {
  screen.optVariable.userSelect();
  EXPECT_EQ(host.focus(), &screen.txtDesired);
  EXPECT_TRUE(screen.Label3.visible() && screen.txtDesired.visible() && screen.varTable.visible());
  EXPECT_FALSE(screen.txtConst.visible() || screen.grdTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToConstant);
  screen.optConst.userSelect();
  EXPECT_EQ(host.focus(), &screen.txtConst);
  EXPECT_FALSE(screen.Label3.visible() || screen.txtDesired.visible() || screen.varTable.visible());
  EXPECT_TRUE(screen.txtConst.visible() && screen.grdTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToVariable);
}

TEST_F(HydrographData, showsOnActivationTheFormThatAProgramHasChosen) {
  screen.optVariable.setSelected(true);
  host.show(screen);
  EXPECT_TRUE(screen.varTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToConstant);
}

TEST_F(HydrographData, numbersItsTimesOnActivation) {
  host.show(screen);
  EXPECT_EQ(screen.grdTable.cell(1, 0), "");
  screen.txtConst.setText("0.25");
  host.show(screen);
  EXPECT_EQ(column(screen.grdTable, 0, 3), (Texts{"0         ", "0.25      ", "0.5       "}));
  EXPECT_EQ(screen.grdTable.cell(5000, 0), "1249.75   ");
}

TEST_F(HydrographData, computesADrawdownOnlyWithoutBreachAnalysis) {
  EXPECT_FALSE(screen.Frame3.visible() || screen.chk10daydrawdown.visible() || screen.txtDrawdownTime.visible());
  project.optNoBreachAnalysis.userSelect();
  host.show(screen);
  EXPECT_TRUE(screen.chk10daydrawdown.visible() && screen.txtDrawdownTime.visible());
  EXPECT_FALSE(screen.txtDrawdownTime.enabled() || screen.txtDrawdownElevation.enabled() ||
               screen.optPercent.enabled() || screen.optFeet.enabled());
  screen.chk10daydrawdown.userSet(true);
  EXPECT_TRUE(screen.txtDrawdownTime.enabled() && screen.txtDrawdownElevation.enabled() &&
              screen.optPercent.enabled() && screen.optFeet.enabled());
  host.show(screen);
  EXPECT_TRUE(screen.chk10daydrawdown.checked());
  project.optBreachAnalysis.userSelect();
  host.show(screen);
  EXPECT_FALSE(screen.chk10daydrawdown.checked() || screen.txtDrawdownTime.enabled());
}

TEST_F(HydrographData, takesDischargesDownTheRowsWithoutAMinus) {
  typeInto(screen.grdTable, "1\r2.5\r-");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"1", "2.5", ""}));
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{3, 1}));
  EXPECT_EQ(beeper.beeps, 1);
  screen.grdTable.userSelect({5000, 1}, {5000, 1});
  typeInto(screen.grdTable, "\r");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{5000, 1}));
  EXPECT_TRUE(takeBoxes().empty());
}

TEST_F(HydrographData, takesTimeAndDischargeInTurn) {
  screen.optVariable.userSelect();
  typeInto(screen.varTable, "0\r1\r0.5\r2\r");
  EXPECT_EQ(column(screen.varTable, 0, 3), (Texts{"0", "0.5", ""}));
  EXPECT_EQ(column(screen.varTable, 1, 3), (Texts{"1", "2", ""}));
  EXPECT_EQ(screen.varTable.cursor(), (CellPosition{3, 0}));
}

TEST_F(HydrographData, putsACursorOnTheHeadingsIntoTheData) {
  screen.grdTable.setCursor({0, 1});
  screen.grdTable.userFocus();
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
  screen.optVariable.userSelect();
  screen.varTable.setCursor({0, 0});
  screen.varTable.userFocus();
  EXPECT_EQ(screen.varTable.cursor(), (CellPosition{1, 1}));
  screen.varTable.setCursor({700, 0});
  screen.txtTitle.userFocus();
  screen.varTable.userFocus();
  EXPECT_EQ(screen.varTable.cursor(), (CellPosition{700, 0}));
}

TEST_F(HydrographData, refusesAnIncrementThatIsNotAboveZero) {
  for (const char* text : {"0", "-1", "abc", "0.0", " "}) {
    setIncrement(text);
    EXPECT_EQ(takeBoxes(), Texts{kConstantStep}) << text;
    EXPECT_EQ(screen.txtConst.text(), "");
    EXPECT_EQ(host.focus(), &screen.txtConst);
    screen.txtDesired.userReplace(text);
    screen.txtDesired.userLeave();
    EXPECT_EQ(takeBoxes(), Texts{kFinalStep}) << text;
    EXPECT_EQ(screen.txtDesired.text(), "");
    EXPECT_EQ(host.focus(), &screen.txtDesired);
  }
  setIncrement("");
  screen.txtDesired.userLeave();
  EXPECT_TRUE(takeBoxes().empty());
}

TEST_F(HydrographData, cutsATitleOfMoreThanFortyCharacters) {
  const std::string forty(40, 'x');
  screen.txtTitle.userReplace(forty);
  screen.txtTitle.userLeave();
  EXPECT_TRUE(takeBoxes().empty());
  screen.txtTitle.userReplace(forty + "y");
  screen.txtTitle.userLeave();
  EXPECT_EQ(takeBoxes(), Texts{"Data Check: Title cannot exceed 40 characters."});
  EXPECT_EQ(screen.txtTitle.text(), forty);
}

TEST_F(HydrographData, checksATitleOnlyAfterTheUserHasChangedIt) {
  const std::string long41(41, 'x');
  screen.txtTitle.setText(long41);
  screen.txtTitle.userLeave();
  EXPECT_TRUE(takeBoxes().empty());
  EXPECT_EQ(screen.txtTitle.text(), long41);
  screen.txtTitle.userKey({U'y', ""});
  EXPECT_TRUE(screen.bTitleChanged);
  screen.txtTitle.userLeave();
  EXPECT_EQ(takeBoxes(), Texts{"Data Check: Title cannot exceed 40 characters."});
  EXPECT_FALSE(screen.bTitleChanged);
}

TEST_F(HydrographData, remembersTheLastIncrementThatItAccepted) {
  setIncrement("0.5");
  EXPECT_EQ(screen.lastConst, "0.5");
  screen.txtConst.userReplace("-1");
  EXPECT_TRUE(screen.bConstChanged);
  screen.txtConst.userLeave();
  EXPECT_FALSE(screen.bConstChanged);
  EXPECT_EQ(takeBoxes(), Texts{kConstantStep});
  EXPECT_EQ(screen.lastConst, "0.5");
}

TEST_F(HydrographData, leavesItsPointsAloneWhenAProgramSetsTheIncrement) {
  setIncrement("1");
  put(screen.grdTable, 1, {"0", "10"});
  screen.txtConst.setText("0.5");
  screen.txtConst.userLeave();
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "10", ""}));
}

TEST_F(HydrographData, clearsTheTableOnShowInOneStepThatCanBeUndone) {
  put(screen.grdTable, 1, {"1", "2"});
  put(screen.varTable, 0, {"3", "4"});
  screen.setRowNum(1);
  screen.grdTable.userSelect({2, 1}, {4, 1});
  screen.clearTable();
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"", ""}));
  EXPECT_EQ(screen.grdTable.cell(2, 0), "1         ");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(screen.grdTable.corner(), (CellPosition{1, 1}));
  EXPECT_EQ(column(screen.varTable, 0, 2), (Texts{"3", "4"}));
  EXPECT_TRUE(state.fileDirty);
  screen.mnuUndo.click();
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"1", "2"}));
  screen.selectForm(false);
  screen.clearTable();
  EXPECT_EQ(column(screen.varTable, 0, 2), (Texts{"", ""}));
  EXPECT_EQ(screen.varTable.cell(0, 0), " Time, hrs");
}

TEST_F(HydrographData, makesNoStepByBeingShown) {
  screen.txtConst.setText("1");
  host.show(screen);
  screen.cmdNext.click();
  host.show(screen);
  screen.cmdHome.click();
  EXPECT_EQ(history.steps(), 0U);
  EXPECT_FALSE(state.fileDirty);
}

TEST_F(HydrographData, editsTheTableOnShow) {
  clipboard.setText("1\t2\r\n3\t4\r\n");
  screen.grdTable.setCursor({1, 1});
  screen.editMenu.mnuPaste.click();
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"1", "3"}));
  screen.optVariable.userSelect();
  screen.varTable.setCursor({1, 0});
  screen.editMenu.mnuPaste.click();
  EXPECT_EQ(column(screen.varTable, 1, 2), (Texts{"2", "4"}));
  screen.editMenu.mnuExit.click();
  EXPECT_EQ(front(), "frmStructureTable");
}

TEST_F(HydrographData, dropsWhatIsPastedBehindItsLastRow) {
  std::string text;
  for (int i = 0; i < 6000; ++i) text += "1\r\n";
  clipboard.setText(text);
  screen.grdTable.setCursor({1, 1});
  screen.editMenu.mnuPaste.click();
  EXPECT_EQ(lastFilled(screen.grdTable), 5000);
  EXPECT_EQ(screen.grdTable.rows(), 5001);
}

TEST_F(HydrographData, offersTheDrawdownThatAnUndoneAnalysisLeaves) {
  project.optNoBreachAnalysis.userSelect();
  host.show(screen);
  screen.chk10daydrawdown.userSet(true);
  EXPECT_TRUE(screen.Frame3.visible() && screen.txtDrawdownTime.enabled());
  screen.mnuUndo.click();
  EXPECT_FALSE(screen.txtDrawdownTime.enabled());
  screen.mnuUndo.click();
  EXPECT_FALSE(screen.Frame3.visible());
  screen.mnuRedo.click();
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.Frame3.visible() && screen.txtDrawdownTime.enabled());
}

TEST_F(HydrographData, showsTheTableOfAFormThatIsUndone) {
  screen.selectForm(false);  // by a program: no step
  host.show(screen);
  screen.optConst.userSelect();
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.varTable.visible() && screen.txtDesired.visible());
  EXPECT_FALSE(screen.grdTable.visible() || screen.txtConst.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToConstant);
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.grdTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToVariable);
}

TEST_F(HydrographData, checksFieldsAgainBehindAnUndo) {
  screen.txtTitle.userReplace(std::string(41, 'x'));
  screen.txtTitle.userLeave();
  takeBoxes();
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtTitle.text(), std::string(41, 'x'));
  screen.txtTitle.userLeave();
  EXPECT_EQ(takeBoxes(), Texts{"Data Check: Title cannot exceed 40 characters."});
  put(screen.grdTable, 1, {"0", "10"});
  setIncrement("1");
  setIncrement("0.5");
  screen.mnuUndo.click();
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "10", ""}));
  EXPECT_EQ(screen.txtConst.text(), "1");
  screen.txtConst.userLeave();
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "10", ""}));
}

}  // namespace
}  // namespace kestra
