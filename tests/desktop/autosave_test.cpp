#include <gtest/gtest.h>

#include <QTest>

#include "control/unsaved_input.h"
#include "desktop/desk.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

constexpr std::int64_t kDelay = 2'000'000'000;  // nanoseconds
constexpr int kMost = 5000;                     // milliseconds that input may be at risk

// The window over scripted ports with an open project. Their clock stands still until it is turned.
struct KeepingDesk : RunningDesk {
  KeepingDesk() {
    makeProject(shell, "/home", "dam");
    window.start({});
    shell.inputWindow.mnuNew.click();
  }
  bool isKept() { return !unsavedInputNumbers(files, "/home/dam").empty(); }

  Desk window{app};
};

TEST(UnsavedInputInTheWindow, isKeptWithinFiveSecondsOfAnEdit) {
  KeepingDesk desk;
  desk.app.host.load(desk.shell.input.projectInformation);
  desk.shell.input.projectInformation.txtWatershedID.userReplace("Lake");
  QTest::qWait(700);  // the window has seen it
  EXPECT_FALSE(desk.isKept());
  desk.clock.now += kDelay;
  EXPECT_TRUE(QTest::qWaitFor([&desk] { return desk.isKept(); }, kMost));
}

TEST(UnsavedInputInTheWindow, isOfferedWhenTheProjectIsOpened) {
  KeepingDesk desk;
  desk.shell.inputWindow.mnuExit.click();
  ASSERT_TRUE(writeUnsavedInput(desk.memory, "/home/dam", 3, {"", {"KESTRA    01/01/2009Lake\r\nENDRUN\r\n", ""}}));
  desk.boxes.answers = {BoxButton::yes};
  (void)desk.shell.projects.open("/home/dam");
  EXPECT_TRUE(QTest::qWaitFor([&desk] { return desk.state.fileDirty; }, kMost));
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].title, "Unsaved Input");
  EXPECT_EQ(desk.shell.input.projectInformation.txtWatershedID.text(), "Lake");
}

}  // namespace
}  // namespace kestra
