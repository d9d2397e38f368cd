#include "screens/frm_hydrograph_data.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
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
  for (const char* text : {"0", "-1", "abc", "0.0"}) {
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

TEST_F(HydrographData, isResampledWhenItsIncrementChanges) {
  put(screen.grdTable, 1, {"0", "10", "4"});
  setIncrement("1");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "10", "4", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "1         "}));
  setIncrement("0.5");
  EXPECT_EQ(column(screen.grdTable, 1, 6), (Texts{"0", "5", "10", "7", "4", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "0.5       "}));
  setIncrement("");
  setIncrement("1.0");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "10", "4", ""}));
  EXPECT_EQ(screen.txtConst.text(), "1.0");
  setIncrement("1.00");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "10", "4", ""}));
}

TEST_F(HydrographData, isResampledFromTheIncrementOnShowAtItsActivation) {
  put(screen.grdTable, 1, {"0", "10"});
  screen.txtConst.setText("1");
  host.show(screen);
  setIncrement("0.5");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "5", "10"}));
}

TEST_F(HydrographData, keepsItsIncrementWhenAnotherOverflows) {
  put(screen.grdTable, 1, {"0", "10"});
  setIncrement("100");
  setIncrement("0.001");
  EXPECT_EQ(takeBoxes(), Texts{"Hydrograph Error: Overflow: the time increment gives more than 32767 points."});
  EXPECT_EQ(screen.txtConst.text(), "100");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "10", ""}));
  setIncrement("1e999");
  EXPECT_EQ(takeBoxes(), Texts{"Hydrograph Error: Overflow: a number is too large."});
  EXPECT_EQ(screen.txtConst.text(), "100");
}

TEST_F(HydrographData, showsTheIncrementThatWasUsed) {
  put(screen.grdTable, 1, {"0", "10"});
  setIncrement("0.0018");
  setIncrement("0.0005");
  EXPECT_EQ(screen.txtConst.text(), "0.0009");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "5", "10", ""}));
}

TEST_F(HydrographData, isConvertedToVariableTime) {
  put(screen.grdTable, 1, {"5", "", "7.123456789"});
  put(screen.varTable, 0, {"9", "9", "9", "9"});
  screen.txtConst.setText("0.1");
  screen.txtStartTime.setText("3");
  screen.cmdConvert.click();
  EXPECT_TRUE(screen.optVariable.selected() && screen.varTable.visible());
  EXPECT_FALSE(screen.grdTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToConstant);
  EXPECT_EQ(screen.txtDesired.text(), "0.1");
  EXPECT_EQ(column(screen.varTable, 0, 4), (Texts{"0", "", "0.2", ""}));
  EXPECT_EQ(column(screen.varTable, 1, 4), (Texts{"5", "", "7.123456789", ""}));
}

TEST_F(HydrographData, isConvertedToConstantTime) {
  put(screen.varTable, 0, {"0", "0.5", "2"});
  put(screen.varTable, 1, {"0", "10", "40"});
  put(screen.grdTable, 1, {"9", "9", "9", "9"});
  screen.optVariable.userSelect();
  screen.txtDesired.userReplace("1");
  screen.cmdConvert.click();
  EXPECT_TRUE(screen.optConst.selected() && screen.grdTable.visible());
  EXPECT_FALSE(screen.varTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), kToVariable);
  EXPECT_EQ(screen.txtConst.text(), "1");
  EXPECT_EQ(column(screen.grdTable, 0, 3), (Texts{"0         ", "1         ", "2         "}));
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "20", "40", ""}));
  screen.txtConst.userReplace("0.5");
  screen.txtConst.userLeave();
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "10", "20", "30"}));
}

TEST_F(HydrographData, isTruncatedToFiveThousandPointsWithAMessage) {
  put(screen.varTable, 0, {"0", "24"});
  put(screen.varTable, 1, {"0", "16999"});
  screen.convertHydrograph(0.001, 2);
  EXPECT_EQ(takeBoxes(), Texts{"Hydrograph Error: Too many points. Hydrograph truncated from 17000 to 5000 points."});
  EXPECT_EQ(screen.txtConst.text(), "0.00141184");
  EXPECT_EQ(lastFilled(screen.grdTable), 5000);
}

TEST_F(HydrographData, usesTheSmallestStepInPlaceOfASmallerOne) {
  put(screen.varTable, 0, {"0", "0.0018"});
  put(screen.varTable, 1, {"0", "2"});
  screen.convertHydrograph(0.0005, 2);
  EXPECT_EQ(screen.txtConst.text(), "0.0009");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "1", "2", ""}));
}

