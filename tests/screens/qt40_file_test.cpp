#include "screens/qt40_file.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

using Texts = std::vector<std::string>;

const std::string kBlanks(20, ' ');
const std::string kAnchor = "   INPUT HYDROGRAPH:   \n\n";
//                            1         2         3         4         5         6         7         8
//                   12345678901234567890123456789012345678901234567890123456789012345678901234567890
const std::string kHeader = "HYD       STORM A   second              1.5       0.25                10\n";
const std::string kPlain = "HYD       STORM B                       0         0.5\n";
const std::string kFile = "report\n" + kAnchor + kHeader + kBlanks + "1         2                   4.5\n" + kBlanks +
                          "6\nPEAK      7         8         9\n" + kAnchor + kPlain + kBlanks + "11        12\n";

TEST(Qt40Headers, listsTheHydrographsOfAFile) {
  EXPECT_EQ(qt40Headers(kFile), (Texts{"HYD       STORM A   second", "HYD       STORM B"}));
  for (const char* text : {"", "INPUT HYDROGRAPH:", "INPUT HYDROGRAPH:\n\n", "INPUT HYDROGRAPH\nHYD\n"}) {
    EXPECT_EQ(qt40Headers(text), Texts()) << text;
  }
}

TEST(ReadQt40, addsTheBaseFlowToEachDischarge) {
  const Qt40Hydrograph read = readQt40(kFile, 0, 100);
  EXPECT_EQ(read.title, "STORM A");
  EXPECT_EQ(read.startTime, "1.5");
  EXPECT_EQ(read.increment, "0.25");
  EXPECT_EQ(read.flows, (Texts{"11", "12", "14.5", "16"}));
  EXPECT_EQ(read.fault, "");
}

TEST(ReadQt40, hasNoBaseFlowOnAShortHeader) {
  const Qt40Hydrograph read = readQt40(kFile, 1, 100);
  EXPECT_EQ(read.title, "STORM B");
  EXPECT_EQ(read.flows, (Texts{"11", "12"}));
}

TEST(ReadQt40, endsAtAHeadingBehindALineOfFourValues) {
  const std::string text = kAnchor + kPlain + kBlanks + "1         2         3         4\nNEXT      5\n";
  EXPECT_EQ(readQt40(text, 0, 100).flows, (Texts{"1", "2", "3", "4"}));
}

TEST(ReadQt40, stopsWhenTheTableIsFull) {
  EXPECT_EQ(readQt40(kAnchor + kPlain + kBlanks + "1         2         3\n" + kBlanks + "4\n", 0, 2).flows,
            (Texts{"1", "2"}));
}

TEST(ReadQt40, stopsAtAValueThatIsNoNumber) {
  const Qt40Hydrograph read = readQt40(kAnchor + kPlain + kBlanks + "1         *****     3\n", 0, 100);
  EXPECT_EQ(read.flows, Texts{"1"});
  EXPECT_EQ(read.fault, "line 4: \"*****\" is no discharge.");
}

TEST(ReadQt40, takesNoHeaderValueThatIsNoNumber) {
  const std::string rows = kBlanks + "1         2\n";
  const std::string noBase = "HYD       STORM C                       0         0.5                 1,5\n";
  const Qt40Hydrograph base = readQt40(kAnchor + noBase + rows, 0, 100);
  EXPECT_EQ(base.flows, Texts());
  EXPECT_EQ(base.fault, "line 3: \"1,5\" is no base flow.");
  const std::string noStep = "HYD       STORM C                       0         0,5\n";
  const Qt40Hydrograph step = readQt40(kAnchor + noStep + rows, 0, 100);
  EXPECT_EQ(step.flows, (Texts{"1", "2"}));
  EXPECT_EQ(step.increment, "");
  EXPECT_EQ(step.fault, "line 3: \"0,5\" is no time increment.");
  const std::string noStart = "HYD       STORM C                       noon      0.5\n";
  const Qt40Hydrograph start = readQt40(kAnchor + noStart + rows, 0, 100);
  EXPECT_EQ(start.flows, (Texts{"1", "2"}));
  EXPECT_EQ(start.startTime + "," + start.increment, ",0.5");
  EXPECT_EQ(start.fault, "line 3: \"noon\" is no start time.");
}

TEST(ReadQt40, givesNothingForAHydrographThatIsNotThere) {
  EXPECT_TRUE(readQt40(kFile, 2, 100).flows.empty());
}

}  // namespace
}  // namespace kestra
