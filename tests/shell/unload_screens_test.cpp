#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

// Enters a spillway with a material, through its screens.
void enterSpillway(Shell& shell, ScreenHost& host) {
  frmAuxSpillways& spillways = shell.input.auxSpillways;
  host.show(spillways);
  spillways.cmbAuxSpillways.userSelect("1");
  spillways.txtsway(0).userReplace("North");
  spillways.cmdNext.click();
  shell.input.auxSpillwayProfile.txtBottom.userReplace("40");
  shell.input.auxSpillwayProfile.txtDescript.userReplace("Clay");
  shell.input.auxSpillwayProfile.cmdHome.click();
}

TEST(UnloadAllScreens, emptiesTheStoresOfTheSpillwaysAndTheHistory) {
  RunningDesk desk;
  makeProject(desk.shell, "/home", "pond");
  enterSpillway(desk.shell, desk.app.host);
  AuxStore& stores = desk.shell.input.context.aux;
  EXPECT_EQ(stores.auxProfile[0].txtBottom, "40");
  EXPECT_EQ(stores.auxMaterials[0].count, 1);
  UnloadAllScreens(desk.shell.input.context);
  EXPECT_EQ(stores.auxProfile[0], AuxProfile());
  EXPECT_EQ(stores.auxMaterials[0].count, 0);
  EXPECT_FALSE(desk.shell.history.canUndo());
  EXPECT_FALSE(desk.state.bExiting);
}

TEST(UnloadAllScreens, leavesNothingOfAProjectForTheNext) {
  RunningDesk desk;
  makeProject(desk.shell, "/home", "pond");
  enterSpillway(desk.shell, desk.app.host);
  makeProject(desk.shell, "/home", "lake");
  desk.app.host.show(desk.shell.input.auxSpillways);
  desk.app.host.show(desk.shell.input.auxSpillwayProfile);
  EXPECT_EQ(desk.shell.input.auxSpillways.cmbAuxSpillways.text(), "Select");
  EXPECT_EQ(desk.shell.input.auxSpillwayProfile.txtBottom.text(), "");
  EXPECT_EQ(desk.shell.input.auxSpillwayProfile.txtDescript.text(), "");
}

}  // namespace
}  // namespace kestra
