#include "controls/ranges.h"

#include <gtest/gtest.h>

#include "controls/test_screen.h"
#include "controls/text_box.h"
#include "controls/undo_history.h"

namespace kestra {
namespace {

TEST(Gauge, staysWithinItsLimits) {
  Stage stage;
  Gauge gauge(stage.screen, "Gauge", 0, 8);
  gauge.setValue(9);
  EXPECT_EQ(gauge.value(), 8);
  gauge.setLimits(0, 4);
  EXPECT_EQ(gauge.value(), 4);
  gauge.setValue(-1);
  EXPECT_EQ(gauge.value(), 0);
}

TEST(Slider, tellsOfTheUsersMove) {
  Stage stage;
  Slider slider(stage.screen, "sldTime", 0, 10);
  int changes = 0;
  slider.onChange = [&changes] { ++changes; };
  slider.setValue(3);
  slider.userMove(5);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(slider.value(), 5);
}

TEST(Tabs, changeToAPageThatIsThere) {
  Stage stage;
  Tabs tabs(stage.screen, "tabPages", {"One", "Two"});
  int from = -1;
  tabs.onClick = [&from](int previous) { from = previous; };
  EXPECT_TRUE(tabs.userSelect(1));
  EXPECT_EQ(from, 0);
  EXPECT_FALSE(tabs.userSelect(2));
  EXPECT_FALSE(tabs.userSelect(-1));
  EXPECT_EQ(tabs.index(), 1);
}

TEST(Tabs, goBackWithWhatTheirHandlerChanged) {
  Stage stage;
  UndoHistory history;
  Tabs tabs(stage.screen, "tabPages", {"One", "Two"});
  TextBox box(stage.screen, "txtBox");
  stage.host.enter(stage.screen);
  stage.host.setHistory(&history);
  tabs.userSelect(1);
  EXPECT_EQ(history.steps(), 0U);  // a look alone is no step
  tabs.onClick = [&box](int) { box.setText("shown"); };
  tabs.userSelect(0);
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(tabs.index(), 1);
  EXPECT_EQ(box.text(), "");
  EXPECT_TRUE(history.redo());
  EXPECT_EQ(tabs.index(), 0);
}

}  // namespace
}  // namespace kestra
