#include "results/result_files.h"

#include <gtest/gtest.h>

#include "platform/memory_file_system.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

TEST(ResultFiles, areNamedByTheThreeLastCharacters) {
  EXPECT_EQ(withExtension("/dam/a.b.KSC", "OUT"), "/dam/a.b.OUT");
  EXPECT_EQ(withExtension("run_0.v2d", "DIS"), "run_0.DIS");
  EXPECT_EQ(withExtension("ab", "OUT"), "OUT");
  EXPECT_EQ(withExtension("", "OUT"), "OUT");
}

TEST(ResultFiles, areFoundAndWrittenWhateverTheirLetterCase) {
  MemoryFileSystem files;
  files.put("/dam/run.out", "one\ntwo\n");
  EXPECT_EQ(presentPath(files, "/dam/RUN.OUT"), "/dam/run.out");
  EXPECT_EQ(presentPath(files, "/dam/new.OUT"), "/dam/new.OUT");
  EXPECT_EQ(readResultFile(files, "/dam/RUN.OUT").value(), "one\ntwo\n");
  EXPECT_TRUE(succeeded(writeResultFile(files, "/dam/RUN.OUT", "three")));
  EXPECT_EQ(files.content("/dam/run.out"), "three");
  EXPECT_TRUE(succeeded(writeResultFile(files, "/dam/new.OUT", "four")));
  EXPECT_EQ(files.content("/dam/new.OUT"), "four");
}

TEST(ResultFiles, getLineFeedsWhereTheyHaveCarriageReturnsAlone) {
  MemoryFileSystem files;
  files.put("/a.OUT", "one\rtwo\r");
  files.put("/b.OUT", "one\rtwo\n");
  EXPECT_EQ(readResultFile(files, "/a.OUT").value(), "one\ntwo\n");
  EXPECT_EQ(readResultFile(files, "/b.OUT").value(), "one\rtwo\n");
}

TEST(ResultFiles, thatAreMissingAreToldApartFromOthers) {
  MemoryFileSystem files;
  files.putDirectory("/dam/run.OUT");
  EXPECT_TRUE(failed(readResultFile(files, "/dam/run.OUT"), FailureKind::notFound, "No such file or directory"));
  EXPECT_TRUE(failed(readResultFile(files, "/gone/run.OUT"), FailureKind::notFound, "No such file or directory"));
  files.put("/dam/a.OUT", "");
  files.setMode("/dam/a.OUT", false, true);
  EXPECT_TRUE(failed(readResultFile(files, "/dam/a.OUT"), FailureKind::denied, "Permission denied"));
}

}  // namespace
}  // namespace kestra
