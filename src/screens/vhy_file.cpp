#include "screens/vhy_file.h"

#include <optional>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "screens/hydrograph_fault.h"

namespace kestra {
namespace {

constexpr int kTimeWidth = 11;
constexpr int kDigits = 12;  // of a difference: enough for the file, too few for the noise of a subtraction

std::string_view keyOf(std::string_view line) {
  return trim(columns(line, 1, 10));
}

bool beginsRecord(std::string_view line) {
  return line.starts_with('3') && !trim(columns(line, 2, 11)).empty();
}

std::string codeOf(std::string_view line) {
  return std::string(trim(columns(line, 2, 4)));
}

void passRecord(LineReader& lines) {
  std::string_view line;
  while (lines.next(line) && keyOf(line) != "ENDTABLE") continue;
}

// Goes behind the first line of the record of a code; false when there is none.
bool findRecord(LineReader& lines, std::string_view code) {
  std::string_view line;
  while (lines.next(line)) {
    if (!beginsRecord(line)) continue;
    if (codeOf(line) == code) return true;
    passRecord(lines);
  }
  return false;
}

bool endsRows(std::string_view line) {
  return line.starts_with('5') || keyOf(line) == "ENDTABLE";
}

std::string_view timeField(std::string_view line) {
  return columns(line, 2, kTimeWidth);
}

// The fields that a discharge comes from: its own, or one and the other that is taken off it.
struct FlowFields {
  std::string_view flow;
  std::string_view less;
};

FlowFields flowFields(std::string_view line, int column) {
  if (column < 3) return {columns(line, kTimeWidth * column + 2, kTimeWidth), {}};
  return {columns(line, 24, 10), columns(line, 13, 10)};
}

std::string flowOf(std::string_view line, int column) {
  const auto [flow, less] = flowFields(line, column);
  if (column < 3) return std::string(trim(flow));
  return decimalNumber(lenientNumber(flow) - lenientNumber(less), kDigits);
}

std::string faultIn(std::string_view line, int column, std::size_t number) {
  if (!realNumber(timeField(line))) return fieldFault(number, timeField(line), "time");
  const auto [flow, less] = flowFields(line, column);
  for (const std::string_view field : {flow, less}) {
    if (!isNumberOrBlank(field)) return fieldFault(number, field, "discharge");
  }
  return {};
}

}  // namespace

VhyContent scanVhy(std::string_view text) {
  VhyContent content;
  LineReader lines(text);
  std::string_view line;
  while (lines.next(line)) {
    if (keyOf(line) == "HYD") return {true, {}};
    if (!beginsRecord(line)) continue;
    content.codes.push_back(codeOf(line));
    passRecord(lines);
  }
  return content;
}

VhyHydrograph readVhy(std::string_view text, std::string_view code, int column, std::size_t mostRows) {
  VhyHydrograph hydrograph;
  LineReader lines(text);
  std::string_view line;
  if (!findRecord(lines, code) || !lines.next(line) || endsRows(line)) return hydrograph;
  hydrograph.startTime = trim(columns(line, 12, kTimeWidth));
  if (!isNumberOrBlank(hydrograph.startTime)) {
    hydrograph.fault = fieldFault(lines.lineNumber(), hydrograph.startTime, "time");
    return hydrograph;
  }
  const double start = lenientNumber(hydrograph.startTime);
  double first = 0;
  std::string noStep;
  while (hydrograph.rows.size() < mostRows && lines.next(line) && !endsRows(line)) {
    if (trim(line).empty()) continue;
    hydrograph.fault = faultIn(line, column, lines.lineNumber());
    if (!hydrograph.fault.empty()) return hydrograph;
    const double time = lenientNumber(timeField(line));
    if (hydrograph.rows.empty()) first = time;
    if (hydrograph.rows.size() == 1) {
      hydrograph.increment = decimalNumber(time - first, kDigits);
      if (time <= first) noStep = fieldFault(lines.lineNumber(), hydrograph.increment, "time increment above 0");
    }
    hydrograph.rows.push_back({decimalNumber(time - start, kDigits), flowOf(line, column)});
  }
  hydrograph.fault = noStep;
  hydrograph.points = hydrograph.rows.size();
  while (hydrograph.points >= mostRows && lines.next(line) && !endsRows(line)) {
    hydrograph.points += trim(line).empty() ? 0U : 1U;
  }
  return hydrograph;
}

}  // namespace kestra
