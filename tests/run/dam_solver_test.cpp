#include "run/dam_solver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A triangle of 4 hours in steps of one: 5 points, twice as many steps with each attempt.
std::string controlFile(const std::string& option, const std::string& flags, const std::string& step = "1") {
  return lines({"KESTRA", record({"OPTION", "", "", "", option}), record({"HYD", "Storm", step, "0"}) + flags,
                record({"", "", "0", "50", "100", "50", "0"}), "ENDTABLE", "STROUTE", "ENDRUN"});
}

const std::vector<std::string> kCrests = {" PSpINLET                      100"};

class DamSolverTest : public testing::Test, public RunDesk {
 protected:
  void run(const std::string& control, const std::string& path = "/p/dam.KSC") {
    memory.put(path, control);
    RunDamSolver(context, path, false);
  }
  // Each attempt, by its number of points, gets an output of its own.
  void solveAttempts(const std::map<std::string, std::string>& outputs) {
    processes.effects["/app/KestraSim.exe"] = [this, outputs](const ProcessRequest& request) -> ProcessOutcome {
      const std::string stem = stemIn(request);
      const auto output = outputs.find(stem.substr(std::string("/p/dam").size()));
      if (output == outputs.end()) return Exited{1};
      memory.put(stem + ".OUT", output->second);
      memory.put(stem + ".BRE", "breach of " + stem);
      memory.put(stem + ".HCT", "headcut of " + stem);
      return Exited{0};
    };
  }
};

