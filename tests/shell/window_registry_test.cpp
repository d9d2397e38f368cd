#include "shell/window_registry.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

// A window with a slot, as the summary table or the graphs will be.
struct SlotScreen : Screen {
  SlotScreen(const std::string& name, const std::string& title) : Screen(name, title) {}
};

struct WindowRegistryTest : testing::Test {
  RunningDesk desk;
  WindowRegistry& windows = desk.shell.topScreen.windows();
  SlotScreen summary{"frmSummaryTest", "Summary"};
  SlotScreen sequence{"frmSequenceTest", "Dam"};

  WindowRegistryTest() {
    desk.app.host.enter(summary);
    desk.app.host.enter(sequence);
    windows.enter(WindowSlot::summaryTable, summary, nullptr);
    windows.enterSequence(sequence);
  }
};

TEST_F(WindowRegistryTest, keepsOneFlagASlot) {
  for (int slot = 1; slot <= 6; ++slot) {
    EXPECT_FALSE(windows.IsAvailable(slot));
    windows.AddData(slot);
    EXPECT_TRUE(windows.IsAvailable(slot));
    EXPECT_TRUE(desk.state.windowOpen[static_cast<std::size_t>(slot)]);
    windows.RemoveData(slot);
    EXPECT_FALSE(windows.IsAvailable(slot));
  }
}

TEST_F(WindowRegistryTest, faultsOnASlotOutsideOneToSix) {
  for (const int slot : {0, 7, -1}) {
    EXPECT_THROW(windows.AddData(slot), RuntimeFault);
    EXPECT_THROW(windows.RemoveData(slot), RuntimeFault);
    EXPECT_THROW(windows.IsAvailable(slot), RuntimeFault);
  }
}

TEST_F(WindowRegistryTest, leavesTheInputWindowAsTheOnlyOne) {
  desk.app.host.show(summary);
  windows.AddData(2);
  windows.AddData(3);
  windows.LoadOrUnload();
  EXPECT_TRUE(desk.shell.inputWindow.visible());
  EXPECT_FALSE(summary.loaded());
  EXPECT_EQ(desk.state.windowOpen, (std::array<bool, 7>{false, true, false, false, false, false, false}));
}

TEST_F(WindowRegistryTest, listsTheOpenWindowsInTheWindowMenu) {
  desk.app.host.show(desk.shell.inputWindow);
  windows.AddData(2);
  windows.FindFormToBuildItems();
  auto& menu = desk.shell.inputWindow.mnuWindowsArray;
  EXPECT_EQ(menu(1).caption(), "Kestra B - Input Interface");
  EXPECT_EQ(menu(2).caption(), "Summary");
  EXPECT_TRUE(menu(2).visible());
  EXPECT_FALSE(menu(3).visible());
  menu(2).click();
  EXPECT_EQ(desk.app.host.shown().front(), &summary);
}

TEST_F(WindowRegistryTest, raisesTheInputScreenAtWhichTheUserLeftTheSequence) {
  desk.app.host.show(desk.shell.inputWindow);
  desk.app.host.show(sequence);
  desk.app.host.show(summary);
  windows.RaiseScreen(1);
  EXPECT_EQ(desk.app.host.shown().front(), &sequence);
  desk.app.host.show(desk.shell.inputWindow);
  desk.app.host.show(summary);
  windows.RaiseScreen(1);
  EXPECT_EQ(desk.app.host.shown().front(), &sequence);
  desk.app.host.unload(sequence);
  windows.RaiseScreen(1);
  EXPECT_EQ(desk.app.host.shown().front(), &desk.shell.inputWindow);
}

TEST_F(WindowRegistryTest, raisesNothingThatIsNotOpen) {
  for (const int slot : {0, 1, 2, 5, 7}) windows.RaiseScreen(slot);
  EXPECT_EQ(desk.app.host.shown(), std::vector<Screen*>{&desk.shell.topScreen});
}

}  // namespace
}  // namespace kestra
