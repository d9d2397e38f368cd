#include "control/screen_fields.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "control/word_fields.h"
#include "support/control_desk.h"

namespace kestra {
namespace {

TEST(ScreenFields, findTheControlOfEveryFieldOfTheMainRun) {
  ControlDesk desk;
  ScreenFields fields(desk.screens.context);
  for (const RecordLayout& record : recordsOf(RunKind::main)) {
    for (const FieldLayout& field : record.fields) {
      if (field.literal || field.control.empty()) continue;
      EXPECT_NO_THROW((void)fields.text(field, 2)) << record.id << ", " << field.name;
      EXPECT_NO_THROW(fields.put(field, "1", 2)) << record.id << ", " << field.name;
    }
  }
}

TEST(ScreenFields, findTheTableOfEveryRowOfTheMainRun) {
  ControlDesk desk;
  ScreenFields fields(desk.screens.context);
  for (const RecordLayout& record : recordsOf(RunKind::main)) {
    if (!record.table || record.id == "TEMPLATE" || record.id == "ASSURFACE") continue;
    for (const FieldLayout& field : record.table->fields) {
      const CellLine cells = fields.cells(field, 1);
      EXPECT_GE(cells.points(), 50) << record.id << ", " << field.name;
      cells.put(1, std::string(field.name));
      EXPECT_EQ(cells.cell(1), field.name);
    }
  }
}

TEST(ScreenFields, takeAPointThatTheTableDoesNotHaveForAFault) {
  ControlDesk desk;
  ScreenFields fields(desk.screens.context);
  const CellLine cells = fields.cells(findRecord("STRUCTURE")->table->fields[0], 0);
  EXPECT_NO_THROW(cells.put(50, "1"));
  EXPECT_THROW(cells.put(51, "1"), RuntimeFault);
}

TEST(ScreenFields, loadAScreenThatTheyGiveSomething) {
  ControlDesk desk;
  ScreenFields fields(desk.screens.context);
  const FieldLayout& width = *findField(findRecord("DAMCREST")->fields, "width");
  (void)fields.text(width, 0);
  EXPECT_FALSE(desk.screens.damSurface.loaded());
  fields.put(width, "12", 0);
  EXPECT_TRUE(desk.screens.damSurface.loaded());
  EXPECT_EQ(desk.screens.damSurface.txtCrestWidth.text(), "12");
  EXPECT_TRUE(fields.used.contains("frmDamSurface.txtCrestWidth"));
}

struct WordCase {
  const char* record;
  const char* field;
  const char* word;
};

class Word : public testing::TestWithParam<WordCase> {};

// Whatever was selected before, a word selects the option that is written as that word.
TEST_P(Word, comesBackAsItWasRead) {
  const auto& [record, name, word] = GetParam();
  const FieldLayout& field = *findField(findRecord(record)->fields, name);
  for (const WordChoice& before : findWordField(field.control)->read) {
    ControlDesk desk;
    ScreenFields fields(desk.screens.context);
    fields.put(field, before.word, 1);
    fields.put(field, word, 1);
    EXPECT_EQ(fields.text(field, 1), word) << before.word;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Words, Word,
    testing::Values(WordCase{"OPTION", "model", "COEFF"}, WordCase{"OPTION", "model", "SIMPLE"},
                    WordCase{"OPTION", "surface", "EARTH"}, WordCase{"OPTION", "surface", "RIPRAP"},
                    WordCase{"OPTION", "surface", "BARESOIL"}, WordCase{"OPTION", "spillway", "NOPS"},
                    WordCase{"OPTION DRAWDOWN", "drawdown unit", "PERCENT"},
                    WordCase{"OPTION DRAWDOWN", "drawdown unit", "FEET"}, WordCase{"STROUTE", "unit", "FEET"},
                    WordCase{"STROUTE", "unit", "CFS"}, WordCase{"PSpDATA", "type", "SC"},
                    WordCase{"PSpDATA", "type", "SR"}, WordCase{"PSpDATA", "type", "TC"},
                    WordCase{"PSpDATA", "type", "TR"}, WordCase{"PSpDATA", "type", "HD"},
                    WordCase{"PSpHOOD", "bend", "B"}, WordCase{"PSpHOOD", "bend", "S"},
                    WordCase{"ASSURFACE", "analysis", "0"}, WordCase{"ASSURFACE", "analysis", "1"},
                    WordCase{"ASSURFACE", "analysis", "2"}, WordCase{"ASRATING", "analysis", "1"}));

struct OtherWordCase {
  const char* record;
  const char* field;
  const char* before;
  const char* word;
  const char* after;
};

class OtherWord : public testing::TestWithParam<OtherWordCase> {};

TEST_P(OtherWord, selectsWhatStandsInForItOrNothing) {
  const auto& [record, name, before, word, after] = GetParam();
  const FieldLayout& field = *findField(findRecord(record)->fields, name);
  ControlDesk desk;
  ScreenFields fields(desk.screens.context);
  fields.put(field, before, 0);
  fields.put(field, word, 0);
  EXPECT_EQ(fields.text(field, 0), after);
}

INSTANTIATE_TEST_SUITE_P(Words, OtherWord,
                         testing::Values(OtherWordCase{"OPTION", "model", "COEFF", "DETAILED", "SIMPLE"},
                                         OtherWordCase{"OPTION", "model", "COEFF", "coeff", "COEFF"},
                                         OtherWordCase{"OPTION", "surface", "RIPRAP", "", "RIPRAP"},
                                         OtherWordCase{"OPTION", "spillway", "NOPS", "", "NOPS"},
                                         OtherWordCase{"OPTION DRAWDOWN", "drawdown unit", "PERCENT", "", "FEET"},
                                         OtherWordCase{"STROUTE", "unit", "CFS", "CUBIC", "FEET"},
                                         OtherWordCase{"PSpHOOD", "bend", "B", "", "B"},
                                         OtherWordCase{"ASSURFACE", "analysis", "1", "7", "0"}));

}  // namespace
}  // namespace kestra
