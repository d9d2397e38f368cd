#include "describe_catalogue.h"

#include <fmt/format.h>

#include "control/catalogue.h"

namespace kestra {
namespace {

std::string columnsText(const FieldLayout& field) {
  if (field.kind == FieldKind::free) return fmt::format("{} on", field.first);
  if (field.width == 1) return fmt::format("{}", field.first);
  return fmt::format("{}-{}", field.first, field.first + field.width - 1);
}

std::string widthText(const FieldLayout& field) {
  if (field.kind == FieldKind::free) return fmt::format("free, read as {}", field.readWidth);
  const std::string read = field.readWidth == field.width ? "" : fmt::format(", read as {}", field.readWidth);
  if (field.kind == FieldKind::code) return fmt::format("{}, not padded{}", field.width, read);
  return fmt::format("{}", field.width);
}

std::string contentText(const FieldLayout& field) {
  if (!field.literal) return std::string(field.meaning);
  if (field.literal->empty()) return "blank";
  return fmt::format("`{}`: {}", *field.literal, field.meaning);
}

std::string fieldsTable(std::span<const FieldLayout> fields) {
  std::string text = "| Columns | Width | Content | Unit | Control |\n|---|---|---|---|---|\n";
  for (const FieldLayout& field : fields) {
    const std::string control = field.control.empty() ? "" : fmt::format("`{}`", field.control);
    text += fmt::format("| {} | {} | {} | {} | {} |\n", columnsText(field), widthText(field), contentText(field),
                        field.unit, control);
  }
  return text;
}

std::string synonymsOf(std::string_view keyword) {
  std::string text;
  for (const Synonym& synonym : keywordSynonyms()) {
    if (synonym.keyword == keyword) text += fmt::format(" `{}` is accepted in place of the keyword.", synonym.accepted);
  }
  return text;
}

std::string describe(RunKind run, const RecordLayout& record) {
  std::string text = fmt::format("### `{}`: {}\n\nWritten: {}.{}\n", record.keyword, record.title, record.presence,
                                 run == RunKind::main ? synonymsOf(record.keyword) : std::string());
  if (record.fields.empty()) {
    text += "The keyword stands alone, without blanks behind it.\n";
  } else {
    text += fmt::format("\n{}", fieldsTable(record.fields));
  }
  if (!record.table) return text;
  return text + fmt::format("\nRows of its table, closed by `ENDTABLE`:\n\n{}", fieldsTable(record.table->fields));
}

}  // namespace

std::string describeCatalogue(RunKind run) {
  std::string text;
  for (const RecordLayout& record : recordsOf(run)) text += fmt::format("{}\n", describe(run, record));
  return text;
}

}  // namespace kestra
