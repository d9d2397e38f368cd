#include "screens/frm_aux_spillway_profile.h"

#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

constexpr const char* kMissing = "Data Check: This cell must contain data.";
constexpr const char* kFalling = "Data Check: Values must be increasing.";

struct AuxProfileScreen : testing::Test {
  AuxDesk desk;
  frmAuxSpillwayProfile& screen = desk.profile;

  std::vector<std::string> column(const Table& table, int column) {
    std::vector<std::string> texts;
    for (int row = 0; row < table.rows(); ++row) texts.push_back(table.cell(row, column));
    return texts;
  }
};

TEST_F(AuxProfileScreen, hasSixPagesAndThreeTables) {
  desk.openProfile(desk.spillways.optQUIL(0));
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Properties: North");
  EXPECT_EQ(screen.SSTab1.captions(),
            (std::vector<std::string>{"Profile Properties", "Profile Parameters", "Material Properties", "Fill Options",
                                      "Topsoil Material Properties", "Fill Material Properties"}));
  EXPECT_EQ(column(screen.grdProfile, 0), (std::vector<std::string>{"", "  Station, Ft.   ", "  Elev., Ft.   "}));
  EXPECT_EQ(column(screen.grdProfile, 100), (std::vector<std::string>{"100", "", ""}));
  EXPECT_EQ(screen.grdProfile.columns(), 101);
  EXPECT_EQ(column(screen.grdTable, 0), (std::vector<std::string>{"", "  Station, Ft   ", "  Elev. Ft   "}));
  EXPECT_EQ(column(screen.grdTable, 21), (std::vector<std::string>{"21", "", ""}));
  EXPECT_EQ(screen.grdTable.columns(), 22);
  EXPECT_EQ(column(screen.grdCond, 0), (std::vector<std::string>{"Reach Stn Beg", "Reach Stn End", "Retrd Curve Indx",
                                                                 "Veg Cov Factor", "Maint Code", "Pot Root Depth"}));
  EXPECT_EQ(column(screen.grdCond, 20), (std::vector<std::string>(6)));
  EXPECT_EQ(screen.grdCond.columns(), 21);
  EXPECT_EQ(screen.grdProfile.columnWidth(1), 1000);
  EXPECT_TRUE(screen.grdCond.centred(3));
}

TEST_F(AuxProfileScreen, bearsItsCaptions) {
  desk.openProfile(desk.spillways.optQUIL(0));
  const std::pair<const char*, const char*> captions[] = {{"frameSurfaceProfile", "Surface Profile"},
                                                          {"frameSurfaceConditions", "Surface Conditions"},
                                                          {"lblBottom", "Bottom Width, Feet:"},
                                                          {"lblSide", "Side Slope Ratio:"},
                                                          {"lblElevation", "Elevation of Valley Floor, Feet:"},
                                                          {"lblTopsoil", "Topsoil Fill Depth, Feet:"},
                                                          {"lblEnd", "End of Constructed Exit Channel, Feet:"},
                                                          {"chkCrest", "Crest Barrier"},
                                                          {"lblBreachDepth", "Breach Depth, Feet:"},
                                                          {"chkBarrier", "Barrier"},
                                                          {"lblBarrier", "Station, Feet:"},
                                                          {"frameTopsoilFill", "Topsoil Fill"},
                                                          {"frameGeneralFill", "General Fill"},
                                                          {"optNone(1)", "None"},
                                                          {"optIn(0)", "In - Place Material"},
                                                          {"optExternal(1)", "External Material"},
                                                          {"lblNum1", "Material No.:"},
                                                          {"lblNum2", "Material No.:"},
                                                          {"lblNumber", "Material Number:"},
                                                          {"lblDescript", "Description:"},
                                                          {"lblPlastic", "Plasticity Index:"},
                                                          {"lblDry", "Dry Density     (lb/ft^3):"},
                                                          {"lblHead", "Head Cut Index:"},
                                                          {"optPercent", "Percent Clay:"},
                                                          {"optDetach", "Detach. Rate:"},
                                                          {"lblRepresent", "Representative Dia (in):"},
                                                          {"cmdAddMaterial", "Add Material"},
                                                          {"cmdInsertMaterial", "Insert Material"},
                                                          {"cmdDeleteMaterial", "Delete Material"},
                                                          {"cmdPlot", "P&lot"}};
  for (const auto& [name, caption] : captions) {
    ASSERT_NE(screen.find(name), nullptr) << name;
    EXPECT_EQ(screen.find(name)->caption(), caption) << name;
  }
}

