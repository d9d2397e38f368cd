#include "graphics/line_settings.h"

#include <gtest/gtest.h>

#include "platform/scripted.h"

namespace kestra {
namespace {

struct LineSettingsTest : testing::Test {
  MemorySettings settings;
  ScriptedEntropy entropy;
  LineSettings lines;

  void init() {
    lines.InitColors(settings, entropy);
    lines.InitLines(settings);
  }
};

TEST_F(LineSettingsTest, haveTheirDefaultsInAnEmptyStore) {
  init();
  const std::vector<std::uint32_t> expected = {9426414,  0,        255,      0,       16711680, 255,     16711680,
                                               0,        13457769, 13749760, 65535,   33023,    2970272, 2990162,
                                               4163021,  6303920,  9408444,  6053069, 2970272,  4163021, 0,
                                               13850042, 13382297, 14204888, 6191499, 10865101};
  EXPECT_EQ(std::vector<std::uint32_t>(lines.ColorList.begin(), lines.ColorList.begin() + 26), expected);
  EXPECT_EQ(lines.WidthList, (std::array<int, 14>{0, 2, 2, 2, 2, 2, 2, 1, 2, 2, 2, 1, 1, 1}));
  EXPECT_EQ(lines.ComboList, (std::array<int, 14>{}));
  EXPECT_EQ(lines.customColors[15], lines.ColorList[15]);
}

TEST_F(LineSettingsTest, chooseTheColoursFromTwentySixOnAtRandom) {
  init();
  const auto first = lines.ColorList;
  init();
  EXPECT_EQ(first[25], lines.ColorList[25]);
  EXPECT_NE(first[30], lines.ColorList[30]);
  EXPECT_LE(lines.ColorList[109], 0xFFFFFFU);
}

TEST_F(LineSettingsTest, takeWhatTheSettingsHold) {
  (void)settings.set("ColorList", {{"3", "77"}, {"30", "5"}});
  (void)settings.set("ComboList", {{"1", "4"}});
  (void)settings.set("WidthList", {{"7", "3"}});
  init();
  EXPECT_EQ(lines.ColorList[3], 77U);
  EXPECT_EQ(lines.customColors[3], 77U);
  EXPECT_EQ(lines.ColorList[30], 5U);
  EXPECT_EQ(lines.ComboList[1], 4);
  EXPECT_EQ(lines.WidthList[7], 3);
}

TEST_F(LineSettingsTest, passOverSettingsThatAreNoNumbersOfTheirRange) {
  (void)settings.set("ColorList", {{"2", "red"}, {"4", "-1"}, {"5", "99999999999"}});
  (void)settings.set("ComboList", {{"1", "5"}});
  (void)settings.set("WidthList", {{"1", "0"}});
  init();
  EXPECT_EQ(lines.ColorList[2], 255U);
  EXPECT_EQ(lines.ColorList[4], 16711680U);
  EXPECT_EQ(lines.ColorList[5], 255U);
  EXPECT_EQ(lines.ComboList[1], 0);
  EXPECT_EQ(lines.WidthList[1], 2);
}

TEST_F(LineSettingsTest, keepAChangedItemAtOnceAndThatOneAlone) {
  init();
  EXPECT_TRUE(lines.setColor(settings, 3, 77));
  EXPECT_TRUE(lines.setStyle(settings, 13, 4));
  EXPECT_TRUE(lines.setWidth(settings, 1, 3));
  EXPECT_EQ(settings.get("ColorList", "3", ""), "77");
  EXPECT_EQ(settings.get("ColorList", "4", ""), "");
  EXPECT_EQ(settings.get("ComboList", "13", ""), "4");
  EXPECT_EQ(settings.get("WidthList", "1", ""), "3");
  EXPECT_EQ(lines.customColors[3], 77U);
  LineSettings again;
  again.InitColors(settings, entropy);
  again.InitLines(settings);
  EXPECT_EQ(again.ColorList[3], 77U);
  EXPECT_EQ(again.ComboList[13], 4);
  EXPECT_EQ(again.WidthList[1], 3);
  EXPECT_NE(again.ColorList[30], lines.ColorList[30]);
}

TEST_F(LineSettingsTest, haveNoItemsOutsideTheirLists) {
  init();
  const LineSettings before = lines;
  for (const int index : {-1, 110}) EXPECT_TRUE(lines.setColor(settings, index, 7));
  for (const int index : {0, 14}) EXPECT_TRUE(lines.setStyle(settings, index, 1));
  for (const int index : {0, 14}) EXPECT_TRUE(lines.setWidth(settings, index, 1));
  EXPECT_EQ(lines.ColorList, before.ColorList);
  EXPECT_EQ(lines.ComboList, before.ComboList);
  EXPECT_EQ(lines.WidthList, before.WidthList);
  EXPECT_EQ(settings.get("ColorList", "-1", ""), "");
}

// The dialog of a user who makes the first custom colour white, or changes his mind.
struct CustomColorsDialog : ScriptedDialogs {
  bool chooseCustomColors(std::array<std::uint32_t, 16>& custom) override {
    if (confirms) custom[0] = 0xFFFFFF;
    return confirms;
  }
  bool confirms = true;
};

TEST_F(LineSettingsTest, takeAllCustomColoursWhenTheDialogIsConfirmed) {
  init();
  const std::uint32_t second = lines.ColorList[1];
  CustomColorsDialog dialog;
  dialog.confirms = false;
  EXPECT_FALSE(lines.PickAllColors(dialog));
  EXPECT_NE(lines.ColorList[0], 0xFFFFFFU);
  dialog.confirms = true;
  EXPECT_TRUE(lines.PickAllColors(dialog));
  EXPECT_EQ(lines.ColorList[0], 0xFFFFFFU);
  EXPECT_EQ(lines.ColorList[1], second);
}

TEST_F(LineSettingsTest, leaveCustomColoursToDialogsThatHaveSuch) {
  init();
  const auto before = lines.ColorList;
  ScriptedDialogs dialogs;
  EXPECT_FALSE(lines.PickAllColors(dialogs));
  dialogs.colors = {5U};
  EXPECT_TRUE(lines.PickAllColors(dialogs));
  EXPECT_EQ(lines.ColorList, before);
}

TEST_F(LineSettingsTest, giveTheColourThatIsPicked) {
  ScriptedDialogs dialogs;
  dialogs.colors = {5U, std::nullopt};
  EXPECT_EQ(PickColor(dialogs, 1), 5U);
  EXPECT_EQ(PickColor(dialogs, 1), std::nullopt);
}

}  // namespace
}  // namespace kestra
