#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

constexpr int kMaterialPage = 2;

// The material page of a spillway whose integrity is analysed.
struct Materials : testing::Test {
  AuxDesk desk;
  frmAuxSpillwayProfile& screen = desk.profile;

  Materials() {
    desk.openProfile(desk.spillways.optQUIL(0));
    screen.SSTab1.userSelect(kMaterialPage);
  }
  // Enters materials of these descriptions, one behind the other.
  void enter(std::initializer_list<const char*> descriptions) {
    for (const char* text : descriptions) {
      screen.cmdAddMaterial.click();
      screen.txtDescript.userReplace(text);
    }
  }
  std::string shown() const { return screen.lblNo.caption() + " " + screen.txtDescript.text(); }
  // Descriptions of the stored materials and of the two records behind them.
  std::string stored() {
    std::string text;
    const AuxMaterials& all = desk.materials();
    for (int n = 1; n <= all.count + 2; ++n) {
      const std::string& description = all.material(n).description;
      text += (n == all.count + 1 ? "| " : "") + (description.empty() ? "-" : description) + " ";
    }
    return text;
  }
  // Which of the five commands are enabled: Add, Insert, Delete, Next, Previous.
  std::string enabled() const {
    std::string text;
    const std::pair<const Button*, char> commands[] = {{&screen.cmdAddMaterial, 'A'},
                                                       {&screen.cmdInsertMaterial, 'I'},
                                                       {&screen.cmdDeleteMaterial, 'D'},
                                                       {&screen.cmdNextMaterial, 'N'},
                                                       {&screen.cmdPreMaterial, 'P'}};
    for (const auto& [command, letter] : commands) text += command->enabled() ? letter : '-';
    return text;
  }
};

TEST_F(Materials, beginWithANumberedBlankRecord) {
  EXPECT_EQ(shown(), "1 ");
  EXPECT_TRUE(screen.optPercent.selected());
  EXPECT_EQ(desk.host.focus(), &screen.txtDescript);
  EXPECT_FALSE(screen.cmdNextMaterial.enabled());
  EXPECT_EQ(desk.materials().count, 0);
}

TEST_F(Materials, countWhatIsTypedBeforeTheFirstAddAsTheFirst) {
  screen.txtDescript.userReplace("Clay");
  screen.cmdAddMaterial.click();
  EXPECT_EQ(shown(), "2 ");
  EXPECT_EQ(stored(), "Clay - | - - ");
  EXPECT_EQ(enabled(), "AID-P");
  EXPECT_EQ(desk.host.focus(), &screen.txtDescript);
}

TEST_F(Materials, makeTheFirstByAddWhereNothingWasTyped) {
  screen.cmdAddMaterial.click();
  EXPECT_EQ(shown(), "1 ");
  EXPECT_EQ(desk.materials().count, 1);
  EXPECT_EQ(enabled(), "AID-P");
}

TEST_F(Materials, storeEveryBoxAndShowItAgain) {
  screen.txtDescript.userReplace("Clay");
  screen.txtPlastic.userReplace("1");
  screen.txtDry.userReplace("2");
  screen.txtHead.userReplace("3");
  screen.txtPercent.userReplace("4");
  screen.txtDetach.userReplace("5");
  screen.txtRepresent.userReplace("6");
  screen.optDetach.userSelect();
  screen.grdTable.userSetBlock({1, 1}, {{"0", "50"}, {"9", "8"}});
  screen.storeMaterial(1);
  AuxMaterial wanted;
  wanted.description = "Clay";
  wanted.values = {"1", "6", "4", "5", "2", "3"};
  wanted.byDetachment = true;
  wanted.points = {{"0", "9"}, {"50", "8"}};
  EXPECT_EQ(desk.materials().material(1), wanted);
  screen.clearMaterial();
  EXPECT_EQ(shown(), "1 ");
  EXPECT_EQ(screen.txtPlastic.text() + screen.txtDry.text() + screen.txtDetach.text() + screen.grdTable.cell(1, 1), "");
  EXPECT_TRUE(screen.optPercent.selected());
  EXPECT_FALSE(screen.optDetach.selected());
  screen.showMaterial(1);
  EXPECT_EQ(screen.txtDry.text() + screen.txtHead.text() + screen.txtPercent.text() + screen.txtRepresent.text(),
            "2346");
  EXPECT_TRUE(screen.optDetach.selected());
  EXPECT_EQ(screen.grdTable.cell(2, 2), "8");
}

TEST_F(Materials, faultOutsideTheirNumbers) {
  screen.txtDescript.userReplace("Clay");
  for (const int n : {0, -1, 103}) {
    EXPECT_THROW(screen.storeMaterial(n), std::runtime_error);
    EXPECT_THROW(screen.showMaterial(n), std::runtime_error);
  }
}

