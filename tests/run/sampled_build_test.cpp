#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/build_desk.h"

namespace kestra {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

// Writes down what is asked of it, fails at one step.
class ScriptedSampling : public Sampling {
 public:
  explicit ScriptedSampling(RunDesk& desk) : desk_(desk) {}
  bool readBlock(const std::string&) override {
    desk_.state.totalInstances = "3";
    return note("read block");
  }
  HydrographCheck checkHydrograph(const std::string&) override {
    calls.emplace_back("check");
    return {valid, true};
  }
  bool drawSamples(const std::string& stem, bool hydrograph, int number) override {
    return note("draw " + stem + (hydrograph ? " with " : " without ") + std::to_string(number));
  }
  bool readSamples(const std::string& stem, int number) override {
    return note("read " + stem + " " + std::to_string(number));
  }
  bool writeInstances(const std::string& base, const std::string& records, bool, const HydrographCheck&, int) override {
    for (const char* k : {"_0", "_1", "_2"}) desk_.memory.put(base + k + ".V2D", records);
    return note("write " + base);
  }

  std::vector<std::string> calls;
  bool valid = true;
  std::string failing;

 private:
  bool note(const std::string& call) {
    calls.push_back(call);
    return call != failing;
  }

  RunDesk& desk_;
};

class SampledBuild : public BuildPipelineTest {
 protected:
  SampledBuild() {
    open("/p/dam.KSC", kDam + lines({"QUIL      02/09/20021", "LHS       3", "PK", "ENDTABLE", "ENDJOB", "ENDRUN"}));
  }
  ScriptedSampling sampling{*this};
  BuildPipeline sampled{context, &sampling};
};

TEST_F(SampledBuild, drawsReadsAndWritesSamplesAndRunsEachInstance) {
  EXPECT_TRUE(sampled.BuildMyFiles(false));
  EXPECT_THAT(sampling.calls,
              ElementsAre("read block", "check", "draw dam1 with 1", "read dam1 1", "write /p/dam/dam1"));
  EXPECT_THAT(started(), ElementsAre("KestraSim.exe /p/dam.KSC", "TorveSim.exe /p/dam/dam1_0.V2D",
                                     "TorveSim.exe /p/dam/dam1_1.V2D", "TorveSim.exe /p/dam/dam1_2.V2D"));
  EXPECT_TRUE(has("/p/dam/dam1_2.DG6"));
}

TEST_F(SampledBuild, leavesTheHydrographAloneWhoseDistributionIsNotValid) {
  sampling.valid = false;
  EXPECT_TRUE(sampled.BuildMyFiles(false));
  EXPECT_THAT(takeBoxes(), ElementsAre("Kestra B: Invalid Data for the HydroGraph Probability Distribution (none)"));
  EXPECT_THAT(sampling.calls, Contains("draw dam1 without 1"));
  open("/p/dam.KSC", kDam + spillwayRun("1"));
  EXPECT_TRUE(sampled.BuildMyFiles(false));
  EXPECT_THAT(takeBoxes(), ElementsAre("Kestra B: Invalid Data for the HydroGraph Probability Distribution (none)"));
}

TEST_F(SampledBuild, endsWithAStepThatFails) {
  for (const char* step : {"read block", "draw dam1 with 1", "read dam1 1", "write /p/dam/dam1"}) {
    sampling.failing = step;
    EXPECT_FALSE(sampled.BuildMyFiles(false)) << step;
    EXPECT_THAT(sampled.whyNot(), testing::StartsWith("dam1: Its sampl"));
  }
  EXPECT_THAT(summary.calls, IsEmpty());
  EXPECT_EQ(failing(), "dam1: There is nothing here that draws samples.");
}

}  // namespace
}  // namespace kestra
