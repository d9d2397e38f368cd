#include "control/run_reader.h"

namespace kestra {

void putFields(ScreenFields& fields, const RecordLayout& layout, std::string_view line, int spillway) {
  const FieldTexts texts = takeApart(layout, line);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const FieldLayout& field = texts.layout(i);
    if (field.literal || field.control.empty() || !texts[i].reached()) continue;
    fields.put(field, field.keepsBlanks ? texts[i].raw : texts[i].text(), spillway);
  }
}

std::string_view fieldText(const RecordLayout& layout, std::string_view line, std::string_view field) {
  return takeApart(layout, line).named(field).text();
}

void eachRow(const ControlRecord& record, ReadPlace& place,
             const std::function<void(int row, std::string_view line)>& take) {
  LineReader rows(record.rows);
  std::string_view line;
  for (int row = 1; rows.next(line); ++row) {
    place.line = record.lineNumber + rows.lineNumber();
    take(row, line);
  }
}

}  // namespace kestra
