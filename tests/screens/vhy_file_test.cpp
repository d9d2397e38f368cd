#include "screens/vhy_file.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

using Rows = std::vector<HydrographRow>;
using Texts = std::vector<std::string>;

// A line of fields of eleven columns behind the first column.
std::string fields(const Texts& texts, char first = ' ') {
  std::string line(1, first);
  for (const std::string& text : texts) line += text + std::string(11 - text.size(), ' ');
  return line + "\n";
}

std::string record(const std::string& code, const std::string& rows) {
  return "3" + code + "\n" + fields({"", "1.5"}) + rows + "5 end\nENDTABLE\n";
}

const std::string kRows = fields({"1.5", "10", "20", "31"}) + fields({"1.8", "11", "21", "35"}) + fields({"2.1", "12"});

TEST(ScanVhy, listsTheCodesOfTheRecords) {
  const VhyContent content = scanVhy("title\n" + record("1", kRows) + record(" 12 ", kRows) + "3\n3           x\n");
  EXPECT_FALSE(content.isThy);
  EXPECT_EQ(content.codes, (Texts{"1", "12"}));
}

TEST(ScanVhy, passesOverTheLinesOfARecord) {
  EXPECT_EQ(scanVhy("31\nHYD\n3 5\nENDTABLE\n37\n").codes, (Texts{"1", "7"}));
  EXPECT_EQ(scanVhy("31\nand so on\n").codes, Texts{"1"});
}

TEST(ScanVhy, knowsAFileOfTheOtherForm) {
  EXPECT_TRUE(scanVhy("HYD                 \n").isThy);
  EXPECT_TRUE(scanVhy("note\n HYD\n").isThy);
  EXPECT_FALSE(scanVhy("HYDROGRAPH\n").isThy);
  EXPECT_FALSE(scanVhy("").isThy);
}

TEST(ReadVhy, countsTimesFromTheStart) {
  const VhyHydrograph read = readVhy(record("1", fields({"7", "7"})) + record("3", kRows), "3", 1, 100);
  EXPECT_EQ(read.startTime, "1.5");
  EXPECT_EQ(read.increment, "0.3");
  EXPECT_EQ(read.rows, (Rows{{"0", "10"}, {"0.3", "11"}, {"0.6", "12"}}));
  EXPECT_EQ(read.fault, "");
}

TEST(ReadVhy, takesTheColumnOfTheRecord) {
  EXPECT_EQ(readVhy(record("1", kRows), "1", 2, 100).rows, (Rows{{"0", "20"}, {"0.3", "21"}, {"0.6", ""}}));
  EXPECT_EQ(readVhy(record("1", kRows), "1", 3, 100).rows, (Rows{{"0", "10"}, {"0.3", "10"}, {"0.6", "-12"}}));
}

TEST(ReadVhy, endsAtAFiveAtTheEndOfTheTableAndWhenTheTableIsFull) {
  const std::string head = "31\n" + fields({"", "1.5"});
  EXPECT_EQ(readVhy(head + fields({"1.5", "10"}) + fields({"9", "9"}, '5') + kRows, "1", 1, 100).rows.size(), 1U);
  EXPECT_EQ(readVhy(head + fields({"1.5", "10"}) + "ENDTABLE\n" + kRows, "1", 1, 100).rows.size(), 1U);
  EXPECT_EQ(readVhy(head + kRows, "1", 1, 2).rows.size(), 2U);
  EXPECT_EQ(readVhy(head + "\n" + kRows, "1", 1, 100).rows.size(), 3U);
}

TEST(ReadVhy, stopsAtALineWithoutTime) {
  const VhyHydrograph read = readVhy(record("1", fields({"1.5", "10"}) + fields({"late", "11"})), "1", 1, 100);
  EXPECT_EQ(read.rows, (Rows{{"0", "10"}}));
  EXPECT_EQ(read.increment, "");
  EXPECT_EQ(read.fault, "line 4: \"late\" is no time.");
  EXPECT_EQ(readVhy("31\n" + fields({"", "soon"}) + kRows, "1", 1, 100).fault, "line 2: \"soon\" is no time.");
  EXPECT_EQ(readVhy(record("1", fields({"", "10"})), "1", 1, 100).fault, "line 3 holds no time.");
}

TEST(ReadVhy, stopsAtADischargeThatIsNoNumber) {
  const std::string rows = fields({"1.5", ""}) + fields({"1.8", "12,5", "7", "9"}) + fields({"2.1", "1"});
  const VhyHydrograph read = readVhy(record("1", rows), "1", 1, 100);
  EXPECT_EQ(read.rows, (Rows{{"0", ""}}));
  EXPECT_EQ(read.fault, "line 4: \"12,5\" is no discharge.");
  EXPECT_EQ(readVhy(record("1", rows), "1", 2, 100).rows.size(), 3U);
  EXPECT_EQ(readVhy(record("1", rows), "1", 3, 100).fault, "line 4: \"12,5\" is no discharge.");
}

TEST(ReadVhy, tellsOfAnIncrementThatIsNotAboveZero) {
  struct Case {
    const char* second;
    const char* fault;
  };
  for (const auto& [second, fault] : {Case{"1.5", "line 4: \"0\" is no time increment above 0."},
                                      Case{"1", "line 4: \"-0.5\" is no time increment above 0."}}) {
    const VhyHydrograph read =
        readVhy(record("1", fields({"1.5", "1"}) + fields({second, "2"}) + fields({"3", "3"})), "1", 1, 100);
    EXPECT_EQ(read.rows.size(), 3U) << second;
    EXPECT_EQ(read.fault, fault);
  }
}

TEST(ReadVhy, givesNothingForACodeThatIsNotThere) {
  EXPECT_TRUE(readVhy(record("1", kRows), "3", 1, 100).rows.empty());
  EXPECT_TRUE(readVhy("31", "1", 1, 100).rows.empty());
  EXPECT_TRUE(readVhy("31\nENDTABLE\n" + record("3", kRows), "1", 1, 100).rows.empty());
}

}  // namespace
}  // namespace kestra
