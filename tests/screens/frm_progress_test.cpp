#include "screens/frm_progress.h"

#include <gtest/gtest.h>

#include "support/input_desk.h"

namespace kestra {
namespace {

struct Progress : testing::Test {
  InputDesk desk;
  frmProgress screen{desk.base};
  PlainScreen other{"frmOther"};

  Progress() {
    desk.host.enter(screen);
    desk.host.enter(other);
  }
};

TEST_F(Progress, beginsInFrontWithAnEmptyGaugeAndAPicture) {
  screen.begin(8);
  EXPECT_EQ(desk.front(), "frmProgress");
  EXPECT_EQ(screen.Gauge.minimum(), 0);
  EXPECT_EQ(screen.Gauge.maximum(), 8);
  EXPECT_EQ(screen.Gauge.value(), 0);
  EXPECT_FALSE(screen.Picture1.log().calls().empty());
  EXPECT_EQ(screen.lblTime.caption(), "0:00");
}

TEST_F(Progress, comesForwardAtEachStepAndHandlesWaitingEvents) {
  screen.begin(3);
  desk.host.show(other);
  const int pumps = desk.events.pumps;
  screen.step(2, "b.KSC");
  EXPECT_EQ(desk.front(), "frmProgress");
  EXPECT_EQ(screen.Gauge.value(), 2);
  EXPECT_EQ(screen.lblWhat.caption(), "b.KSC");
  EXPECT_EQ(desk.events.pumps, pumps + 1);
}

TEST_F(Progress, keepsTheGaugeWithinItsLimits) {
  screen.begin(3);
  screen.step(5, "");
  EXPECT_EQ(screen.Gauge.value(), 3);
}

TEST_F(Progress, tellsTheTimeSinceItBegan) {
  constexpr std::int64_t kSecond = 1'000'000'000;
  desk.clock.now = 100 * kSecond;
  screen.begin(1);
  const std::pair<int, const char*> table[] = {{5, "0:05"}, {59, "0:59"}, {65, "1:05"}, {3601, "60:01"}};
  for (const auto& [seconds, text] : table) {
    desk.clock.now = (100 + seconds) * kSecond;
    screen.refresh();
    EXPECT_EQ(screen.lblTime.caption(), text);
  }
}

TEST_F(Progress, showsAStepOfARunThatHasNotBegunHere) {
  screen.step(2, "a.KSC");
  EXPECT_EQ(screen.Gauge.value(), 2);
  EXPECT_EQ(desk.front(), "frmProgress");
}

TEST_F(Progress, isAskedToStopByItsButtonOrItsFrameAndStaysUntilTheCommandIsOver) {
  screen.begin(1);
  EXPECT_FALSE(screen.stopRequested());
  screen.cmdStop.click();
  EXPECT_TRUE(screen.stopRequested());
  EXPECT_FALSE(screen.cmdStop.enabled());
  screen.begin(1);
  EXPECT_FALSE(screen.stopRequested());
  EXPECT_TRUE(screen.cmdStop.enabled());
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_TRUE(screen.stopRequested());
  EXPECT_TRUE(screen.visible());
  screen.finish();
  EXPECT_FALSE(screen.loaded());
}

TEST_F(Progress, forgetsAStopThatNoCommandWasAsked) {
  screen.step(2, "a.KSC");
  screen.cmdStop.click();
  screen.attend();
  EXPECT_FALSE(screen.stopRequested());
  EXPECT_TRUE(screen.cmdStop.enabled());
  screen.begin(2);
  screen.cmdStop.click();
  screen.attend();
  EXPECT_TRUE(screen.stopRequested()) << "the next program of a command is meant";
}

TEST_F(Progress, canBeReadAndClosedWhenACommandHasEndedBeforeItsLastStep) {
  screen.begin(2);
  screen.cmdStop.click();
  screen.rest();
  EXPECT_TRUE(screen.visible());
  EXPECT_FALSE(screen.stopRequested()) << "the next program is not meant";
  EXPECT_FALSE(screen.cmdStop.enabled());
  EXPECT_TRUE(desk.host.closeByFrame(screen));
  EXPECT_FALSE(screen.loaded());
}

}  // namespace
}  // namespace kestra