TEST_F(DamSolverTest, runsOnTheControlFileItselfWithoutFlags) {
  solveDamWith("out");
  run(controlFile("", "0C"));
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/dam.KSC"));
  EXPECT_EQ(text("/p/dam.OUT"), "out");
  EXPECT_FALSE(has("/p/dam.V2D"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(DamSolverTest, runsOnceOnAResampledHydrographWhereTheStepVaries) {
  solveDamWith("out");
  run(lines({"KESTRA", record({"HYD", "Storm", "0.5", "3"}) + " V", record({"", "1", "10"}), record({"", "2", "1,000"}),
             "ENDTABLE", "STROUTE", "ENDRUN"}));
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/dam.V2D"));
  EXPECT_EQ(text("/p/dam.V2D"),
            lines({"KESTRA", "HYD       Storm      0.5      3         ",
                   "                     10        505       1000     ", "ENDTABLE", "STROUTE", "ENDRUN"}));
}

TEST_F(DamSolverTest, usesAStepOfOneHourWhereNoneIsGiven) {
  solveDamWith("out");
  for (const char* step : {"", "0.0009"}) {
    run(lines(
        {record({"HYD", "Storm", step, ""}) + "0V", record({"", "0", "10"}), record({"", "2", "20"}), "ENDTABLE"}));
    EXPECT_EQ(text("/p/dam.V2D"), lines({"HYD       Storm      1                  ",
                                         "                     10        15        20       ", "ENDTABLE"}));
  }
}

TEST_F(DamSolverTest, keepsTheOldRecordForAHydrographOfOnePointAtMost) {
  solveDamWith("out");
  for (const std::string& rows : {std::string(), lines({record({"", "1", "10", ""})})}) {
    run(lines({"KESTRA", record({"HYD", "Storm", "1", ""}) + "0V"}) + rows + lines({"ENDTABLE", "ENDRUN"}));
    EXPECT_EQ(text("/p/dam.V2D"), lines({"KESTRA", record({"HYD", "Storm", "1", ""}) + "0V", "ENDTABLE", "ENDRUN"}));
  }
}

TEST_F(DamSolverTest, halvesTheStepUntilThePeakPoolSettles) {
  solveAttempts({{"5", damOutput({{"0", "100"}, {"1", "110"}, {"2", "104"}}, kCrests)},
                 {"9", damOutput({{"0", "100"}, {"1", "112"}}, kCrests)},
                 {"17", damOutput({{"0", "100"}, {"1", "112.1"}}, kCrests)}});
  run(controlFile("NOBREACH", "1C"));
  EXPECT_THAT(started(),
              ElementsAre("KestraSim.exe /p/dam5.V2D", "KestraSim.exe /p/dam9.V2D", "KestraSim.exe /p/dam17.V2D"));
  EXPECT_EQ(text("/p/dam5.V2D").substr(0, 1 + text("/p/dam5.V2D").find("ENDTABLE")),
            lines({"KESTRA", record({"OPTION", "", "", "", "NOBREACH"}), "HYD       Storm      1        0         ",
                   "                     0         50        100       50        0        "}) +
                "E");
  EXPECT_EQ(text("/p/dam.OUT"), text("/p/dam17.OUT"));
  EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam17");
  EXPECT_EQ(text("/p/dam.HCT"), "headcut of /p/dam17");
  EXPECT_EQ(tables.digestFields[1], "100");
  EXPECT_TRUE(has("/p/dam9.OUT")) << "attempts stay";
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(DamSolverTest, measuresABreachRunByItsPeakPoolToo) {
  solveAttempts({{"5", damOutput({{"0", "110"}, {"1", "90"}}, kCrests)}, {"9", damOutput({{"0", "110.05"}}, kCrests)}});
  run(controlFile("", "1C"));
  EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam9");
}

TEST_F(DamSolverTest, countsAbsentOptionAsARunWithoutBreach) {
  solveAttempts(
      {{"5", damOutput({{"150", "110"}, {"151", "120"}}, kCrests)}, {"9", damOutput({{"0", "120"}}, kCrests)}});
  run(lines({record({"HYD", "Storm", "1", "0"}) + "1C", record({"", "", "0", "50", "100", "50", "0"}), "ENDTABLE"}));
  EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam9") << "compared by the highest pool, not by the one after 100 hours";
}

TEST_F(DamSolverTest, measuresADrawdownAtAMomentThatOnlyRises) {
  solveAttempts({{"5", damOutput({{"99", "500"}, {"101", "110"}, {"120", "105"}}, kCrests)},
                 {"9", damOutput({{"100.5", "150"}, {"102", "108"}, {"120", "105"}}, kCrests)},
                 {"17", damOutput({{"101", "130"}, {"103", "108.01"}}, kCrests)}});
  run(controlFile("DRAWDOWN", "1C"));
  EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam17");
  EXPECT_EQ(started().size(), 3U);
}

TEST_F(DamSolverTest, acceptsADrawdownWhoseTableEndsBeforeTheMoment) {
  solveAttempts({{"5", damOutput({{"99", "500"}}, kCrests)}});
  run(controlFile("DRAWDOWN", "1C"));
  EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam5");
}

TEST_F(DamSolverTest, keepsTheLastPoolOfADrawdownWhoseNextTableIsShorter) {
  solveAttempts({{"5", damOutput({{"101", "110"}}, kCrests)}, {"9", damOutput({{"99", "500"}}, kCrests)}});
  run(controlFile("DRAWDOWN", "1C"));
  EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam9");
}

TEST_F(DamSolverTest, acceptsAtOnceAPoolThatNeverRisesAboveTheLowestCrest) {
  for (const char* pool : {"99.9", "100", "100.0009", "0", "", "****", "NaN"}) {
    solveAttempts({{"5", damOutput({{"0", pool}}, kCrests)}});
    run(controlFile("", "1C"));
    EXPECT_EQ(text("/p/dam.BRE"), "breach of /p/dam5") << pool;
    EXPECT_THAT(takeBoxes(), IsEmpty());
  }
}

TEST_F(DamSolverTest, takesTheLowestOfTheCrestsOnlyWhereThereIsAPrincipalSpillway) {
  const std::string rating = " ASRATING  1East";
  const std::vector<std::string> both = {kCrests[0], rating, "           95        0", " ENDTABLE"};
  const std::vector<std::string> auxiliaryOnly(both.begin() + 1, both.end());
  const auto accepted = [&](const std::vector<std::string>& echo, const char* first, const char* second) {
    processes.requests.clear();
    solveAttempts({{"5", damOutput({{"0", first}}, echo)},
                   {"9", damOutput({{"0", second}}, echo)},
                   {"17", damOutput({{"0", second}}, echo)}});
    run(controlFile("", "1C"));
    return processes.requests.size();
  };
  EXPECT_EQ(accepted(both, "97", "97.03"), 3U) << "0.03 of 2.03 ft";
  EXPECT_EQ(accepted(both, "97", "97.02"), 2U) << "0.02 of 2.02 ft";
  EXPECT_EQ(accepted(auxiliaryOnly, "97", "97.9"), 2U) << "0.9 of 97.9 ft";
}

TEST_F(DamSolverTest, tellsThatTenAttemptsDidNotSettleAndLeavesNoOutput) {
  double pool = 110;
  processes.effects["/app/KestraSim.exe"] = [&](const ProcessRequest& request) -> ProcessOutcome {
    memory.put(stemIn(request) + ".OUT", damOutput({{"0", std::to_string(static_cast<int>(pool))}}, kCrests));
    pool += 10;
    return Exited{0};
  };
  run(controlFile("", "1C"));
  EXPECT_THAT(takeBoxes(), ElementsAre("Kestra B: Failed to converge. (none)"));
  ASSERT_EQ(started().size(), 10U);
  EXPECT_EQ(started().back(), "KestraSim.exe /p/dam2049.V2D") << "4 hours in steps of a 512th";
  EXPECT_TRUE(text("/p/dam2049.V2D").find("Storm      0.0019531") != std::string::npos);
  EXPECT_FALSE(has("/p/dam.OUT"));
  EXPECT_TRUE(has("/p/dam2049.OUT"));
}

TEST_F(DamSolverTest, stretchesTheStepOfAnAttemptWithMoreThan17000Points) {
  solveAttempts({{"17000", damOutput({{"0", "90"}}, kCrests)}});
  run(lines(
      {record({"HYD", "Storm", "0.001", "0"}) + "1V", record({"", "0", "0"}), record({"", "100", "10"}), "ENDTABLE"}));
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/dam17000.V2D"));
  const std::string data = text("/p/dam17000.V2D");
  EXPECT_EQ(std::count(data.begin(), data.end(), '\n'), 1 + 17000 / 5 + 1);
  EXPECT_TRUE(has("/p/dam.OUT"));
}

TEST_F(DamSolverTest, takesNoOldFileForTheOutputOfAnAttempt) {
  memory.put("/p/dam5.OUT", damOutput({{"0", "90"}}, kCrests));
  memory.put("/p/dam5.BRE", "old");
  processes.effects["/app/KestraSim.exe"] = [](const ProcessRequest&) -> ProcessOutcome { return Exited{0}; };
  run(controlFile("", "1C"));
  EXPECT_THAT(takeBoxes(), ElementsAre("Error: Computation Error: /p/dam5.OUT: No such file or directory (critical)"));
  EXPECT_FALSE(has("/p/dam.OUT"));
  EXPECT_FALSE(has("/p/dam.BRE"));
}

TEST_F(DamSolverTest, takesNoNameOfAnAttemptThatAnotherControlFileHas) {
  memory.put("/p/dam5.KSC", "another run");
  memory.put("/p/dam5.OUT", "its output");
  solveAttempts({{"5~", damOutput({{"0", "90"}}, kCrests)}});
  run(controlFile("", "1C"));
  EXPECT_EQ(text("/p/dam5.OUT"), "its output");
  EXPECT_EQ(text("/p/dam.OUT"), damOutput({{"0", "90"}}, kCrests));
}

TEST_F(DamSolverTest, findsResultsWhateverTheLettersOfTheirNames) {
  processes.effects["/app/KestraSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
    memory.put(stemIn(request) + ".out", damOutput({{"0", "90"}}, kCrests));
    memory.put(stemIn(request) + ".bre", "breach");
    return Exited{0};
  };
  run(controlFile("", "1C"));
  EXPECT_TRUE(has("/p/dam.OUT"));
  EXPECT_EQ(text("/p/dam.BRE"), "breach");
}

TEST_F(DamSolverTest, tellsWhatItCannotReadOrWrite) {
  RunDamSolver(context, "/p/none.KSC", false);
  EXPECT_THAT(takeBoxes(), ElementsAre("Error: Computation Error: /p/none.KSC: No such file or directory (critical)"));
  files.failEvery("write", FailureKind::full);
  run(controlFile("", " V"));
  EXPECT_THAT(takeBoxes(), ElementsAre("Error: Computation Error: /p/dam.V2D: made to fail (critical)"));
  EXPECT_FALSE(has("/p/dam.V2D")) << "no half of a file";
  run(lines(
      {record({"HYD", "Storm", "1", "0"}) + "0V", record({"", "0", "1e999"}), record({"", "1", "1"}), "ENDTABLE"}));
  EXPECT_THAT(takeBoxes(), ElementsAre("Error: Computation Error: Overflow: a number is too large. (critical)"));
}

TEST_F(DamSolverTest, showsItsStepOnceTheControlFileIsRead) {
  solveDamWith("out");
  memory.put("/p/dam.KSC", controlFile("", ""));
  progress.begin(8);
  GaugeWatch gauge(progress);
  RunDamSolver(context, "/p/dam.KSC", true);
  EXPECT_THAT(gauge.values, ElementsAre(2));
  RunDamSolver(context, "/p/none.KSC", true);
  RunDamSolver(context, "/p/dam.KSC", false);
  EXPECT_THAT(gauge.values, ElementsAre(2));
}

TEST_F(DamSolverTest, handsOverNamesOfAnyKindWhole) {
  solveDamWith("out");
  for (const char* name :
       {"/p/my dam.KSC", "/p/\"dam\".KSC", "/p/-dam.KSC", "/p/D\xC3\xA4mme.KSC", "/p/$(x);`y`.KSC"}) {
    run(controlFile("", ""), name);
    EXPECT_EQ(started().back(), std::string("KestraSim.exe ") + name);
  }
  RunDamSolver(context, "-dam.KSC", false);
  EXPECT_EQ(started().back(), "KestraSim.exe /p/-dam.KSC") << "no option of the solver";
}

TEST_F(DamSolverTest, keepsWhatIsPrintedInTheLogOfTheControlFile) {
  solveDamWith("out");
  run(controlFile("", " V"));
  EXPECT_EQ(processes.requests.front().outputFile, "/p/dam.log");
}

}  // namespace
}  // namespace kestra
