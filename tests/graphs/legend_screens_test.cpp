#include <gtest/gtest.h>

#include "graph_desk.h"

namespace kestra {
namespace {

using Type = MouseEvent::Type;

struct TheLegends : testing::Test, GraphDesk {
  frmUpdateColors& colors = graphs.updateColors;
  frmUpdateLines& styles = graphs.updateLines;
};

TEST_F(TheLegends, listAllColours) {
  colors.openFrom("frmOutputGraph");
  const Lines texts = textsOn(colors.LegendPic);
  ASSERT_EQ(texts.size(), 110U);
  EXPECT_EQ(texts[0], " Background (0)");
  EXPECT_EQ(texts[1], " Foreground (1)");
  EXPECT_EQ(texts[2], " Color (2)");
  EXPECT_EQ(texts[109], " Color (109)");
  EXPECT_EQ(callsOf(colors.LegendPic, "FilledBox").size(), 110U);
  EXPECT_EQ(callsOf(colors.LegendPic, "Box"), Lines{"Box 0 0 100 1"});
}

TEST_F(TheLegends, selectTheRowThatIsPressed) {
  colors.openFrom("frmOutputGraph");
  colors.LegendPic.userMouse({Type::down, 1, 5, 30.5});
  EXPECT_EQ(colors.selectedRow(), 30);
  EXPECT_EQ(callsOf(colors.LegendPic, "Box"), Lines{"Box 0 30 100 31"});
  colors.LegendPic.userMouse({Type::up, 1, 5, 40});
  colors.LegendPic.userMouse({Type::down, 1, 5, -1});
  colors.LegendPic.userMouse({Type::down, 1, 5, 110});
  EXPECT_EQ(colors.selectedRow(), 30);
}

TEST_F(TheLegends, pickAnotherColourByADoubleClickAndKeepIt) {
  colors.openFrom("frmOutputGraph");
  dialogs.colors = {std::nullopt, 4711U};
  const std::uint32_t before = lines.ColorList[30];
  colors.LegendPic.userMouse({Type::down, 1, 5, 30.5});
  colors.LegendPic.userDoubleClick();
  EXPECT_EQ(lines.ColorList[30], before);
  EXPECT_EQ(settings.get("ColorList", "30", ""), "");
  colors.LegendPic.userDoubleClick();
  EXPECT_EQ(lines.ColorList[30], 4711U);
  EXPECT_EQ(settings.get("ColorList", "30", ""), "4711");
  const Lines inks = callsOf(colors.LegendPic, "ForeColor");
  EXPECT_NE(std::find(inks.begin(), inks.end(), "ForeColor 4711"), inks.end());
}

TEST_F(TheLegends, leadBackToAnyScreenThatHasOpenedThem) {
  PlainScreen other("frmHydroGraph");
  host.enter(other);
  colors.openFrom("frmHydroGraph");
  colors.mnuExit.click();
  EXPECT_EQ(front(), "frmHydroGraph");
  EXPECT_FALSE(colors.loaded());
  host.show(colors);
  colors.mnuExit.click();
  EXPECT_EQ(front(), "frmHydroGraph");
}

TEST_F(TheLegends, listTheLinesWithTheirPens) {
  styles.openFrom("frmOutputGraph");
  const Lines texts = textsOn(styles.LegendPic);
  EXPECT_EQ(Lines(texts.begin(), texts.begin() + 5), (Lines{"Color", " Width", " Line", " Line (1)", " 2"}));
  EXPECT_EQ(texts[texts.size() - 2], " Line (13)");
  EXPECT_EQ(styles.styleCombo(1).text(), "Solid");
  EXPECT_EQ(styles.styleCombo(1).items(), (Lines{"Solid", "Dash", "Dot", "Dash-Dot", "Dash-Dot-Dot"}));
  EXPECT_EQ(styles.widthCombo(7).text(), "1");
  EXPECT_EQ(styles.widthCombo(8).text(), "2");
}

TEST_F(TheLegends, changeStylesAndWidthsAndKeepThem) {
  styles.openFrom("frmOutputGraph");
  styles.styleCombo(5).userSelect(std::string_view("Dash-Dot"));
  styles.widthCombo(5).userSelect(std::string_view("4"));
  EXPECT_EQ(lines.ComboList[5], 3);
  EXPECT_EQ(lines.WidthList[5], 4);
  EXPECT_EQ(settings.get("ComboList", "5", ""), "3");
  EXPECT_EQ(settings.get("WidthList", "5", ""), "4");
  const Lines calls = callsOf(styles.LegendPic);
  EXPECT_NE(std::find(calls.begin(), calls.end(), "DrawStyle 3"), calls.end());
}

TEST_F(TheLegends, changeTheColourOfALine) {
  open();
  styles.openFrom("frmOutputGraph");
  dialogs.colors = {12U};
  styles.LegendPic.userMouse({Type::doubleClick, 1, 25, 2.5});
  EXPECT_EQ(lines.ColorList[2], 12U);
  styles.mnuExit.click();
  EXPECT_EQ(front(), "frmOutputGraph");
  const Lines inks = callsOf(screen.Pic1(0), "ForeColor");
  EXPECT_NE(std::find(inks.begin(), inks.end(), "ForeColor 12"), inks.end());
}

struct FullSettings : MemorySettings {
  Status set(const std::string&, const Entries&) override {
    return Failure{FailureKind::full, "settings.ini", "No space left on device"};
  }
};

TEST_F(TheLegends, tellWhenAColourCannotBeKept) {
  FullSettings full;
  Ports fullPorts{boxes, dialogs, full, clipboard, processes, files, events, beeper, entropy, clock, help};
  ScreenContext fullBase{fullPorts, state, host};
  GraphContext fullContext{{fullBase}, lines};
  ScreenHost aside(state.bExiting);
  frmUpdateColors screenAside(fullContext);
  aside.enter(screenAside);
  screenAside.openFrom("");
  dialogs.colors = {12U};
  screenAside.LegendPic.userMouse({Type::doubleClick, 1, 25, 2.5});
  EXPECT_EQ(takeBoxes(), Lines{"Error Message: settings.ini: No space left on device"});
  EXPECT_EQ(lines.ColorList[2], 12U);
}

}  // namespace
}  // namespace kestra
