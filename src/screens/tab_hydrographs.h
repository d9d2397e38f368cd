#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Hydrographs in the tab-delimited text of other programs.
namespace kestra {

// A point as it stands in a table.
struct HydrographRow {
  std::string time;  // hours
  std::string flow;  // cfs
  bool operator==(const HydrographRow&) const = default;
};

// What a reader took out of a file. It stops at the first time or discharge that is none; the rows before it stay. An
// empty discharge is none that is wrong.
struct TabHydrograph {
  std::string title;  // 40 characters at most
  std::vector<HydrographRow> rows;
  std::string fault;       // as of fieldFault; empty: none
  std::size_t points = 0;  // those behind the rows included, unless there is a fault
};

// The first field of the first line is the title. The data begin behind the first line of ten hyphens. Fields of a
// line: date and time (the hour in characters 12 and 13, the minutes in the last two), discharge. A time that is not
// later than the one before is of the next day. Times count from the first line. Blank lines are passed over. Nothing
// when there is no line of hyphens.
std::optional<TabHydrograph> readBasix(std::string_view text, std::size_t mostRows);

// The same with data from the first line on that begins with "1" and a tab. Fields: number, date and time (its last
// four characters are hhmm), one that is passed over, discharge. The difference of two times is taken as a plain
// number, 2400 added where the later is not the greater; its hundreds are hours, the rest minutes.
std::optional<TabHydrograph> readRivex(std::string_view text, std::size_t mostRows);

// Time and discharge, a line a row; missing fields are empty. A first line of two texts that are no numbers, nor meant
// as such, is a heading and passed over. Reading stops at the first field that is neither empty nor a number; `fault`,
// where given, then tells of it as fieldFault does. `points`, where given, counts the lines behind the rows too.
std::vector<HydrographRow> readTabRows(std::string_view text, std::size_t mostRows, std::string* fault = nullptr,
                                       std::size_t* points = nullptr);

// The same as a text; rows in which both are empty are left out.
std::string tabRowsText(const std::vector<HydrographRow>& rows);

}  // namespace kestra
