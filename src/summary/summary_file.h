#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "summary/summary_fields.h"

namespace kestra {

inline constexpr const char* kSummaryFileName = "SUMMARY.IDE";

// What a summary file holds.
struct SummaryFile {
  SummarySelection selection;
  std::vector<std::string> entryNames;
  bool understood = true;  // false: a number was no number, or none of a field; the rest was read all the same
};

// Content of a summary file: per level the count of selected fields and their numbers, an item a line, then the names
// of the entries in double quotes.
std::string summaryFileText(const SummarySelection& selection, const std::vector<std::string>& entryNames);

// Takes such a content apart. It may end anywhere. A name in quotes where a number is wanted ends the numbers, so that
// no entry is lost to a wrong count; field numbers that are outside of 1 to 40 or there already, and names that are
// blank, are left out.
SummaryFile readSummaryFile(std::string_view text);

}  // namespace kestra
