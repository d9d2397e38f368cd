#include "platform/native/posix_file_system.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/types.h>

#include "native/child.h"
#include "platform/faulty_file_system.h"
#include "platform/ini_settings.h"
#include "support/contracts/file_system_contract.h"
#include "support/contracts/settings_contract.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

struct PosixScene {
  void link(const std::string& path, const std::string& target) {
    ASSERT_EQ(::symlink(target.c_str(), path.c_str()), 0);
  }

  TempDirectory directory;
  PosixFileSystem files;
  std::string root = directory.path();
};

struct PosixIniScene {
  SettingsStore& settings() { return store; }

  TempDirectory directory;
  PosixFileSystem files;
  IniSettings store{files, directory.at("config/kestra/settings.ini")};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Posix, FileSystemContract, PosixScene);
INSTANTIATE_TYPED_TEST_SUITE_P(PosixIni, SettingsContract, PosixIniScene);

TEST(PosixFileSystem, readsNoDeviceAndWaitsForNoPipe) {
  const TempDirectory directory;
  PosixFileSystem files;
  ASSERT_EQ(::mkfifo(directory.at("pipe").c_str(), 0666), 0);
  for (const std::string& path : {std::string("/dev/null"), directory.at("pipe")}) {
    EXPECT_TRUE(failed(files.read(path, 10), FailureKind::wrongType, "Not a regular file"));
    EXPECT_TRUE(failed(writeWholeFile(files, path, "x"), FailureKind::wrongType, "Not a regular file"));
  }
  EXPECT_EQ(files.status("/dev/null").value().type, FileStatus::Type::other);
  EXPECT_EQ(files.list(directory.path()).value().front().type, FileStatus::Type::other);
}

TEST(PosixFileSystem, readsFilesOfWhichTheSystemTellsNoSize) {
  PosixFileSystem files;
  EXPECT_EQ(files.status("/proc/self/mounts").value().size, 0U);
  EXPECT_EQ(files.read("/proc/self/cmdline", 4096).value(), fileText("/proc/self/cmdline"));
  EXPECT_TRUE(failed(files.read("/proc/self/cmdline", 3), FailureKind::tooLarge, "File too large"));
}

TEST(PosixFileSystem, tellsTheTimeOfTheLastChangeInNanoseconds) {
  const TempDirectory directory;
  PosixFileSystem files;
  writeText(directory.at("a"), "");
  const timespec times[2] = {{0, 0}, {1234567890, 123456789}};
  ASSERT_EQ(::utimensat(AT_FDCWD, directory.at("a").c_str(), times, 0), 0);
  EXPECT_EQ(files.status(directory.at("a")).value().modifiedNs, 1234567890123456789);
}

TEST(PosixFileSystem, standsInTheRootWhenItsDirectoryHasBeenRemoved) {
  EXPECT_EQ(exitCodeOfChild([] {
              const TempDirectory directory;
              PosixFileSystem files;
              return files.changeDirectory(directory.path()) && files.removeDirectory(directory.path()) &&
                             files.currentDirectory() == "/"
                         ? 0
                         : 1;
            }),
            0);
}

TEST(PosixFileSystem, givesOnlyDirectoriesAsRoots) {
  PosixFileSystem files;
  for (const std::string& root : files.roots()) {
    EXPECT_FALSE(root == "/proc" || root == "/sys" || root == "/dev/pts") << root;
    EXPECT_EQ(files.status(root).value().type, FileStatus::Type::directory) << root;
  }
}

TEST(PosixFileSystem, makesFilesWithThePermissionsThatTheUserLeaves) {
  const TempDirectory directory;
  EXPECT_EQ(exitCodeOfChild([&] {
              PosixFileSystem files;
              ::umask(027);
              return writeWholeFile(files, directory.at("a"), "") && files.makeDirectory(directory.at("d")) ? 0 : 1;
            }),
            0);
  struct stat found = {};
  ::stat(directory.at("a").c_str(), &found);
  EXPECT_EQ(found.st_mode & 07777, 0640U);
  ::stat(directory.at("d").c_str(), &found);
  EXPECT_EQ(found.st_mode & 07777, 0750U);
}

TEST(PosixFileSystem, leavesTheOldFileAndNoStrayWhicheverStepOfASaveFails) {
  for (std::size_t step = 1; step <= 10; ++step) {
    const TempDirectory directory;
    PosixFileSystem posix;
    writeText(directory.at("a"), "old");
    FaultyFileSystem files(posix);
    files.failCall(step, FailureKind::full);
    EXPECT_TRUE(failed(writeWholeFile(files, directory.at("a"), "new"), FailureKind::full, "made to fail")) << step;
    EXPECT_EQ(fileText(directory.at("a")), step == 10 ? "new" : "old") << step;
    EXPECT_EQ(posix.list(directory.path()).value().size(), 1U) << step;
  }
}

}  // namespace
}  // namespace kestra
