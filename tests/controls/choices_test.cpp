#include "controls/choices.h"

#include <gtest/gtest.h>

#include "controls/test_screen.h"

namespace kestra {
namespace {

TEST(OptionButton, clearsTheOthersOfItsGroup) {
  Stage stage;
  OptionGroup slope;
  OptionGroup other;
  OptionButton earth(stage.screen, "optEarth", slope, "Earth", true);
  OptionButton bare(stage.screen, "optBare", slope, "Bare");
  OptionButton alone(stage.screen, "optAlone", other, "Alone", true);
  int clicks = 0;
  bare.onClick = [&clicks] { ++clicks; };
  bare.userSelect();
  EXPECT_TRUE(bare.selected());
  EXPECT_FALSE(earth.selected());
  EXPECT_TRUE(alone.selected());
  EXPECT_EQ(clicks, 1);
  earth.setSelected(true);
  EXPECT_FALSE(bare.selected());
  EXPECT_EQ(clicks, 1);
}

TEST(OptionButton, comesBackAsDesigned) {
  Stage stage;
  OptionGroup group;
  OptionButton first(stage.screen, "optFirst", group, "First", true);
  OptionButton second(stage.screen, "optSecond", group, "Second");
  stage.host.enter(stage.screen);
  stage.host.load(stage.screen);
  second.userSelect();
  stage.host.unload(stage.screen);
  EXPECT_TRUE(first.selected());
  EXPECT_FALSE(second.selected());
}

TEST(CheckBox, isSetByTheUserWithItsHandler) {
  Stage stage;
  CheckBox box(stage.screen, "chkBox", "Box");
  int clicks = 0;
  box.onClick = [&clicks] { ++clicks; };
  box.setChecked(true);
  EXPECT_EQ(clicks, 0);
  box.userSet(false);
  EXPECT_FALSE(box.checked());
  EXPECT_EQ(clicks, 1);
}

TEST(ComboBox, selectsByTextAndByIndex) {
  Stage stage;
  ComboBox combo(stage.screen, "cmbCount", {"Select", "0", "1"}, 0);
  EXPECT_TRUE(combo.userSelect(std::string_view("1")));
  EXPECT_EQ(combo.index(), 2);
  EXPECT_TRUE(combo.userSelect(1));
  EXPECT_EQ(combo.text(), "0");
  EXPECT_FALSE(combo.userSelect(3));
  EXPECT_FALSE(combo.userSelect(-1));
  EXPECT_FALSE(combo.userSelect(std::string_view("7")));
  EXPECT_EQ(combo.text(), "0");
  combo.setIndex(9);
  EXPECT_EQ(combo.text(), "");
}

TEST(ComboBox, takesAnyTextWhenEditable) {
  Stage stage;
  ComboBox combo(stage.screen, "cmblText", {"Inflow Peak"});
  combo.setEditable(true);
  EXPECT_TRUE(combo.userSelect(std::string_view("breach")));
  EXPECT_EQ(combo.text(), "breach");
  EXPECT_EQ(combo.index(), -1);
  EXPECT_TRUE(combo.userSelect(std::string_view("Inflow Peak")));
  EXPECT_EQ(combo.index(), 0);
}

TEST(ComboBox, hearsKeysWithoutChangingItsSelection) {
  Stage stage;
  ComboBox combo(stage.screen, "cmbCount", {"0", "1"}, 1);
  combo.userKey({kEnter, {}});
  int enters = 0;
  combo.onKeyPress = [&enters](const Key& key) { enters += key.character == kEnter ? 1 : 0; };
  combo.userKey({kEnter, {}});
  combo.userKey({U'0', {}});
  EXPECT_EQ(enters, 1);
  EXPECT_EQ(combo.text(), "1");
}

TEST(ListBox, restoresTheEntriesOfItsDesign) {
  Stage stage;
  ListBox list(stage.screen, "lstAvailable", {"a"}, 0);
  stage.host.enter(stage.screen);
  stage.host.load(stage.screen);
  list.setItems({"b", "c"});
  EXPECT_EQ(list.index(), -1);
  stage.host.unload(stage.screen);
  EXPECT_EQ(list.items(), std::vector<std::string>{"a"});
  EXPECT_EQ(list.text(), "a");
}

}  // namespace
}  // namespace kestra
