#include "platform/memory_file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/contracts/file_system_contract.h"

namespace kestra {
namespace {

using testing::ElementsAre;

struct MemoryScene {
  MemoryScene() { files.putDirectory(root); }
  void link(const std::string& path, const std::string& target) { files.putLink(path, target); }

  MemoryFileSystem files;
  std::string root = "/w";
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FileSystemContract, MemoryScene);

TEST(MemoryFileSystem, logsEveryAccessByAbsolutePaths) {
  MemoryFileSystem files;
  files.putDirectory("/w");
  ASSERT_TRUE(succeeded(files.changeDirectory("/w")));
  ASSERT_TRUE(succeeded(writeWholeFile(files, "a", "12345")));
  EXPECT_TRUE(succeeded(files.read("../w/a", 10)));
  EXPECT_THAT(files.log,
              ElementsAre("changeDirectory /w", "linkStatus /w/a", "canonical /w", "createNew /w/.kestra-0.tmp",
                          "write /w/.kestra-0.tmp 5", "sync /w/.kestra-0.tmp", "close /w/.kestra-0.tmp",
                          "rename /w/.kestra-0.tmp -> /w/a", "syncDirectory /w", "read /w/a"));
}

TEST(MemoryFileSystem, givesWhatChangesTheTimeOfItsClock) {
  MemoryFileSystem files;
  files.clockNs = 5;
  files.put("/a", "");
  files.clockNs = 7;
  EXPECT_EQ(files.status("/a").value().modifiedNs, 5);
  ASSERT_TRUE(succeeded(writeWholeFile(files, "/a", "x")));
  EXPECT_EQ(files.status("/a").value().modifiedNs, 7);
}

TEST(MemoryFileSystem, honoursThePermissionsThatATestSets) {
  MemoryFileSystem files;
  files.put("/d/a", "old");
  files.put("/d/e/b", "");
  files.setMode("/d/a", false, true);
  files.setMode("/d", false, false);
  const std::string words = "Permission denied";
  EXPECT_TRUE(failed(files.read("/d/a", 10), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.lock("/d/a"), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.list("/d"), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.createNew("/d/new"), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.makeDirectory("/d/new"), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.rename("/d/a", "/b"), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.removeFile("/d/a"), FailureKind::denied, words));
  EXPECT_TRUE(failed(files.removeDirectory("/d/e"), FailureKind::denied, words));
  EXPECT_TRUE(failed(writeWholeFile(files, "/d/a", "new"), FailureKind::denied, words));
  EXPECT_EQ(files.content("/d/a"), "old");
  EXPECT_THAT(files.paths(), ElementsAre("/d", "/d/a", "/d/e", "/d/e/b"));
}

TEST(MemoryFileSystem, tellsWhoHoldsALock) {
  MemoryFileSystem files;
  files.put("/a", "");
  files.holdLock("/a", "program sh, process 7, of user ann");
  EXPECT_TRUE(failed(files.lock("/a"), FailureKind::busy, "program sh, process 7, of user ann"));
  files.holdLock("/a", "");
  const auto held = files.lock("/a");
  EXPECT_TRUE(succeeded(held));
  EXPECT_TRUE(failed(files.lock("/a"), FailureKind::busy, "another program"));
}

TEST(MemoryFileSystem, givesTheRootsThatATestSets) {
  MemoryFileSystem files;
  files.setRoots({"/mnt/usb", "/"});
  EXPECT_THAT(files.roots(), ElementsAre("/", "/mnt/usb"));
}

TEST(MemoryFileSystem, hasNoContentWhereThereIsNoFile) {
  MemoryFileSystem files;
  files.putDirectory("/d");
  EXPECT_EQ(files.content("/d"), std::nullopt);
  EXPECT_EQ(files.content("/no"), std::nullopt);
}

}  // namespace
}  // namespace kestra
