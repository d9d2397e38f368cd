#include "screens/vhy_file.h"

#include <optional>
#include <utility>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"

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

std::string noTime(const LineReader& lines) {
  return "Line " + std::to_string(lines.lineNumber()) + " holds no time.";
}

std::optional<double> timeOf(std::string_view line) {
  return realNumber(columns(line, 2, kTimeWidth));
}

std::string flowOf(std::string_view line, int column) {
  if (column < 3) return std::string(trim(columns(line, kTimeWidth * column + 2, kTimeWidth)));
  const double difference = lenientNumber(columns(line, 24, 10)) - lenientNumber(columns(line, 13, 10));
  return decimalNumber(difference, kDigits);
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
  if (!findRecord(lines, code) || !lines.next(line)) return hydrograph;
  hydrograph.startTime = trim(columns(line, 12, kTimeWidth));
  const std::optional<double> start = hydrograph.startTime.empty() ? 0.0 : realNumber(hydrograph.startTime);
  double first = 0;
  while (start && hydrograph.rows.size() < mostRows && lines.next(line) && !endsRows(line)) {
    if (trim(line).empty()) continue;
    const std::optional<double> time = timeOf(line);
    if (!time) {
      hydrograph.fault = noTime(lines);
      return hydrograph;
    }
    if (hydrograph.rows.empty()) first = *time;
    if (hydrograph.rows.size() == 1) hydrograph.increment = decimalNumber(*time - first, kDigits);
    hydrograph.rows.push_back({decimalNumber(*time - *start, kDigits), flowOf(line, column)});
  }
  if (!start) hydrograph.fault = noTime(lines);
  return hydrograph;
}

}  // namespace kestra
