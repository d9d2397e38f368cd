#include "screens/thy_file.h"

#include <algorithm>

#include "base/fields.h"
#include "base/lines.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::size_t kMostFlows = 5000;
constexpr std::size_t kLastRowStart = 4996;  // discharges count from 1
constexpr std::size_t kFlowsALine = 5;
constexpr int kFirstFlow = 21;
constexpr int kFieldWidth = 10;
constexpr int kTitleColumn = 31;
constexpr int kTitleWidth = 40;

std::string trimmed(std::string_view line, int column, int width) {
  return std::string(trim(columns(line, column, width)));
}

// Appends a text, cut to `width`, at a column of a line that has not reached it.
void put(std::string& line, int column, std::string_view text, int width) {
  text = trim(charsFrom(text, 0, static_cast<std::size_t>(width)));
  if (text.empty()) return;
  const std::size_t length = charCount(line);
  const auto before = static_cast<std::size_t>(column - 1);
  if (length < before) line.append(before - length, ' ');
  line += text;
}

// A line stands for five rows of the table, whether it reaches their fields or not.
void takeFlows(std::string_view line, std::vector<std::string>& flows) {
  int column = kFirstFlow;
  for (std::size_t i = 0; i < kFlowsALine && flows.size() < kMostFlows; ++i) {
    flows.push_back(trimmed(line, column, kFieldWidth));
    column += kFieldWidth;
  }
}

void dropEmptyEnd(std::vector<std::string>& flows) {
  while (!flows.empty() && flows.back().empty()) flows.pop_back();
}

}  // namespace

std::optional<ConstantHydrograph> readThy(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  do {
    if (!lines.next(line)) return std::nullopt;
  } while (trim(columns(line, 1, 10)) != "HYD");
  ConstantHydrograph hydrograph;
  if (charCount(line) >= static_cast<std::size_t>(kTitleColumn))
    hydrograph.title = trimmed(line, kTitleColumn, kTitleWidth);
  if (lines.next(line)) hydrograph.increment = trimmed(line, kFirstFlow, kFieldWidth);
  while (hydrograph.flows.size() < kMostFlows && lines.next(line) && trim(columns(line, 1, 10)) != "ENDTABLE") {
    takeFlows(line, hydrograph.flows);
  }
  dropEmptyEnd(hydrograph.flows);
  return hydrograph;
}

std::string thyText(const ConstantHydrograph& hydrograph) {
  std::string text = "HYD";
  put(text, kTitleColumn, hydrograph.title.value_or(std::string()), kTitleWidth);
  std::string line;
  put(line, kFirstFlow, hydrograph.increment, kFieldWidth);
  text.append(kCrLf).append(line).append(kCrLf);
  const auto& flows = hydrograph.flows;
  for (std::size_t row = 0; row < std::min(flows.size(), kLastRowStart) && !trim(flows[row]).empty();
       row += kFlowsALine) {
    line.clear();
    for (std::size_t i = 0; i < kFlowsALine && row + i < flows.size(); ++i) {
      put(line, kFirstFlow + static_cast<int>(i) * kFieldWidth, flows[row + i], kFieldWidth);
    }
    text.append(line).append(kCrLf);
  }
  return text.append("ENDTABLE").append(kCrLf);
}

}  // namespace kestra
