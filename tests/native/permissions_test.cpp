#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "native/child.h"
#include "platform/files.h"
#include "platform/native/posix_file_system.h"
#include "support/result_matchers.h"
#include "support/temp_directory.h"

// What a user without special rights meets. Run by root, the test goes on as another user in a child.
namespace kestra {
namespace {

constexpr unsigned kNobody = 65534;

// Runs `body` in a child with no special rights; 0 when all went as expected in it.
int asPlainUser(const std::function<void()>& body) {
  return exitCodeOfChild([&] {
    if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) {
      return 2;
    }
    body();
    return testing::Test::HasFailure() ? 1 : 0;
  });
}

class Permissions : public testing::Test {
 protected:
  Permissions() {
    ::chmod(directory.path().c_str(), 0755);
    ::mkdir(directory.at("closed").c_str(), 0777);
    writeText(directory.at("closed/file"), "old");
    ::mkdir(directory.at("open").c_str(), 0777);
    ::chmod(directory.at("open").c_str(), 0777);
  }
  void give(const std::string& name, mode_t mode) {
    if (::geteuid() == 0) {
      ASSERT_EQ(::chown(directory.at(name).c_str(), kNobody, kNobody), 0);
    }
    ASSERT_EQ(::chmod(directory.at(name).c_str(), mode), 0);
  }

  TempDirectory directory;
  PosixFileSystem files;
};

TEST_F(Permissions, keepAFileInADirectoryThatMayNotBeWritten) {
  give("closed/file", 0644);
  give("closed", 0555);
  const std::string words = "Permission denied";
  EXPECT_EQ(asPlainUser([&] {
              const std::string file = directory.at("closed/file");
              EXPECT_TRUE(failed(writeWholeFile(files, file, "new"), FailureKind::denied, words));
              EXPECT_TRUE(failed(files.createNew(directory.at("closed/b")), FailureKind::denied, words));
              EXPECT_TRUE(failed(files.makeDirectory(directory.at("closed/b")), FailureKind::denied, words));
              EXPECT_TRUE(failed(files.removeFile(file), FailureKind::denied, words));
              EXPECT_TRUE(failed(removeTree(files, directory.at("closed")), FailureKind::denied, words));
              EXPECT_EQ(files.read(file, 10).value(), "old");
            }),
            0);
  EXPECT_EQ(fileText(directory.at("closed/file")), "old");
  ::chmod(directory.at("closed").c_str(), 0755);
}

TEST_F(Permissions, areToldFromAbsence) {
  give("closed/file", 0000);
  give("closed", 0755);
  EXPECT_EQ(asPlainUser([&] {
              const std::string file = directory.at("closed/file");
              EXPECT_TRUE(failed(files.read(file, 10), FailureKind::denied, "Permission denied"));
              EXPECT_TRUE(failed(files.lock(file), FailureKind::denied, "Permission denied"));
              EXPECT_TRUE(failed(writeWholeFile(files, file, "x"), FailureKind::denied, "The file is read-only"));
            }),
            0);
}

TEST_F(Permissions, letATreeStandWithAFailureWhereADirectoryCannotBeRead) {
  ::mkdir(directory.at("open/unreadable").c_str(), 0777);
  writeText(directory.at("open/unreadable/kept"), "");
  writeText(directory.at("open/a"), "");
  give("open/unreadable", 0000);
  give("open", 0777);
  EXPECT_EQ(asPlainUser([&] {
              const Status status = removeTree(files, directory.at("open"));
              EXPECT_TRUE(failed(status, FailureKind::denied, "Permission denied"));
              EXPECT_EQ(status.failure().path, directory.at("open/unreadable"));
              EXPECT_FALSE(exists(files, directory.at("open/a")));
            }),
            0);
  ::chmod(directory.at("open/unreadable").c_str(), 0755);
  EXPECT_TRUE(exists(files, directory.at("open/unreadable/kept")));
}

TEST_F(Permissions, ofAFileStayWhenItIsWrittenAnew) {
  for (const mode_t mode : {0600, 0640, 0755, 0200}) {
    const std::string path = directory.at("open/" + std::to_string(mode));
    writeText(path, "old");
    ::chmod(path.c_str(), mode);
    ASSERT_TRUE(succeeded(writeWholeFile(files, path, "new")));
    struct stat found = {};
    ASSERT_EQ(::stat(path.c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777, mode);
  }
}

TEST_F(Permissions, toWriteAreTakenAndGivenBack) {
  const std::string path = directory.at("open/a");
  writeText(path, "");
  ::chmod(path.c_str(), 0664);
  ASSERT_TRUE(succeeded(files.setReadOnly(path, true)));
  struct stat found = {};
  ::stat(path.c_str(), &found);
  EXPECT_EQ(found.st_mode & 07777, 0444U);
  ASSERT_TRUE(succeeded(files.setReadOnly(path, false)));
  ::stat(path.c_str(), &found);
  EXPECT_EQ(found.st_mode & 07777, 0644U);
}

}  // namespace
}  // namespace kestra
