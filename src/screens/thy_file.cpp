#include "screens/thy_file.h"

#include <algorithm>
#include <utility>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "screens/hydrograph_fault.h"

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

// A line stands for five rows of the table, whether it reaches their fields or not. False, and a fault told, at a field
// that is no discharge.
bool takeFlows(std::string_view line, std::size_t number, std::size_t& row, ThyHydrograph& hydrograph) {
  int column = kFirstFlow;
  for (std::size_t i = 0; i < kFlowsALine; ++i, column += kFieldWidth) {
    std::string flow = trimmed(line, column, kFieldWidth);
    if (++row > kMostFlows) {
      if (!flow.empty()) hydrograph.points = row;
      continue;
    }
    if (!isNumberOrBlank(flow)) {
      hydrograph.fault = fieldFault(number, flow, "discharge");
      return false;
    }
    hydrograph.flows.push_back(std::move(flow));
  }
  return true;
}

// An increment that cannot be one is told and left out.
void checkIncrement(std::size_t line, ThyHydrograph& hydrograph) {
  if (hydrograph.increment.empty()) return;
  const std::optional<double> step = realNumber(hydrograph.increment);
  if (step && *step > 0) return;
  if (hydrograph.fault.empty()) hydrograph.fault = fieldFault(line, hydrograph.increment, "time increment above 0");
  hydrograph.increment.clear();
}

void dropEmptyEnd(std::vector<std::string>& flows) {
  while (!flows.empty() && flows.back().empty()) flows.pop_back();
}

}  // namespace

std::optional<ThyHydrograph> readThy(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  do {
    if (!lines.next(line)) return std::nullopt;
  } while (trim(columns(line, 1, 10)) != "HYD");
  ThyHydrograph hydrograph;
  if (charCount(line) >= static_cast<std::size_t>(kTitleColumn)) {
    hydrograph.title = trimmed(line, kTitleColumn, kTitleWidth);
  }
  if (lines.next(line)) hydrograph.increment = trimmed(line, kFirstFlow, kFieldWidth);
  const std::size_t incrementLine = lines.lineNumber();
  std::size_t row = 0;
  while (lines.next(line) && trim(columns(line, 1, 10)) != "ENDTABLE") {
    if (!takeFlows(line, lines.lineNumber(), row, hydrograph)) break;
  }
  checkIncrement(incrementLine, hydrograph);
  dropEmptyEnd(hydrograph.flows);
  hydrograph.points = std::max(hydrograph.points, hydrograph.flows.size());
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