TEST_F(AuxProfileScreen, showsTheFieldsOfTheAnalysis) {
  struct Case {
    OptionButton& analysis;
    bool fields;
    bool barriers;
    std::string topsoil;
    std::string lastCondition;
  };
  frmAuxSpillways& spillways = desk.spillways;
  const Case cases[] = {
      {spillways.optQUIL(0), true, true, "Topsoil Fill Depth, Feet:", "Pot Root Depth"},
      {spillways.optStability(0), true, false, "Diameter of Surface Material, In.:", ""},
      {spillways.optNone(0), false, false, "", "Pot Root Depth"},
  };
  for (const Case& c : cases) {
    desk.host.show(spillways);
    desk.openProfile(c.analysis);
    for (const char* name : {"txtEnd", "lblEnd", "txtTopsoil", "lblTopsoil", "txtElevation", "lblElevation"}) {
      EXPECT_EQ(screen.find(name)->visible(), c.fields) << name;
    }
    for (const char* name : {"CrestBarrierFrame", "BarrierFrame", "chkCrest", "txtBarrier"}) {
      EXPECT_EQ(screen.find(name)->visible(), c.barriers) << name;
    }
    EXPECT_TRUE(c.topsoil.empty() || screen.lblTopsoil.caption() == c.topsoil);
    EXPECT_EQ(screen.grdCond.cell(5, 0), c.lastCondition);
    EXPECT_EQ(screen.grdCond.rowShown(5), !c.lastCondition.empty());
    EXPECT_TRUE(screen.txtBottom.visible() && screen.txtSide.visible());
  }
}

TEST_F(AuxProfileScreen, keepsTheRootDepthThatStabilityDoesNotShow) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.grdCond.userSetBlock({0, 1}, {{"1"}, {"2"}, {"5.6"}, {"0.8"}, {"1"}, {"0.5"}});
  screen.cmdPrevious.click();
  desk.spillways.optStability(0).userSelect();
  desk.spillways.cmdNext.click();
  EXPECT_FALSE(screen.grdCond.rowShown(5));
  screen.grdCond.userSetBlock({0, 1}, {{"7"}});
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.stored().reaches[0], (AuxReach{"7", "2", "5.6", "0.8", "1", "0.5"}));
  desk.spillways.optQUIL(0).userSelect();
  desk.host.show(screen);  // by another way than Next
  EXPECT_EQ(column(screen.grdCond, 1), (std::vector<std::string>{"7", "2", "5.6", "0.8", "1", "0.5"}));
}

TEST_F(AuxProfileScreen, replacesARetardanceClassByItsIndex) {
  desk.openProfile(desk.spillways.optQUIL(0));
  typeInto(screen.grdCond, "10\r20\re\r");
  EXPECT_EQ(screen.grdCond.cell(2, 1), "2.9");
  EXPECT_EQ(screen.grdCond.cursor(), (CellPosition{3, 1}));
  EXPECT_EQ(desk.beeper.beeps, 0);
  typeInto(screen.grdCond, "0.8\r1\r0.5\r30\r\r");
  EXPECT_EQ(screen.grdCond.cursor(), (CellPosition{2, 2}));
  typeInto(screen.grdCond, "B\r");
  EXPECT_EQ(screen.grdCond.cell(2, 2), "7.6");
  EXPECT_TRUE(desk.state.fileDirty);
  EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
}

