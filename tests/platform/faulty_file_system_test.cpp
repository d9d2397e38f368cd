#include "platform/faulty_file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory_file_system.h"
#include "support/contracts/file_system_contract.h"

namespace kestra {
namespace {

using testing::ElementsAre;

// Without a fault it is the file system that it wraps.
struct FaultlessScene {
  FaultlessScene() { memory.putDirectory(root); }
  void link(const std::string& path, const std::string& target) { memory.putLink(path, target); }

  MemoryFileSystem memory;
  FaultyFileSystem files{memory};
  std::string root = "/w";
};

INSTANTIATE_TYPED_TEST_SUITE_P(Faultless, FileSystemContract, FaultlessScene);

TEST(FaultyFileSystem, failsTheCallOfThatNumberAndNoOther) {
  MemoryFileSystem memory;
  FaultyFileSystem files(memory);
  files.failCall(2, FailureKind::full);
  EXPECT_TRUE(succeeded(files.makeDirectory("/a")));
  EXPECT_TRUE(failed(files.makeDirectory("/b"), FailureKind::full, "made to fail"));
  EXPECT_TRUE(succeeded(files.makeDirectory("/c")));
  EXPECT_THAT(memory.paths(), ElementsAre("/a", "/c"));
  EXPECT_THAT(files.calls(), ElementsAre("makeDirectory", "makeDirectory", "makeDirectory"));
}

TEST(FaultyFileSystem, failsEveryCallOfAName) {
  MemoryFileSystem memory;
  memory.put("/a", "x");
  FaultyFileSystem files(memory);
  files.failEvery("read", FailureKind::denied);
  files.failEvery("list", FailureKind::other);
  EXPECT_TRUE(files.read("/a", 10).failedAs(FailureKind::denied));
  EXPECT_TRUE(files.read("/a", 10).failedAs(FailureKind::denied));
  EXPECT_TRUE(files.list("/").failedAs(FailureKind::other));
  EXPECT_TRUE(succeeded(files.status("/a")));
  files.failNothing();
  EXPECT_TRUE(succeeded(files.read("/a", 10)));
}

TEST(FaultyFileSystem, leavesHalfOfWhatCannotBeWritten) {
  MemoryFileSystem memory;
  FaultyFileSystem files(memory);
  files.failEvery("write", FailureKind::full);
  auto created = files.createNew("/a");
  ASSERT_TRUE(succeeded(created));
  const auto file = std::move(created).value();
  EXPECT_TRUE(failed(file->write("123456"), FailureKind::full, "made to fail"));
  EXPECT_TRUE(succeeded(file->close()));
  EXPECT_EQ(memory.content("/a"), "123");
}

}  // namespace
}  // namespace kestra
