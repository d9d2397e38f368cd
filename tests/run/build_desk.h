#pragma once

#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {

inline std::string spillwayRun(const std::string& number) {
  return lines({"QUIL      02/09/2002" + PadField(number, 10) + "Way", "BTMWIDTH  FEET      50", "ENDJOB", "ENDRUN"});
}

inline const std::string kDam = lines({"KESTRA    01/01/2009Dam", "OPTION", "ENDRUN"});

class BuildPipelineTest : public testing::Test, public RunDesk {
 protected:
  BuildPipelineTest() {
    solveDamWith(damOutput({{"0", "100", {"7"}}, {"1", "101", {"8"}}}));
    solveSpillways();
    open("/p/dam.KSC", kDam + spillwayRun("1") + spillwayRun("2"));
  }
  void open(const std::string& path, const std::string& control) {
    memory.put(path, control);
    state.currentFile = path;
  }
  bool build(bool showProgress = false) { return pipeline.BuildMyFiles(showProgress); }
  std::string failing() {
    EXPECT_FALSE(build());
    return pipeline.whyNot();
  }
};

}  // namespace kestra
