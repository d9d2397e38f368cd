#include "summary/summary_file.h"

#include <algorithm>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/quoted_list.h"
#include "base/text.h"

namespace kestra {
namespace {

// Walks the items of a file: numbers as long as numbers come, names behind them.
class SummaryFileReader {
 public:
  explicit SummaryFileReader(std::string_view text) : items_(text) { advance(); }

  SummaryFile read() {
    for (std::vector<int>& fields : file_.selection.selectedFields) readFields(fields);
    for (; item_; advance()) {
      if (!trim(*item_).empty()) file_.entryNames.push_back(*item_);
    }
    return std::move(file_);
  }

 private:
  void advance() { item_ = items_.next(); }
  bool atNumber() const { return item_ && !items_.quoted(); }

  // Takes a number; 0, and a file that is not understood, for anything else.
  long long takeNumber() {
    const auto number = wholeNumber(*item_);
    if (!number || *number < 0) file_.understood = false;
    advance();
    return std::max(number.value_or(0), 0LL);
  }

  void readFields(std::vector<int>& fields) {
    if (!atNumber()) {
      file_.understood = file_.understood && !item_;
      return;
    }
    for (long long left = takeNumber(); left > 0 && item_; --left) {
      if (!atNumber()) {
        file_.understood = false;
        return;
      }
      add(fields, takeNumber());
    }
  }

  void add(std::vector<int>& fields, long long number) {
    const bool exists = number >= 1 && number <= static_cast<long long>(kMostSummaryFields);
    if (!exists) {
      file_.understood = false;
    } else if (std::find(fields.begin(), fields.end(), number) == fields.end()) {
      fields.push_back(static_cast<int>(number));
    }
  }

  QuotedListReader items_;
  std::optional<std::string> item_;
  SummaryFile file_;
};

}  // namespace

std::string summaryFileText(const SummarySelection& selection, const std::vector<std::string>& entryNames) {
  std::string text;
  const auto number = [&text](std::size_t value) { text.append(std::to_string(value)).append(kCrLf); };
  for (const auto& fields : selection.selectedFields) {
    number(fields.size());
    for (const int field : fields) number(static_cast<std::size_t>(field));
  }
  for (const auto& name : entryNames) text += quotedLine(name);
  return text;
}

SummaryFile readSummaryFile(std::string_view text) {
  return SummaryFileReader(text).read();
}

}  // namespace kestra
