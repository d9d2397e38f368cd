#include "run/programs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

TEST(SplitCommandLine, takesTheProgramUnquotedAndArgumentsAsWordsOrInQuotes) {
  struct Case {
    const char* line;
    const char* program;
    Texts arguments;
  };
  MemoryFileSystem files;
  files.put("/my apps/Solve it.exe", "");
  files.put("/my", "");
  files.put("/bin/run", "");
  const Case cases[] = {
      {"/app/KestraSim.exe \"/p/my dam.KSC\"", "/app/KestraSim.exe", {"/p/my dam.KSC"}},
      {"/app/FerritLHS.exe  \"/p/a.lhi\"", "/app/FerritLHS.exe", {"/p/a.lhi"}},
      {"/my apps/Solve it.exe \"/p/a.KSC\"", "/my apps/Solve it.exe", {"/p/a.KSC"}},
      {"/my apps/Solve it.exe a b", "/my apps/Solve it.exe", {"a", "b"}},
      {"/no such/program \"/p/a.KSC\"", "/no such/program", {"/p/a.KSC"}},
      {"/bin/run -x \"a b\" c\"d e\"f", "/bin/run", {"-x", "a b", "cd ef"}},
      {"\"/my apps/Solve it.exe\" x", "/my apps/Solve it.exe", {"x"}},
      {"cd /p/dam", "cd", {"/p/dam"}},
      {"KestraSim.exe \"\"", "KestraSim.exe", {""}},
      {"  /bin/run  ", "/bin/run", {}},
      {"/bin/run \"it's; $(x) `y` | & \\\"", "/bin/run", {"it's; $(x) `y` | & \\"}},
      {"", "", {}},
  };
  for (const Case& c : cases) {
    const CommandLine command = splitCommandLine(files, c.line);
    EXPECT_EQ(command.program, c.program) << c.line;
    EXPECT_EQ(command.arguments, c.arguments) << c.line;
  }
}

class ProgramsTest : public testing::Test, public RunDesk {
 protected:
  void solverEndsWith(const ProcessOutcome& outcome) {
    processes.effects["/app/KestraSim.exe"] = [outcome](const ProcessRequest&) { return outcome; };
  }
};

TEST_F(ProgramsTest, givesTheExitCodeAndDecidesNothingOnIt) {
  solverEndsWith(Exited{3});
  EXPECT_EQ(programs.RunAndWait("/app/KestraSim.exe \"/p/dam.KSC\""), 3);
  EXPECT_THAT(told, ElementsAre("KestraSim.exe ended with exit code 3."));
  EXPECT_THAT(takeBoxes(), IsEmpty());
  ASSERT_EQ(processes.requests.size(), 1U);
  EXPECT_EQ(processes.requests[0].program, "/app/KestraSim.exe");
  EXPECT_THAT(processes.requests[0].arguments, ElementsAre("/p/dam.KSC"));
  EXPECT_EQ(processes.requests[0].directory, "") << "where this program stands";
}

TEST_F(ProgramsTest, tellHowAProgramThatCrashedWasEnded) {
  solverEndsWith(Signalled{11, "SIGSEGV"});
  EXPECT_EQ(programs.run("KestraSim.exe", "/p/dam.KSC"), 139);
  EXPECT_THAT(told, ElementsAre("KestraSim.exe was ended by SIGSEGV."));
}

