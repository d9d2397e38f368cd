// The output of the dam's run beside its control file: its date, and what stands in for it.
#include "control/dam_output.h"

#include <gtest/gtest.h>

#include "platform/faulty_file_system.h"
#include "support/control_desk.h"

namespace kestra {
namespace {

constexpr const char* kFile = "/p/dam.KSC";
constexpr const char* kMissing = "Error\r\n";

struct DamOutput : testing::Test, ControlDesk {
  DamOutput() {
    files.putDirectory("/p");
    files.clockNs = 1'234'188'185LL * 1'000'000'000LL;
    state.numAuxSpillways = 1;
    screens.auxSpillways.optQUIL(0).setSelected(true);
  }
};

TEST_F(DamOutput, isSaidToBeMissingOnceTheRunOfASpillwayIsBuilt) {
  control.BuildAuxRunText(0, kFile);
  EXPECT_EQ(files.content("/p/dam.OUT"), kMissing);
}

TEST_F(DamOutput, isNotMissedByADamWithoutAnalysedSpillways) {
  screens.auxSpillways.optNone(0).setSelected(true);
  EXPECT_EQ(control.BuildControlText(kFile), -1);
  EXPECT_EQ(files.paths(), std::vector<std::string>{"/p"});
}

TEST_F(DamOutput, isKeptWhereARunHasLeftIt) {
  for (const char* path : {"/p/dam.OUT", "/p/dam.out"}) {
    files.put(path, "results");
    EXPECT_EQ(control.BuildControlText(kFile), -1);
    EXPECT_EQ(files.content(path), "results");
    EXPECT_EQ(files.paths(), (std::vector<std::string>{"/p", path}));
    (void)files.removeFile(path);
  }
}

TEST_F(DamOutput, hasNoDateWhileItIsMissing) {
  EXPECT_EQ(dateOfOutput(ports, kFile), "");
  noteMissingOutput(ports, kFile);
  EXPECT_EQ(dateOfOutput(ports, kFile), "");
  for (const char* results : {"Error", "Error \n", "Errors\n", ""}) {
    files.put("/p/dam.OUT", results);
    EXPECT_EQ(dateOfOutput(ports, kFile), "02/09/2009 14:03:05") << results;
  }
}

TEST_F(DamOutput, isNotLookedForBesideAFileWithoutName) {
  for (const char* path : {"", "/p/", "/p/.KSC"}) noteMissingOutput(ports, path);
  EXPECT_EQ(files.paths(), std::vector<std::string>{"/p"});
}

TEST_F(DamOutput, isLeftAloneWhereTheDirectoryCannotBeReadOrWritten) {
  FaultyFileSystem faulty(files);
  const Ports broken{boxes, dialogs, settings, clipboard, processes, faulty, events, beeper, entropy, clock, help};
  files.put("/p/dam.OUT", "results");
  faulty.failCall(1, FailureKind::other);
  noteMissingOutput(broken, kFile);
  EXPECT_EQ(files.content("/p/dam.OUT"), "results");
  noteMissingOutput(broken, "/nowhere/dam.KSC");
  EXPECT_TRUE(takeBoxes().empty());
}

}  // namespace
}  // namespace kestra
