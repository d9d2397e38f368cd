#include "summary/summary_store.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "support/result_matchers.h"
#include "support/summary_desk.h"

namespace kestra {
namespace {

using Names = std::vector<std::string>;
using Texts = std::vector<std::string>;
using Fields = std::vector<int>;

const Texts kUnreadable = {"Error Message: Unable to load Summary File"};

struct SummaryStoreTest : testing::Test, SummaryDesk {};

TEST_F(SummaryStoreTest, isEmptyWithoutAFile) {
  store.LoadSummaryStore();
  EXPECT_TRUE(store.entries().empty());
  EXPECT_TRUE(store.selection().selectedFields[0].empty());
  EXPECT_EQ(store.summaryOrder(), "2");
  EXPECT_EQ(takeBoxes(), Texts{});
}

TEST_F(SummaryStoreTest, takesSelectionEntriesAndDigests) {
  putSummary("2\r\n3\r\n1\r\n1\r\n2\r\n\"run\"\r\n\"gone\"\r\n");
  files.put("/p/run.DIS", "Larkmoor\r\n  1004 \r\nN/A\r\n41\r\n");
  (void)settings.set("SummaryFields", {{"summaryOrder", "1"}});
  store.LoadSummaryStore();
  EXPECT_EQ(store.selection().selectedFields[0], (Fields{3, 1}));
  EXPECT_EQ(store.selection().selectedFields[1], Fields{2});
  EXPECT_EQ(store.summaryOrder(), "1");
  EXPECT_EQ(store.entryNames(), (Names{"run", "gone"}));
  EXPECT_EQ(valuesOf(0), "1:Larkmoor 2:1004 3:N/A 4:41");
  EXPECT_EQ(valuesOf(1), "1:N/A 2:N/A 3:N/A");
  EXPECT_EQ(takeBoxes(), Texts{});
}

TEST_F(SummaryStoreTest, leavesTheValuesBehindAShortDigestEmpty) {
  putSummary("0\n0\n\"run\"\n");
  files.put("/p/run.DIS", "Larkmoor\r\n");
  store.LoadSummaryStore();
  EXPECT_EQ(valuesOf(0), "1:Larkmoor");
  files.put("/p/run.DIS", "");
  store.LoadSummaryStore();
  EXPECT_EQ(valuesOf(0), "");
}

TEST_F(SummaryStoreTest, takesFortyTwoLinesOfADam) {
  putSummary("0\n0\n\"run\"\n");
  std::string digest;
  for (int i = 1; i <= 50; ++i) digest += "v\n";
  files.put("/p/run.DIS", digest);
  store.LoadSummaryStore();
  const EntryValues& values = store.entries()[0].values;
  EXPECT_EQ(values[41], "v");
  EXPECT_EQ(values[42], "");
}

TEST_F(SummaryStoreTest, putsTheValuesOfAnInstanceBehindTwentyFiveOfItsDam) {
  putSummary("0\n0\n\"run1_0\"\n\"run1_1\"\n\"run1_2\"\n");
  std::string dam;
  for (int i = 1; i <= 40; ++i) dam += i == 1 || i >= 25 ? "d" + std::to_string(i) + "\n" : "\n";
  files.put("/p/run1.DIS", dam);
  files.put("/p/run1/run1_0.DIS", "EAST\n0.52\n1.5\n1010\n");
  files.put("/p/run1/run1_2.DIS", "EAST\n");
  store.LoadSummaryStore();
  EXPECT_EQ(valuesOf(0), "1:d1 25:d25 26:EAST 27:0.52 28:1.5");
  EXPECT_EQ(valuesOf(1), "1:d1 25:d25");
  (void)files.removeFile("/p/run1.DIS");
  store.LoadSummaryStore();
  EXPECT_EQ(valuesOf(1), "1:N/A 2:N/A 3:N/A");
  EXPECT_EQ(valuesOf(2), "26:EAST");
}

TEST_F(SummaryStoreTest, takesNamesThatDifferInLetterCaseForOneEntry) {
  putSummary("0\n0\n\"run\"\n\"RUN\"\n\"b\"\n");
  store.LoadSummaryStore();
  EXPECT_EQ(store.entryNames(), (Names{"run", "b"}));
  EXPECT_EQ(store.LoadDigestEntry(0, "/p/x.DIS", "B"), 2U);
  EXPECT_EQ(store.entryNames(), (Names{"run", "b"}));
}

TEST_F(SummaryStoreTest, tellsOfAFileThatCannotBeReadOrUnderstood) {
  putSummary("2\nx\n\"run\"\n");
  store.LoadSummaryStore();
  EXPECT_EQ(takeBoxes(), kUnreadable);
  EXPECT_EQ(store.entryNames(), Names{"run"});
  files.setMode("/p/SUMMARY.IDE", false, true);
  store.LoadSummaryStore();
  EXPECT_EQ(takeBoxes(), kUnreadable);
  EXPECT_EQ(store.entryNames(), Names{});
}

TEST_F(SummaryStoreTest, isEmptiedWhenNoProjectIsOpenOrTheTitlesAreMissing) {
  putSummary("1\n3\n0\n\"run\"\n");
  store.LoadSummaryStore();
  ASSERT_EQ(store.entries().size(), 1U);
  titles.fieldTitles[0].clear();
  store.LoadSummaryStore();
  EXPECT_TRUE(store.entries().empty());
  EXPECT_TRUE(store.selection().selectedFields[0].empty());
  titles.fieldTitles[0] = {"Title"};
  store.LoadSummaryStore();
  ASSERT_EQ(store.entries().size(), 1U);
  state.projectDir.clear();
  store.LoadSummaryStore();
  EXPECT_TRUE(store.entries().empty());
  EXPECT_EQ(takeBoxes(), Texts{});
}

TEST_F(SummaryStoreTest, entersADigestBehindItsOffset) {
  store.LoadSummaryStore();
  files.put("/p/run.DIS", "Smith, upp\r\n\"1004\"\r\n 41 \r\nmore\r\n");
  EXPECT_EQ(store.LoadDigestEntry(0, "/p/run.DIS", "run"), 1U);
  EXPECT_EQ(store.LoadDigestEntry(25, "/p/run.DIS", "other"), 2U);
  EXPECT_EQ(valuesOf(0), "1:Smith, upp 2:1004 3:41");
  EXPECT_EQ(valuesOf(1), "26:Smith, upp 27:1004 28:41");
  EXPECT_EQ(store.LoadDigestEntry(64, "/p/run.DIS", "last"), 3U);
  EXPECT_EQ(valuesOf(2), "65:Smith, upp");
}

TEST_F(SummaryStoreTest, entersWhatADigestDoesNotHoldAnyMoreAsGone) {
  files.put("/p/run.DIS", "a\nb\nc\n");
  store.LoadDigestEntry(0, "/p/run.DIS", "run");
  files.put("/p/run.DIS", "d\n");
  EXPECT_EQ(store.LoadDigestEntry(0, "/p/run.DIS", "RUN"), 1U);
  EXPECT_EQ(valuesOf(0), "1:d");
  (void)files.removeFile("/p/run.DIS");
  store.LoadDigestEntry(0, "/p/run.DIS", "run");
  EXPECT_EQ(valuesOf(0), "1:N/A 2:N/A 3:N/A");
}

TEST_F(SummaryStoreTest, leavesAnInstanceItsOwnValuesBelowThoseOfItsDam) {
  std::string dam;
  for (int i = 1; i <= 40; ++i) dam += i == 1 || i >= 25 ? "d" + std::to_string(i) + "\n" : "\n";
  files.put("/p/run.DIS", dam);
  files.put("/p/run/run1_0.DIS", "EAST\n0.52\n1.5\n");
  putSummary("0\n0\n\"a_b\"\n");
  titles.fieldTitles[0].assign(40, "t");
  store.LoadSummaryStore();
  EXPECT_EQ(store.LoadDigestEntry(25, "/p/run/run1_0.DIS", "run1_0"), 2U);
  EXPECT_EQ(store.LoadDigestEntry(0, "/p/run.DIS", "RUN1_0"), 2U);
  EXPECT_EQ(valuesOf(1), "1:d1 25:d25 26:EAST 27:0.52 28:1.5");
  files.put("/p/a_b.DIS", dam);
  store.LoadDigestEntry(0, "/p/a_b.DIS", "a_b");
  EXPECT_EQ(valuesOf(0).substr(0, 20), "1:d1 25:d25 26:d26 2") << "a dam's run whose digest was missing before";
}

TEST_F(SummaryStoreTest, refusesAnOffsetOutsideOfItsPositions) {
  for (const int offset : {-1, 65}) {
    try {
      store.LoadDigestEntry(offset, "/p/run.DIS", "run");
      ADD_FAILURE() << offset;
    } catch (const RuntimeFault& fault) {
      EXPECT_EQ(fault.what(), "field offset " + std::to_string(offset) + " is outside 0 to 64");
    }
  }
  EXPECT_TRUE(store.entries().empty());
}

TEST_F(SummaryStoreTest, isReadBackAsItWasSaved) {
  for (const char* name : {"run", "two words", "a\"b", "a,b", "Größe", "-rf", "a.b"}) {
    store.LoadDigestEntry(0, "/p/none.DIS", name);
  }
  store.setSelection({{{{3, 1}, {2}}}});
  store.setSummaryOrder("1");
  const Names names = store.entryNames();
  EXPECT_TRUE(succeeded(store.SaveSummaryStore("/p/SUMMARY.IDE")));
  store.LoadSummaryStore();
  EXPECT_EQ(store.entryNames(), names);
  EXPECT_EQ(store.selection().selectedFields[0], (Fields{3, 1}));
  EXPECT_EQ(store.selection().selectedFields[1], Fields{2});
  EXPECT_EQ(store.summaryOrder(), "1");
  EXPECT_EQ(settings.get("SummaryFields", "summaryOrder", ""), "1");
}

TEST_F(SummaryStoreTest, isSavedOverTheFileThatIsThereWhateverItsLetterCase) {
  files.put("/p/summary.ide", "0\n0\n\"run\"\n");
  store.LoadSummaryStore();
  EXPECT_EQ(store.entryNames(), Names{"run"});
  EXPECT_TRUE(succeeded(store.SaveSummaryStore("/p/SUMMARY.IDE")));
  EXPECT_EQ(files.content("/p/summary.ide"), "0\r\n0\r\n\"run\"\r\n");
  EXPECT_FALSE(files.content("/p/SUMMARY.IDE"));
}

TEST_F(SummaryStoreTest, losesNothingOfAFileThatItCouldNotTakeForWantOfTitles) {
  putSummary("1\n3\n0\n\"old\"\n\"run\"\n");
  titles.fieldTitles[0].clear();
  store.LoadSummaryStore();
  store.LoadDigestEntry(0, "/p/run.DIS", "RUN");
  store.LoadDigestEntry(0, "/p/new.DIS", "new");
  EXPECT_TRUE(succeeded(store.SaveSummaryStore("/p/SUMMARY.IDE")));
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "1\r\n3\r\n0\r\n\"old\"\r\n\"run\"\r\n\"new\"\r\n");
}

TEST_F(SummaryStoreTest, isNotSavedOverAFileThatCannotBeRead) {
  putSummary("1\n3\n0\n\"old\"\n");
  files.setMode("/p/SUMMARY.IDE", false, true);
  store.LoadSummaryStore();
  EXPECT_TRUE(failed(store.SaveSummaryStore("/p/SUMMARY.IDE"), FailureKind::denied, "Permission denied"));
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "1\n3\n0\n\"old\"\n");
  EXPECT_TRUE(succeeded(store.SaveSummaryStore("/p/copy.IDE")));
}

TEST_F(SummaryStoreTest, holdsAThousandEntries) {
  std::string text = "0\n0\n";
  for (int i = 0; i < 1000; ++i) {
    text += "\"run" + std::to_string(i) + "\"\n";
    files.put("/p/run" + std::to_string(i) + ".DIS", "t\n" + std::to_string(i) + "\n");
  }
  putSummary(text);
  store.LoadSummaryStore();
  ASSERT_EQ(store.entries().size(), 1000U);
  EXPECT_EQ(valuesOf(999), "1:t 2:999");
}

}  // namespace
}  // namespace kestra
