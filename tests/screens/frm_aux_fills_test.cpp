#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

// A spillway with three materials, the fill page having been seen.
struct Fills : testing::Test {
  AuxDesk desk;
  frmAuxSpillwayProfile& screen = desk.profile;

  Fills() {
    desk.openProfile(desk.spillways.optQUIL(0));
    screen.SSTab1.userSelect(2);
    for (const char* text : {"Clay", "Silt", "Sand"}) {
      screen.cmdAddMaterial.click();
      screen.txtDescript.userReplace(text);
    }
    screen.SSTab1.userSelect(3);
    screen.optIn(0).userSelect();
    screen.materNum(0).userSelect(std::string_view("2"));
    screen.optExternal(1).userSelect();
    screen.SSTab1.userSelect(2);
    desk.state.fileDirty = false;
  }
  std::string numbers() { return screen.materNum(0).text() + " " + screen.materNum(1).text(); }
  void showMaterial(int number) {
    for (int at = 1; at < number; ++at) screen.cmdNextMaterial.click();
  }
};

TEST_F(Fills, followMaterialsThatArePutInAndTakenOut) {
  EXPECT_EQ(numbers(), "2 5");
  screen.cmdInsertMaterial.click();  // before the first
  EXPECT_EQ(numbers(), "3 6");
  screen.cmdAddMaterial.click();
  EXPECT_EQ(numbers(), "3 7");
  EXPECT_EQ(screen.materNum(0).items().size(), 5U);
  screen.SSTab1.userSelect(3);
  screen.SSTab1.userSelect(2);
  screen.cmdDeleteMaterial.click();  // the first
  EXPECT_EQ(numbers(), "2 6");
  screen.cmdNextMaterial.click();
  screen.cmdDeleteMaterial.click();  // the fill's own
  EXPECT_EQ(numbers(), " 5");
  screen.mnuUndo.click();
  EXPECT_EQ(numbers(), "2 6");
}

TEST_F(Fills, stayWithTheirMaterialWhenALaterOneGoes) {
  showMaterial(3);
  screen.cmdDeleteMaterial.click();
  EXPECT_EQ(numbers(), "2 4");
  screen.cmdHome.click();
  EXPECT_EQ(desk.stored().materNum, (std::array<std::string, 2>{"2", "4"}));
}

TEST_F(Fills, markTheFileAsEditedWithTheMaterialsTheyCount) {
  for (Button* command : {&screen.cmdAddMaterial, &screen.cmdInsertMaterial, &screen.cmdDeleteMaterial}) {
    desk.state.fileDirty = false;
    command->click();
    EXPECT_TRUE(desk.state.fileDirty) << command->name();
  }
}

TEST_F(Fills, keepTheMaterialCommandsFromTheirOwnPages) {
  for (const int page : {4, 5}) {
    screen.SSTab1.userSelect(page);
    screen.txtDescript.userReplace("external");
    const std::string number = screen.lblNo.caption();
    for (Button* command : {&screen.cmdAddMaterial, &screen.cmdInsertMaterial, &screen.cmdDeleteMaterial,
                            &screen.cmdPreMaterial, &screen.cmdNextMaterial}) {
      command->click();
      EXPECT_EQ(screen.lblNo.caption(), number) << command->name();
      EXPECT_EQ(screen.txtDescript.text(), "external") << command->name();
    }
  }
  EXPECT_EQ(desk.materials().count, 3);
}

TEST(FirstMaterial, countsOnceItsErosionIsChosen) {
  AuxDesk desk;
  desk.openProfile(desk.spillways.optQUIL(0));
  desk.profile.SSTab1.userSelect(2);
  desk.profile.optDetach.userSelect();
  desk.profile.SSTab1.userSelect(0);
  desk.profile.SSTab1.userSelect(2);
  EXPECT_TRUE(desk.profile.optDetach.selected());
  EXPECT_EQ(desk.materials().count, 1);
}

TEST(UndoOverNext, leavesTheNumberOfSpillwaysAndTheWalk) {
  AuxDesk desk;
  desk.chooseSpillways({"North", "South"});
  desk.spillways.cmdNext.click();
  desk.profile.txtBottom.userReplace("5");
  while (desk.history.canUndo()) desk.profile.mnuUndo.click();
  EXPECT_EQ(desk.state.numAuxSpillways, 2);
  desk.profile.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmAuxSpillwayProfile");
  EXPECT_EQ(desk.state.curAuxSpillway, 1);
}

}  // namespace
}  // namespace kestra
