#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

// Which files of a project belong to which control file. The run of "dam.KSC" leaves "dam.OUT" and other files named
// after it, "dam_..." and "dam1_..." for its spillways 1 to 3, and the results directory "dam".
namespace kestra {

std::string_view stemOf(std::string_view fileName);  // without the last dot and what is behind it
bool isControlFile(std::string_view fileName);       // .KSC, in whatever letter case

// The control files of a directory, sorted by name; empty when it cannot be listed.
std::vector<std::string> controlFilesIn(FileSystem& files, const std::string& directory);

// Of the names in a directory those that the run of `controlFile` has left. Control files, those of the spillway
// program (.V2C) too, are never among them, nor what belongs to another control file as well.
std::vector<std::string> filesOfRun(const std::vector<DirectoryEntry>& entries, std::string_view controlFile);

}  // namespace kestra
