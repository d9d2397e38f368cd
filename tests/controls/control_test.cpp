#include "controls/control.h"

#include <gtest/gtest.h>

#include "controls/choices.h"
#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "controls/test_screen.h"
#include "controls/text_box.h"

namespace kestra {
namespace {

struct Recorder : ScreenObserver {
  void controlChanged(Control& control, Property property) override {
    changes.push_back(control.name() + " " + std::to_string(static_cast<int>(property)));
  }
  std::vector<std::string> changes;
};

TEST(Control, isHiddenWithTheFrameItStandsIn) {
  Stage stage;
  Frame outer(stage.screen, "frameOuter");
  Frame inner(stage.screen, "frameInner");
  TextBox field(stage.screen, "txtField");
  inner.standIn(outer);
  field.standIn(inner);
  EXPECT_TRUE(field.visible());
  outer.setVisible(false);
  EXPECT_FALSE(field.visible());
  EXPECT_TRUE(field.ownVisible());
  outer.setVisible(true);
  field.setVisible(false);
  EXPECT_FALSE(field.visible());
}

TEST(Control, tellsTheObserversOfItsScreenWhatChanged) {
  Stage stage;
  TextBox field(stage.screen, "txtField");
  Recorder recorder;
  stage.screen.addObserver(recorder);
  field.setText("1");
  field.setCaption("Width");
  EXPECT_EQ(recorder.changes, (std::vector<std::string>{"txtField 0", "txtField 1"}));
  stage.screen.removeObserver(recorder);
  field.setText("2");
  EXPECT_EQ(recorder.changes.size(), 2U);
}

TEST(Control, takesTheFocusOnceAndLosesItOnLeaving) {
  Stage stage;
  TextBox field(stage.screen, "txtField");
  int entered = 0;
  field.onFocus = [&entered] { ++entered; };
  stage.host.enter(stage.screen);
  stage.host.show(stage.screen);
  field.userFocus();
  field.userFocus();
  EXPECT_EQ(entered, 1);
  EXPECT_EQ(stage.host.focus(), &field);
  field.userLeave();
  EXPECT_EQ(stage.host.focus(), nullptr);
  field.onLeave = [&field] { field.takeFocus(); };
  field.userFocus();
  field.userLeave();
  EXPECT_EQ(stage.host.focus(), &field);
  stage.host.hide(stage.screen);
  EXPECT_EQ(stage.host.focus(), nullptr);
}

TEST(ControlArray, namesItsMembersAndRefusesAnIndexOutside) {
  Stage stage;
  ControlArray<Menu> entries(stage.screen, "mnuEntry", 1, 2);
  EXPECT_EQ(entries(1).name(), "mnuEntry(1)");
  EXPECT_EQ(stage.screen.find("mnuEntry(2)"), &entries(2));
  EXPECT_EQ(stage.screen.find("mnuEntry"), nullptr);
  EXPECT_THROW(entries(0), RuntimeFault);
  EXPECT_THROW(entries(3), RuntimeFault);
}

TEST(ControlArray, givesEachMemberAnArgumentOfItsOwn) {
  Stage stage;
  std::array<OptionGroup, 2> rows;
  ControlArray<OptionButton> in(stage.screen, "optIn", 0, rows, "In");
  ControlArray<OptionButton> out(stage.screen, "optOut", 0, rows, "Out", true);
  in(1).userSelect();
  EXPECT_TRUE(out(0).selected());
  EXPECT_FALSE(out(1).selected());
  EXPECT_EQ(stage.screen.find("optOut(1)"), &out(1));
  EXPECT_EQ(out.last(), 1);
}

TEST(Menu, keepsItsCheckAsPartOfTheDesign) {
  Stage stage;
  Menu menu(stage.screen, "mnuGrid", "&Grid");
  menu.setChecked(true);
  stage.host.enter(stage.screen);
  stage.host.load(stage.screen);
  menu.setChecked(false);
  menu.setCaption("other");
  stage.host.unload(stage.screen);
  EXPECT_TRUE(menu.checked());
  EXPECT_EQ(menu.caption(), "&Grid");
}

}  // namespace
}  // namespace kestra
