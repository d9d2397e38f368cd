#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/file_system.h"

// The digest of an instance of an auxiliary spillway: the spillway solver writes one, and these give it the form in
// which the summary reads it.
namespace kestra {

struct SpillwayCase {
  std::string spillwayName;
  std::string workDir;     // directory and stem of the dam's run, to which ".OUT" and ".DIS" are added
  std::string digestPath;  // of the instance's digest
  int spillwayNumber = 0;  // 1 to 3
  bool byRating = false;   // the spillway is given by a rating table: it has a name and no values
};

// Name, attack on the surface, flow duration (h), crest (ft), stress ratio, and the highest value of the table: the
// first six lines of the digest, "N/A" for what is not there.
using SpillwayValues = std::array<std::string, 6>;

// What the output of a run tells of the stability of spillway `number` and of its flow. Name and crest are "N/A".
SpillwayValues readSpillwayOutput(std::string_view output, int number);

// Replaces the digest by one of 35 lines: the six values, "N/A" behind them. The output from which they come is copied
// to the digest's place, its extension ".OUT", unless it is that file. Fails when the output cannot be read or a file
// cannot be written; the digest is then as before. A digest path of less than five characters takes no values.
Status BuildSpillwayDigest(FileSystem& files, const SpillwayCase& spillway);

// Puts the spillway's name before the first line of a digest and "N/A" behind the fourth. The old digest is kept under
// its name with "~" behind it. Lines that it lacks before the "N/A" are "N/A". Fails when the digest cannot be read or
// a file cannot be written.
Status InsertDigestPlaceholder(FileSystem& files, const std::string& digestPath, std::string_view spillwayName);

}  // namespace kestra
