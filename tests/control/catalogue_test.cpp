#include "control/catalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace kestra {
namespace {

TEST(Catalogue, holdsEveryRecordInTheOrderOfTheFile) {
  std::vector<std::string_view> ids;
  for (const RecordLayout& record : recordsOf(RunKind::main)) ids.push_back(record.id);
  const std::vector<std::string_view> expected = {
      "KESTRA",         "OPTION",          "OPTION NOBREACH",  "OPTION DRAWDOWN",
      "COMMENT",        "HCMODEL 1",       "HCMODEL 2",        "HYD C",
      "HYD V",          "STROUTE",         "STRUCTURE",        "UPSTREAM",
      "DAMCREST",       "DWNSTREAM EARTH", "DWNSTREAM RIPRAP", "DWNSTREAM BARE BREACH",
      "DWNSTREAM BARE", "CRESTPRFL",       "PSpINLET",         "PSpDATA",
      "PSpHOOD",        "PSpCOEFFS",       "TAILWATER",        "ASSURFACE",
      "ASRATING",       "TEMPLATE",        "OUTPUT",           "ENDTABLE",
      "ENDRUN"};
  EXPECT_EQ(ids, expected);
}

TEST(Catalogue, holdsEveryRecordOfASpillwayInTheOrderOfItsRun) {
  std::vector<std::string_view> ids;
  for (const RecordLayout& record : recordsOf(RunKind::spillway)) ids.push_back(record.id);
  const std::vector<std::string_view> expected = {
      "QUIL",  "HYD",      "POOLDATA", "ASSPRFL", "ASSURFACE", "ASDATA", "BTMWIDTH", "ASMATERIAL", "ASCOORD",
      "ORLEN", "GRAPHICS", "GO,HYD",   "KESTRA",  "MODIFIED",  "LHS",    "ENDJOB",   "ENDTABLE",   "ENDRUN"};
  EXPECT_EQ(ids, expected);
}

std::vector<const RecordLayout*> everyRecord() {
  std::vector<const RecordLayout*> all;
  for (const RunKind run : {RunKind::main, RunKind::spillway}) {
    for (const RecordLayout& record : recordsOf(run)) all.push_back(&record);
  }
  return all;
}

TEST(Catalogue, keepsTheLayoutsOfAKeywordTogether) {
  std::set<std::string_view> seen;
  std::string_view last;
  for (const RecordLayout& record : recordsOf(RunKind::main)) {
    EXPECT_TRUE(record.keyword == last || seen.insert(record.keyword).second) << record.id;
    last = record.keyword;
    EXPECT_EQ(layoutsOf(RunKind::main, record.keyword).front().keyword, record.keyword);
  }
  EXPECT_EQ(layoutsOf(RunKind::main, "DWNSTREAM").size(), 4U);
  EXPECT_EQ(layoutsOf(RunKind::main, "OPTION").size(), 3U);
  EXPECT_TRUE(layoutsOf(RunKind::main, "QUIL").empty());
  EXPECT_TRUE(layoutsOf(RunKind::main, "").empty());
}

void expectFieldsInOrder(const RecordLayout& record, std::span<const FieldLayout> fields, int firstFree) {
  int column = firstFree;
  for (const FieldLayout& field : fields) {
    EXPECT_GE(field.first, column) << record.id << ", " << field.name;
    EXPECT_GT(field.width, 0) << record.id << ", " << field.name;
    EXPECT_GE(field.readWidth, field.width) << record.id << ", " << field.name;
    EXPECT_FALSE(field.meaning.empty()) << record.id << ", " << field.name;
    const bool last = &field == &fields.back();
    const bool hasNoPadding = field.kind == FieldKind::free || field.kind == FieldKind::code;
    EXPECT_TRUE(last || !hasNoPadding) << record.id << ", " << field.name;
    EXPECT_TRUE(last || field.readWidth == field.width) << record.id << ", " << field.name;
    column = field.first + field.width;
  }
}

TEST(Catalogue, letsNoTwoFieldsOverlap) {
  for (const RecordLayout* record : everyRecord()) {
    expectFieldsInOrder(*record, record->fields, 11);
    if (record->table) expectFieldsInOrder(*record, record->table->fields, 11);
  }
}

TEST(Catalogue, namesEachFieldOfARecordOnce) {
  for (const RecordLayout* record : everyRecord()) {
    std::set<std::string_view> names;
    for (const FieldLayout& field : record->fields) {
      if (field.literal && field.literal->empty()) continue;
      EXPECT_TRUE(names.insert(field.name).second) << record->id << ", " << field.name;
      EXPECT_EQ(findField(record->fields, field.name), &field);
    }
  }
}

struct WidthCase {
  const char* id;
  const char* field;
  int first;
  int width;
  int readWidth;
  FieldKind kind;
};

class ExceptionalWidth : public testing::TestWithParam<WidthCase> {};

TEST_P(ExceptionalWidth, standsInTheCatalogue) {
  const WidthCase& expected = GetParam();
  const RecordLayout* record = findRecord(expected.id);
  ASSERT_NE(record, nullptr);
  const FieldLayout* field = findField(record->fields, expected.field);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->first, expected.first);
  EXPECT_EQ(field->width, expected.width);
  EXPECT_EQ(field->readWidth, expected.readWidth);
  EXPECT_EQ(field->kind, expected.kind);
}

