#include "screens/qt40_file.h"

#include <optional>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "screens/hydrograph_fault.h"

namespace kestra {
namespace {

constexpr std::string_view kAnchor = "INPUT HYDROGRAPH:";
constexpr int kFieldWidth = 10;

std::string trimmed(std::string_view line, int column, int width) {
  return std::string(trim(columns(line, column, width)));
}

// Goes on to the header of the next hydrograph; false when there is none.
bool nextHeader(LineReader& lines, std::string_view& line) {
  do {
    if (!lines.next(line)) return false;
  } while (trim(columns(line, 1, 20)) != kAnchor);
  do {
    if (!lines.next(line)) return false;
  } while (trim(line).empty());
  return true;
}

// Adds the discharges of a row, up to one that is no number, which it tells as a fault.
void takeRow(const LineReader& lines, std::string_view line, double baseFlow, std::size_t mostFlows,
             Qt40Hydrograph& hydrograph) {
  for (int column = 21; column <= 61; column += kFieldWidth) {
    const std::string_view field = trim(columns(line, column, kFieldWidth));
    if (field.empty()) continue;
    ++hydrograph.points;
    if (hydrograph.flows.size() >= mostFlows) continue;
    const std::optional<double> value = realNumber(field);
    if (!value) {
      --hydrograph.points;
      hydrograph.fault = fieldFault(lines.lineNumber(), field, "discharge");
      return;
    }
    hydrograph.flows.push_back(decimalNumber(*value + baseFlow, 12));
  }
}

// A field of the header that is no number is told, unless another fault is, and left out.
void dropIfNoNumber(std::string& field, std::size_t line, const std::string& wanted, std::string& fault) {
  if (isNumberOrBlank(field)) return;
  if (fault.empty()) fault = fieldFault(line, field, wanted);
  field.clear();
}

}  // namespace

std::vector<std::string> qt40Headers(std::string_view text) {
  std::vector<std::string> headers;
  LineReader lines(text);
  std::string_view line;
  while (nextHeader(lines, line)) headers.push_back(trimmed(line, 1, 40));
  return headers;
}

Qt40Hydrograph readQt40(std::string_view text, std::size_t index, std::size_t mostFlows) {
  Qt40Hydrograph hydrograph;
  LineReader lines(text);
  std::string_view line;
  for (std::size_t passed = 0; passed <= index; ++passed) {
    if (!nextHeader(lines, line)) return hydrograph;
  }
  hydrograph.title = trimmed(line, 11, kFieldWidth);
  hydrograph.startTime = trimmed(line, 41, kFieldWidth);
  hydrograph.increment = trimmed(line, 51, kFieldWidth);
  const std::string baseFlow = charCount(line) > 70 ? trimmed(line, 71, kFieldWidth) : std::string();
  const std::size_t header = lines.lineNumber();
  if (!isNumberOrBlank(baseFlow)) hydrograph.fault = fieldFault(header, baseFlow, "base flow");
  while (hydrograph.fault.empty() && lines.next(line) && trim(columns(line, 1, 20)).empty()) {
    takeRow(lines, line, lenientNumber(baseFlow), mostFlows, hydrograph);
  }
  dropIfNoNumber(hydrograph.startTime, header, "start time", hydrograph.fault);
  dropIfNoNumber(hydrograph.increment, header, "time increment", hydrograph.fault);
  return hydrograph;
}

}  // namespace kestra
