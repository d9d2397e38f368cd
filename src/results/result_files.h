#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

// The files that a run leaves beside its control or data file, under its stem.
namespace kestra {

inline constexpr std::uint64_t kResultLimit = 1ULL
                                              << 30U;  // bytes of a result file; a million routing rows take 111 MB

inline constexpr std::string_view kNotAvailable = "N/A";  // of a digest's line that the output does not give

// `path` with `extension` in place of its last three characters, whatever they are: "a/dam.KSC" and "OUT" give
// "a/dam.OUT". A shorter path is the extension alone.
std::string withExtension(std::string_view path, std::string_view extension);

// Path of the file of that name whatever its letter case; `path` itself where there is none.
std::string presentPath(FileSystem& files, const std::string& path);

// The whole file, found whatever the letter case of its name. Lines that end in carriage returns alone get line feeds.
// Fails as FileSystem::read does, notFound where there is no such file.
Result<std::string> readResultFile(FileSystem& files, const std::string& path);

// Writes the file over the one of that name, whatever its letter case. It is not synced: a run can be run again.
Status writeResultFile(FileSystem& files, const std::string& path, std::string_view text);

}  // namespace kestra
