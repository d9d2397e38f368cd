#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "screens/frm_hydrograph_data.h"
#include "support/hydrograph_desk.h"

// How the hydrograph's two tables become each other, and how one of them takes another increment.
namespace kestra {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kFinalStep = "Data Check: Time increment must greater than 0.";
constexpr const char* kToVariable = "Convert from Constant Time to Variable Time";
constexpr const char* kToConstant = "Convert from Variable Time to Constant Time";

struct HydrographConversion : testing::Test, HydrographDesk {
  HydrographConversion() { host.show(screen); }
  void setIncrement(const std::string& text) {
    screen.txtConst.userReplace(text);
    screen.txtConst.userLeave();
  }
};

TEST_F(HydrographConversion, isResampledWhenItsIncrementChanges) {
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

TEST_F(HydrographConversion, isResampledFromTheIncrementOnShowAtItsActivation) {
  put(screen.grdTable, 1, {"0", "10"});
  screen.txtConst.setText("1");
  host.show(screen);
  setIncrement("0.5");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "5", "10"}));
}

TEST_F(HydrographConversion, keepsItsIncrementWhenAnotherOverflows) {
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

TEST_F(HydrographConversion, showsTheIncrementThatWasUsed) {
  put(screen.grdTable, 1, {"0", "10"});
  setIncrement("0.0018");
  setIncrement("0.0005");
  EXPECT_EQ(screen.txtConst.text(), "0.0009");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "5", "10", ""}));
}

TEST_F(HydrographConversion, isConvertedToVariableTime) {
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

TEST_F(HydrographConversion, isConvertedToConstantTime) {
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

TEST_F(HydrographConversion, isTruncatedToFiveThousandPointsWithAMessage) {
  put(screen.varTable, 0, {"0", "24"});
  put(screen.varTable, 1, {"0", "16999"});
  screen.convertHydrograph(0.001, 2);
  EXPECT_EQ(takeBoxes(), Texts{"Hydrograph Error: Too many points. Hydrograph truncated from 17000 to 5000 points."});
  EXPECT_EQ(screen.txtConst.text(), "0.00141184");
  EXPECT_EQ(lastFilled(screen.grdTable), 5000);
  EXPECT_EQ(screen.grdTable.cell(5000, 0), "7.05782693");  // 4999 * 24 / 16999: not by the text of the step
}

TEST_F(HydrographConversion, usesTheSmallestStepInPlaceOfASmallerOne) {
  put(screen.varTable, 0, {"0", "0.0018"});
  put(screen.varTable, 1, {"0", "2"});
  screen.convertHydrograph(0.0005, 2);
  EXPECT_EQ(screen.txtConst.text(), "0.0009");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "1", "2", ""}));
}

TEST_F(HydrographConversion, isLeftAloneByAConversionThatOverflows) {
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

TEST_F(HydrographConversion, givesAnEmptyConstantTableForAnEmptyVariableOne) {
  put(screen.grdTable, 1, {"9"});
  screen.optVariable.userSelect();
  screen.cmdConvert.click();
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(lastFilled(screen.grdTable), 0);
  EXPECT_TRUE(takeBoxes().empty());
}

TEST_F(HydrographConversion, wantsAFinalIncrementForItsPoints) {
  put(screen.varTable, 0, {"0", "1"});
  put(screen.varTable, 1, {"0", "2"});
  screen.optVariable.userSelect();
  screen.cmdConvert.click();
  EXPECT_EQ(takeBoxes(), Texts{kFinalStep});
  EXPECT_TRUE(screen.optVariable.selected());
}

TEST_F(HydrographConversion, growsItsTablesToTheRowsThatAConversionMayNeed) {
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

TEST_F(HydrographConversion, leavesTheFocusWhereItIs) {
  put(screen.grdTable, 1, {"0", "2"});
  screen.txtConst.setText("1");
  screen.grdTable.userFocus();
  EXPECT_FALSE(screen.bConverted);
  screen.convertHydrograph(1, 1);
  EXPECT_EQ(host.focus(), &screen.grdTable);
  EXPECT_TRUE(screen.bConverted);
  screen.convertHydrograph(1, 2);
  EXPECT_EQ(host.focus(), &screen.grdTable);
  host.unload(screen);
  EXPECT_FALSE(screen.bConverted);
}

TEST_F(HydrographConversion, knowsTwoModesOfConversion) {
  EXPECT_THROW(screen.convertHydrograph(1, 0), RuntimeFault);
  EXPECT_THROW(screen.convertHydrograph(1, 3), RuntimeFault);
}

TEST_F(HydrographConversion, takesAConversionBackWithAllThatItChanged) {
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

TEST_F(HydrographConversion, takesAResamplingBackWithTheIncrementItCameFrom) {
  put(screen.grdTable, 1, {"0", "10", "4"});
  setIncrement("1");
  const std::size_t steps = history.steps();
  setIncrement("0.5");
  EXPECT_EQ(history.steps(), steps + 1);
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtConst.text(), "1");
  host.show(screen);
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"0", "10", "4", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 3), (Texts{"0         ", "1         ", "2         "}));
  screen.mnuRedo.click();
  EXPECT_EQ(screen.txtConst.text(), "0.5");
  host.show(screen);
  EXPECT_EQ(column(screen.grdTable, 1, 6), (Texts{"0", "5", "10", "7", "4", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "0.5       "}));
  screen.mnuUndo.click();
  setIncrement("0.25");
  EXPECT_EQ(column(screen.grdTable, 1, 5), (Texts{"0", "2.5", "5", "7.5", "10"}));
}

TEST_F(HydrographConversion, takesAResamplingBackWithItsIncrementWhateverWasDoneInBetween) {
  put(screen.grdTable, 1, {"0", "10"});
  setIncrement("1");
  screen.txtConst.userReplace("0.5");
  screen.txtStartTime.userReplace("3");
  screen.txtConst.userLeave();
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtConst.text(), "1");
  EXPECT_EQ(screen.txtStartTime.text(), "3");
  host.show(screen);
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"0", "10", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "1         "}));
}

TEST_F(HydrographConversion, wantsAConstantIncrementAboveZero) {
  put(screen.grdTable, 1, {"0", "10"});
  for (const char* text : {"", " ", "0", "-1", "x"}) {
    screen.txtConst.setText(text);
    screen.cmdConvert.click();
    EXPECT_EQ(takeBoxes(), Texts{"Data Check: Constant time increment must greater than 0."}) << text;
    EXPECT_TRUE(screen.optConst.selected());
    EXPECT_EQ(screen.txtConst.text(), "");
    EXPECT_EQ(host.focus(), &screen.txtConst);
    EXPECT_EQ(lastFilled(screen.varTable), 0);
  }
}

TEST_F(HydrographConversion, changesNothingWhereTimesFall) {
  put(screen.varTable, 0, {"0", "2", "2", "1.5"});
  put(screen.varTable, 1, {"0", "10", "20", "30"});
  put(screen.grdTable, 1, {"9"});
  screen.optVariable.userSelect();
  screen.txtDesired.userReplace("0.5");
  screen.cmdConvert.click();
  screen.convertHydrograph(0.5, 2);
  const std::string box = "Hydrograph Error: Times must be increasing: 1.5 follows 2.";
  EXPECT_EQ(takeBoxes(), (Texts{box, box}));
  EXPECT_TRUE(screen.optVariable.selected());
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"9", ""}));
  screen.varTable.setCell(4, 0, "2");
  screen.cmdConvert.click();
  EXPECT_TRUE(takeBoxes().empty());
  EXPECT_TRUE(screen.optConst.selected());
}

}  // namespace
}  // namespace kestra
