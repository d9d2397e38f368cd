#include "kestrasim/spillway_profiles.h"

#include <gtest/gtest.h>

#include "engines/dam_messages.h"

namespace kestra {
namespace {

const Lines kRunBehind = {"QUIL      02/09/20022         Earth",
                          "HYD       9                   C",
                          "          1",
                          "ENDTABLE",
                          "ASSPRFL   41        0                   Earth",
                          "          0         118       50        122       100       122",
                          "          300       110",
                          "ENDTABLE",
                          "ENDJOB",
                          "ENDRUN"};

TEST(SpillwayProfile, comesFromTheRunBehindTheMainRun) {
  RunMessages messages;
  const DamModel dam = readDam(readControlRecords(surface(kRunBehind).text()), messages);
  const std::vector<TablePoint>& profile = dam.auxiliary[0]->profile;
  ASSERT_EQ(profile.size(), 4U);
  EXPECT_EQ(profile[0].second, 118);
  EXPECT_EQ(profile[3].first, 300);
  EXPECT_EQ(profile[3].second, 110);
  const std::optional<DamRun> run = buildRun(dam, messages);
  ASSERT_TRUE(run);
  EXPECT_EQ(messages.lines(), Lines{});
  EXPECT_EQ(run->routing.outlets.auxiliary[0].lowest(), 122);
  EXPECT_GT(run->routing.outlets.auxiliary[0].at(124), 300);
}

TEST(SpillwayProfile, tellsAMissingSideOfItsTrapezoid) {
  struct Case {
    const char* record;
    const char* message;
  };
  const Case cases[] = {{"ASSURFACE 1Earth              60       110        900",
                         "***** WARNING - side slope is not given (ASSURFACE, line 31): 0 is taken"},
                        {"ASSURFACE 1Earth    3                  110        900",
                         "***** WARNING - bottom width is not given (ASSURFACE, line 31): 0 is taken"}};
  for (const Case& tested : cases) {
    DamText text = surface(kRunBehind);
    text.with("ASRATING", {tested.record, "          0         400       5.6", "ENDTABLE"});
    EXPECT_EQ(messagesOf(text.text()), Lines{tested.message});
  }
}

TEST(SpillwayProfile, goesByNameBeforeItGoesByOrder) {
  DamText text;
  text.with("ASRATING", {"ASSURFACE 1Left     3         60       110        900", "ENDTABLE",
                         "ASSURFACE 2Right    3         80       110        900", "ENDTABLE"});
  Lines behind{"QUIL      02/09/20023         Right", "ASSPRFL", "          0         5         10        6", "ENDRUN",
               "QUIL      02/09/20022         Left",  "ASSPRFL", "          0         7         10        8", "ENDRUN"};
  text.behind(behind);
  RunMessages messages;
  const DamModel dam = readDam(readControlRecords(text.text()), messages);
  EXPECT_EQ(dam.auxiliary[0]->profile.at(0).second, 7);
  EXPECT_EQ(dam.auxiliary[1]->profile.at(0).second, 5);
}

}  // namespace
}  // namespace kestra
