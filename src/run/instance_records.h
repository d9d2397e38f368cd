#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestra {

// What an instance file, the data of one run of a spillway, tells about itself.
struct InstanceRecords {
  // The link to the dam's run.
  int spillwayNumber = 0;    // whose discharge there is this run's hydrograph; 0: no link
  std::string damFile;       // control file of the dam
  std::string recordedDate;  // of the dam's output from which the hydrograph was taken; empty: none

  bool stripFalseStructure = false;
  bool blankFalseFields = false;

  // Values to be tried, one after the other.
  std::vector<std::string> widths;
  std::vector<std::string> crests;
};

InstanceRecords readInstanceRecords(std::string_view text);

// Whether the hydrograph is still the one that a run is written with, before the dam's output is there: one row "1".
bool hasPlaceholderHydrograph(std::string_view text);

// The text with its hydrograph table replaced by another; unchanged where it has none.
std::string withHydrograph(std::string_view text, std::string_view table);

// The text without the records that link it to the dam's run.
std::string withoutLink(std::string_view text);

// The text with one value where it names several: a record keeps keyword and unit, the value stands in column 21. No
// value leaves the records of its keyword as they are.
std::string withAlternative(std::string_view text, const std::optional<std::string>& width,
                            const std::optional<std::string>& crest);

}  // namespace kestra
