#include "screens/tab_hydrographs.h"

#include <utility>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "screens/hydrograph_fault.h"

namespace kestra {
namespace {

constexpr std::size_t kTitleLength = 40;
constexpr long long kMinutesADay = 24 * 60;
constexpr long long kHhmmADay = 2400;

// A line of data: its date and time, what the clock shows in the unit of its format, and its discharge.
struct ClockedFlow {
  std::string stamp;
  std::optional<long long> clock;
  std::string flow;
};

// How the lines of a format are read. `minutesBetween` tells the minutes between two clock values in a row.
struct ClockFormat {
  bool (*findFirst)(LineReader&, std::string_view&);  // leaves the first line of data, or false
  ClockedFlow (*read)(std::string_view line);
  long long (*minutesBetween)(long long earlier, long long later);
  long long endOfDay;  // the highest clock value
};

bool isBlank(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos;
}

std::string_view lastCharacters(std::string_view text, std::size_t count) {
  const std::size_t length = charCount(text);
  return charsFrom(text, length < count ? 0 : length - count);
}

// A number of digits only, so that no sign or point passes for a clock.
std::optional<long long> digitsOnly(std::string_view text) {
  if (text.find_first_not_of("0123456789 ") != std::string_view::npos) return std::nullopt;
  return wholeNumber(text);
}

ClockedFlow readBasixLine(std::string_view line) {
  ClockedFlow point;
  point.stamp = nextTabField(line);
  point.flow = nextTabField(line);
  const auto hour = digitsOnly(charsFrom(point.stamp, 11, 2));
  const auto minute = digitsOnly(lastCharacters(trim(point.stamp), 2));
  if (hour && minute) point.clock = *hour * 60 + *minute;
  return point;
}

ClockedFlow readRivexLine(std::string_view line) {
  nextTabField(line);
  ClockedFlow point;
  point.stamp = nextTabField(line);
  nextTabField(line);
  point.flow = nextTabField(line);
  point.clock = digitsOnly(lastCharacters(trim(point.stamp), 4));
  return point;
}

long long basixMinutes(long long earlier, long long later) {
  return later > earlier ? later - earlier : later + kMinutesADay - earlier;
}

long long rivexMinutes(long long earlier, long long later) {
  const long long difference = later > earlier ? later - earlier : later + kHhmmADay - earlier;
  return difference / 100 * 60 + difference % 100;
}

bool behindHyphens(LineReader& lines, std::string_view& line) {
  while (lines.next(line)) {
    if (columns(line, 1, 10) != "----------") continue;
    if (!lines.next(line)) line = {};
    return true;
  }
  return false;
}

bool atNumberOne(LineReader& lines, std::string_view& line) {
  while (lines.next(line)) {
    if (line.starts_with("1\t")) return true;
  }
  return false;
}

std::size_t linesLeft(LineReader& lines) {
  std::size_t count = 0;
  std::string_view line;
  while (lines.next(line)) count += isBlank(line) ? 0U : 1U;
  return count;
}

std::string faultIn(const ClockedFlow& point, long long endOfDay, std::size_t line) {
  if (!point.clock || *point.clock > endOfDay) return fieldFault(line, point.stamp, "clock time");
  return isNumberOrBlank(point.flow) ? "" : fieldFault(line, point.flow, "discharge");
}

std::string faultIn(const HydrographRow& row, std::size_t line) {
  if (!isNumberOrBlank(row.time)) return fieldFault(line, row.time, "time");
  return isNumberOrBlank(row.flow) ? "" : fieldFault(line, row.flow, "discharge");
}

bool isHeading(const HydrographRow& row) {
  if (trim(row.time).empty() && trim(row.flow).empty()) return false;
  return !isMeantAsNumber(row.time) && !isMeantAsNumber(row.flow);
}

std::optional<TabHydrograph> readClocked(std::string_view text, std::size_t mostRows, const ClockFormat& format) {
  TabHydrograph hydrograph;
  LineReader lines(text);
  std::string_view line;
  if (lines.next(line)) hydrograph.title = charsFrom(nextTabField(line), 0, kTitleLength);
  if (!format.findFirst(lines, line)) return std::nullopt;
  long long minutes = 0;
  long long before = 0;
  do {
    if (isBlank(line)) continue;
    ClockedFlow point = format.read(line);
    hydrograph.fault = faultIn(point, format.endOfDay, lines.lineNumber());
    if (!hydrograph.fault.empty()) break;
    if (!hydrograph.rows.empty()) minutes += format.minutesBetween(before, *point.clock);
    before = *point.clock;
    hydrograph.rows.push_back({decimalNumber(static_cast<double>(minutes) / 60), std::move(point.flow)});
  } while (hydrograph.rows.size() < mostRows && lines.next(line));
  hydrograph.points = hydrograph.rows.size() + (hydrograph.fault.empty() ? linesLeft(lines) : 0);
  return hydrograph;
}

}  // namespace

std::optional<TabHydrograph> readBasix(std::string_view text, std::size_t mostRows) {
  return readClocked(text, mostRows, {behindHyphens, readBasixLine, basixMinutes, kMinutesADay});
}

std::optional<TabHydrograph> readRivex(std::string_view text, std::size_t mostRows) {
  return readClocked(text, mostRows, {atNumberOne, readRivexLine, rivexMinutes, kHhmmADay});
}

std::vector<HydrographRow> readTabRows(std::string_view text, std::size_t mostRows, std::string* fault,
                                       std::size_t* points) {
  std::vector<HydrographRow> rows;
  LineReader lines(text);
  std::string_view line;
  while (rows.size() < mostRows && lines.next(line)) {
    HydrographRow row;
    row.time = nextTabField(line);
    row.flow = nextTabField(line);
    if (lines.lineNumber() == 1 && isHeading(row)) continue;
    std::string wrong = faultIn(row, lines.lineNumber());
    if (!wrong.empty()) {
      if (fault != nullptr) *fault = std::move(wrong);
      if (points != nullptr) *points = rows.size();
      return rows;
    }
    rows.push_back(std::move(row));
  }
  if (points != nullptr) *points = rows.size() + linesLeft(lines);
  return rows;
}

std::string tabRowsText(const std::vector<HydrographRow>& rows) {
  std::string text;
  for (const auto& [time, flow] : rows) {
    if (!time.empty() || !flow.empty()) text.append(time).append("\t").append(flow).append(kCrLf);
  }
  return text;
}

}  // namespace kestra
