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
  for (const std::string stamp :
       {"06/01/2001 xx:15", "06/01/2001 12:-5", "total", "06/01/2001 1.:15", "06/01/2001 24:01"}) {
    const auto read = readBasix(kBasix + "06/01/2001 12:00\t10\n" + stamp + "\t3\n06/01/2001 13:00\t4\n", 100);
    EXPECT_EQ(read->rows, (Rows{{"0", "10"}})) << stamp;
    EXPECT_EQ(read->fault, "line 5: \"" + stamp + "\" is no clock time.");
  }
}

TEST(ReadBasix, stopsAtADischargeThatIsNoNumberButTakesAnEmptyOne) {
  for (const std::string flow : {"12,5", "1,234.5", "n/a", "12.5 cfs", "nan", "1e999"}) {
    const auto read = readBasix(kBasix + "06/01/2001 12:00\n06/01/2001 13:00\t" + flow + "\n", 100);
    EXPECT_EQ(read->rows, (Rows{{"0", ""}})) << flow;
    EXPECT_EQ(read->fault, "line 5: \"" + flow + "\" is no discharge.");
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
  for (const std::string stamp : {"later", "01Jan2001, 2401", "01Jan2001, 9990", ""}) {
    const auto read = readRivex(kRivex + "1\t01Jan2001, 0100\t-\t10\n2\t" + stamp + "\t-\t11\n", 100);
    EXPECT_EQ(read->rows, (Rows{{"0", "10"}})) << stamp;
    EXPECT_EQ(read->fault,
              stamp.empty() ? "line 5 holds no clock time." : "line 5: \"" + stamp + "\" is no clock time.");
  }
}

TEST(ReadRivex, stopsAtADischargeThatIsNoNumber) {
  const auto read = readRivex(kRivex + "1\t01Jan2001, 0100\t-\t10\n2\t01Jan2001, 0200\t-\t0,5\n", 100);
  EXPECT_EQ(read->rows, (Rows{{"0", "10"}}));
  EXPECT_EQ(read->fault, "line 5: \"0,5\" is no discharge.");
}

TEST(ReadRivex, wantsALineThatBeginsWithOneAndATab) {
  for (const char* text : {"", "title\n1 01Jan2001\n", "title\n11\t0100\n", "1\ttitle\n"}) {
    EXPECT_FALSE(readRivex(text, 100)) << text;
  }
}

TEST(TabRows, areTimeAndDischarge) {
  EXPECT_EQ(readTabRows("0\t10\r\n0.5\t20\tmore\n7\n\n", 100), (Rows{{"0", "10"}, {"0.5", "20"}, {"7", ""}, {"", ""}}));
  EXPECT_EQ(readTabRows("1\t2\n3\t4\n", 1), (Rows{{"1", "2"}}));
  EXPECT_EQ(readTabRows(" +1 \t-2.5e1\n", 100), (Rows{{" +1 ", "-2.5e1"}}));
  EXPECT_EQ(tabRowsText({{"0", "10"}, {"", ""}, {"1", ""}, {"", "5"}}), "0\t10\r\n1\t\r\n\t5\r\n");
}

TEST(TabRows, stopAtAFieldThatIsNoNumber) {
  struct Case {
    std::string text;
    std::size_t rows;
    const char* fault;
  };
  for (const auto& [text, rows, wanted] :
       {Case{"0\t10\n0,5\t20\n", 1, "line 2: \"0,5\" is no time."},
        Case{"0\t10\n0.5\t20,5\n1\t3\n", 1, "line 2: \"20,5\" is no discharge."},
        Case{"0,5\t10,5\n1\t2\n", 0, "line 1: \"0,5\" is no time."},
        Case{"Time\t10\n", 0, "line 1: \"Time\" is no time."},
        Case{"0\tFlow\n", 0, "line 1: \"Flow\" is no discharge."},
        Case{"Time\tFlow\nhrs\tcfs\n", 0, "line 2: \"hrs\" is no time."}, Case{"0\t10\n\t\n\t5\n", 3, ""}}) {
    std::string fault;
    EXPECT_EQ(readTabRows(text, 100, &fault).size(), rows) << text;
    EXPECT_EQ(fault, wanted) << text;
  }
}

TEST(TabRows, quoteALongFieldInPart) {
  std::string fault;
  readTabRows("1\t" + std::string(50, 'x'), 100, &fault);
  EXPECT_EQ(fault, "line 1: \"" + std::string(40, 'x') + "...\" is no discharge.");
}

TEST(TabRows, passOverAHeading) {
  for (const char* heading : {"Time\tFlow\n", "Storm of June\n", "\tFlow\n", "t, hrs\tQ2, cfs\n", "----\t----\n"}) {
    std::string fault;
    EXPECT_EQ(readTabRows(std::string(heading) + "0\t10\n", 1, &fault), (Rows{{"0", "10"}})) << heading;
    EXPECT_EQ(fault, "") << heading;
  }
}

TEST(TabRows, takeNoFirstLineForAHeadingWhoseFieldsBeginAsNumbers) {
  for (const std::string time : {"0,5", "1d5", " -12 h", "10:00"}) {
    std::string fault;
    EXPECT_EQ(readTabRows(time + "\t7,5\n0\t10\n", 5, &fault), Rows());
    EXPECT_EQ(fault, "line 1: \"" + time.substr(time.find_first_not_of(' ')) + "\" is no time.");
  }
}

}  // namespace
}  // namespace kestra
