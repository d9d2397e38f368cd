// Any bytes as a control file: reading never fails, views stay inside the text, and each record and row that was taken
// apart is composed to a line that gives the same texts again.
#include <string>
#include <string_view>
#include <vector>

#include "base/lines.h"
#include "control/record_reader.h"
#include "control/record_writer.h"
#include "fuzz_target.h"

namespace kestra {
namespace {

void requireSameTexts(const FieldTexts& before, const FieldTexts& after) {
  for (std::size_t i = 0; i < before.size() && before[i].reached(); ++i) {
    const FieldLayout& field = before.layout(i);
    if (field.literal || field.kind == FieldKind::discharge) continue;
    fuzzRequire(before[i].text() == after[i].text(), "a field has the same text again");
  }
}

void requireInside(std::string_view part, std::string_view text) {
  if (part.empty()) return;
  fuzzRequire(part.data() >= text.data() && part.data() + part.size() <= text.data() + text.size(),
              "a view lies inside the text");
}

void checkRow(const RecordLayout& layout, std::string_view row) {
  const FieldTexts texts = takeApartRow(layout, row);
  const std::string again = composeRow(layout, givenValues(texts));
  requireSameTexts(texts, takeApartRow(layout, again));
  fuzzRequire(composeRow(layout, givenValues(takeApartRow(layout, again))) == again, "a composed row stands");
}

void checkRecord(const ControlRecord& record) {
  const RecordLayout& layout = *record.layout;
  const std::string again = composeRecord(layout, givenValues(record.fields));
  const FieldTexts texts = takeApart(layout, again);
  requireSameTexts(record.fields, texts);
  fuzzRequire(composeRecord(layout, givenValues(texts)) == again, "a composed record stands");
  fuzzRequire(keywordOf(again) == layout.keyword, "a composed record has its keyword");
  LineReader rows(record.rows);
  std::string_view row;
  while (rows.next(row)) checkRow(layout, row);
}

void checkComment(std::string_view text) {
  std::size_t length = 0;
  for (const std::string& line : wrapComment(text)) {
    fuzzRequire(charCount(line) <= 60, "a comment line has at most 60 characters");
    length += line.size();
  }
  fuzzRequire(length <= text.size(), "a wrapped comment gains nothing");
}

// Every record of the catalogue with a value in each field, and two rows where it has a table.
std::string everyRecord() {
  std::string text;
  const std::vector<std::string_view> values = {"1", "2.5", "", "1234567.89", "a b", "6", "7", "S"};
  const auto append = [&](std::string_view line) { text.append(line).append("\r\n"); };
  for (const RecordLayout& record : recordsOf(RunKind::main)) {
    std::size_t takers = 0;
    for (const FieldLayout& field : record.fields) takers += field.literal ? 0 : 1;
    append(composeRecord(record, Values(values).first(takers)));
    if (!record.table) continue;
    const Values row = Values(values).first(record.table->fields.size());
    append(composeRow(record, row));
    append(composeRow(record, row));
    append(kTableEnd);
  }
  return text;
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  return {everyRecord(),
          "KESTRA    01/01/2009p\xC3\xB6nd\r\nHYD       t         1         0         1V\n          1         2\n\n",
          "QUIL\nENDRUN\n ENDRUN \nTAILWATER\n", "OPTION    SIMPLE    EARTH               NOBA\r\n"};
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const ControlRun& run : readControlRecords(text)) {
    requireInside(run.text, text);
    for (const UnknownLine& unknown : run.unknown) requireInside(unknown.line, text);
    for (const ControlRecord& record : run.records) {
      requireInside(record.rows, text);
      checkRecord(record);
    }
  }
  checkComment(text.substr(0, 500));
  return 0;
}
