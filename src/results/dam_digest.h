#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/file_system.h"

// The digest of a dam run (`.DIS`): forty lines, each one value of the solver's output. Which value stands in which
// line, and where in the output it comes from, is told in docs/formats/digests.md.
namespace kestra {

inline constexpr std::size_t kDigestLines = 40;
inline constexpr std::size_t kDigestWidth = 10;  // characters of a line

// The texts of a digest by line, from 0, not cut yet; empty where the output gives nothing.
using DigestFields = std::array<std::string, kDigestLines>;

// A line of a digest: the first ten characters of its text, "N/A" for a blank one. Of a longer text the blanks at its
// front go first, so that no digit of a number is lost to them.
std::string digestLine(std::string_view text);

// The whole digest.
std::string damDigestText(const DigestFields& fields);

// Reads the solver's output beside a control or data file and writes the digest: `filePath` with the three characters
// of its extension replaced names the output ("OUT"), the breach history ("BRE"), which may be missing, and the digest
// ("DIS"). `digestFields` is emptied first. Fails when the output, or a history that is there, cannot be read, and when
// the digest cannot be written; an older digest then stands.
Status ParseDamOutput(FileSystem& files, const std::string& filePath, DigestFields& digestFields);

}  // namespace kestra
