#include "kestrasim/program.h"

#include <gtest/gtest.h>

#include <sstream>

#include "engines/dam_text.h"
#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"

namespace kestra {
namespace {

struct Outcome {
  int code;
  std::string output;
  std::string errors;
};

Outcome run(const std::vector<std::string>& arguments, FileSystem& files) {
  std::ostringstream output;
  std::ostringstream errors;
  const int code = runProgram(arguments, files, output, errors);
  return {code, output.str(), errors.str()};
}

TEST(KestraSim, writesItsFilesBesideTheControlFile) {
  MemoryFileSystem files;
  files.put("/dams.d/mill.KSC", breachText().text());
  const Outcome outcome = run({"/dams.d/mill.KSC"}, files);
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.output + outcome.errors, "");
  EXPECT_EQ(files.paths(), (std::vector<std::string>{"/dams.d", "/dams.d/mill.BRE", "/dams.d/mill.HCT",
                                                     "/dams.d/mill.KSC", "/dams.d/mill.OUT"}));
}

TEST(KestraSim, takesAPathWithoutExtension) {
  MemoryFileSystem files;
  files.put("/dams.d/mill", DamText().text());
  EXPECT_EQ(run({"/dams.d/mill"}, files).code, 0);
  EXPECT_TRUE(files.content("/dams.d/mill.OUT"));
}

TEST(KestraSim, removesHistoriesOfAnEarlierRun) {
  MemoryFileSystem files;
  files.put("/mill.KSC", DamText().text());
  files.put("/mill.BRE", "old");
  files.put("/mill.HCT", "old");
  EXPECT_EQ(run({"/mill.KSC"}, files).code, 0);
  EXPECT_FALSE(files.content("/mill.BRE"));
  EXPECT_FALSE(files.content("/mill.HCT"));
}

TEST(KestraSim, endsWellWithAReportOfErrors) {
  MemoryFileSystem files;
  files.put("/mill.KSC", "KESTRA    01/01/2009Nothing\r\nENDRUN\r\n");
  EXPECT_EQ(run({"/mill.KSC"}, files).code, 0);
  EXPECT_NE(files.content("/mill.OUT")->find(" KESTRA    01/01/2009Nothing\r\n"), std::string::npos);
}

TEST(KestraSim, failsWithoutItsInput) {
  MemoryFileSystem files;
  const Outcome outcome = run({"/mill.KSC"}, files);
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.errors, "KestraSim: /mill.KSC: No such file or directory\n");
}

TEST(KestraSim, tellsWhatHalfStepsChangeWhenAsked) {
  MemoryFileSystem files;
  files.put("/mill.KSC", breachText().text());
  EXPECT_EQ(run({"--check-steps", "/mill.KSC"}, files).code, 0);
  const std::string report = files.content("/mill.OUT").value();
  EXPECT_NE(report.find("\r\nHalf the steps change the highest pool by"), std::string::npos);
  EXPECT_EQ(report.find("change the peaks"), std::string::npos);
}

TEST(KestraSim, failsWhenItsReportCannotBeWritten) {
  MemoryFileSystem memory;
  memory.put("/mill.KSC", DamText().text());
  FaultyFileSystem files(memory);
  files.failEvery("write", FailureKind::full);
  const Outcome outcome = run({"/mill.KSC"}, files);
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(outcome.errors.starts_with("KestraSim: /"));
  EXPECT_FALSE(memory.content("/mill.OUT"));
}

TEST(KestraSim, tellsHowItIsUsed) {
  MemoryFileSystem files;
  EXPECT_EQ(run({}, files).code, 2);
  EXPECT_EQ(run({"a", "b"}, files).code, 2);
  EXPECT_EQ(run({"--help"}, files).output,
            "usage: KestraSim.exe [--check-steps] FILE\n"
            "Routes the flood of a control file through its reservoir and over its dam. Writes the stem of FILE with "
            ".OUT, and\n"
            "with .BRE and .HCT when a breach is asked for.\n"
            "  --check-steps  routes once more by half steps and tells what that changes\n");
  EXPECT_EQ(run({"--version"}, files).code, 0);
}

}  // namespace
}  // namespace kestra
