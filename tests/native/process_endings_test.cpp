#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include "native/child.h"
#include "platform/native/posix_process_host.h"
#include "support/contracts/process_host_contract.h"
#include "support/temp_directory.h"

// Whatever a program has started ends with it, when it is stopped, and when this program ends.
namespace kestra {
namespace {

class ProcessEndings : public testing::Test {
 protected:
  // Writes its process numbers, the program's own and that of a program which it has started, to "pids".
  std::string script(const std::string& first, const std::string& last) {
    std::string path = directory.at("script");
    writeText(path, "#!/bin/sh\n" + first + "\nsleep 600 &\necho $$ $! >" + directory.at("pids.new") + "\nmv " +
                        directory.at("pids.new") + " " + directory.at("pids") + "\n" + last + "\n");
    ::chmod(path.c_str(), 0755);
    return path;
  }
  bool started() const { return !fileText(directory.at("pids")).empty(); }
  bool anyRuns() const {
    std::istringstream pids(fileText(directory.at("pids")));
    std::string leader;
    std::string other;
    pids >> leader >> other;
    return leader.empty() || other.empty() || runs(leader) || runs(other);
  }

  TempDirectory directory;
  PosixProcessHost host;
};

TEST_F(ProcessEndings, endWhatAProgramLeftBehind) {
  EXPECT_EQ(describe(host.run({script("", "exit 4"), {}, "", ""}, {})), "exit 4");
  EXPECT_TRUE(eventually([&] { return !anyRuns(); }));
}

TEST_F(ProcessEndings, letAStoppedProgramCleanUp) {
  const std::string program = script("trap 'echo bye >" + directory.at("bye") + "; exit 0' TERM", "wait");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(describe(host.run({program, {}, "", ""}, [&] { return !started(); })), "stopped");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2900));
  EXPECT_EQ(fileText(directory.at("bye")), "bye\n");
  EXPECT_TRUE(eventually([&] { return !anyRuns(); }));
}

TEST_F(ProcessEndings, killAfterThreeSecondsWhatDoesNotWantToEnd) {
  const std::string program = script("trap '' TERM", "while :; do sleep 1; done");
  std::chrono::steady_clock::time_point refused;
  EXPECT_EQ(describe(host.run({program, {}, "", ""},
                              [&] {
                                refused = std::chrono::steady_clock::now();
                                return !started();
                              })),
            "stopped");
  const auto taken = std::chrono::steady_clock::now() - refused;
  EXPECT_GE(taken, std::chrono::milliseconds(2900));
  EXPECT_LT(taken, std::chrono::milliseconds(6000));
  EXPECT_TRUE(eventually([&] { return !anyRuns(); }));
}

TEST_F(ProcessEndings, endAProgramThatIsHalted) {
  const std::string program = script("", "kill -STOP $$");
  EXPECT_EQ(describe(host.run({program, {}, "", ""}, [&] { return !started(); })), "stopped");
  EXPECT_TRUE(eventually([&] { return !anyRuns(); }));
}

TEST_F(ProcessEndings, reachAllWhenThisProgramIsKilled) {
  const std::string program = script("trap '' HUP TERM", "while :; do sleep 1; done");
  const pid_t parent = ::fork();
  if (parent == 0) {
    PosixProcessHost own;
    (void)own.run({program, {}, "", ""}, {});
    ::_exit(0);
  }
  ASSERT_TRUE(eventually([&] { return started(); }));
  EXPECT_TRUE(anyRuns());
  ::kill(parent, SIGKILL);
  ::waitpid(parent, nullptr, 0);
  EXPECT_TRUE(eventually([&] { return !anyRuns(); }));
}

}  // namespace
}  // namespace kestra
