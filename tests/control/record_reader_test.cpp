#include "control/record_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/lines.h"

namespace kestra {
namespace {

struct TextCase {
  const char* text;
  const char* result;
};

class KeywordOf : public testing::TestWithParam<TextCase> {};

TEST_P(KeywordOf, isTheTrimmedTextOfTheFirstTenColumns) {
  EXPECT_EQ(keywordOf(GetParam().text), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Lines, KeywordOf,
                         testing::Values(TextCase{"KESTRA    01/01/2009pond", "KESTRA"},
                                         TextCase{"*         text", "*"}, TextCase{"          12        5", ""},
                                         TextCase{"", ""}, TextCase{"HYD", "HYD"}, TextCase{"  OUTPUT  ALL", "OUTPUT"},
                                         TextCase{"QUIL      x", "QUIL"},
                                         TextCase{"\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6      x",
                                                  "\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6"}));

struct ReachCase {
  const char* line;
  int column;
  bool reached;
};

class Reaches : public testing::TestWithParam<ReachCase> {};

TEST_P(Reaches, countsCharacters) {
  EXPECT_EQ(reaches(GetParam().line, GetParam().column), GetParam().reached);
}

INSTANTIATE_TEST_SUITE_P(Lines, Reaches,
                         testing::Values(ReachCase{"", 1, false}, ReachCase{"a", 1, true}, ReachCase{"a", 2, false},
                                         ReachCase{"1234567890", 10, true}, ReachCase{"1234567890", 11, false},
                                         ReachCase{"1234567890", 2, true}, ReachCase{"\xC3\xB6\xC3\xB6", 2, true},
                                         ReachCase{"\xC3\xB6\xC3\xB6", 3, false}, ReachCase{"\xF6\xF6\xF6", 3, true}));

struct LayoutCase {
  const char* line;
  const char* id;
};

class Recognise : public testing::TestWithParam<LayoutCase> {};

TEST_P(Recognise, tellsTheLayoutFromTheLine) {
  const RecordLayout* layout = recognise(RunKind::main, GetParam().line);
  EXPECT_EQ(layout == nullptr ? "none" : layout->id, GetParam().id);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Recognise,
    testing::Values(LayoutCase{"OPTION    SIMPLE    EARTH", "OPTION"},
                    LayoutCase{"OPTION    SIMPLE    EARTH               NOBREACH", "OPTION NOBREACH"},
                    LayoutCase{"OPTION    SIMPLE    EARTH               NOBA", "OPTION NOBREACH"},
                    LayoutCase{"OPTION    SIMPLE    EARTH               DRAWDOWN  85", "OPTION DRAWDOWN"},
                    LayoutCase{"OPTION    SIMPLE    EARTH               BREACH", "OPTION"},
                    LayoutCase{"OPTION", "OPTION"}, LayoutCase{"HCMODEL   1", "HCMODEL 1"},
                    LayoutCase{"HCMODEL   2", "HCMODEL 2"}, LayoutCase{"HCMODEL", "HCMODEL 2"},
                    LayoutCase{"HYD       storm", "HYD C"},
                    LayoutCase{"HYDROGRAPHstorm     0.25      0         0V", "HYD V"},
                    LayoutCase{"HYD       storm     0.25      0         0C", "HYD C"},
                    LayoutCase{"DWNSTREAM 2.5", "DWNSTREAM EARTH"}, LayoutCase{"QUIL      01/01/2009pond", "KESTRA"},
                    LayoutCase{"STROUTING 1", "STROUTE"}, LayoutCase{"COMMENT   x", "COMMENT"},
                    LayoutCase{"*x", "none"}, LayoutCase{"kestra    ", "none"}, LayoutCase{"          12", "none"},
                    LayoutCase{"", "none"}));

TEST(TakeApart, leavesFieldsBehindTheEndOfAShortLineUnreached) {
  const RecordLayout& crest = *findRecord("DAMCREST");
  const FieldTexts texts = takeApart(crest, "DAMCREST  12        5.6");
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0].raw, "12        ");
  EXPECT_EQ(texts[0].text(), "12");
  EXPECT_EQ(texts[1].raw, "5.6");
  EXPECT_TRUE(texts[1].reached());
  EXPECT_FALSE(texts[2].reached());
  EXPECT_EQ(givenValues(texts), (std::vector<std::string_view>{"12        ", "5.6"}));
}

TEST(TakeApart, tellsABlankFieldFromOneThatIsNotReached) {
  const FieldTexts texts = takeApart(*findRecord("DAMCREST"), "DAMCREST            5.6       ");
  EXPECT_TRUE(texts[0].reached());
  EXPECT_EQ(texts[0].text(), "");
  EXPECT_FALSE(texts[2].reached());
}

TEST(TakeApart, readsFiftyColumnsOfTheProjectIdentifierWithItsBlanks) {
  const std::string line = "KESTRA    01/01/2009 " + std::string(60, 'p');
  const FieldTexts texts = takeApart(*findRecord("KESTRA"), line);
  EXPECT_EQ(texts[0].raw, "01/01/2009");
  EXPECT_EQ(texts[1].raw, " " + std::string(49, 'p'));
}

TEST(TakeApart, readsTheConduitLengthFromFiveColumns) {
  const FieldTexts texts = takeApart(*findRecord("PSpDATA"), "PSpDATA   1    123452");
  EXPECT_EQ(texts.named("conduits").text(), "1");
  EXPECT_EQ(texts.named("length").text(), "12345");
  EXPECT_EQ(texts.named("diameter").text(), "2");
  EXPECT_FALSE(texts.named("height").reached());
}

TEST(TakeApart, readsTenColumnsWhereACodeOfTwoIsWritten) {
  const std::string line = "PSpDATA   " + std::string(60, ' ') + "SC       x and more";
  EXPECT_EQ(takeApart(*findRecord("PSpDATA"), line)[7].raw, "SC       x");
}

TEST(TakeApart, countsCharactersAndNotBytes) {
  const FieldTexts texts = takeApart(*findRecord("ASRATING"), "ASRATING  2\xC3\x96stl.    1");
  EXPECT_EQ(texts[0].text(), "2");
  EXPECT_EQ(texts[1].text(), "\xC3\x96stl.");
  EXPECT_EQ(texts[2].text(), "1");
}

const char* const kWorkedFile =
    "KESTRA    01/01/2009pond\r\n"
    "OPTION    SIMPLE    EARTH     \r\n"
    "COLOUR    green\r\n"
    "HYD       storm     0.25      0         1C        \r\n"
    "                    0         5         12        30        22\r\n"
    "                    8         0\r\n"
    "ENDTABLE\r\n"
    "          stray row\r\n"
    "\r\n"
    "OUTPUT    ALL\r\n"
    "ENDRUN\r\n";

TEST(ReadControlRecords, givesRecordsWithLineNumbersFieldsAndRows) {
  const std::vector<ControlRun> runs = readControlRecords(kWorkedFile);
  ASSERT_EQ(runs.size(), 1U);
  const ControlRun& run = runs[0];
  EXPECT_EQ(run.kind, RunKind::main);
  EXPECT_TRUE(run.ended);
  EXPECT_EQ(run.text, kWorkedFile);
  ASSERT_EQ(run.records.size(), 5U);
  const ControlRecord& hydrograph = run.records[2];
  EXPECT_EQ(hydrograph.layout->id, "HYD C");
  EXPECT_EQ(hydrograph.lineNumber, 4U);
  EXPECT_EQ(hydrograph.keyword, "HYD");
  EXPECT_EQ(hydrograph.fields[0].text(), "storm");
  EXPECT_EQ(hydrograph.rows,
            "                    0         5         12        30        22\r\n                    8         0\r\n");
  EXPECT_EQ(run.records[3].layout->id, "OUTPUT");
  EXPECT_EQ(run.records[3].lineNumber, 10U);
  EXPECT_EQ(run.records[4].layout->id, "ENDRUN");
  ASSERT_EQ(run.unknown.size(), 2U);
  EXPECT_EQ(run.unknown[0].lineNumber, 3U);
  EXPECT_EQ(run.unknown[0].line, "COLOUR    green");
  EXPECT_EQ(run.unknown[1].lineNumber, 8U);
  EXPECT_EQ(run.unknown[1].line, "          stray row");
}

struct RowsCase {
  const char* text;
  const char* rows;
  std::vector<std::string> behind;  // records behind the table, as "line number id"
};

class TableRows : public testing::TestWithParam<RowsCase> {};

TEST_P(TableRows, runToTheEndOfTheirTable) {
  const std::vector<ControlRun> runs = readControlRecords(GetParam().text);
  const auto& records = runs.at(0).records;
  EXPECT_EQ(records.at(0).rows, GetParam().rows);
  std::vector<std::string> behind;
  for (std::size_t i = 1; i < records.size(); ++i) {
    behind.push_back(std::to_string(records[i].lineNumber) + " " + std::string(records[i].layout->id));
  }
  EXPECT_EQ(behind, GetParam().behind);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TableRows,
    testing::Values(RowsCase{"TAILWATER\r\nENDTABLE\r\nOUTPUT    ALL\r\n", "", {"3 OUTPUT"}},
                    RowsCase{"TAILWATER\n a\n b\nENDTABLE of it\nENDRUN\n", " a\n b\n", {"5 ENDRUN"}},
                    RowsCase{"TAILWATER\n a\n\nOUTPUT    ALL\n", " a\n", {"4 OUTPUT"}},
                    RowsCase{"TAILWATER\n a\nOUTPUT    ALL\n  ENDRUN \n", " a\nOUTPUT    ALL\n", {"4 ENDRUN"}},
                    RowsCase{"TAILWATER\n a\n b", " a\n b", {}}, RowsCase{"TAILWATER", "", {}},
                    RowsCase{"TAILWATER\r\n \r\nENDTABLE\r\nENDTABLE\r\n", " \r\n", {"4 ENDTABLE"}},
                    RowsCase{
                        "HYD       t         1         0         0V\n          0.5       12\n          0.75      \n"
                        "OUTPUT    ALL\n",
                        "          0.5       12\n",
                        {"4 OUTPUT"}}));

TEST(ReadControlRecords, splitsTheFileAtEndRun) {
  const std::string text = "KESTRA\r\nENDRUN\r\nQUIL\r\nSAVMOV\r\n ENDRUN \r\nHYD\r\n";
  const std::vector<ControlRun> runs = readControlRecords(text);
  ASSERT_EQ(runs.size(), 3U);
  EXPECT_EQ(runs[0].text, "KESTRA\r\nENDRUN\r\n");
  EXPECT_EQ(runs[1].text, "QUIL\r\nSAVMOV\r\n ENDRUN \r\n");
  EXPECT_EQ(runs[1].kind, RunKind::spillway);
  EXPECT_EQ(runs[1].unknown.size(), 1U);
  ASSERT_EQ(runs[1].records.size(), 2U);
  EXPECT_EQ(runs[1].records[0].layout, findRecord("QUIL", RunKind::spillway));
  EXPECT_EQ(runs[1].records[1].layout->id, "ENDRUN");
  EXPECT_EQ(runs[2].text, "HYD\r\n");
  EXPECT_FALSE(runs[2].ended);
}

TEST(ReadControlRecords, takesTheFirstRunForWhatItIsSaidToBe) {
  const std::vector<ControlRun> runs = readControlRecords("KESTRA    1         dam.KSC\r\n", RunKind::spillway);
  ASSERT_EQ(runs.size(), 1U);
  ASSERT_EQ(runs[0].records.size(), 1U);
  EXPECT_EQ(runs[0].records[0].fields.named("file").text(), "dam.KSC");
}

TEST(EachRecord, handsOverTheRecordsOfTheFirstRunOnly) {
  std::vector<std::string> seen;
  eachRecord("KESTRA\nFOREIGN\nTAILWATER\n a\nENDRUN\nKESTRA\n", RunKind::main, [&](const ControlRecord& record) {
    seen.push_back(std::string(record.keyword) + ":" + std::string(record.rows));
  });
  EXPECT_EQ(seen, (std::vector<std::string>{"KESTRA:", "TAILWATER: a\n", "ENDRUN:"}));
}

TEST(ReadControlRecords, findsNoRunInATextOfEmptyLines) {
  EXPECT_TRUE(readControlRecords("").empty());
  EXPECT_TRUE(readControlRecords("\r\n\r\n\n").empty());
  EXPECT_EQ(readControlRecords("ENDRUN\r\n\r\n").size(), 1U);
}

TEST(ReadControlRecords, takesQuilForKestra) {
  const std::vector<ControlRun> runs = readControlRecords("QUIL      01/01/2009Mill Brook\n");
  ASSERT_EQ(runs.size(), 1U);
  const ControlRecord& record = runs[0].records.at(0);
  EXPECT_EQ(record.layout->id, "KESTRA");
  EXPECT_EQ(record.keyword, "QUIL");
  EXPECT_EQ(record.fields[1].text(), "Mill Brook");
}

TEST(ReadControlRecords, iteratesRowsWithoutCopies) {
  const std::vector<ControlRun> runs = readControlRecords(kWorkedFile);
  const ControlRecord& hydrograph = runs.at(0).records.at(2);
  LineReader rows(hydrograph.rows);
  std::string_view row;
  std::vector<std::string> values;
  while (rows.next(row)) {
    const FieldTexts texts = takeApartRow(*hydrograph.layout, row);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (!texts[i].text().empty()) values.emplace_back(texts[i].text());
    }
  }
  EXPECT_EQ(values, (std::vector<std::string>{"0", "5", "12", "30", "22", "8", "0"}));
}

}  // namespace
}  // namespace kestra
