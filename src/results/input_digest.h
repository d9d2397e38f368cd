#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

// Whether the results of a run still belong to the control file on the disk. A run keeps a digest of its control file,
// in .kestra/<stem>.input beside it: sixteen hexadecimal digits and a line end.
namespace kestra {

inline constexpr const char* kInputChanged = "input changed since this run";

// 64-bit FNV-1a over the lines of a control file, each with a line feed behind it; the line with the date of the last
// change (MODIFIED) is left out.
std::uint64_t inputDigest(std::string_view controlFileText);

std::string inputDigestFile(std::string_view controlFile);

// Keeps the digest of a control file as it stands now. When that fails there is none, nor for a file of another
// extension than KSC, in whose place a later look would find none.
Status keepInputDigest(FileSystem& files, const std::string& controlFile);
void dropInputDigest(FileSystem& files, const std::string& controlFile);

// Whether a digest was kept and it is not this one.
bool differsFromRun(FileSystem& files, const std::string& controlFile, std::uint64_t digest);

// Whether a digest was kept and the control file, found whatever the letter case of its name, is another now, or is
// gone. False for a run of which no digest was kept.
bool inputHasChanged(FileSystem& files, const std::string& controlFile);

}  // namespace kestra
