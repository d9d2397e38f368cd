#include "summary/entry_list.h"

#include <gtest/gtest.h>

#include "summary/shown_rows.h"

namespace kestra {
namespace {

using Names = std::vector<std::string>;

// Entries with their measures: "dam1_0=2.5", "pond".
EntryList listOf(const Names& texts) {
  EntryList list;
  for (const std::string& text : texts) {
    const std::size_t mark = text.find('=');
    SummaryEntry& entry = list.named(text.substr(0, mark));
    if (mark != std::string::npos) entry.values[54] = text.substr(mark + 1);
  }
  return list;
}

Names namesOf(const EntryList& list) {
  Names names;
  for (const SummaryEntry& entry : list.all()) names.push_back(entry.name);
  return names;
}

TEST(EntryList, findsEntriesWhateverTheirLetterCase) {
  EntryList list = listOf({"Dam", "b"});
  std::size_t place = 9;
  EXPECT_EQ(list.named("dAM", &place).name, "Dam");
  EXPECT_EQ(place, 0U);
  EXPECT_EQ(list.size(), 2U);
  EXPECT_EQ(list.find("B"), 1U);
  EXPECT_FALSE(list.find("c"));
  list.clear();
  EXPECT_FALSE(list.find("b"));
}

TEST(EntryList, losesWhatIsDiscardedAndNothingElse) {
  EntryList list = listOf({"a", "b", "c", "d"});
  list.discard({"C", "gone", "a"});
  EXPECT_EQ(namesOf(list), (Names{"b", "d"}));
  EXPECT_EQ(list.find("d"), 1U);
  EXPECT_FALSE(list.find("a"));
}

TEST(SortEnteries, bringsTheInstancesOfARunTogetherAndKeepsTheOrderOtherwise) {
  const struct {
    Names before;
    Names after;
  } cases[] = {
      {{"b_1", "a", "b_0"}, {"b_1", "b_0", "a"}},
      {{"b_1", "a"}, {"b_1", "a"}},
      {{"z", "y", "x"}, {"z", "y", "x"}},
      {{"a_0", "b_0", "a_1", "b_1", "a_2"}, {"a_0", "a_1", "a_2", "b_0", "b_1"}},
      {{"a_b_1", "a_c_1", "a_b_0"}, {"a_b_1", "a_b_0", "a_c_1"}},
      {{"_1", "x", "_2"}, {"_1", "x", "_2"}},
      {{"A_0", "x", "a_1"}, {"A_0", "x", "a_1"}},
      {{}, {}},
  };
  for (const auto& each : cases) {
    EntryList list = listOf(each.before);
    list.SortEnteries();
    EXPECT_EQ(namesOf(list), each.after);
    for (std::size_t i = 0; i < list.size(); ++i) EXPECT_EQ(list.find(list[i].name), i);
  }
}

TEST(ModifyEntryArray, bringsTheInstancesOfARunToAPlace) {
  const struct {
    std::size_t first;
    std::size_t position;
    Names after;
  } cases[] = {
      {0, 1, {"b_1", "b_0", "b_2", "x", "a_0"}},  // behind the first
      {2, 4, {"b_1", "x", "b_0", "a_0", "b_2"}},
      {1, 0, {"b_1", "x", "b_0", "a_0", "b_2"}},  // no instance
      {4, 0, {"b_1", "b_0", "b_2", "x", "a_0"}},
  };
  for (const auto& each : cases) {
    EntryList list = listOf({"b_1", "x", "b_0", "a_0", "b_2"});
    list.ModifyEntryArray(each.first, each.position);
    EXPECT_EQ(namesOf(list), each.after) << each.first;
    EXPECT_EQ(list.find("a_0"), each.after[4] == "a_0" ? 4U : 3U) << each.first;
  }
}

TEST(UpdateEntryArray, exchangesTwoEntriesWithTheirValues) {
  EntryList list = listOf({"a=1", "b=2", "c=3"});
  list.UpdateEntryArray(0, 2);
  EXPECT_EQ(namesOf(list), (Names{"c", "b", "a"}));
  EXPECT_EQ(list[0].values[54], "3");
  EXPECT_EQ(list.find("a"), 2U);
}

TEST(Groups, areNeighboursOfOneRun) {
  const auto text = [](const Names& names) {
    std::string groups;
    for (const EntryRange& range : groupsOf(listOf(names))) {
      groups += std::to_string(range.first) + "-" + std::to_string(range.last) + " ";
    }
    return groups;
  };
  EXPECT_EQ(text({}), "");
  EXPECT_EQ(text({"a_0"}), "0-0 ");
  EXPECT_EQ(text({"a_0", "a_1"}), "0-1 ");
  EXPECT_EQ(text({"a_0", "a_1", "b", "b", "c_0", "d_0", "d_1"}), "0-1 2-2 3-3 4-5 ");
  EXPECT_EQ(text({"a_0", "x", "a_1"}), "0-0 1-1 2-2 ");
  EXPECT_EQ(text({"x", "y"}), "0-0 1-1 ");
}

TEST(Measures, areTheNumbersOfPositionFiftyFive) {
  const struct {
    const char* value;
    std::optional<double> measure;
  } cases[] = {{"2.5", 2.5},  {" -1e2 ", -100}, {".5", 0.5},         {"+3 ft", 3}, {"0", 0},
               {"N/A", {}},   {"", {}},         {"EAST", {}},        {"-", {}},    {"***", {}},
               {"1e999", {}}, {"nan", {}},      {"\xff\x01\n9", {}}, {"-.x", {}}};
  for (const auto& each : cases) {
    SummaryEntry entry;
    entry.values[54] = each.value;
    EXPECT_EQ(measureOf(entry), each.measure) << each.value;
  }
}

TEST(Extremes, startWithTheFirstMeasureAndTakeTheEarlierOfEqualOnes) {
  const struct {
    Names entries;
    std::size_t maximum;
    std::size_t minimum;
    std::size_t mean;
  } cases[] = {
      {{"a_0=1", "a_1=3", "a_2=2"}, 1, 0, 2},          {{"a_0=2", "a_1=2"}, 0, 0, 0},
      {{"a_0=N/A", "a_1=N/A", "a_2"}, 0, 0, 0},        {{"a_0=N/A", "a_1=-5", "a_2=-2"}, 2, 1, 2},  // mean -7/3
      {{"a_0=N/A", "a_1=150", "a_2=120"}, 1, 2, 2},    // mean 90, divided by all three
      {{"a_0=-0.2", "a_1=N/A", "a_2=0.25"}, 2, 0, 1},  // mean near 0, which an entry without a measure reads as
      {{"a_0=1", "a_1=3", "a_2=5", "a_3=3"}, 2, 0, 1}, {{"a_0=EAST", "a_1=1"}, 1, 1, 0},  // mean 0.5, as near to both
  };
  for (const auto& each : cases) {
    const EntryList list = listOf(each.entries);
    const EntryRange all = {0, list.size() - 1};
    EXPECT_EQ(FindMaxFile(list, all), each.maximum) << each.entries[0];
    EXPECT_EQ(FindMinFile(list, all), each.minimum) << each.entries[0];
    EXPECT_EQ(FindMeanFile(list, all), each.mean) << each.entries[0];
  }
}

TEST(Extremes, areThoseOfTheirRangeAlone) {
  const EntryList list = listOf({"a_0=100", "b_0=2", "b_1=1", "b_2=5", "c_0=-1"});
  EXPECT_EQ(FindMaxFile(list, {1, 3}), 3U);
  EXPECT_EQ(FindMinFile(list, {1, 3}), 2U);
  EXPECT_EQ(FindMeanFile(list, {1, 3}), 1U);
}

// "Max. dam1_1" for each row.
Names describe(const ShownRows& rows) {
  Names texts;
  for (const ShownRow& row : rows) texts.push_back(std::string(captionOf(row.type)) + " " + row.entry.name);
  return texts;
}

TEST(TableRows, condenseARunIntoThreeAndLeaveASingleEntry) {
  EntryList list = listOf({"dam", "dam1_0=3", "pond", "dam1_1=1", "dam1_2=2", "one_0=7"});
  const ShownRows rows = ComputeTableValues(list);
  EXPECT_EQ(describe(rows), (Names{"Single Instance dam", "Max. dam1_0", "Min. dam1_1", "Mean dam1_2",
                                   "Single Instance pond", "Single Instance one_0"}));
  EXPECT_FALSE(rows[0].isCondensed());
  EXPECT_TRUE(rows[1].isCondensed());
  EXPECT_EQ(rows[1].entry.values[54], "3");
}

TEST(TableRows, ofNoneAndOfOneEntryNeedNoOrder) {
  EntryList none;
  EXPECT_TRUE(ComputeTableValues(none).empty());
  EntryList one = listOf({"dam1_0=N/A"});
  EXPECT_EQ(describe(ComputeTableValues(one)), Names{"Single Instance dam1_0"});
  EntryList two = listOf({"dam1_0=N/A", "dam1_1"});
  EXPECT_EQ(describe(ComputeTableValues(two)), (Names{"Max. dam1_0", "Min. dam1_0", "Mean dam1_0"}));
}

TEST(TableRows, ofOneRunAreThoseThatShareItsName) {
  const EntryList list = listOf({"dam", "dam1_0", "dam1_1", "dam2_0", "dam_x_1"});
  EXPECT_EQ(describe(ComputeSumTableValues(list, "dam1_9")),
            (Names{"Single Instance dam1_0", "Single Instance dam1_1"}));
  EXPECT_EQ(describe(ComputeSumTableValues(list, "dam")), Names{"Single Instance dam"});
  EXPECT_EQ(namesOfRun(list, "dam1_0"), (Names{"dam1_0", "dam1_1"}));
  EXPECT_EQ(describe(rowsOfAll(list)).size(), 5U);
}

TEST(TableRows, ofTenThousandInstancesAreThree) {
  EntryList list;
  for (int i = 0; i < 10000; ++i) list.named("dam1_" + std::to_string(i)).values[54] = std::to_string(i % 977);
  const ShownRows rows = ComputeTableValues(list);
  EXPECT_EQ(describe(rows), (Names{"Max. dam1_976", "Min. dam1_0", "Mean dam1_479"}));
}

}  // namespace
}  // namespace kestra
