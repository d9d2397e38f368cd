#include "results/false_structure.h"

#include <gtest/gtest.h>

#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"
#include "support/dam_output.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

const Lines kOutput = {
    "title",
    "80-80 LIST OF INPUT",
    "STRUCTURE FALSE     ZERO",
    "ENDJOB",
    "ratings",
    "*WARNING - A STRUCTURE TABLE ENTRY",
    "goes on",
    "ratings too",
    "BASIC DATA",
    "of the false structure",
    "***** WARNING - one",
    "SUMMARY OF AUXILIARY SPILLWAY",
    "kept",
    "***************************",
    "dropped",
    "***** WARNING - two",
    "SPILLWAY -- 1",
    "kept too",
    "1TORVE....JOB",
    "dropped too",
    "***** WARNING - three",
    "************************",
    "the end",
    "***** WARNING - stays",
};

const Lines kStripped = {"title",
                         "80-80 LIST OF INPUT",
                         "STRUCTURE FALSE     ZERO",
                         "ENDJOB",
                         "ratings",
                         "ratings too",
                         "  USER ENTERED AUXILIARY SPILLWAY OUTFLOW",
                         "  AUXILIARY SPILLWAY ANALYSIS ONLY",
                         " ",
                         "  FALSE STRUCTURE RELATED DATA REMOVED",
                         " ",
                         "SUMMARY OF AUXILIARY SPILLWAY",
                         "kept",
                         "***************************",
                         "kept too",
                         "1TORVE....JOB",
                         "the end",
                         "***** WARNING - stays"};

TEST(FalseStructure, isCutOutOfTheOutputPartByPart) {
  for (const char* end : {"\r\n", "\n"}) {
    const auto stripped = stripFalseStructure(joinLines(kOutput, end));
    ASSERT_TRUE(stripped);
    EXPECT_EQ(stripped->text, joinLines(kStripped));
    EXPECT_EQ(stripped->removedWarnings, 4);
  }
}

TEST(FalseStructure, isCutAsFarAsTheOutputGoes) {
  const auto stripped = stripFalseStructure(joinLines({"80-80 LIST OF INPUT", "STRUCTURE FALSE     ZERO", "half"}));
  ASSERT_TRUE(stripped);
  EXPECT_EQ(stripped->text, joinLines({"80-80 LIST OF INPUT", "STRUCTURE FALSE     ZERO", "half"}));
  EXPECT_EQ(stripped->removedWarnings, 0);
}

TEST(FalseStructure, isNotCutFromOutputsWithoutOneOrWithAnError) {
  Lines withError = kOutput;
  withError.emplace_back("  ***** ERROR - late");
  Lines without = kOutput;
  without[2] = "STRUCTURE TRUE";
  for (const Lines& lines : {withError, without, Lines{}, Lines{"STRUCTURE FALSE     ZERO"}}) {
    EXPECT_FALSE(stripFalseStructure(joinLines(lines)));
  }
}

struct FalseStructureFiles : testing::Test {
  MemoryFileSystem memory;
  FaultyFileSystem files{memory};

  static Lines digest() {
    Lines lines;
    for (int i = 0; i < 47; ++i) lines.push_back(std::to_string(i));
    return lines;
  }
};

TEST_F(FalseStructureFiles, loseItInOutputAndDigest) {
  memory.put("/dam/run1_0.OUT", joinLines(kOutput));
  memory.put("/dam/run1_0.DIS", joinLines(digest(), "\n"));
  EXPECT_TRUE(succeeded(StripFalseStructure(files, "/dam/run1_0.V2D")));
  EXPECT_EQ(memory.content("/dam/run1_0.OUT"), joinLines(kStripped));
  Lines expected = digest();
  for (std::size_t i = 0; i < 30; ++i) {
    if (i != 0 && i != 2) expected[i] = " N/A";
  }
  expected[45] = "41";
  EXPECT_EQ(memory.content("/dam/run1_0.DIS"), joinLines(expected));
  EXPECT_FALSE(memory.content("/dam/run1_0.TMP"));
}

TEST_F(FalseStructureFiles, countNoWarningsBelowZero) {
  memory.put("/dam/run.OUT", joinLines(kOutput));
  Lines lines = digest();
  lines[45] = "    2";
  memory.put("/dam/run.DIS", joinLines(lines));
  EXPECT_TRUE(succeeded(StripFalseStructure(files, "/dam/run.V2D")));
  EXPECT_EQ(memory.content("/dam/run.DIS")->substr(memory.content("/dam/run.DIS")->size() - 11), "44\r\n0\r\n46\r\n");
}

TEST_F(FalseStructureFiles, stayAsTheyAreWithoutOne) {
  memory.put("/dam/run.OUT", "80-80 LIST OF INPUT\nENDJOB\n");
  memory.put("/dam/run.DIS", "a\nb\n");
  EXPECT_TRUE(succeeded(StripFalseStructure(files, "/dam/run.V2D")));
  EXPECT_EQ(memory.content("/dam/run.OUT"), "80-80 LIST OF INPUT\nENDJOB\n");
  EXPECT_EQ(memory.content("/dam/run.DIS"), "a\nb\n");
}

TEST_F(FalseStructureFiles, keepTheOldOutputWhenTheNewOneCannotBeWritten) {
  memory.put("/dam/run.OUT", joinLines(kOutput));
  memory.put("/dam/run.DIS", "a\n");
  files.failEvery("write", FailureKind::full);
  EXPECT_FALSE(StripFalseStructure(files, "/dam/run.V2D"));
  EXPECT_EQ(memory.content("/dam/run.OUT"), joinLines(kOutput));
  EXPECT_EQ(memory.content("/dam/run.DIS"), "a\n");
}

TEST_F(FalseStructureFiles, loseTwoFieldsOfTheDigest) {
  memory.put("/dam/run.DIS", joinLines(digest()));
  EXPECT_TRUE(succeeded(BlankFalseFields(files, "/dam/run.V2D")));
  Lines expected = digest();
  expected[14] = expected[15] = " N/A";
  EXPECT_EQ(memory.content("/dam/run.DIS"), joinLines(expected));
}

TEST_F(FalseStructureFiles, thatAreMissingAreAFailure) {
  EXPECT_TRUE(failed(StripFalseStructure(files, "/dam/x.V2D"), FailureKind::notFound, "No such file or directory"));
  EXPECT_TRUE(failed(BlankFalseFields(files, "/dam/x.V2D"), FailureKind::notFound, "No such file or directory"));
}

}  // namespace
}  // namespace kestra