TEST_F(ProgramsTest, nameAMissingProgramAndWhereItWasLookedFor) {
  host.show(progress);
  EXPECT_EQ(programs.run("KestraSim.exe", "/p/dam.KSC"), 0);
  const std::string message = "KestraSim.exe could not be started from /app: No such file or directory.";
  EXPECT_THAT(told, ElementsAre(message));
  EXPECT_EQ(progress.lblTold.caption(), message);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(ProgramsTest, lookForANameWithoutDirectoryInTheApplicationDirectory) {
  solverEndsWith(Exited{0});
  memory.put("/p/cd", "a program of that name in the project is not started");
  EXPECT_EQ(programs.RunAndWait("cd /p/dam"), 0);
  EXPECT_EQ(programs.RunAndWait("KestraSim.exe x"), 0);
  EXPECT_THAT(started(), ElementsAre("cd /p/dam", "KestraSim.exe x"));
  EXPECT_EQ(programs.RunAndWait(""), 0);
  EXPECT_EQ(processes.requests.size(), 2U);
}

TEST_F(ProgramsTest, keepInTheLogWhichProgramsRanAndHowTheyEnded) {
  solverEndsWith(Exited{0});
  {
    const RunLog log(programs, "/p/dam.log");
    const RunLog inner(programs, "/p/other.log");
    programs.run("KestraSim.exe", "/p/dam.KSC");
    programs.run("TorveSim.exe", "/p/dam/dam1_0.V2D");
  }
  programs.run("KestraSim.exe", "/p/dam.KSC");
  EXPECT_EQ(text("/p/dam.log"), lines({"-- KestraSim.exe /p/dam.KSC", "", "-- KestraSim.exe ended with exit code 0",
                                       "-- TorveSim.exe /p/dam/dam1_0.V2D", "",
                                       "-- TorveSim.exe could not be started from /app: No such file or directory."}));
  EXPECT_FALSE(has("/p/other.log"));
  EXPECT_EQ(processes.requests[0].outputFile, "/p/dam.log");
  EXPECT_TRUE(processes.requests[0].appendsOutput);
  EXPECT_EQ(processes.requests[2].outputFile, "") << "no run, no log";
}

TEST_F(ProgramsTest, runWithoutALogWhereItCannotBeWritten) {
  solverEndsWith(Exited{0});
  files.failEvery("append", FailureKind::full);
  const RunLog log(programs, "/p/dam.log");
  EXPECT_EQ(programs.run("KestraSim.exe", "/p/dam.KSC"), 0);
  EXPECT_EQ(processes.requests[0].outputFile, "");
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(ProgramsTest, showWhichProgramRunsAndForHowLong) {
  host.show(progress);
  Texts shown;
  events.onPump = [&] {
    shown.push_back(progress.lblWhat.caption());
    clock.now += 65'000'000'000;
  };
  solverEndsWith(Exited{0});
  programs.run("KestraSim.exe", "/p/dam.KSC");
  EXPECT_THAT(shown, ElementsAre("KestraSim.exe dam.KSC  0:00", "KestraSim.exe dam.KSC  1:05"));
}

TEST_F(ProgramsTest, leaveTheProgressScreenAloneWhileItIsNotOnShow) {
  solverEndsWith(Exited{0});
  programs.run("KestraSim.exe", "/p/dam.KSC");
  EXPECT_FALSE(progress.loaded());
  EXPECT_EQ(progress.lblWhat.caption(), "");
  EXPECT_GE(events.pumps, 1);
}

TEST_F(ProgramsTest, endWithTheProgramThatTheUserStops) {
  progress.begin(8);
  solverEndsWith(Exited{0});
  int pumps = 0;
  events.onPump = [&] {
    if (++pumps == 2) progress.cmdStop.click();
  };
  const RunLog log(programs, "/p/dam.log");
  try {
    programs.run("KestraSim.exe", "/p/dam.KSC");
    ADD_FAILURE() << "not stopped";
  } catch (const RunStopped& stopped) {
    EXPECT_STREQ(stopped.what(), "Stopped while KestraSim.exe ran.");
  }
  EXPECT_EQ(text("/p/dam.log"), lines({"-- KestraSim.exe /p/dam.KSC", "", "-- Stopped while KestraSim.exe ran."}));
  EXPECT_THROW(programs.run("TorveSim.exe", "/p/x.V2D"), RunStopped) << "none is started behind a stop";
  EXPECT_EQ(processes.requests.size(), 1U);
}

TEST_F(ProgramsTest, startNothingInAProjectThatIsOpenForLookingOnly) {
  state.projectReadOnly = true;
  EXPECT_THROW(programs.run("KestraSim.exe", "/p/dam.KSC"), RuntimeFault);
  EXPECT_THAT(processes.requests, IsEmpty());
}

}  // namespace
}  // namespace kestra
