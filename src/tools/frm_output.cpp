#include "tools/frm_output.h"

#include <array>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "screens/frm_project_information.h"

namespace kestra {
namespace {

constexpr std::array<std::string_view, 3> kJobs = {"TORVE", "VERN2", "QUIL"};
constexpr std::array<int, 3> kPartNumbers = {0, 31, 101};
constexpr int kField = 10;         // columns of a field
constexpr int kNumberColumn = 11;  // of a record's first number
constexpr int kTitleColumn = 21;   // of a job's title
constexpr int kNameColumn = 71;    // of an element's name

std::string keywordOf(std::string_view line) {
  return std::string(trim(columns(line, 1, kField)));
}

std::string textAt(std::string_view line, int column) {
  return std::string(trim(columns(line, column, kField)));
}

// The number of the part that the line begins; nothing where it begins none.
std::optional<std::int16_t> partNumber(std::string_view line) {
  if (keywordOf(line) != "SAVMOV") return std::nullopt;
  const auto number = wholeNumber(columns(line, kNumberColumn, kField));
  if (!number) return std::nullopt;
  for (const int wanted : kPartNumbers) {
    if (*number == wanted) return static_cast<std::int16_t>(wanted);
  }
  return std::nullopt;
}

struct KindMark {
  std::string_view keyword;
  std::string_view kind;
  int numberColumn;
};
constexpr std::array<KindMark, 2> kKinds = {{{"STRUCTURE", "1", 11}, {"WSDATA", "2", 14}}};

void markKind(frmOutput::Element& element, std::string_view line) {
  for (const KindMark& mark : kKinds) {
    if (keywordOf(line) != mark.keyword) continue;
    element.kind = mark.kind;
    element.kindNumber = textAt(line, mark.numberColumn);
  }
}

}  // namespace

void frmOutput::GenerateTopoGraph(std::string& text, std::span<std::string> runs) {
  forget();
  std::string_view rest = text;
  bool titleDue = true;
  while (!rest.empty()) {
    const std::string line = PopLine(rest);
    if (titleDue && !trim(line).empty()) {
      takeTitle(line);
      titleDue = false;
    }
    if (partNumber(line)) {
      if (elements_.size() == runs.size()) throw RuntimeFault("subscript out of range");
      beginElement(line);
      runs[elements_.size() - 1].clear();
    }
    if (elements_.empty()) continue;
    markKind(elements_.back(), line);
    runs[elements_.size() - 1].append(line).append(kCrLf);
  }
  text.clear();
}

void frmOutput::takeTitle(std::string_view line) {
  for (const std::string_view job : kJobs) {
    if (line.starts_with(job)) project_.txtWatershedID.setText(std::string(charsFrom(line, kTitleColumn - 1)));
  }
}

void frmOutput::beginElement(std::string_view line) {
  const std::int16_t number = *partNumber(line);
  Push(number);
  elements_.push_back({number, std::string(trim(charsFrom(line, kNameColumn - 1))), "", ""});
}

bool frmOutput::Push(std::int16_t value) {
  if (stack_.size() == kMostPushed) return false;
  stack_.push_back(value);
  return true;
}

std::optional<std::int16_t> frmOutput::Pop() {
  if (stack_.empty()) return std::nullopt;
  const std::int16_t value = stack_.back();
  stack_.pop_back();
  return value;
}

void frmOutput::forget() {
  stack_.clear();
  elements_.clear();
}

}  // namespace kestra
