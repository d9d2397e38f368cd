#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

// The findings of the integrity checkers as rows. An error file holds a heading and a line a finding, in columns:
//
//                          KestraIntCheck.exe    IntCheck.exe
//   "F" an error           1                     1              all else a warning
//   screen, 1 to 12        2-6                   2-6            0: none
//   tab, from 1            7-11                  7-11           0: none
//   element on the screen  12-21                 12-21
//   code of the message    22-26                 27-31          or, where that is blank, 22-26
//   values                 27-36, 37-46, 47-56   32-41, 42-51, 52-61
namespace kestra {

struct ErrorRow {
  std::int16_t code = 0;
  std::int16_t screenNumber = 0;
  std::int16_t tabNumber = 0;
  std::int16_t elementNumber = 0;
  bool isError = false;
  std::string value1;
  std::string value2;
  std::string value3;
  std::int16_t spillwayNumber = 0;  // 0: the dam
  bool operator==(const ErrorRow&) const = default;
};

// Codes without a message: the date of the file's format does not fit, and what follows from that.
inline constexpr int kDateFinding = 3170;
inline constexpr int kGlobalFinding = 3209;

inline constexpr int kCheckedScreens = 12;

// The findings of an error file, in the order of its lines; none where there is no file. A line whose code has no
// message, whose screen is none of the twelve, or whose numbers are beyond 16 bits ends the reading before it.
std::vector<ErrorRow> readDamFindings(FileSystem& files, const std::string& errPath);
// The last character of `errPath` is the spillway's number.
std::vector<ErrorRow> readSpillwayFindings(FileSystem& files, const std::string& errPath);

std::string_view messageOf(const ErrorRow& row);  // empty for code 0 and those above
std::string_view screenNameOf(const ErrorRow& row);
std::string valuesOf(const ErrorRow& row);  // "1.5, 2 to 3", as far as they were given

}  // namespace kestra