TEST_F(Materials, goForwardAndBackWithoutWrapping) {
  enter({"Clay", "Silt", "Sand"});
  screen.cmdNextMaterial.click();
  EXPECT_EQ(shown(), "3 Sand");
  screen.cmdPreMaterial.click();
  EXPECT_EQ(shown(), "2 Silt");
  EXPECT_EQ(enabled(), "AIDNP");
  screen.txtDescript.userReplace("Loam");
  screen.cmdPreMaterial.click();
  EXPECT_EQ(shown(), "1 Clay");
  EXPECT_EQ(enabled(), "AIDN-");
  screen.cmdPreMaterial.click();
  EXPECT_EQ(shown(), "1 Clay");
  screen.cmdNextMaterial.click();
  EXPECT_EQ(shown(), "2 Loam");
}

TEST_F(Materials, insertBeforeTheOneOnShow) {
  enter({"Clay", "Silt", "Sand"});
  screen.cmdPreMaterial.click();
  screen.txtDescript.userReplace("Loam");
  screen.cmdInsertMaterial.click();
  EXPECT_EQ(shown(), "2 ");
  EXPECT_EQ(enabled(), "AID-P");
  EXPECT_EQ(desk.host.focus(), &screen.txtDescript);
  screen.txtDescript.userReplace("Rock");
  screen.cmdPreMaterial.click();
  EXPECT_EQ(stored(), "Clay Rock Loam Sand | - - ");
  EXPECT_EQ(desk.materials().order[2], 4);
  EXPECT_EQ(desk.materials().order[3], 2);
}

TEST_F(Materials, insertTheFirst) {
  screen.cmdInsertMaterial.click();
  EXPECT_EQ(shown(), "1 ");
  EXPECT_EQ(desk.materials().count, 1);
}

TEST_F(Materials, deleteAndShowTheOneNowAtTheNumberOrTheLast) {
  enter({"Clay", "Silt", "Sand"});
  screen.cmdPreMaterial.click();
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(shown(), "2 Sand");
  EXPECT_EQ(stored(), "Clay Sand | - - ");
  EXPECT_EQ(enabled(), "AID-P");
  EXPECT_EQ(desk.materials().order[2], 3);
  EXPECT_EQ(desk.materials().order[3], 2);
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(shown(), "1 Clay");
  EXPECT_EQ(enabled(), "AI---");
}

TEST_F(Materials, letTheLastBeDeletedOnceThePageIsEnteredAgain) {
  enter({"Clay", "Silt"});
  screen.cmdDeleteMaterial.click();
  EXPECT_FALSE(screen.cmdDeleteMaterial.enabled());
  screen.SSTab1.userSelect(0);
  screen.SSTab1.userSelect(kMaterialPage);
  EXPECT_EQ(enabled(), "AID--");
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(shown(), "1 ");
  EXPECT_EQ(desk.materials().count, 0);
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(desk.materials().count, 0);
  EXPECT_EQ(stored(), "| - - ");
}

TEST_F(Materials, enableDeletionAgainByTheNextAdd) {
  enter({"Clay", "Silt"});
  screen.cmdDeleteMaterial.click();
  screen.cmdAddMaterial.click();
  EXPECT_TRUE(screen.cmdDeleteMaterial.enabled());
}

TEST_F(Materials, areAHundredAtMost) {
  for (int n = 1; n <= 99; ++n) screen.cmdAddMaterial.click();
  EXPECT_EQ(enabled(), "AID-P");
  screen.cmdAddMaterial.click();
  EXPECT_EQ(shown(), "100 ");
  EXPECT_EQ(enabled(), "--D-P");
  screen.txtDescript.userReplace("last");
  screen.cmdAddMaterial.click();  // as a script can
  EXPECT_EQ(desk.materials().count, 100);
  EXPECT_EQ(shown(), "100 last");
  EXPECT_EQ(desk.materials().material(100).description, "last");
  screen.cmdPreMaterial.click();
  screen.cmdInsertMaterial.click();
  EXPECT_EQ(desk.materials().count, 100);
  EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(enabled(), "AID-P");
}

TEST_F(Materials, areStoredWhenThePageIsLeftAndBeginWithTheFirst) {
  enter({"Clay", "Silt"});
  screen.SSTab1.userSelect(1);
  EXPECT_EQ(stored(), "Clay Silt | - - ");
  screen.SSTab1.userSelect(kMaterialPage);
  EXPECT_EQ(shown(), "1 Clay");
  EXPECT_EQ(enabled(), "AIDN-");
}

