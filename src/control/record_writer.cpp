#include "control/record_writer.h"

#include <cassert>

#include "base/fields.h"
#include "base/text.h"
#include "control/line_cutter.h"

namespace kestra {
namespace {

constexpr int kDischargeWidth = 10;

void appendPadded(std::string& out, std::string_view text, int width) {
  const auto wanted = static_cast<std::size_t>(width);
  if (text.size() <= wanted && isPlainAscii(text)) {
    const std::size_t at = out.size();
    out.append(wanted, ' ');
    text.copy(out.data() + at, text.size());
  } else {
    const std::string_view kept = charsFrom(text, 0, wanted);
    out.append(kept).append(wanted - charCount(kept), ' ');
  }
}

// What a constant-step hydrograph keeps of a value.
std::string_view keptOfDischarge(std::string_view text) {
  const LineCutter cutter(text);
  const std::string_view kept = cutter.cut(1, kDischargeWidth);
  if (kept.find('.') == std::string_view::npos) return kept;
  return cutter.cut(1, cutter.cut(8, 1) == "." ? 7 : 9);
}

void appendField(std::string& out, const FieldLayout& field, std::string_view value) {
  switch (field.kind) {
    case FieldKind::padded:
      return appendPadded(out, value, field.width);
    case FieldKind::discharge:
      return appendPadded(out, keptOfDischarge(value), field.width);
    case FieldKind::free:
    case FieldKind::code:
      out += value;
  }
}

// Appends fields to a line that is filled up to the column before `column`.
void appendFields(std::string& out, int column, std::span<const FieldLayout> fields, Values values) {
  auto value = values.begin();
  for (const FieldLayout& field : fields) {
    if (!field.literal && value == values.end()) return;
    if (field.first > column) out.append(static_cast<std::size_t>(field.first - column), ' ');
    appendField(out, field, field.literal ? *field.literal : *value++);
    column = field.first + field.width;
  }
  assert(value == values.end());
}

constexpr std::size_t kCommentWidth = 60;

// Takes from the front of `text` what the next comment line holds, when a line feed stands near enough.
bool takeUpToLineFeed(std::string_view& text, std::string& line) {
  const std::string_view band = charsFrom(text, 0, kCommentWidth + 1);
  const std::size_t end = band.find('\n');
  if (end == std::string_view::npos) return false;
  const std::string_view before = text.substr(0, end);
  line = charsFrom(before, 0, before.empty() ? 0 : charCount(before) - 1);
  text.remove_prefix(end + 1);
  return true;
}

std::string takeUpToBlank(std::string_view& text) {
  std::string_view line = charsFrom(text, 0, kCommentWidth);
  const std::size_t blank = line.rfind(' ');
  if (charCount(line) == kCommentWidth && blank != std::string_view::npos) line = line.substr(0, blank + 1);
  text.remove_prefix(line.size());
  return std::string(line);
}

}  // namespace

std::string composeRecord(const RecordLayout& record, Values values) {
  if (record.fields.empty()) return std::string(record.keyword);
  std::string line = PadField(record.keyword, kKeywordWidth);
  appendFields(line, kKeywordWidth + 1, record.fields, values);
  return line;
}

std::string composeRow(const RecordLayout& record, Values values) {
  std::string line;
  appendRow(line, record, values);
  return line;
}

void appendRow(std::string& out, const RecordLayout& record, Values values) {
  assert(record.table);
  if (!record.table->trimmed) return appendFields(out, 1, record.table->fields, values);
  std::vector<std::string_view> cells;
  for (const std::string_view value : values) cells.push_back(trim(value));
  appendFields(out, 1, record.table->fields, cells);
}

std::string hydrographValue(std::string_view text) {
  return PadField(keptOfDischarge(text), kDischargeWidth);
}

std::vector<std::string> wrapComment(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    std::string line;
    if (!takeUpToLineFeed(text, line)) line = takeUpToBlank(text);
    lines.push_back(std::move(line));
  }
  return lines;
}

std::string_view lostText(const FieldLayout& field, std::string_view value) {
  std::size_t kept = static_cast<std::size_t>(field.readWidth);
  if (field.kind == FieldKind::discharge) kept = charCount(keptOfDischarge(value));
  const std::string_view lost = charsFrom(value, kept);
  return trim(lost).empty() ? std::string_view() : lost;
}

std::vector<CutValue> cutValues(std::span<const FieldLayout> fields, Values values) {
  std::vector<CutValue> cuts;
  auto value = values.begin();
  for (const FieldLayout& field : fields) {
    if (field.literal) continue;
    if (value == values.end()) break;
    const std::string_view lost = lostText(field, *value);
    if (!lost.empty()) cuts.push_back({&field, *value, lost});
    ++value;
  }
  return cuts;
}

}  // namespace kestra
