#include "run/integrity_check.h"

#include <gtest/gtest.h>

#include "support/input_desk.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

constexpr const char* kChecker = "/app/KestraIntCheck.exe";
constexpr const char* kSpillwayChecker = "/app/IntCheck.exe";
constexpr const char* kHeading = "    2    1\r\n";

struct IntegrityCheck : testing::Test, InputDesk {
  IntegrityCheck() { files.putDirectory("/dam"); }

  // What a checker does: it writes a file.
  void checkerWrites(const char* program, const std::string& path, const std::string& text) {
    processes.effects[program] = [this, path, text](const ProcessRequest&) {
      files.put(path, text);
      return Exited{0};
    };
  }
  Status run() { return RunIntegrityChecker(ports, "/app", "/dam/a b.KSC"); }
};

TEST_F(IntegrityCheck, startsTheCheckerOnTheFileAndKeepsACopyOfWhatItFound) {
  checkerWrites(kChecker, "/dam/a b.ERR", "x\r\nF\r\n");
  EXPECT_TRUE(succeeded(run()));
  ASSERT_EQ(processes.requests.size(), 1U);
  EXPECT_EQ(processes.requests[0].program, kChecker);
  EXPECT_EQ(processes.requests[0].arguments, std::vector<std::string>{"/dam/a b.KSC"});
  EXPECT_EQ(files.content("/dam/a b.ERR0"), "x\r\nF\r\n");
}

TEST_F(IntegrityCheck, startsTheOtherCheckerOnEachSpillwayFileThatIsThere) {
  checkerWrites(kChecker, "/dam/a b.ERR", "");
  checkerWrites(kSpillwayChecker, "/dam/a b.ER1", "s\r\n");
  files.put("/dam/a b.AS1", "");
  files.put("/dam/A B.as3", "");
  EXPECT_TRUE(succeeded(run()));
  ASSERT_EQ(processes.requests.size(), 3U);
  EXPECT_EQ(processes.requests[1].arguments, std::vector<std::string>{"/dam/a b.AS1"});
  EXPECT_EQ(processes.requests[2].arguments, std::vector<std::string>{"/dam/A B.as3"});
  EXPECT_EQ(files.content("/dam/a b.ERR1"), "s\r\n");
  EXPECT_EQ(files.content("/dam/a b.ERR2"), std::nullopt);
  EXPECT_EQ(files.content("/dam/a b.ERR3"), "s\r\n");
  EXPECT_EQ(files.content("/dam/a b.ER1"), std::nullopt);
}

TEST_F(IntegrityCheck, leavesNothingOfTheCheckBefore) {
  for (const char* kind : {"ERR", "ERR0", "ERR1", "ERR2", "ERR3", "ER1"}) {
    files.put(std::string("/dam/a b.") + kind, "x\r\nF\r\n");
  }
  processes.effects[kChecker] = [](const ProcessRequest&) { return Exited{1}; };
  EXPECT_TRUE(succeeded(run()));
  EXPECT_EQ(CountFindings(files, "/dam/a b.ERR"), Findings());
  EXPECT_EQ(files.paths(), std::vector<std::string>{"/dam"});
}

TEST_F(IntegrityCheck, failsWithTheCheckersPathWhenItCannotBeStarted) {
  const Status status = run();
  EXPECT_TRUE(failed(status, FailureKind::notFound, "No such file or directory"));
  EXPECT_EQ(status.failure().path, kChecker);
}

TEST_F(IntegrityCheck, countsErrorsAndWarningsBehindTheHeading) {
  struct Row {
    std::string dam;
    std::string spillway;
    Findings findings;
  };
  const std::string heading = kHeading;
  const std::string dam = "F    3\r\nW    5\r\nF\r\nX\r\n\r\nWARNING: odd\r\n f\r\n";
  const std::string spillway = "F        2\r\n    W    3\r\n  F      3\r\nFW\r\nF2\r\n";
  const Row table[] = {{"", "", {0, 0}},
                       {"F\r\nF\r\n", "", {1, 0}},
                       {"no heading end", "", {0, 0}},
                       {heading + dam, "", {2, 2}},
                       {"", heading + spillway, {2, 1}}};
  for (const Row& row : table) {
    files.put("/dam/a.ERR", row.dam);
    files.put("/dam/a.ERR2", row.spillway);
    EXPECT_EQ(CountFindings(files, "/dam/a.ERR"), row.findings) << row.dam << row.spillway;
  }
}

TEST_F(IntegrityCheck, countsNothingInFilesThatAreNotThere) {
  EXPECT_EQ(CountFindings(files, "/dam/a.ERR"), Findings());
  EXPECT_TRUE(findingLines(files, "/dam/a.ERR").empty());
}

TEST_F(IntegrityCheck, givesTheLinesOfTheFindingsInTheOrderOfTheFiles) {
  files.put("/dam/a.ERR0", "x\r\nF    3   \r\n\r\nW\r\n");
  files.put("/dam/a.ERR3", "x\r\nthird\r\n");
  files.put("/dam/a.ERR1", "x\r\nfirst");
  EXPECT_EQ(findingLines(files, "/dam/a.ERR"), (std::vector<std::string>{"F    3", "W", "first", "third"}));
}

TEST_F(IntegrityCheck, namesTheErrorFileAfterTheControlFileWithoutItsLastThreeCharacters) {
  const std::pair<const char*, const char*> table[] = {
      {"/d/dam.KSC", "/d/dam.ERR"}, {"/d/a.b.ksc", "/d/a.b.ERR"}, {"/d/dam.v2cx", "/d/dam.vERR"}, {"a", "ERR"}};
  for (const auto& [file, errors] : table) EXPECT_EQ(errorFileOf(file), errors);
}

}  // namespace
}  // namespace kestra
