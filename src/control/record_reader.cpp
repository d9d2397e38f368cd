#include "control/record_reader.h"

#include <algorithm>
#include <cassert>

#include "base/fields.h"
#include "base/lines.h"

namespace kestra {
namespace {

bool bears(const LayoutMark& mark, std::string_view line) {
  const std::string_view word = trim(columns(line, mark.column, mark.width));
  return std::ranges::find(mark.words, word) != mark.words.end();
}

bool endsRun(std::string_view line) {
  const std::size_t last = line.find_last_not_of(' ');
  return last != std::string_view::npos && line[last] == kRunEnd.back() && trim(line) == kRunEnd;
}

using RecordSink = std::function<void(const ControlRecord&)>;

// Walks the lines of a file and sorts them into runs; or hands the records of the first run to a sink and keeps
// nothing.
class RunWalker {
 public:
  RunWalker(std::string_view text, RunKind first, const RecordSink* sink = nullptr)
      : text_(text), lines_(text), next_(first), sink_(sink) {}

  std::vector<ControlRun> walk() {
    std::string_view line;
    while (!done_ && lines_.next(line)) take(line);
    if (isOpen_) close(text_.size());
    return std::move(runs_);
  }

 private:
  std::size_t offsetOf(std::string_view line) const { return static_cast<std::size_t>(line.data() - text_.data()); }

  std::size_t offsetBehind(std::string_view line) const {
    const std::size_t end = text_.find('\n', offsetOf(line) + line.size());
    return end == std::string_view::npos ? text_.size() : end + 1;
  }

  // The run in progress; a new one when there is none.
  ControlRun& run() {
    if (!isOpen_) {
      runs_.emplace_back().kind = next_;
      next_ = RunKind::spillway;
      isOpen_ = true;
    }
    return runs_.back();
  }

  void close(std::size_t end) {
    runs_.back().text = text_.substr(runStart_, end - runStart_);
    runStart_ = end;
    isOpen_ = false;
  }

  void take(std::string_view line) {
    if (line.empty()) return;
    const std::size_t number = lines_.lineNumber();
    const bool isLast = endsRun(line);
    const RecordLayout* layout = recognise(run().kind, isLast ? kRunEnd : line);
    if (layout == nullptr) {
      if (sink_ == nullptr) run().unknown.push_back({number, line});
      return;
    }
    ControlRecord record{layout, number, line, keywordOf(line), takeApart(*layout, line), {}};
    const std::string_view end = layout->table ? takeRows(record, *layout->table) : std::string_view();
    sink_ == nullptr ? run().records.push_back(record) : (*sink_)(record);
    if (isLast) endRun(line);
    if (!end.empty()) take(end);
  }

  void endRun(std::string_view line) {
    runs_.back().ended = true;
    close(offsetBehind(line));
    done_ = sink_ != nullptr;
  }

  // The line that ends the run and with it the table; empty where something else has closed the table.
  std::string_view takeRows(ControlRecord& record, const TableLayout& table) {
    const std::size_t begin = offsetBehind(record.line);
    std::size_t end = text_.size();
    std::string_view line;
    std::string_view ending;
    while (lines_.next(line)) {
      end = offsetOf(line);
      if (endsRun(line)) ending = line;
      if (!ending.empty() || !reaches(line, table.shortestRow) || line.starts_with(kTableEnd)) break;
      end = text_.size();
    }
    record.rows = text_.substr(begin, end - begin);
    return ending;
  }

  std::string_view text_;
  LineReader lines_;
  RunKind next_;  // kind of the run that begins next
  const RecordSink* sink_;
  std::vector<ControlRun> runs_;
  std::size_t runStart_ = 0;
  bool isOpen_ = false;
  bool done_ = false;
};

}  // namespace

std::string_view keywordOf(std::string_view line) {
  return trim(columns(line, 1, kKeywordWidth));
}

bool reaches(std::string_view line, int column) {
  const auto needed = static_cast<std::size_t>(column);
  if (line.size() < needed) return false;
  return isPlainAscii(line.substr(0, needed)) || !columns(line, column, 1).empty();
}

FieldText FieldTexts::named(std::string_view name) const {
  const FieldLayout* field = findField(fields_, name);
  assert(field != nullptr);
  return {line_.cut(field->first, field->readWidth)};
}

FieldTexts takeApart(const RecordLayout& record, std::string_view line) {
  return {record.fields, line};
}

FieldTexts takeApartRow(const RecordLayout& record, std::string_view line) {
  assert(record.table);
  return {record.table->fields, line};
}

std::vector<std::string_view> givenValues(const FieldTexts& texts) {
  std::vector<std::string_view> values;
  for (std::size_t i = 0; i < texts.size() && texts[i].reached(); ++i) {
    if (!texts.layout(i).literal) values.push_back(texts[i].raw);
  }
  return values;
}

const RecordLayout* recognise(RunKind run, std::string_view line) {
  const std::string_view keyword = keywordOf(line);
  const auto layouts = layoutsOf(run, run == RunKind::main ? canonicalKeyword(keyword) : keyword);
  const RecordLayout* unmarked = nullptr;
  for (const RecordLayout& layout : layouts) {
    if (layout.mark && bears(*layout.mark, line)) return &layout;
    if (!layout.mark && unmarked == nullptr) unmarked = &layout;
  }
  return unmarked;
}

std::vector<ControlRun> readControlRecords(std::string_view text, RunKind first) {
  return RunWalker(text, first).walk();
}

void eachRecord(std::string_view text, RunKind kind, const std::function<void(const ControlRecord&)>& take) {
  RunWalker(text, kind, &take).walk();
}

}  // namespace kestra