constexpr auto kPadded = FieldKind::padded;
constexpr auto kFree = FieldKind::free;
constexpr auto kCode = FieldKind::code;

INSTANTIATE_TEST_SUITE_P(
    Fields, ExceptionalWidth,
    testing::Values(
        WidthCase{"KESTRA", "project", 21, 50, 50, kFree}, WidthCase{"OPTION NOBREACH", "analysis", 41, 10, 10, kCode},
        WidthCase{"OPTION DRAWDOWN", "drawdown time", 71, 10, 10, kFree},
        WidthCase{"COMMENT", "comment", 11, 60, 60, kFree}, WidthCase{"HYD C", "adjust", 41, 1, 1, kPadded},
        WidthCase{"HYD C", "step", 42, 1, 1, kPadded}, WidthCase{"HYD V", "", 43, 8, 8, kPadded},
        WidthCase{"STROUTE", "unit", 31, 4, 10, kCode}, WidthCase{"PSpDATA", "conduits", 11, 5, 5, kPadded},
        WidthCase{"PSpDATA", "length", 16, 5, 5, kPadded}, WidthCase{"PSpDATA", "type", 71, 2, 10, kCode},
        WidthCase{"PSpHOOD", "bend", 71, 1, 1, kCode}, WidthCase{"ASSURFACE", "number", 11, 1, 1, kPadded},
        WidthCase{"ASSURFACE", "name", 12, 9, 9, kPadded}, WidthCase{"ASSURFACE", "bottom width", 31, 9, 9, kPadded},
        WidthCase{"ASSURFACE", "analysis", 40, 1, 1, kPadded},
        WidthCase{"ASSURFACE", "end of channel", 51, 10, 10, kFree}, WidthCase{"ASRATING", "name", 12, 9, 9, kPadded},
        WidthCase{"ASRATING", "analysis", 21, 1, 1, kCode}));

TEST(Catalogue, findsNothingUnderAWrongName) {
  EXPECT_EQ(findRecord("DWNSTREAM"), nullptr);
  EXPECT_EQ(findRecord(""), nullptr);
  EXPECT_EQ(findRecord("QUIL"), nullptr);
  EXPECT_NE(findRecord("QUIL", RunKind::spillway), nullptr);
  EXPECT_EQ(findField(findRecord("KESTRA")->fields, "colour"), nullptr);
}

TEST(Catalogue, writesAllButTheTemplate) {
  for (const RecordLayout& record : recordsOf(RunKind::main)) EXPECT_EQ(record.written, record.id != "TEMPLATE");
}

TEST(CanonicalKeyword, standsForTheSynonymsOfInput) {
  EXPECT_EQ(canonicalKeyword("QUIL"), "KESTRA");
  EXPECT_EQ(canonicalKeyword("COMMENT"), "*");
  EXPECT_EQ(canonicalKeyword("HYDROGRAPH"), "HYD");
  EXPECT_EQ(canonicalKeyword("STROUTING"), "STROUTE");
  EXPECT_EQ(canonicalKeyword("OPTION"), "OPTION");
  EXPECT_EQ(canonicalKeyword(""), "");
}

}  // namespace
}  // namespace kestra
