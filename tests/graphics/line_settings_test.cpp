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

}  // namespace
}  // namespace kestra
