#include "controls/screen_host.h"

#include <gtest/gtest.h>

#include "controls/simple_controls.h"
#include "controls/table.h"
#include "controls/test_screen.h"
#include "controls/text_box.h"
#include "controls/undo_history.h"

namespace kestra {
namespace {

using Log = std::vector<std::string>;

TEST(ScreenHost, loadsOnceAndActivatesAtEveryShow) {
  Stage stage;
  stage.host.enter(stage.screen);
  stage.host.show(stage.screen);
  stage.host.hide(stage.screen);
  stage.host.show(stage.screen);
  EXPECT_EQ(stage.screen.log, (Log{"load", "activate", "activate"}));
}

TEST(ScreenHost, keepsTheFrontScreenFirst) {
  Stage stage;
  TestScreen other("frmOther");
  stage.host.enter(stage.screen);
  stage.host.enter(other);
  stage.host.show(stage.screen);
  stage.host.show(other);
  EXPECT_EQ(stage.host.shown(), (std::vector<Screen*>{&other, &stage.screen}));
  stage.host.show(stage.screen);
  EXPECT_EQ(stage.host.shown(), (std::vector<Screen*>{&stage.screen, &other}));
  stage.host.hide(stage.screen);
  EXPECT_EQ(stage.host.shown(), (std::vector<Screen*>{&other}));
}

TEST(ScreenHost, keepsWhatWasPutInOnHidingAndForgetsItOnUnloading) {
  Stage stage;
  TextBox field(stage.screen, "txtField", "design");
  stage.host.enter(stage.screen);
  stage.host.show(stage.screen);
  field.userReplace("typed");
  stage.screen.setTitle("Other");
  stage.host.hide(stage.screen);
  EXPECT_EQ(field.text(), "typed");
  EXPECT_TRUE(stage.host.unload(stage.screen));
  EXPECT_EQ(field.text(), "design");
  EXPECT_EQ(stage.screen.title(), "Test");
  EXPECT_FALSE(stage.screen.loaded());
}

TEST(ScreenHost, asksBeforeItUnloadsAndTellsWhoWantsIt) {
  Stage stage;
  stage.host.enter(stage.screen);
  stage.screen.maySayNo = true;
  stage.host.show(stage.screen);
  stage.screen.log.clear();
  EXPECT_FALSE(stage.host.closeByFrame(stage.screen));
  EXPECT_FALSE(stage.host.unload(stage.screen));
  EXPECT_TRUE(stage.screen.visible());
  stage.bExiting = true;
  EXPECT_TRUE(stage.host.unload(stage.screen));
  EXPECT_EQ(stage.screen.log, (Log{"frame", "program", "program exiting", "unload"}));
  EXPECT_TRUE(stage.host.unload(stage.screen));
  EXPECT_EQ(stage.screen.log.size(), 4U);
}

struct ScriptedLoop : ModalLoop {
  void run(Screen& screen) override { shownMeanwhile = screen.visible(); }
  bool shownMeanwhile = false;
};

TEST(ScreenHost, takesAModalScreenAwayWhenItsLoopEnds) {
  Stage stage;
  ScriptedLoop loop;
  stage.host.enter(stage.screen);
  stage.host.setModalLoop(&loop);
  stage.host.showModal(stage.screen);
  EXPECT_TRUE(loop.shownMeanwhile);
  EXPECT_FALSE(stage.screen.visible());
  EXPECT_TRUE(stage.screen.loaded());
}

TEST(ScreenHost, takesTheFocusFromAScreenThatIsHidden) {
  Stage stage;
  TextBox field(stage.screen, "txtField");
  int entered = 0;
  field.onFocus = [&entered] { ++entered; };
  stage.host.enter(stage.screen);
  stage.host.show(stage.screen);
  field.userFocus();
  stage.host.hide(stage.screen);
  stage.host.show(stage.screen);
  EXPECT_EQ(stage.host.focus(), nullptr);
  field.userFocus();
  EXPECT_EQ(entered, 2);
}

TEST(ScreenHost, findsScreensByTheirExactName) {
  Stage stage;
  stage.host.enter(stage.screen);
  EXPECT_EQ(stage.host.find("frmTest"), &stage.screen);
  EXPECT_EQ(stage.host.find("frmtest"), nullptr);
}

// A screen whose table gets its heading when it is loaded.
struct HeadedScreen : Screen {
  HeadedScreen() : Screen("frmHeaded", "Headed") {}
  bool holdsInput() const override { return true; }
  Table table{*this, "grdTable", {2, 2, 1, 1}};

 protected:
  void load() override { table.setCell(0, 1, "Elevation"); }
};

TEST(ScreenHost, keepsNothingForUndoingOfWhatAScreenIsLoadedWith) {
  bool bExiting = false;
  ScreenHost host(bExiting);
  HeadedScreen screen;
  UndoHistory history;
  host.enter(screen);
  host.setHistory(&history);
  {
    const Gesture gesture(&history, nullptr);
    host.show(screen);
    screen.table.setCell(1, 1, "5");
  }
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(screen.table.cell(1, 1), "");
  EXPECT_EQ(screen.table.cell(0, 1), "Elevation");
  EXPECT_EQ(host.history(), &history);
}

}  // namespace
}  // namespace kestra