TEST_F(Materials, haveTheFillsOwnOnesBehindThem) {
  enter({"Clay"});
  screen.SSTab1.userSelect(4);
  EXPECT_EQ(shown(), "2 ");
  screen.txtDescript.userReplace("Topsoil");
  screen.SSTab1.userSelect(5);
  EXPECT_EQ(shown(), "3 ");
  screen.txtDescript.userReplace("General");
  screen.SSTab1.userSelect(kMaterialPage);
  EXPECT_EQ(shown(), "1 Clay");
  EXPECT_EQ(stored(), "Clay | Topsoil General ");
  enter({"Silt"});
  screen.cmdInsertMaterial.click();
  screen.txtDescript.userReplace("Rock");
  screen.SSTab1.userSelect(5);
  EXPECT_EQ(shown(), "5 General");
  EXPECT_EQ(stored(), "Clay Rock Silt | Topsoil General ");
  screen.SSTab1.userSelect(kMaterialPage);
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(stored(), "Rock Silt | Topsoil General ");
}

TEST_F(Materials, keepTheFillsOwnOnesApartFromTheFirst) {
  screen.SSTab1.userSelect(4);
  screen.txtDescript.userReplace("Topsoil");
  screen.SSTab1.userSelect(kMaterialPage);
  EXPECT_EQ(shown(), "1 ");
  EXPECT_EQ(stored(), "| Topsoil - ");
  screen.txtDescript.userReplace("Clay");
  screen.cmdHome.click();
  EXPECT_EQ(stored(), "Clay | Topsoil - ");
}

TEST_F(Materials, nameThatOfAFill) {
  enter({"Clay", "Silt"});
  screen.SSTab1.userSelect(3);
  EXPECT_FALSE(screen.materNum(0).visible() || screen.lblNum1.visible());
  screen.optIn(0).userSelect();
  EXPECT_TRUE(screen.materNum(0).visible() && screen.lblNum1.visible());
  EXPECT_FALSE(screen.materNum(1).visible() || screen.lblNum2.visible());
  EXPECT_EQ(screen.materNum(0).items(), (std::vector<std::string>{"1", "2"}));
  EXPECT_TRUE(screen.materNum(0).userSelect("2"));
  screen.optExternal(1).userSelect();
  EXPECT_EQ(screen.materNum(1).text(), "4");
  EXPECT_TRUE(screen.lblNum2.visible());
  screen.optExternal(0).userSelect();
  EXPECT_EQ(screen.materNum(0).text(), "3");
  screen.optNone(0).userSelect();
  EXPECT_EQ(screen.materNum(0).text(), "");
  EXPECT_FALSE(screen.materNum(0).visible());
}

TEST_F(Materials, areListedForAFillAsTheyAreWhenThePageIsEntered) {
  enter({"Clay", "Silt"});
  screen.SSTab1.userSelect(3);
  screen.optIn(0).userSelect();
  screen.materNum(0).userSelect("2");
  screen.optExternal(1).userSelect();
  screen.SSTab1.userSelect(kMaterialPage);
  screen.cmdDeleteMaterial.click();
  screen.SSTab1.userSelect(3);
  EXPECT_EQ(screen.materNum(0).items(), std::vector<std::string>{"1"});
  EXPECT_EQ(screen.materNum(0).text(), "1");
  EXPECT_EQ(screen.materNum(1).text(), "3");
  screen.cmdHome.click();
  EXPECT_EQ(desk.stored().fill[0], FillChoice::inPlace);
  EXPECT_EQ(desk.stored().materNum, (std::array<std::string, 2>{"1", "3"}));
}

TEST_F(Materials, offerNothingForAFillWhileThereAreNone) {
  screen.SSTab1.userSelect(3);
  screen.optIn(1).userSelect();
  EXPECT_EQ(screen.materNum(1).items(), (std::vector<std::string>{}));
  screen.optExternal(1).userSelect();
  EXPECT_EQ(screen.materNum(1).text(), "2");
}

// Undoing.

TEST_F(Materials, areUndoneAndRedoneStepByStep) {
  enter({"Clay", "Silt", "Sand"});
  screen.cmdPreMaterial.click();
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(stored(), "Clay Sand | - - ");
  screen.mnuUndo.click();
  EXPECT_EQ(stored(), "Clay Silt Sand | - - ");
  EXPECT_EQ(shown(), "2 Silt");
  screen.mnuUndo.click();
  EXPECT_EQ(shown(), "3 Sand");
  EXPECT_EQ(stored(), "Clay Silt - | - - ");
  screen.mnuUndo.click();
  EXPECT_EQ(shown(), "3 ");
  screen.mnuUndo.click();
  EXPECT_EQ(shown(), "2 Silt");
  EXPECT_EQ(desk.materials().count, 2);
  for (int i = 0; i < 4; ++i) screen.mnuRedo.click();
  EXPECT_EQ(shown(), "2 Sand");
  EXPECT_EQ(stored(), "Clay Sand | - - ");
  EXPECT_EQ(desk.materials().order[2], 3);
}

