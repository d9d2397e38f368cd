#include <gtest/gtest.h>

#include "support/scripted_desk.h"

namespace kestra {
namespace {

constexpr const char* kQuestion = "Do you really want to exit from this application?";

TEST(Closing, byTheMenuAsksNothingWhenNothingWasEdited) {
  RunningDesk desk;
  desk.shell.topScreen.mnuExit.click();
  EXPECT_TRUE(desk.shell.ended());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(Closing, byTheMenuAsksAfterAnEdit) {
  RunningDesk desk;
  desk.state.fileDirty = true;
  desk.boxes.answers = {BoxButton::no, BoxButton::yes};
  desk.shell.topScreen.mnuExit.click();
  EXPECT_FALSE(desk.shell.ended());
  EXPECT_FALSE(desk.state.bExiting);
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].text, kQuestion);
  EXPECT_EQ(desk.boxes.shown[0].title, "Kestra B");
  EXPECT_EQ(desk.boxes.shown[0].buttons, (std::vector<BoxButton>{BoxButton::yes, BoxButton::no}));
  desk.shell.topScreen.mnuExit.click();
  EXPECT_TRUE(desk.shell.ended());
}

TEST(Closing, byTheFrameAlwaysAsksUnderTheScreensTitle) {
  RunningDesk desk;
  makeProject(desk.shell, "/home", "dam");
  desk.boxes.answers = {BoxButton::no};
  EXPECT_FALSE(desk.app.host.closeByFrame(desk.shell.topScreen));
  EXPECT_FALSE(desk.shell.ended());
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].text, kQuestion);
  EXPECT_EQ(desk.boxes.shown[0].title, "Kestra B [ Project  /home/dam]");
  desk.boxes.answers = {BoxButton::yes};
  EXPECT_TRUE(desk.app.host.closeByFrame(desk.shell.topScreen));
  EXPECT_TRUE(desk.shell.ended());
  EXPECT_EQ(desk.settings.get("ProjectHistory", "1Project", ""), "/home/dam");
}

// A message box that looks at the application while it is on show.
struct WatchingBoxes : MessageBoxes {
  BoxButton show(const MessageBox& box) override {
    exitingMeanwhile = state != nullptr && state->bExiting;
    return box.buttons.front();
  }
  const ApplicationState* state = nullptr;
  bool exitingMeanwhile = false;
};

TEST(Closing, asksWithTheExitFlagSetAndEndsWithTheScreensUnloaded) {
  ScriptedDesk desk;
  WatchingBoxes boxes;
  Ports ports{boxes,       desk.dialogs, desk.settings, desk.clipboard, desk.processes, desk.files,
              desk.events, desk.beeper,  desk.entropy,  desk.clock,     desk.help};
  Application app(ports, "/app");
  boxes.state = &app.state;
  app.shell.startUp("");
  app.host.show(app.shell.input.projectInformation);
  EXPECT_TRUE(app.host.closeByFrame(app.shell.topScreen));
  EXPECT_TRUE(boxes.exitingMeanwhile);
  EXPECT_FALSE(app.shell.input.projectInformation.loaded());
}

TEST(Closing, aRefusedExitByTheMenuDoesNotCountForTheFrame) {
  RunningDesk desk;
  desk.state.fileDirty = true;
  desk.boxes.answers = {BoxButton::no};
  desk.shell.topScreen.mnuExit.click();
  desk.state.fileDirty = false;
  desk.boxes.answers = {BoxButton::no};
  EXPECT_FALSE(desk.app.host.closeByFrame(desk.shell.topScreen));
  EXPECT_EQ(desk.boxes.shown.size(), 2U);
}

}  // namespace
}  // namespace kestra
