#include "control/run_text.h"

#include <algorithm>
#include <cassert>

#include "base/fields.h"
#include "base/text.h"

namespace kestra {

void RunText::record(std::string_view id, std::initializer_list<Given> given, std::size_t most, LastValue last) {
  layout_ = findRecord(id, run_);
  assert(layout_ != nullptr);
  row_ = 0;
  const auto values = valuesOf(given, most);
  noteCuts(layout_->fields, values, 0);
  const std::size_t begin = text_.size();
  text_ += composeRecord(*layout_, values);
  if (last == LastValue::open) openLast(layout_->fields, values);
  endLine(begin);
}

std::vector<std::string_view> RunText::valuesOf(std::initializer_list<Given> given, std::size_t most) {
  std::vector<std::string_view> values;
  for (const FieldLayout& field : layout_->fields) {
    if (field.literal) continue;
    if (values.size() == most) break;
    const auto found = std::ranges::find(given, field.name, &Given::field);
    values.push_back(found != given.end() ? found->value : fields_.text(field, spillway));
  }
  return values;
}

void RunText::row(Values values, LastValue last) {
  ++row_;
  noteCuts(layout_->table->fields, values, row_);
  const std::size_t begin = text_.size();
  appendRow(text_, *layout_, values);
  if (last == LastValue::open) openLast(layout_->table->fields, values);
  endLine(begin);
}

// Takes the padding of the last value off. The fields up to it take a value each.
void RunText::openLast(std::span<const FieldLayout> layouts, Values values) {
  if (values.empty()) return;
  const auto width = static_cast<std::size_t>(layouts[values.size() - 1].width);
  text_.resize(text_.size() - (width - std::min(width, charCount(values.back()))));
}

void RunText::line(std::string_view text) {
  const std::size_t begin = text_.size();
  text_ += text;
  endLine(begin);
}

void RunText::endLine(std::size_t begin) {
  const auto isLineEnd = [](char c) { return c == '\r' || c == '\n'; };
  std::replace_if(text_.begin() + static_cast<std::ptrdiff_t>(begin), text_.end(), isLineEnd, ' ');
  text_ += kCrLf;
}

void RunText::noteCuts(std::span<const FieldLayout> layouts, Values values, int row) {
  if (cuts_ == nullptr) return;
  for (const CutValue& cut : cutValues(layouts, values)) {
    std::string field = std::string(layout_->title) + ", " + std::string(cut.field->name);
    if (row > 0) field += ", row " + std::to_string(row);
    cuts_->push_back({std::move(field), std::string(cut.value), std::string(cut.lost)});
  }
}

void writeReaches(RunText& out, const AuxProfile& profile, bool stability) {
  for (const AuxReach& reach : profile.reaches) {
    if (trim(reach.front()).empty()) continue;
    std::array<std::string_view, std::tuple_size_v<AuxReach>> values;
    std::copy(reach.begin(), reach.end(), values.begin());
    if (stability) values.back() = "";
    out.row(values);
  }
  out.endTable();
}

void writeRows(RunText& out, ScreenFields& fields, const RowRule& rule) {
  const auto layouts = out.layout().table->fields;
  std::vector<CellLine> lines;
  for (const FieldLayout& field : layouts) lines.push_back(fields.cells(field, out.spillway));
  std::vector<std::string_view> values(lines.size());
  const int last = std::min(lines.front().points(), rule.most);
  for (int point = 1; point <= last; ++point) {
    for (std::size_t i = 0; i < lines.size(); ++i) values[i] = lines[i].cell(point);
    const auto blank = [](std::string_view value) { return trim(value).empty(); };
    const bool given = std::none_of(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(rule.needed), blank);
    if (given) {
      out.row(values);
    } else if (rule.ends) {
      break;
    }
  }
  out.endTable();
}

}  // namespace kestra
