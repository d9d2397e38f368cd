#include "platform/native/system_ports.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include "native/child.h"
#include "platform/native/descriptor.h"
#include "support/contracts/small_ports_contract.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

TEST(SystemClock, goesWithTheTimeOfTheWorld) {
  SystemClock clock;
  expectClock(clock);
  const std::int64_t before = clock.steadyNs();
  const std::int64_t now = clock.nowNs();
  std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_GE(clock.steadyNs() - before, 5000000);
  EXPECT_GT(clock.nowNs(), now);
  EXPECT_GT(clock.localTime(now).year, 2020);
}

TEST(SystemClock, countsInTheTimeZoneOfTheUser) {
  const auto hourIn = [](const char* zone) {
    return exitCodeOfChild([zone] {
      ::setenv("TZ", zone, 1);
      const CalendarTime time = SystemClock().localTime(-1);
      return time.hour * 2 + (time.year == 1970 ? 1 : 0);
    });
  };
  EXPECT_EQ(hourIn("UTC0"), 23 * 2);
  EXPECT_EQ(hourIn("EAST-3"), 2 * 2 + 1);
  EXPECT_EQ(hourIn("WEST5"), 18 * 2);
}

TEST(SystemEntropy, isUniform) {
  SystemEntropy entropy;
  expectEntropy(entropy);
  SystemEntropy other;
  EXPECT_FALSE(entropy.next() == other.next() && entropy.next() == other.next());
}

TEST(TerminalBeeper, ringsTheBellOfATerminal) {
  const Descriptor master(::posix_openpt(O_RDWR | O_NOCTTY));
  ASSERT_TRUE(master);
  ASSERT_EQ(::grantpt(master.number()), 0);
  ASSERT_EQ(::unlockpt(master.number()), 0);
  const Descriptor terminal = openFile(::ptsname(master.number()), O_RDWR);
  ASSERT_TRUE(terminal);
  TerminalBeeper(terminal.number()).beep();
  char seen = 0;
  ASSERT_EQ(::read(master.number(), &seen, 1), 1);
  EXPECT_EQ(seen, '\a');
}

TEST(TerminalBeeper, isSilentWithoutATerminal) {
  const TempDirectory directory;
  writeText(directory.at("out"), "");
  const Descriptor file = openFile(directory.at("out"), O_RDWR);
  TerminalBeeper(file.number()).beep();
  TerminalBeeper(-1).beep();
  EXPECT_EQ(fileText(directory.at("out")), "");
}

}  // namespace
}  // namespace kestra
