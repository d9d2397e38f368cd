#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

// A spillway that is analysed alone needs a reservoir, and is given a false one that stores nothing. These take what
// the solver reports of it out of the output and the digest. `filePath` is the run's data file; the three characters of
// its extension are replaced by "OUT" and "DIS".
namespace kestra {

struct StrippedOutput {
  std::string text;
  int removedWarnings = 0;  // warnings about the false structure
};

// The output without the reports of the false structure; nothing when it echoes none, or holds an error.
std::optional<StrippedOutput> stripFalseStructure(std::string_view output);

// The same in the files: the output is replaced, and the digest keeps lines 1, 3 and 31 on, the others being " N/A";
// the count in line 46 is less the removed warnings. Nothing changes without a false structure or with an error. A
// failure leaves what was done before it; callers may pass over it.
Status StripFalseStructure(FileSystem& files, const std::string& filePath);

// Puts " N/A" into lines 15 and 16 of the digest. Callers may pass over a failure.
Status BlankFalseFields(FileSystem& files, const std::string& filePath);

}  // namespace kestra
