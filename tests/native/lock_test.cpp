#include <gtest/gtest.h>
#include <pwd.h>
#include <signal.h>

#include "native/child.h"
#include "platform/native/lock_holder.h"
#include "platform/native/posix_file_system.h"
#include "support/result_matchers.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

constexpr const char* kLocks =
    "1: POSIX  ADVISORY  WRITE 11 fe:00:5 0 EOF\n"
    "2: FLOCK  ADVISORY  WRITE 22 fe:00:5 0 EOF\n"
    "2: -> FLOCK  ADVISORY  WRITE 33 fe:00:6 0 EOF\n"
    "3: FLOCK  ADVISORY  WRITE 44 103:02:7 0 EOF\n"
    "4: FLOCK  ADVISORY  WRITE -1 fe:00:8 0 EOF\n";

TEST(LockHolder, isFoundByDeviceAndNumberOfTheFile) {
  EXPECT_EQ(lockHolder(kLocks, {0xfe, 0, 5}), 22);
  EXPECT_EQ(lockHolder(kLocks, {0x103, 2, 7}), 44);
  EXPECT_EQ(lockHolder(kLocks, {0xfe, 0, 6}), std::nullopt) << "it only waits";
  EXPECT_EQ(lockHolder(kLocks, {0xfe, 0, 8}), std::nullopt) << "a process of another machine";
  EXPECT_EQ(lockHolder(kLocks, {0xfe, 0, 9}), std::nullopt);
  EXPECT_EQ(lockHolder("rubbish\n\n1: FLOCK", {0xfe, 0, 5}), std::nullopt);
}

std::string myself(const std::string& process) {
  const passwd* user = ::getpwuid(::getuid());
  const std::string name = fileText("/proc/self/comm");
  return "program " + name.substr(0, name.size() - 1) + ", process " + process + ", of user " +
         (user != nullptr ? user->pw_name : std::to_string(::getuid()));
}

TEST(DescribeProcess, tellsProgramProcessAndUser) {
  EXPECT_EQ(describeProcess(::getpid()), myself(std::to_string(::getpid())));
  EXPECT_EQ(describeProcess(std::nullopt), "another program");
  EXPECT_EQ(describeProcess(0x7FFFFFFF), "another program");
}

TEST(PosixLock, tellsWhichProgramHoldsItAndEndsWhenThatIsKilled) {
  const TempDirectory directory;
  const std::string path = directory.at("locked");
  const std::string ready = directory.at("ready");
  writeText(path, "");
  const pid_t holder = ::fork();
  if (holder == 0) {
    PosixFileSystem files;
    const auto lock = files.lock(path);
    writeText(ready, lock ? "yes" : "no");
    ::pause();
    ::_exit(0);
  }
  ASSERT_TRUE(eventually([&] { return fileText(ready) == "yes"; }));
  PosixFileSystem files;
  EXPECT_TRUE(failed(files.lock(path), FailureKind::busy, myself(std::to_string(holder))));
  ::kill(holder, SIGKILL);
  ::waitpid(holder, nullptr, 0);
  EXPECT_TRUE(succeeded(files.lock(path)));
}

}  // namespace
}  // namespace kestra
