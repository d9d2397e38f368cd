#include "results/input_digest.h"

#include <gtest/gtest.h>

#include "platform/memory_file_system.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

TEST(InputDigest, isThePublishedHashOfTheLines) {
  EXPECT_EQ(inputDigest(""), 0xcbf29ce484222325U);
  EXPECT_EQ(inputDigest("foobar"), inputDigest("foobar\r\n"));
  EXPECT_EQ(inputDigest("\n"), 0xaf63c74c8601c8ddU);
  EXPECT_EQ(inputDigest("foobar"), 0x345316a7168b8506U);
}

TEST(InputDigest, doesNotDependOnLineEndsAndTheDateOfTheLastChange) {
  const std::uint64_t digest = inputDigest("KESTRA    Larkmoor\nMODIFIED  01/02/2009\nENDRUN\n");
  EXPECT_EQ(inputDigest("KESTRA    Larkmoor\r\nMODIFIED  11/12/2010 10:00:00\r\nENDRUN\r\n"), digest);
  EXPECT_EQ(inputDigest("KESTRA    Larkmoor\nENDRUN"), digest);
  for (const char* other : {"KESTRA    Larkmoo\nrENDRUN\n", "KESTRA    Larkmoor\n\nENDRUN\n", "ENDRUN\n", "",
                            "KESTRA    Larkmoor\nENDRUN \n", " MODIFIED\nKESTRA    Larkmoor\nENDRUN\n"}) {
    EXPECT_NE(inputDigest(other), digest) << other;
  }
}

TEST(InputDigest, tellsWhetherAControlFileIsTheOneThatWasRun) {
  MemoryFileSystem files;
  files.put("/p/dam.b.KSC", "KESTRA\n");
  EXPECT_FALSE(inputHasChanged(files, "/p/dam.b.KSC"));
  EXPECT_TRUE(succeeded(keepInputDigest(files, "/p/dam.b.KSC")));
  EXPECT_EQ(files.content("/p/.kestra/dam.b.input")->size(), 18U);
  EXPECT_FALSE(inputHasChanged(files, "/p/dam.b.KSC"));
  files.put("/p/dam.b.KSC", "KESTRA\nHYD\n");
  EXPECT_TRUE(inputHasChanged(files, "/p/dam.b.KSC"));
  files.put("/p/dam.b.KSC", "KESTRA\r\n");
  EXPECT_FALSE(inputHasChanged(files, "/p/dam.b.KSC"));
  (void)files.removeFile("/p/dam.b.KSC");
  EXPECT_TRUE(inputHasChanged(files, "/p/dam.b.KSC"));
  files.put("/p/dam.b.ksc", "KESTRA\r\n");
  EXPECT_FALSE(inputHasChanged(files, "/p/dam.b.KSC"));
  dropInputDigest(files, "/p/dam.b.KSC");
  files.put("/p/dam.b.ksc", "HYD\r\n");
  EXPECT_FALSE(inputHasChanged(files, "/p/dam.b.KSC"));
}

TEST(InputDigest, ofAnOlderRunIsGoneWhenThatOfTheNewOneCannotBeKept) {
  MemoryFileSystem files;
  files.put("/p/dam.KSC", "KESTRA\n");
  EXPECT_TRUE(succeeded(keepInputDigest(files, "/p/dam.KSC")));
  files.setMode("/p/dam.KSC", false, true);
  EXPECT_TRUE(failed(keepInputDigest(files, "/p/dam.KSC"), FailureKind::denied, "Permission denied"));
  EXPECT_FALSE(files.content("/p/.kestra/dam.input"));
}

TEST(InputDigest, isNotKeptOfAFileThatIsNotFoundByTheNameOfItsRun) {
  MemoryFileSystem files;
  files.put("/p/dam.dat", "KESTRA\n");
  files.put("/p/.kestra/dam.input", "0000000000000000\r\n");
  EXPECT_TRUE(succeeded(keepInputDigest(files, "/p/dam.dat")));
  EXPECT_FALSE(inputHasChanged(files, "/p/dam.KSC"));
}

TEST(InputDigest, thatIsCutOrForeignCountsAsThatOfAnotherFile) {
  MemoryFileSystem files;
  files.put("/p/dam.KSC", "KESTRA\n");
  for (const char* kept : {"", "12", "not a digest at all", "0000000000000000\r\n"}) {
    files.put("/p/.kestra/dam.input", kept);
    EXPECT_TRUE(inputHasChanged(files, "/p/dam.KSC")) << kept;
  }
}

}  // namespace
}  // namespace kestra