TEST_F(HydrographData, isLeftAloneByAConversionThatOverflows) {
  put(screen.varTable, 0, {"0", "2400"});
  put(screen.varTable, 1, {"0", "2"});
  put(screen.grdTable, 1, {"9"});
  screen.optVariable.userSelect();
  screen.txtConst.setText("7");
  screen.txtDesired.userReplace("0.001");
  screen.cmdConvert.click();
  EXPECT_EQ(takeBoxes(), Texts{"Hydrograph Error: Overflow: the time increment gives more than 32767 points."});
  EXPECT_TRUE(screen.optVariable.selected());
  EXPECT_EQ(screen.txtConst.text(), "7");
  EXPECT_EQ(screen.grdTable.rows(), 5001);
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"9", ""}));
}

TEST_F(HydrographData, givesAnEmptyConstantTableForAnEmptyVariableOne) {
  put(screen.grdTable, 1, {"9"});
  screen.optVariable.userSelect();
  screen.cmdConvert.click();
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(lastFilled(screen.grdTable), 0);
  EXPECT_TRUE(takeBoxes().empty());
}

TEST_F(HydrographData, wantsAFinalIncrementForItsPoints) {
  put(screen.varTable, 0, {"0", "1"});
  put(screen.varTable, 1, {"0", "2"});
  screen.optVariable.userSelect();
  screen.cmdConvert.click();
  EXPECT_EQ(takeBoxes(), Texts{kFinalStep});
  EXPECT_TRUE(screen.optVariable.selected());
}

TEST_F(HydrographData, growsItsTablesToTheRowsThatAConversionMayNeed) {
  put(screen.varTable, 0, {"0", "1"});
  put(screen.varTable, 1, {"0", "2"});
  screen.optVariable.userSelect();
  screen.txtConst.setText("2");
  screen.txtDesired.userReplace("1");
  screen.cmdConvert.click();
  EXPECT_EQ(screen.grdTable.rows(), 10003);
  EXPECT_EQ(screen.varTable.rows(), 5001);
  screen.cmdConvert.click();
  EXPECT_EQ(screen.varTable.rows(), 10003);
  screen.txtConst.setText("1e9");
  screen.cmdConvert.click();
  EXPECT_EQ(screen.grdTable.rows(), frmHydrographData::kMostRows);
  host.unload(screen);
  host.show(screen);
  EXPECT_EQ(screen.grdTable.rows(), 5001);
  EXPECT_EQ(screen.grdTable.cell(0, 1), " Discharge, cfs");
}

TEST_F(HydrographData, knowsTwoModesOfConversion) {
  EXPECT_THROW(screen.convertHydrograph(1, 0), RuntimeFault);
  EXPECT_THROW(screen.convertHydrograph(1, 3), RuntimeFault);
}

TEST_F(HydrographData, takesAConversionBackWithAllThatItChanged) {
  put(screen.varTable, 0, {"0", "1"});
  put(screen.varTable, 1, {"0", "2"});
  screen.optVariable.userSelect();
  screen.txtConst.setText("2");
  screen.txtDesired.userReplace("0.5");
  state.fileDirty = false;
  screen.cmdConvert.click();
  EXPECT_TRUE(state.fileDirty);
  const int rows = screen.grdTable.rows();
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optVariable.selected() && screen.varTable.visible());
  EXPECT_EQ(screen.txtConst.text(), "2");
  EXPECT_EQ(screen.grdTable.rows(), 5001);
  EXPECT_EQ(lastFilled(screen.grdTable), 0);
  EXPECT_EQ(screen.cmdConvert.caption(), kToConstant);
  screen.mnuRedo.click();
  EXPECT_EQ(screen.grdTable.rows(), rows);
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "1", "2", ""}));
  EXPECT_EQ(screen.txtConst.text(), "0.5");
}

TEST_F(HydrographData, takesAResamplingBackWithTheIncrementItCameFrom) {
  put(screen.grdTable, 1, {"0", "10"});
  setIncrement("1");
  setIncrement("0.5");
  screen.mnuUndo.click();
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "10", ""}));
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtConst.text(), "1");
  setIncrement("0.25");
  EXPECT_EQ(column(screen.grdTable, 1, 5), (Texts{"0", "2.5", "5", "7.5", "10"}));
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

}  // namespace
}  // namespace kestra
