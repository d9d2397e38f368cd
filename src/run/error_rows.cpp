#include "run/error_rows.h"

#include <array>
#include <cmath>
#include <limits>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "run/finding_messages.h"
#include "run/integrity_check.h"

namespace kestra {
namespace {

constexpr std::array<std::string_view, kCheckedScreens + 1> kScreenNames = {"",
                                                                            "Project Information",
                                                                            "Project Properties",
                                                                            "Dam Surface Description",
                                                                            "Structure Table",
                                                                            "Hydrograph Data Table",
                                                                            "Principal Spillway Type",
                                                                            "Principal Spillway Conduit",
                                                                            "Principal Spillway Rating Table",
                                                                            "Auxiliary Spillways",
                                                                            "Auxiliary Spillway Properties",
                                                                            "Auxiliary Spillway Rating Table",
                                                                            "Home Screen"};

std::int16_t asInt16(double value) {
  using Limits = std::numeric_limits<std::int16_t>;
  const double whole = std::nearbyint(value);
  if (!(whole >= Limits::min() && whole <= Limits::max())) throw RuntimeFault("overflow");
  return static_cast<std::int16_t>(whole);
}

std::int16_t number(std::string_view line, int first, int width) {
  return asInt16(lenientNumber(columns(line, first, width)));
}

std::string text(std::string_view line, int first) {
  return std::string(trim(columns(line, first, 10)));
}

// The code's column of the dam's findings; in those of a spillway it stands at the end of a field of ten columns.
constexpr int kDamCode = 22;
constexpr int kSpillwayCode = 27;

std::int16_t codeOf(std::string_view line, int column) {
  const bool atTheFront = trim(columns(line, column, 5)).empty();
  return number(line, atTheFront ? kDamCode : column, 5);
}

ErrorRow rowOf(std::string_view line, int codeColumn, std::int16_t spillway) {
  ErrorRow row;
  row.isError = columns(line, 1, 1) == "F";
  row.screenNumber = number(line, 2, 5);
  row.tabNumber = number(line, 7, 5);
  row.elementNumber = number(line, 12, 10);
  row.code = codeOf(line, codeColumn);
  row.value1 = text(line, codeColumn + 5);
  row.value2 = text(line, codeColumn + 15);
  row.value3 = text(line, codeColumn + 25);
  row.spillwayNumber = spillway;
  return row;
}

std::span<const std::string_view> messagesFor(const ErrorRow& row) {
  return row.spillwayNumber > 0 ? spillwayMessages() : damMessages();
}

void check(const ErrorRow& row) {
  const bool isPrivate = row.code == kDateFinding || row.code == kGlobalFinding;
  const bool known = isPrivate || (row.code >= 0 && row.code <= static_cast<int>(messagesFor(row).size()));
  const bool onScreen = row.screenNumber >= 0 && row.screenNumber <= kCheckedScreens;
  if (!known || !onScreen) throw RuntimeFault("subscript out of range");
}

std::vector<ErrorRow> readFindings(FileSystem& files, const std::string& errPath, int codeColumn,
                                   std::int16_t spillway) {
  std::vector<ErrorRow> rows;
  try {
    for (const std::string& line : errorLines(files, errPath)) {
      const ErrorRow row = rowOf(line, codeColumn, spillway);
      check(row);
      rows.push_back(row);
    }
  } catch (const RuntimeFault&) {
    // The rows up to here are what there is to show.
  }
  return rows;
}

}  // namespace

std::vector<ErrorRow> readDamFindings(FileSystem& files, const std::string& errPath) {
  return readFindings(files, errPath, kDamCode, 0);
}

std::vector<ErrorRow> readSpillwayFindings(FileSystem& files, const std::string& errPath) {
  const std::string_view last = std::string_view(errPath).substr(errPath.empty() ? 0 : errPath.size() - 1);
  return readFindings(files, errPath, kSpillwayCode, asInt16(lenientNumber(last)));
}

std::string_view messageOf(const ErrorRow& row) {
  const auto messages = messagesFor(row);
  const auto place = static_cast<std::size_t>(row.code - 1);
  return row.code >= 1 && place < messages.size() ? messages[place] : std::string_view();
}

std::string_view screenNameOf(const ErrorRow& row) {
  return kScreenNames.at(static_cast<std::size_t>(row.screenNumber));
}

std::string valuesOf(const ErrorRow& row) {
  std::string values = row.value1;
  if (!row.value2.empty()) values += ", " + row.value2;
  if (!row.value3.empty()) values += " to " + row.value3;
  return values;
}

}  // namespace kestra
