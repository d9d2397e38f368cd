#include "run/instance_records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kHyd = "HYD       9                   C";

TEST(InstanceRecords, tellTheLinkToTheDamsRun) {
  const InstanceRecords records = readInstanceRecords(
      lines({"QUIL      02/09/20022", "KESTRA    2          /p/my dam.KSC ", "MODIFIED  3/9/2026 1:05:07 PM "}));
  EXPECT_EQ(records.spillwayNumber, 2);
  EXPECT_EQ(records.damFile, "/p/my dam.KSC");
  EXPECT_EQ(records.recordedDate, "3/9/2026 1:05:07 PM");
}

TEST(InstanceRecords, haveNoLinkInRecordsThatAreTooShort) {
  const InstanceRecords records = readInstanceRecords(lines({"KESTRA    2         ", "MODIFIED  "}));
  EXPECT_EQ(records.spillwayNumber, 0);
  EXPECT_EQ(records.damFile, "");
  EXPECT_EQ(records.recordedDate, "");
  EXPECT_EQ(readInstanceRecords(lines({"KESTRA    x         /p/dam.KSC"})).spillwayNumber, 0);
}

TEST(InstanceRecords, tellTheFlagsOfTheFirstRecord) {
  struct Case {
    const char* key;
    const char* flags;
    bool strip;
    bool blank;
  };
  for (const Case& c : {Case{"TORVE", "L", true, false},
                        {"VERN2", "F", false, true},
                        {"QUIL", " 8", false, true},
                        {"QUIL", "L8", true, true},
                        {"QUIL", "", false, false},
                        {"QUIL", "8", false, false},
                        {"KESTRA", "L8", false, false}}) {
    const auto records = readInstanceRecords(record({c.key, "", "", "", "", "", ""}) + c.flags);
    EXPECT_EQ(records.stripFalseStructure, c.strip) << c.key << c.flags;
    EXPECT_EQ(records.blankFalseFields, c.blank) << c.key << c.flags;
  }
}

TEST(InstanceRecords, holdUpToFiveWidthsAndCrests) {
  const InstanceRecords records =
      readInstanceRecords(lines({record({"BTMWIDTH", "FEET", "50", "", "70", "80", "90", "100"}), "SAVMOV    31",
                                 record({"ASCREST", "FEET", "1200.5"}), "STRUCTURE"}));
  EXPECT_THAT(records.widths, ElementsAre("50", "70", "80", "90"));
  EXPECT_THAT(records.crests, ElementsAre("1200.5"));
  EXPECT_THAT(readInstanceRecords("QUIL").widths, IsEmpty());
}

TEST(PlaceholderHydrograph, isASingleRowOfOne) {
  EXPECT_TRUE(hasPlaceholderHydrograph(lines({"QUIL", kHyd, "          1", "ENDTABLE"})));
  EXPECT_FALSE(hasPlaceholderHydrograph(lines({kHyd, "          1", "          1", "ENDTABLE"})));
  EXPECT_FALSE(hasPlaceholderHydrograph(lines({kHyd, "          12", "ENDTABLE"})));
  EXPECT_FALSE(hasPlaceholderHydrograph(lines({kHyd, "ENDTABLE", "          1"})));
  EXPECT_FALSE(hasPlaceholderHydrograph(lines({"          1", "ENDTABLE"})));
}

TEST(WithHydrograph, replacesTheTableUpToItsEnd) {
  EXPECT_EQ(withHydrograph(lines({"QUIL", kHyd, "          1", "ENDTABLE", "POOLDATA", "ENDTABLE", "x"}), "NEW\r\n"),
            lines({"QUIL", "NEW", "POOLDATA", "ENDTABLE", "x"}));
  EXPECT_EQ(withHydrograph(lines({"QUIL", "GO,HYD    L"}), "NEW"), lines({"QUIL", "GO,HYD    L"}));
}

TEST(WithoutLink, dropsTheLinkAndKeepsTheLastLine) {
  EXPECT_EQ(withoutLink("QUIL\nKESTRA    1         /p/dam.KSC\nMODIFIED  x\nENDJOB\nENDRUN"),
            lines({"QUIL", "ENDJOB", "ENDRUN"}));
}

TEST(WithAlternative, putsOneValueIntoTheRecordsThatNameSeveral) {
  const std::string text =
      lines({"QUIL", record({"BTMWIDTH", "FEET", "50", "60"}), record({"ASCREST", "METERS", "1", "2"})});
  EXPECT_EQ(withAlternative(text, "60", "2"), lines({"QUIL", "BTMWIDTH  FEET      60", "ASCREST   METERS    2"}));
  EXPECT_EQ(withAlternative(text, std::nullopt, "1"),
            lines({"QUIL", record({"BTMWIDTH", "FEET", "50", "60"}), "ASCREST   METERS    1"}));
  EXPECT_EQ(withAlternative(text, std::nullopt, std::nullopt), text);
}

}  // namespace
}  // namespace kestra
