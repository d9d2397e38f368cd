#include "screens/thy_file.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

const std::string kBlanks(20, ' ');

std::vector<std::string> counted(int count) {
  std::vector<std::string> flows;
  for (int i = 1; i <= count; ++i) flows.push_back(std::to_string(i));
  return flows;
}

TEST(ThyText, putsFiveDischargesOnALine) {
  EXPECT_EQ(thyText({"Storm of June", "0.25", {"1", "22.5", "3", "4", "5", "6", "7"}}),
            "HYD                           Storm of June\r\n" + kBlanks + "0.25\r\n" + kBlanks +
                "1         22.5      3         4         5\r\n" + kBlanks + "6         7\r\nENDTABLE\r\n");
  EXPECT_EQ(thyText({}), "HYD\r\n\r\nENDTABLE\r\n");
}

TEST(ThyText, cutsEachFieldToItsWidth) {
  const auto read = readThy(thyText({std::string(50, 't'), "0.123456789012", {"1234567890123", "2"}}));
  EXPECT_EQ(read->title, std::string(40, 't'));
  EXPECT_EQ(read->increment, "0.12345678");
  EXPECT_EQ(read->flows, (std::vector<std::string>{"1234567890", "2"}));
}

TEST(ThyText, stopsAtALineThatBeginsWithAnEmptyDischarge) {
  std::vector<std::string> flows = counted(15);
  flows[5] = "";
  EXPECT_EQ(readThy(thyText({"", "1", flows}))->flows, counted(5));
}

TEST(ThyText, beginsNoLineBehindDischarge4996) {
  EXPECT_EQ(readThy(thyText({"", "1", counted(5000)}))->flows.size(), 5000U);
  EXPECT_EQ(thyText({"", "1", counted(5006)}).find("5001"), std::string::npos);
}

TEST(ReadThy, readsBackThePointsWhateverTheirCount) {
  for (const int count : {0, 1, 4, 5, 6, 10, 4996, 4999}) {
    const auto read = readThy(thyText({"Storm", "0.5", counted(count)}));
    ASSERT_TRUE(read) << count;
    EXPECT_EQ(read->title, "Storm");
    EXPECT_EQ(read->increment, "0.5");
    EXPECT_EQ(read->flows, counted(count));
  }
}

TEST(ReadThy, keepsTheRowOfADischargeBehindAnEmptyOne) {
  const std::vector<std::string> flows = {"1", "", "3", "", "", "6"};
  EXPECT_EQ(readThy(thyText({"", "1", flows}))->flows, flows);
}

TEST(ReadThy, readsAFileThatIsCutOffAndNoMoreThanTheTableHolds) {
  EXPECT_TRUE(readThy("HYD")->flows.empty());
  EXPECT_EQ(readThy("HYD\n" + kBlanks + "1\n" + kBlanks + "5         6")->flows, (std::vector<std::string>{"5", "6"}));
  std::string text = "HYD\n\n";
  for (int i = 0; i < 1002; ++i) text += kBlanks + "1         2         3         4         5\n";
  EXPECT_EQ(readThy(text)->flows.size(), 5000U);
}

TEST(ReadThy, stopsAtADischargeThatIsNoNumber) {
  const auto read =
      readThy("HYD\n" + kBlanks + "1\n" + kBlanks + "5                   12,5      7\n" + kBlanks + "8\nENDTABLE\n");
  EXPECT_EQ(read->flows, std::vector<std::string>{"5"});
  EXPECT_EQ(read->increment, "1");
  EXPECT_EQ(read->fault, "line 3: \"12,5\" is no discharge.");
}

TEST(ReadThy, leavesOutAnIncrementThatIsNoNumberAboveZero) {
  for (const std::string increment : {"0", "-0.5", "0,5", "fast"}) {
    const auto read = readThy("HYD\n" + kBlanks + increment + "\n" + kBlanks + "5         6\nENDTABLE\n");
    EXPECT_EQ(read->flows, (std::vector<std::string>{"5", "6"}));
    EXPECT_EQ(read->increment, "");
    EXPECT_EQ(read->fault, "line 2: \"" + increment + "\" is no time increment above 0.");
  }
  EXPECT_EQ(readThy("HYD\n\n" + kBlanks + "5\n")->fault, "");
}

TEST(ReadThy, wantsALineOfThisKeyword) {
  for (const char* text : {"", "\n", "HYDROGRAPH\n", "THY\n"}) EXPECT_FALSE(readThy(text)) << text;
}

}  // namespace
}  // namespace kestra
