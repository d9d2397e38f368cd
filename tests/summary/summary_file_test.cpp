#include "summary/summary_file.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

using Fields = std::vector<int>;
using Names = std::vector<std::string>;

TEST(SummaryFile, holdsCountsNumbersAndQuotedNames) {
  EXPECT_EQ(summaryFileText({{{{3, 1}, {}}}}, {"dam", "dam1_0"}), "2\r\n3\r\n1\r\n0\r\n\"dam\"\r\n\"dam1_0\"\r\n");
}

TEST(SummaryFile, ofANewProjectSelectsTheDefaultFieldsAndNoEntry) {
  EXPECT_EQ(summaryFileText(defaultSummarySelection(), {}),
            "12\r\n1\r\n9\r\n11\r\n12\r\n17\r\n18\r\n19\r\n36\r\n37\r\n38\r\n39\r\n40\r\n"
            "6\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
}

TEST(SummaryFile, isReadBackAsItWasWritten) {
  const Names names = {"dam", "two words", "a,b", "a\"b", "Größe", "-rf", "dam1_0", "dam/a"};
  const SummaryFile file = readSummaryFile(summaryFileText({{{{40, 1, 7}, {6}}}}, names));
  EXPECT_TRUE(file.understood);
  EXPECT_EQ(file.selection.selectedFields[0], (Fields{40, 1, 7}));
  EXPECT_EQ(file.selection.selectedFields[1], Fields{6});
  EXPECT_EQ(file.entryNames, names);
}

struct Case {
  const char* text;
  Fields dam;
  Fields instance;
  Names names;
};

void check(const std::vector<Case>& cases, bool understood) {
  for (const Case& each : cases) {
    const SummaryFile file = readSummaryFile(each.text);
    EXPECT_EQ(file.understood, understood) << each.text;
    EXPECT_EQ(file.selection.selectedFields[0], each.dam) << each.text;
    EXPECT_EQ(file.selection.selectedFields[1], each.instance) << each.text;
    EXPECT_EQ(file.entryNames, each.names) << each.text;
  }
}

TEST(SummaryFile, mayEndAnywhereAndBeWrittenByHand) {
  check({{"", {}, {}, {}},
         {"2\r\n3", {3}, {}, {}},
         {"2\n3\n1\n", {3, 1}, {}, {}},
         {"0\r\n0\r\n", {}, {}, {}},
         {" 2, 3, 1\n1,6\ndam\n\"\"\n\n\"b\"", {3, 1}, {6}, {"dam", "b"}},
         {"3\n5\n5\n1\n0\n", {5, 1}, {}, {}},
         {"0\n0\n\"cut off", {}, {}, {"cut off"}}},
        true);
}

TEST(SummaryFile, losesNoEntryToNumbersThatAreNone) {
  check({{"\"dam\"\r\n", {}, {}, {"dam"}},
         {"5\n1\n\"dam\"\n\"b\"\n", {1}, {}, {"dam", "b"}},
         {"99999999999\n1\n\"dam\"\n", {1}, {}, {"dam"}},
         {"2\n41\n3\n1\n0\n\"dam\"\n", {3}, {}, {"dam"}},
         {"-1\n1\n6\n\"dam\"\n", {}, {6}, {"dam"}},
         {"x\n\"dam\"\n", {}, {}, {"dam"}},
         {"1\nx\n1\n6\n\"dam\"\n", {}, {6}, {"dam"}},
         {"1.5\n0\n\"dam\"\n", {}, {}, {"dam"}}},
        false);
}

}  // namespace
}  // namespace kestra
