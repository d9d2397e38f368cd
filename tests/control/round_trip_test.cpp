#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/fields.h"
#include "base/text.h"
#include "control/record_reader.h"
#include "control/record_writer.h"

// What the writer pads and joins, the reader takes apart to the same values.
namespace kestra {
namespace {

using Texts = std::vector<std::string_view>;

// Values that are at home in no field: none, short, too long, blanks, not ASCII, in an 8-bit encoding.
constexpr std::string_view kAwkward[] = {
    "",
    "1.5",
    "1234567890",
    "12345678901234567890123456789012345678901234567890123456789012345678901234567",
    " leading",
    "trailing ",
    "a b",
    "\xC3\xA4\xC3\xB6\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8C\x8A",
    "\xF6 8-bit \xE4",
    "1234567.89",
    "123456.789",
    "."};

std::string_view expectedText(const FieldLayout& field, std::string_view value) {
  if (field.literal) return *field.literal;
  return trim(charsFrom(value, 0, charCount(value) - charCount(lostText(field, value))));
}

void expectFields(std::span<const FieldLayout> fields, Texts values, const FieldTexts& texts, const std::string& line) {
  ASSERT_EQ(texts.size(), fields.size());
  std::size_t next = 0;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const FieldLayout& field = fields[i];
    if (!field.literal && next == values.size()) {
      EXPECT_FALSE(texts[i].reached()) << line;
      return;
    }
    EXPECT_EQ(texts[i].text(), expectedText(field, field.literal ? "" : values[next])) << line << ": " << field.name;
    next += field.literal ? 0 : 1;
  }
}

std::size_t takersOf(std::span<const FieldLayout> fields) {
  std::size_t count = 0;
  for (const FieldLayout& field : fields) count += field.literal ? 0 : 1;
  return count;
}

// Rotates through the awkward values, so that each field meets each of them.
Texts valuesFrom(std::size_t start, std::size_t count) {
  Texts values;
  for (std::size_t i = 0; i < count; ++i) values.push_back(kAwkward[(start + i) % std::size(kAwkward)]);
  return values;
}

RunKind runOf(const RecordLayout& record) {
  const auto records = recordsOf(RunKind::main);
  return &record >= records.data() && &record < records.data() + records.size() ? RunKind::main : RunKind::spillway;
}

class EveryRecord : public testing::TestWithParam<const RecordLayout*> {};

TEST_P(EveryRecord, comesBackWithItsValues) {
  const RecordLayout& record = *GetParam();
  for (std::size_t count = 0; count <= takersOf(record.fields); ++count) {
    for (std::size_t start = 0; start < std::size(kAwkward); ++start) {
      const Texts values = valuesFrom(start, count);
      const std::string line = composeRecord(record, values);
      EXPECT_EQ(keywordOf(line), record.keyword);
      expectFields(record.fields, values, takeApart(record, line), line);
    }
  }
}

TEST_P(EveryRecord, comesBackWithTheValuesOfItsRows) {
  const RecordLayout& record = *GetParam();
  if (!record.table) return;
  for (std::size_t start = 0; start < std::size(kAwkward); ++start) {
    const Texts values = valuesFrom(start, takersOf(record.table->fields));
    const std::string line = composeRow(record, values);
    EXPECT_EQ(keywordOf(line), "");
    expectFields(record.table->fields, values, takeApartRow(record, line), line);
  }
}

// A field without padding is written whole and read with its width, so that the line may lose its end, once.
TEST_P(EveryRecord, isComposedAgainToTheLineThatWasRead) {
  const RecordLayout& record = *GetParam();
  for (std::size_t start = 0; start < std::size(kAwkward); ++start) {
    const std::string written = composeRecord(record, valuesFrom(start, takersOf(record.fields)));
    const std::string again = composeRecord(record, givenValues(takeApart(record, written)));
    EXPECT_EQ(written.substr(0, again.size()), again);
    EXPECT_EQ(composeRecord(record, givenValues(takeApart(record, again))), again);
  }
}

TEST_P(EveryRecord, whoseLayoutTheLineTellsIsRecognised) {
  const RecordLayout& record = *GetParam();
  const Texts values(takersOf(record.fields), "1");
  const RecordLayout* recognised = recognise(runOf(record), composeRecord(record, values));
  ASSERT_NE(recognised, nullptr);
  const bool isToldByTheScreen = record.keyword == "DWNSTREAM";
  EXPECT_EQ(recognised->id, isToldByTheScreen ? "DWNSTREAM EARTH" : record.id);
}

std::vector<const RecordLayout*> everyRecord() {
  std::vector<const RecordLayout*> all;
  for (const RunKind run : {RunKind::main, RunKind::spillway}) {
    for (const RecordLayout& record : recordsOf(run)) all.push_back(&record);
  }
  return all;
}

std::string nameOf(const testing::TestParamInfo<const RecordLayout*>& info) {
  std::string name = runOf(*info.param) == RunKind::main ? "" : "ofASpillway";
  for (const char c : info.param->id) {
    if (c != ' ' && c != ',') name += c;
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryRecord, testing::ValuesIn(everyRecord()), nameOf);

}  // namespace
}  // namespace kestra