TEST_F(AuxProfileScreen, takesTwoCharactersInTheRetardanceRow) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.grdCond.userFocus();
  screen.grdCond.userSelect({2, 1}, {2, 1});
  typeInto(screen.grdCond, "5.6");
  EXPECT_EQ(screen.grdCond.cell(2, 1), "5.");
  EXPECT_EQ(desk.beeper.beeps, 1);
  typeInto(screen.grdCond, "\b7");
  EXPECT_EQ(screen.grdCond.cell(2, 1), "57");
  typeInto(screen.grdCond, "\b\bF");
  EXPECT_EQ(desk.beeper.beeps, 2);
  EXPECT_EQ(screen.grdCond.cell(2, 1), "");
  desk.clipboard.setText("10.05");
  screen.edit.mnuPaste.click();
  EXPECT_EQ(screen.grdCond.cell(2, 1), "10.05");
}

TEST_F(AuxProfileScreen, takesTwoCharactersAfreshWhereTheRetardanceIsGone) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.grdCond.userFocus();
  screen.grdCond.userSelect({2, 1}, {2, 1});
  const std::function<void()> ways[] = {[this] { screen.edit.mnuDelete.click(); }, [this] { screen.mnuUndo.click(); },
                                        [this] {
                                          desk.clipboard.setText("10.05");
                                          screen.edit.mnuPaste.click();
                                        }};
  for (const auto& way : ways) {
    typeInto(screen.grdCond, "57");
    way();
    desk.beeper.beeps = 0;
    typeInto(screen.grdCond, "34");
    EXPECT_EQ(screen.grdCond.cell(2, 1), "34");
    EXPECT_EQ(desk.beeper.beeps, 0);
    typeInto(screen.grdCond, "1");
    EXPECT_EQ(screen.grdCond.cell(2, 1), "34");
    EXPECT_EQ(desk.beeper.beeps, 1);
    screen.edit.mnuDelete.click();
  }
}

TEST_F(AuxProfileScreen, checksAgainWhatUndoBringsBack) {
  desk.openProfile(desk.spillways.optQUIL(0));
  const std::pair<TextBox&, const char*> checks[] = {
      {screen.txtBottom, "Data Check: Bottom Width must be greater than or equal to 0."},
      {screen.txtSide, "Data Check: Side Slope Ratio must be greater than or equal to 0."}};
  for (const auto& [box, message] : checks) {
    box.userReplace("-1");
    box.userLeave();
    EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{message});
    screen.mnuUndo.click();
    EXPECT_EQ(box.text(), "-1");
    box.userLeave();
    EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{message});
    EXPECT_EQ(box.text(), "");
  }
}

TEST_F(AuxProfileScreen, beepsAtWhatIsNoConditionValue) {
  desk.openProfile(desk.spillways.optQUIL(0));
  typeInto(screen.grdCond, "-a ");
  EXPECT_EQ(desk.beeper.beeps, 3);
  EXPECT_EQ(screen.grdCond.cell(0, 1), "");
  typeInto(screen.grdCond, "1.25");
  EXPECT_EQ(screen.grdCond.cell(0, 1), "1.25");
}

TEST_F(AuxProfileScreen, passesTheRowThatStabilityDoesNotShow) {
  desk.openProfile(desk.spillways.optStability(0));
  typeInto(screen.grdCond, "1\r2\rC\r0.8\r1\r3");
  EXPECT_EQ(column(screen.grdCond, 1), (std::vector<std::string>{"1", "2", "5.6", "0.8", "1", ""}));
  EXPECT_EQ(screen.grdCond.cell(0, 2), "3");
  screen.grdCond.userSelect({4, 2}, {4, 2});
  screen.grdCond.userKey({0, "Down"});
  EXPECT_EQ(screen.grdCond.cursor(), (CellPosition{4, 2}));
  screen.grdCond.userSelect({5, 2}, {5, 2});
  typeInto(screen.grdCond, "1");
  EXPECT_EQ(desk.beeper.beeps, 1);
  EXPECT_EQ(screen.grdCond.cell(5, 2), "");
}

