// What the pages of the profile screen that share the boxes of a material show, and which commands they offer.
#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

constexpr int kMaterialPage = 2;
constexpr int kFillPage = 3;
constexpr int kTopsoilPage = 4;

// The material page of the first of two spillways.
struct MaterialPages : testing::Test {
  AuxDesk desk;
  frmAuxSpillwayProfile& screen = desk.profile;

  MaterialPages() {
    desk.chooseSpillways({"North", "South"});
    desk.spillways.cmdNext.click();
    screen.SSTab1.userSelect(kMaterialPage);
  }
  void enter(std::initializer_list<const char*> descriptions) {
    for (const char* text : descriptions) {
      screen.cmdAddMaterial.click();
      screen.txtDescript.userReplace(text);
    }
  }
  void enterTopsoil() {
    screen.SSTab1.userSelect(kTopsoilPage);
    screen.txtDescript.userReplace("Topsoil");
    screen.SSTab1.userSelect(kMaterialPage);
  }
  std::string shown() const { return screen.lblNo.caption() + " " + screen.txtDescript.text(); }
  // How many of the material commands and the boundary are visible.
  int visible() const {
    int count = 0;
    for (const Control* control : std::initializer_list<const Control*>{
             &screen.cmdAddMaterial, &screen.cmdInsertMaterial, &screen.cmdDeleteMaterial, &screen.cmdNextMaterial,
             &screen.cmdPreMaterial, &screen.grdTable}) {
      if (control->visible()) ++count;
    }
    return count;
  }
};

TEST_F(MaterialPages, hideCommandsAndBoundaryFromTheFillsOwnMaterials) {
  for (const int page : {0, 4, 1, 5, 2, 4, 3}) {
    screen.SSTab1.userSelect(page);
    EXPECT_EQ(visible(), page == 4 || page == 5 ? 0 : 6) << page;
  }
}

TEST_F(MaterialPages, showTheCommandsAgainForTheNextSpillwayAndFollowAnUndo) {
  screen.SSTab1.userSelect(kTopsoilPage);
  screen.txtDescript.userReplace("Topsoil");
  screen.cmdNext.click();
  EXPECT_EQ(screen.SSTab1.index(), 0);
  EXPECT_EQ(visible(), 6);
  EXPECT_EQ(shown(), "1 ");
  screen.mnuUndo.click();
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Properties: North");
  EXPECT_EQ(screen.SSTab1.index(), kTopsoilPage);
  EXPECT_EQ(visible(), 0);
  EXPECT_EQ(shown(), "1 Topsoil");
  screen.mnuRedo.click();
  EXPECT_EQ(visible(), 6);
}

TEST_F(MaterialPages, takeARecordThatIsCalledForAsThePageDoes) {
  enter({"Clay", "Silt"});
  enterTopsoil();
  screen.SSTab1.userSelect(kTopsoilPage);
  EXPECT_EQ(shown(), "3 Topsoil");
  screen.showMaterial(1);
  EXPECT_EQ(shown(), "1 Clay");
  screen.cmdAddMaterial.click();  // as a script can
  EXPECT_EQ(desk.materials().count, 2);
  screen.SSTab1.userSelect(kMaterialPage);
  screen.showMaterial(3);
  EXPECT_EQ(shown(), "3 Topsoil");
  screen.cmdAddMaterial.click();
  EXPECT_EQ(desk.materials().count, 3);
  EXPECT_EQ(desk.materials().material(4).description, "Topsoil");
}

TEST_F(MaterialPages, showTheFirstRecordThatIsCalledForBeforeThereIsAMaterial) {
  enterTopsoil();
  EXPECT_EQ(shown(), "1 ");
  screen.showMaterial(1);
  EXPECT_EQ(shown(), "1 Topsoil");
}

TEST_F(MaterialPages, beginWithTheFirstMaterialBehindThoseOfTheFills) {
  enter({"Clay"});
  enterTopsoil();
  for (const int page : {0, 1, kFillPage}) {
    screen.SSTab1.userSelect(kTopsoilPage);
    EXPECT_EQ(shown(), "2 Topsoil");
    screen.SSTab1.userSelect(page);
    EXPECT_EQ(shown(), "1 Clay") << page;
  }
}

TEST_F(MaterialPages, showTheFillsOwnMaterialWhenTheStoreWasFilledAnew) {
  screen.SSTab1.userSelect(kTopsoilPage);
  desk.materials().add();
  desk.materials().material(1).description = "Clay";
  desk.materials().material(2).description = "Topsoil";
  screen.refill();
  EXPECT_EQ(shown(), "2 Topsoil");
  screen.txtDescript.userReplace("Loam");
  screen.SSTab1.userSelect(kMaterialPage);
  EXPECT_EQ(shown(), "1 Clay");
  EXPECT_EQ(desk.materials().material(2).description, "Loam");
}

TEST_F(MaterialPages, offerDeletionOnASpillwayThatHasNoMaterialsYet) {
  EXPECT_TRUE(screen.cmdDeleteMaterial.enabled());
  enter({"Clay", "Silt"});
  screen.cmdDeleteMaterial.click();
  EXPECT_FALSE(screen.cmdDeleteMaterial.enabled());
  screen.cmdNext.click();
  screen.SSTab1.userSelect(kMaterialPage);
  EXPECT_TRUE(screen.cmdDeleteMaterial.enabled());
  EXPECT_EQ(desk.materials(1).count, 0);
}

TEST_F(MaterialPages, countTheFirstMaterialForTheFillsAsSoonAsItIsStored) {
  screen.SSTab1.userSelect(kFillPage);
  screen.optIn(0).userSelect();
  screen.optExternal(1).userSelect();
  EXPECT_EQ(screen.materNum(1).text(), "2");
  screen.SSTab1.userSelect(kMaterialPage);
  screen.txtDescript.userReplace("Clay");
  screen.storeMaterial(1);
  EXPECT_EQ(screen.materNum(0).items(), std::vector<std::string>{"1"});
  EXPECT_EQ(screen.materNum(1).text(), "3");
}

TEST_F(MaterialPages, leaveTheFileAsItIsByCommandsThatChangeNothing) {
  for (int n = 1; n <= 100; ++n) screen.cmdAddMaterial.click();
  desk.state.fileDirty = false;
  screen.cmdAddMaterial.click();
  screen.cmdInsertMaterial.click();
  EXPECT_EQ(desk.materials().count, 100);
  EXPECT_FALSE(desk.state.fileDirty);
  desk.materials().clear();
  screen.refill();
  screen.cmdDeleteMaterial.click();
  EXPECT_FALSE(desk.state.fileDirty);
}

TEST_F(MaterialPages, leadOnToTheNextSpillwayAfterEverythingWasUndoneAndRedone) {
  enter({"Clay"});
  while (desk.history.canUndo()) screen.mnuUndo.click();
  EXPECT_EQ(desk.spillways.txtsway(1).text(), "");
  while (desk.history.canRedo()) screen.mnuRedo.click();
  EXPECT_EQ(desk.state.numAuxSpillways, 2);
  screen.cmdNext.click();
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Properties: South");
  screen.mnuUndo.click();
  EXPECT_EQ(desk.state.curAuxSpillway, 0);
  screen.mnuRedo.click();
  EXPECT_EQ(desk.state.curAuxSpillway, 1);
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmKestra");
}

TEST_F(MaterialPages, helpAndDoNotPlotYet) {
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\AuxiliarySpillway.htm"});
  EXPECT_FALSE(screen.cmdPlot.hasAction());
}

}  // namespace
}  // namespace kestra
