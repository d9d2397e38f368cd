#include <gtest/gtest.h>

#include "support/summary_screens_desk.h"

namespace kestra {
namespace {

// Digests that are not as a run leaves them.
struct BadDigests : testing::Test, SummaryScreensDesk {
  BadDigests() { titles.fieldTitles[0].resize(40, "More"); }
  ~BadDigests() override { history.clear(); }
};

using Texts = std::vector<std::string>;

TEST_F(BadDigests, leaveBlankWhatTheyDoNotSay) {
  putEntries({"missing", "short", "cut", "foreign", "blank"});
  files.put("/p/short.DIS", "a\nb\n");
  files.put("/p/cut.DIS", "a\nb\n12");
  files.put("/p/foreign.DIS", std::string("\x89PNG\r\n\x1a\n\0\0\xff\xfe", 12));
  files.put("/p/blank.DIS", "");
  open();
  EXPECT_EQ(rowsOf(table.damSum),
            (Texts{"Name|Peak", "missing|N/A", "short|", "cut|12", std::string("foreign|\0\0\xff\xfe", 12), "blank|"}));
  EXPECT_EQ(takeBoxes(), Texts{});
}

TEST_F(BadDigests, ofInstancesHaveNoMeasure) {
  putEntries({"dam1_0", "dam1_1", "dam1_2"});
  putDam("dam", "5");
  files.put("/p/dam/dam1_1.DIS", "EAST\n0.2\n");
  putInstance("dam/dam1_2", "0.3", "-4");
  open();
  EXPECT_EQ(rowsOf(table.metaSum), (Texts{"Name|Type|Input", "dam1_2|Max.|", "dam1_2|Min.|", "dam1_0|Mean|"}));
  EXPECT_EQ(rowsOf(table.sumTable), (Texts{"Name|Stress", "dam1_2|0.3", "dam1_2|0.3", "dam1_0|N/A"}));
}

TEST_F(BadDigests, thatChangeOrGoStayAsTheyWereReadWhileTheTableIsOpen) {
  putSamples();
  open();
  const Texts shown = rowsOf(table.damSum);
  putDam("dam", "9999");
  (void)files.removeFile("/p/pond.DIS");
  select(table, 5);
  table.cmdText.click();
  table.BuildTable();
  EXPECT_EQ(rowsOf(table.damSum), shown);
  host.unload(table);
  open();
  EXPECT_EQ(rowsOf(table.damSum).at(1), "dam|9999");
  EXPECT_EQ(rowsOf(table.damSum).at(5), "pond|N/A");
}

TEST_F(BadDigests, ofAnEntryThatIsGoneAreDeletedAllTheSame) {
  putSamples();
  open();
  for (const char* file : {"/p/pond.DIS", "/p/SUMMARY.IDE"}) (void)files.removeFile(file);
  select(table, 5);
  boxes.answers = {BoxButton::yes};
  table.cmdDelete.click();
  EXPECT_EQ(keeper.takeCalls(), Texts{"delete /p/pond"});
  EXPECT_EQ(table.metaSum.rows(), 5);
  EXPECT_TRUE(files.content("/p/SUMMARY.IDE"));
}

TEST_F(BadDigests, ofADirectoryThatHasGoneAreTold) {
  putSamples();
  open();
  select(table, 5);
  table.cmdView(2).click();
  EXPECT_EQ(keeper.takeCalls(), Texts{"no directory /p/pond"});
  EXPECT_FALSE(aux.loaded());
  EXPECT_EQ(front(), "frmSummaryTable");
}

TEST_F(BadDigests, mayHaveNamesOfAnyLetters) {
  putEntries({"großer See", "großer See1_0", "a \"b\", c", " x"});
  putDam("großer See", "1");
  putDam("a \"b\", c", "2");
  putInstance("großer See/großer See1_0", "0.5", "3");
  open();
  EXPECT_EQ(rowsOf(table.sumTable).at(2), "großer See1_0|0.5");
  select(table, 2);
  table.cmdText.click();
  EXPECT_EQ(keeper.takeCalls(), Texts{"spillway text /p/großer See/großer See1_0.OUT"});
}

TEST_F(BadDigests, areTakenByTheThousand) {
  Texts names;
  for (int k = 0; k < 10000; ++k) {
    names.push_back("dam1_" + std::to_string(k));
    putInstance("dam/" + names.back(), "0.1", std::to_string((k * 7919) % 10007));
  }
  putEntries(names);
  putDam("dam", "5");
  open();
  EXPECT_EQ(table.metaSum.rows(), 4);
  select(table, 1);
  table.cmdViewAll.click();
  EXPECT_EQ(table.metaSum.rows(), 10001);
  table.cmdView(1).click();
  EXPECT_EQ(rowsOf(aux.metaSum),
            (Texts{"Name|Type|Input", table.shownRows()[0].entry.name + "|Max.|",
                   table.shownRows()[1].entry.name + "|Min.|", table.shownRows()[2].entry.name + "|Mean|"}));
}

TEST_F(BadDigests, ofASpillwayAreThoseOfTheRunUpToItsFirstDot) {
  putEntries({"a.b"});
  putDam("a.b", "1");
  putInstance("a.b/a1_0", "0.5", "3");
  open();
  select(table, 1);
  table.cmdView(1).click();
  EXPECT_EQ(rowsOf(aux.sumTable), (Texts{"Name|Stress", "a1_0|0.5"}));
  select(aux, 1);
  aux.cmdText.click();
  boxes.answers = {BoxButton::yes};
  aux.cmdDelete.click();
  EXPECT_EQ(keeper.takeCalls(), (Texts{"spillway text /p/a.b/a1_0.OUT", "delete /p/a.b/a1_0"}));
  EXPECT_FALSE(files.content("/p/a.b/a1_0.DIS"));
  EXPECT_EQ(aux.metaSum.rows(), 1);
}

}  // namespace
}  // namespace kestra
