#include "run/sampling.h"

#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {
namespace {

TEST(SamplingBlock, isAnLhsRecordWithAtLeastOneMoreBeforeItsEnd) {
  EXPECT_TRUE(holdsSamplingBlock(lines({"QUIL", "LHS       10        1", "PK        Normal", "ENDTABLE"})));
  EXPECT_TRUE(holdsSamplingBlock(lines({"LHS", "PK"})));
  EXPECT_FALSE(holdsSamplingBlock(lines({"LHS       10", "ENDTABLE"})));
  EXPECT_FALSE(holdsSamplingBlock(lines({"LHS"})));
  EXPECT_FALSE(holdsSamplingBlock(lines({"LHSX", "PK", "ENDTABLE"})));
  EXPECT_FALSE(holdsSamplingBlock(""));
}

TEST(SingleInstance, isTheRecordsWithTheirEndBehind) {
  EXPECT_EQ(singleInstance(lines({"QUIL", "  ", "ENDJOB", "ENDRUN"})), lines({"QUIL", "  ", "ENDJOB", "ENDRUN"}));
  EXPECT_EQ(singleInstance("QUIL\nHYD"), lines({"QUIL", "HYD", "ENDJOB", "ENDRUN"}));
}

}  // namespace
}  // namespace kestra