TEST_F(AuxProfileScreen, checksStationsOfTheProfileAndOfTheBoundary) {
  desk.openProfile(desk.spillways.optQUIL(0));
  for (Table* table : {&screen.grdProfile, &screen.grdTable}) {
    typeInto(*table, "5\r");
    typeInto(*table, "\r");
    EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
    typeInto(*table, "100\r4.9\r");
    EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kFalling});
    EXPECT_EQ(table->cell(1, 2), "");
    typeInto(*table, "5\r-1\r");
    EXPECT_EQ(table->cursor(), (CellPosition{1, 3}));
    EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
  }
}

TEST_F(AuxProfileScreen, refusesANegativeWidthOrSlope) {
  desk.openProfile(desk.spillways.optQUIL(0));
  const std::pair<TextBox*, const char*> cases[] = {
      {&screen.txtBottom, "Data Check: Bottom Width must be greater than or equal to 0."},
      {&screen.txtSide, "Data Check: Side Slope Ratio must be greater than or equal to 0."}};
  for (const auto& [box, message] : cases) {
    for (const char* good : {"0", "12.5", "", "wide", "-0"}) {
      box->userFocus();
      box->userReplace(good);
      box->userLeave();
      EXPECT_EQ(box->text(), good);
    }
    EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
    box->userReplace("-0.1");
    box->userLeave();
    EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{message});
    EXPECT_EQ(box->text(), "");
    EXPECT_EQ(desk.host.focus(), box);
    box->setText("-3");  // by the program
    box->userLeave();
    EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
  }
}

TEST_F(AuxProfileScreen, storesWhatItShowsWhenItIsLeft) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.grdProfile.userSetBlock({1, 1}, {{"0", "100"}, {"10", "9"}});
  screen.grdProfile.userSetBlock({1, 100}, {{"999"}});
  screen.grdCond.userSetBlock({0, 20}, {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}});
  screen.txtSide.userReplace("3");
  screen.txtBottom.userReplace("50");
  screen.txtElevation.userReplace("900");
  screen.txtTopsoil.userReplace("1");
  screen.txtEnd.userReplace("400");
  screen.chkCrest.userSet(true);
  screen.txtBreachDepth.userReplace("2");
  screen.chkBarrier.userSet(true);
  screen.txtBarrier.userReplace("250");
  screen.optExternal(0).userSelect();
  screen.optExternal(1).userSelect();
  EXPECT_EQ(desk.stored(), AuxProfile());
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  AuxProfile wanted;
  wanted.points[0] = {"0", "10"};
  wanted.points[1] = {"100", "9"};
  wanted.points[99] = {"999", ""};
  wanted.reaches[19] = {"1", "2", "3", "4", "5", "6"};
  wanted.txtSide = "3";
  wanted.txtBottom = "50";
  wanted.txtElevation = "900";
  wanted.txtTopsoil = "1";
  wanted.txtEnd = "400";
  wanted.chkCrest = wanted.chkBarrier = true;
  wanted.txtBreachDepth = "2";
  wanted.txtBarrier = "250";
  wanted.fill = {FillChoice::external, FillChoice::external};
  wanted.materNum = {"1", "2"};
  EXPECT_EQ(desk.stored(), wanted);
}

TEST_F(AuxProfileScreen, showsWhatTheStoreHoldsAndKeepsWhatItDoesNotShow) {
  desk.stored().txtBottom = "50";
  desk.stored().reaches[0][1] = "10";
  desk.stored().reaches[99][1] = "99";
  desk.stored().chkBarrier = true;
  desk.stored().fill[1] = FillChoice::external;
  desk.materials().add();
  desk.materials().material(1).description = "Clay";
  desk.materials().material(1).points.assign(100, {"1", "2"});
  desk.openProfile(desk.spillways.optQUIL(0));
  EXPECT_EQ(screen.txtBottom.text(), "50");
  EXPECT_EQ(screen.grdCond.cell(1, 1), "10");
  EXPECT_TRUE(screen.chkBarrier.checked() && screen.optExternal(1).selected());
  EXPECT_EQ(screen.materNum(1).text(), "3");
  EXPECT_EQ(screen.txtDescript.text(), "Clay");
  EXPECT_EQ(screen.grdTable.cell(2, 21), "2");
  screen.txtDescript.userReplace("Silt");
  screen.cmdHome.click();
  EXPECT_EQ(desk.materials().material(1).description, "Silt");
  EXPECT_EQ(desk.materials().material(1).points.size(), 100U);
  EXPECT_EQ(desk.stored().reaches[99][1], "99");
}

