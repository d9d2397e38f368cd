#include "screens/tab_hydrographs.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

using Rows = std::vector<HydrographRow>;

const std::string kBasix = "Storm of June\textra\r\nTime\tFlow\r\n----------\t-----\r\n";
const std::string kRivex = "Storm of June\r\n\r\nOrdinate\tDate\tStage\tFlow\r\n";

TEST(ReadBasix, countsHoursFromTheFirstLine) {
  const auto read =
      readBasix(kBasix + "06/01/2001 12:00\t10\r\n06/01/2001 12:15\t20.5\r\n06/01/2001 14:05\t5\r\n", 100);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->title, "Storm of June");
  EXPECT_EQ(read->rows, (Rows{{"0", "10"}, {"0.25", "20.5"}, {"2.08333333333333", "5"}}));
  EXPECT_EQ(read->fault, "");
}

TEST(ReadBasix, keepsTheTimeIncreasingOverMidnight) {
  const auto read = readBasix(kBasix + "06/01/2001 23:30\t1\n06/02/2001 00:30\t2\n06/03/2001 00:30\t3\n", 100);
  EXPECT_EQ(read->rows, (Rows{{"0", "1"}, {"1", "2"}, {"25", "3"}}));
}

TEST(ReadBasix, doesNotDriftOverManySmallSteps) {
  std::string text = kBasix;
  for (int minute = 0; minute < 2880; minute += 5) {
    const int hour = minute / 60 % 24;
    const std::string clock =
        (hour < 10 ? "0" : "") + std::to_string(hour) + (minute % 60 < 10 ? ":0" : ":") + std::to_string(minute % 60);
    text += "06/01/2001 " + clock + "\t1\n";
  }
  EXPECT_EQ(readBasix(text, 5000)->rows[12 * 47].time, "47");
}

TEST(ReadBasix, stopsAtALineWithoutTimeAndKeepsTheRowsBefore) {
  for (const char* line : {"06/01/2001 xx:15\t3\n", "06/01/2001 12:-5\t3\n", "total\t3\n", "06/01/2001 1.:15\t3\n",
                           "06/01/2001 24:01\t3\n"}) {
    const auto read = readBasix(kBasix + "06/01/2001 12:00\t10\n" + line + "06/01/2001 13:00\t4\n", 100);
    EXPECT_EQ(read->rows, (Rows{{"0", "10"}})) << line;
    EXPECT_EQ(read->fault, "Line 5 holds no clock time.") << line;
  }
}

TEST(ReadBasix, passesOverBlankLinesAndStopsAtTheLastRow) {
  const auto read = readBasix(kBasix + "06/01/2001 12:00\t1\n \t\n06/01/2001 13:00\t2\n\n06/01/2001 14:00\t3\n\n", 2);
  EXPECT_EQ(read->rows, (Rows{{"0", "1"}, {"1", "2"}}));
  EXPECT_EQ(read->fault, "");
}

TEST(ReadBasix, cutsTheTitleToFortyCharacters) {
  EXPECT_EQ(readBasix(std::string(41, 'x') + "\n----------\n", 9)->title, std::string(40, 'x'));
}

TEST(ReadBasix, wantsALineOfTenHyphens) {
  EXPECT_FALSE(readBasix("", 100));
  EXPECT_FALSE(readBasix("title\n---------\n06/01/2001 12:00\t10\n", 100));
  EXPECT_TRUE(readBasix("title\n-----------\n", 100)->rows.empty());
}

TEST(ReadRivex, takesTheFourthFieldAtTheTimeOfTheSecond) {
  const auto read = readRivex(kRivex + "1\t01Jan2001, 0100\t-\t10\r\n2\t01Jan2001, 0215\t-\t12.5\r\n", 100);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->title, "Storm of June");
  EXPECT_EQ(read->rows, (Rows{{"0", "10"}, {"1.25", "12.5"}}));
}

TEST(ReadRivex, subtractsClocksAsPlainNumbers) {
  struct Case {
    const char* earlier;
    const char* later;
    const char* hours;
  };
  for (const auto& [earlier, later, hours] :
       {Case{"2350", "0010", "1"}, Case{"0045", "0130", "1.41666666666667"}, Case{"2400", "0030", "0.5"},
        Case{"0000", "0000", "24"}, Case{"1200", "1300", "1"}}) {
    const std::string text = kRivex + "1\t01Jan2001, " + earlier + "\t-\t1\n2\t01Jan2001, " + later + "\t-\t2\n";
    EXPECT_EQ(readRivex(text, 100)->rows[1].time, hours) << earlier << " to " << later;
  }
}

TEST(ReadRivex, stopsAtALineWithoutTime) {
  for (const char* stamp : {"later", "01Jan2001, 2401", "01Jan2001, 9990", ""}) {
    const auto read = readRivex(kRivex + "1\t01Jan2001, 0100\t-\t10\n2\t" + stamp + "\t-\t11\n", 100);
    EXPECT_EQ(read->rows, (Rows{{"0", "10"}})) << stamp;
    EXPECT_EQ(read->fault, "Line 5 holds no clock time.") << stamp;
  }
}

TEST(ReadRivex, wantsALineThatBeginsWithOneAndATab) {
  for (const char* text : {"", "title\n1 01Jan2001\n", "title\n11\t0100\n", "1\ttitle\n"}) {
    EXPECT_FALSE(readRivex(text, 100)) << text;
  }
}

TEST(TabRows, areTimeAndDischarge) {
  EXPECT_EQ(readTabRows("0\t10\r\n0.5\t20\tmore\n7\n\n", 100), (Rows{{"0", "10"}, {"0.5", "20"}, {"7", ""}, {"", ""}}));
  EXPECT_EQ(readTabRows("1\t2\n3\t4\n", 1), (Rows{{"1", "2"}}));
  EXPECT_EQ(tabRowsText({{"0", "10"}, {"", ""}, {"1", ""}, {"", "5"}}), "0\t10\r\n1\t\r\n\t5\r\n");
}

}  // namespace
}  // namespace kestra
