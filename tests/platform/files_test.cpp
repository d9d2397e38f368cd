#include "platform/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

using testing::Contains;
using testing::ElementsAre;

// The calls that writing "new" to /d/a makes when nothing fails, over an old file or not.
std::vector<std::string> callsOfWriting(bool over) {
  MemoryFileSystem memory;
  memory.putDirectory("/d");
  if (over) memory.put("/d/a", "old");
  FaultyFileSystem files(memory);
  EXPECT_TRUE(succeeded(writeWholeFile(files, "/d/a", "new")));
  return files.calls();
}

TEST(WriteWholeFile, syncsTheFileBeforeItTakesItsNameAndTheDirectoryAfter) {
  EXPECT_THAT(callsOfWriting(false),
              ElementsAre("linkStatus", "canonical", "createNew", "write", "sync", "close", "rename", "syncDirectory"));
  EXPECT_THAT(callsOfWriting(true), ElementsAre("linkStatus", "status", "canonical", "createNew", "copyMode", "write",
                                                "sync", "close", "rename", "syncDirectory"));
}

TEST(WriteWholeFile, syncsNothingWhereTheFileNeedNotOutliveALossOfPower) {
  MemoryFileSystem memory;
  memory.put("/d/a", "old");
  FaultyFileSystem files(memory);
  EXPECT_TRUE(succeeded(writeWholeFile(files, "/d/a", "new", Durable::no)));
  EXPECT_EQ(memory.content("/d/a"), "new");
  EXPECT_THAT(files.calls(),
              ElementsAre("linkStatus", "status", "canonical", "createNew", "copyMode", "write", "close", "rename"));
}

TEST(WriteWholeFile, leavesTheOldStateAndNoStrayWhicheverStepFails) {
  for (const bool over : {false, true}) {
    const std::vector<std::string> calls = callsOfWriting(over);
    for (std::size_t step = 1; step <= calls.size(); ++step) {
      SCOPED_TRACE(calls[step - 1] + (over ? " over an old file" : " of a new file"));
      MemoryFileSystem memory;
      memory.putDirectory("/d");
      if (over) memory.put("/d/a", "old");
      FaultyFileSystem files(memory);
      files.failCall(step, FailureKind::full);
      EXPECT_TRUE(failed(writeWholeFile(files, "/d/a", "new"), FailureKind::full, "made to fail"));
      const bool renamed = step == calls.size();
      if (renamed) {
        EXPECT_EQ(memory.content("/d/a"), "new");
      } else {
        EXPECT_EQ(memory.content("/d/a"), over ? std::optional<std::string>("old") : std::nullopt);
      }
      EXPECT_EQ(memory.paths().size(), over || renamed ? 2U : 1U);
    }
  }
}

TEST(WriteWholeFile, triesASyncOnceAndSaysSoEvenWhenCleaningUpFails) {
  MemoryFileSystem memory;
  FaultyFileSystem files(memory);
  files.failEvery("sync", FailureKind::other);
  files.failEvery("removeFile", FailureKind::denied);
  const Status status = writeWholeFile(files, "/a", "new");
  EXPECT_TRUE(failed(status, FailureKind::other, "made to fail"));
  EXPECT_EQ(status.failure().path, "/a");
  EXPECT_EQ(std::count(files.calls().begin(), files.calls().end(), "sync"), 1);
  EXPECT_THAT(files.calls(), Contains("removeFile"));
  EXPECT_EQ(memory.content("/a"), std::nullopt);
}

TEST(WriteWholeFile, keepsThePermissionsOfTheFileThatStoodThere) {
  MemoryFileSystem files;
  files.put("/a", "old");
  files.setMode("/a", false, true);
  ASSERT_TRUE(succeeded(writeWholeFile(files, "/a", "new")));
  EXPECT_TRUE(files.read("/a", 10).failedAs(FailureKind::denied));
  EXPECT_EQ(files.content("/a"), "new");
}

TEST(WriteWholeFile, countsARelativePathFromTheCurrentDirectory) {
  MemoryFileSystem files;
  files.putDirectory("/d/e");
  ASSERT_TRUE(succeeded(files.changeDirectory("/d")));
  EXPECT_TRUE(succeeded(writeWholeFile(files, "a", "1")));
  EXPECT_TRUE(succeeded(writeWholeFile(files, "e/../b", "2")));
  EXPECT_THAT(files.paths(), ElementsAre("/d", "/d/a", "/d/b", "/d/e"));
}

TEST(RemoveTree, goesOnBehindAFailureAndGivesTheFirst) {
  MemoryFileSystem files;
  files.put("/t/a/kept", "");
  files.put("/t/b", "");
  files.putDirectory("/t/unreadable");
  files.setMode("/t/a", true, false);
  files.setMode("/t/unreadable", false, true);
  const Status status = removeTree(files, "/t");
  EXPECT_TRUE(failed(status, FailureKind::denied, "Permission denied"));
  EXPECT_EQ(status.failure().path, "/t/a/kept");
  EXPECT_THAT(files.paths(), ElementsAre("/t", "/t/a", "/t/a/kept"));
}

TEST(RemoveTree, doesNotMindWhatSomebodyElseRemovesMeanwhile) {
  MemoryFileSystem memory;
  memory.put("/t/a", "");
  FaultyFileSystem files(memory);
  files.failEvery("removeFile", FailureKind::notFound);
  const Status status = removeTree(files, "/t");
  EXPECT_EQ(status.failure().path, "/t") << "only the directory, which is not empty, is told";
}

TEST(MakeDirectories, acceptsADirectoryThatAppearsMeanwhile) {
  MemoryFileSystem memory;
  memory.putDirectory("/d");
  FaultyFileSystem files(memory);
  files.failCall(1, FailureKind::notFound);  // the question whether it is there
  EXPECT_TRUE(succeeded(makeDirectories(files, "/d")));
}

TEST(FindIgnoringCase, tellsWhyADirectoryCannotBeSearched) {
  MemoryFileSystem files;
  files.put("/d/Dam.out", "");
  files.setMode("/d", false, true);
  EXPECT_TRUE(failed(findIgnoringCase(files, "/d", "dam.OUT"), FailureKind::denied, "Permission denied"));
  EXPECT_EQ(findIgnoringCase(files, "/d", "Dam.out").value(), "/d/Dam.out");
}

}  // namespace
}  // namespace kestra