TEST_F(AuxProfileScreen, keepsTheSpillwaysApart) {
  desk.chooseSpillways({"North", "South"});
  desk.spillways.cmdNext.click();
  screen.txtBottom.userReplace("11");
  screen.txtDescript.userReplace("Clay");
  screen.grdTable.userSetBlock({1, 1}, {{"5"}});
  screen.cmdNext.click();
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Properties: South");
  EXPECT_EQ(screen.txtBottom.text() + screen.txtDescript.text() + screen.grdTable.cell(1, 1), "");
  screen.txtBottom.userReplace("22");
  screen.cmdPrevious.click();
  EXPECT_EQ(screen.txtBottom.text(), "11");
  EXPECT_EQ(screen.txtDescript.text(), "Clay");
  EXPECT_EQ(screen.grdTable.cell(1, 1), "5");
  EXPECT_EQ(desk.stored(1).txtBottom, "22");
  EXPECT_EQ(desk.materials(0).count, 1);
  EXPECT_EQ(desk.materials(1).count, 0);
}

TEST_F(AuxProfileScreen, storesWhenItIsClosedByTheFrame) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.txtBottom.userReplace("11");
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmAuxSpillways");
  EXPECT_EQ(desk.stored().txtBottom, "11");
}

TEST_F(AuxProfileScreen, isFilledAnewByWhoHasFilledTheStore) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.txtBottom.userReplace("11");
  desk.stored().txtBottom = "22";
  screen.refill();
  EXPECT_EQ(screen.txtBottom.text(), "22");
  screen.storeShown();
  EXPECT_EQ(desk.stored().txtBottom, "22");
}

TEST_F(AuxProfileScreen, comesBackEmptyAfterItWasUnloaded) {
  desk.openProfile(desk.spillways.optQUIL(0));
  screen.txtBottom.userReplace("11");
  desk.state.bExiting = true;
  desk.host.unload(screen);
  desk.context.aux.ClearAuxData();
  desk.state.bExiting = false;
  screen.storeShown();
  EXPECT_EQ(desk.stored(), AuxProfile());
  desk.host.show(screen);
  EXPECT_EQ(screen.txtBottom.text(), "");
  EXPECT_EQ(screen.grdCond.cell(0, 0), "Reach Stn Beg");
}

TEST_F(AuxProfileScreen, editsTheTableOfThePageOnShow) {
  desk.openProfile(desk.spillways.optQUIL(0));
  Table* const tables[] = {&screen.grdProfile, &screen.grdCond, &screen.grdTable};
  const auto fill = [&tables] {
    for (Table* table : tables) table->userSetBlock({1, 1}, {{"7"}});
  };
  const auto cutOn = [&](int page, Table* focus) {
    fill();
    screen.SSTab1.userSelect(page);
    fill();
    if (focus != nullptr) focus->userFocus();
    for (Table* table : tables) table->userSelect({1, 1}, {1, 1});
    screen.edit.mnuCut.click();
    std::string left;
    for (const Table* table : tables) left += table->cell(1, 1).empty() ? "-" : table->cell(1, 1);
    return left;
  };
  EXPECT_EQ(cutOn(0, nullptr), "-77");
  EXPECT_EQ(cutOn(0, &screen.grdCond), "7-7");
  EXPECT_EQ(cutOn(2, nullptr), "77-");
  for (int page : {1, 3, 4, 5}) EXPECT_EQ(cutOn(page, nullptr), "777") << page;
  EXPECT_NE(screen.find("mnuInsertColumn"), nullptr);
}

}  // namespace
}  // namespace kestra