TEST_F(Materials, areUndoneToTheLastOfThem) {
  enter({"Clay", "Silt"});
  screen.SSTab1.userSelect(4);
  screen.txtDescript.userReplace("Topsoil");
  screen.SSTab1.userSelect(0);
  while (desk.history.canUndo()) screen.mnuUndo.click();
  EXPECT_EQ(desk.materials().count, 0);
  EXPECT_EQ(stored(), "| - - ");
  EXPECT_EQ(shown(), "1 ");
  while (desk.history.canRedo()) screen.mnuRedo.click();
  EXPECT_EQ(stored(), "Clay Silt | Topsoil - ");
  EXPECT_EQ(screen.SSTab1.index(), 0);
}

TEST(SpillwaysUndone, bringBackTheSpillwayThatTheChangeWasMadeIn) {
  AuxDesk desk;
  desk.chooseSpillways({"North", "South"});
  desk.spillways.cmdNext.click();
  desk.profile.txtBottom.userReplace("11");
  desk.profile.cmdNext.click();
  desk.profile.txtBottom.userReplace("22");
  desk.profile.mnuUndo.click();
  EXPECT_EQ(desk.profile.txtBottom.text(), "");
  EXPECT_EQ(desk.state.curAuxSpillway, 1);
  desk.profile.mnuUndo.click();
  EXPECT_EQ(desk.profile.txtBottom.text(), "11");
  EXPECT_EQ(desk.state.curAuxSpillway, 0);
  EXPECT_EQ(desk.profile.title(), "Auxiliary Spillway Properties: North");
  EXPECT_EQ(desk.profile.cmdNext.caption(), "&Next Screen");
  EXPECT_EQ(desk.stored(0).txtBottom, "");
  desk.profile.mnuUndo.click();
  EXPECT_EQ(desk.profile.txtBottom.text(), "");
  for (int i = 0; i < 3; ++i) desk.profile.mnuRedo.click();
  EXPECT_EQ(desk.profile.txtBottom.text(), "22");
  EXPECT_EQ(desk.profile.title(), "Auxiliary Spillway Properties: South");
  EXPECT_EQ(desk.stored(0).txtBottom, "11");
  EXPECT_FALSE(desk.history.canRedo());
}

TEST(SpillwaysUndone, leadToTheScreenThatShowsTheSpillway) {
  AuxDesk desk;
  desk.chooseSpillways({"North", "South"});
  desk.spillways.optRating(1).userSelect();
  desk.spillways.cmdNext.click();
  desk.profile.txtBottom.userReplace("11");
  desk.profile.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmAuxRatingTable");
  desk.rating.mnuUndo.click();
  EXPECT_EQ(desk.front(), "frmAuxSpillwayProfile");
  EXPECT_EQ(desk.profile.txtBottom.text(), "11");
  EXPECT_FALSE(desk.rating.visible());
  desk.profile.mnuRedo.click();
  EXPECT_EQ(desk.front(), "frmAuxRatingTable");
  EXPECT_TRUE(desk.rating.grdTable(1).visible());
}

TEST(SpillwaysUndone, leaveTheHeadingsOfAScreenThatWasLoadedOnTheWay) {
  AuxDesk desk;
  desk.chooseSpillways({"North"});
  desk.spillways.cmdNext.click();
  while (desk.history.canUndo()) desk.profile.mnuUndo.click();
  EXPECT_EQ(desk.profile.grdProfile.cell(0, 7), "7");
  EXPECT_EQ(desk.profile.grdCond.cell(3, 0), "Veg Cov Factor");
}

TEST(SpillwaysUndone, makeNoStepOfAWalkThatChangesNothing) {
  AuxDesk desk;
  desk.chooseSpillways({"North"});
  desk.spillways.cmdNext.click();
  const std::size_t steps = desk.history.steps();
  desk.profile.cmdHome.click();
  desk.host.show(desk.profile);
  desk.profile.SSTab1.userSelect(2);
  desk.profile.SSTab1.userSelect(0);
  desk.profile.cmdPrevious.click();
  desk.spillways.cmdNext.click();
  EXPECT_EQ(desk.history.steps(), steps);
}

}  // namespace
}  // namespace kestra
