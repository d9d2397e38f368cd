#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

// What the system does with files, put together from the steps of the FileSystem port.
namespace kestra {

bool exists(FileSystem& files, const std::string& path);
bool isDirectory(FileSystem& files, const std::string& path);

// Writes a whole file: to a temporary name in the same directory, synced, renamed over `path`, the directory synced.
// Follows a link to its target and keeps the permissions of a file that stood there. On failure the old file, or the
// absence of one, is as before and no temporary file is left.
Status writeWholeFile(FileSystem& files, const std::string& path, std::string_view bytes);

// Removes a file or a directory with everything below it. A link is removed and never followed. Goes on behind a
// failure and gives the first one.
Status removeTree(FileSystem& files, const std::string& path);

// Path of the file in `directory` whose name is `name` whatever the case of its letters, the exact name first;
// notFound when there is none.
Result<std::string> findIgnoringCase(FileSystem& files, const std::string& directory, std::string_view name);

// Makes a directory and those above it that are missing.
Status makeDirectories(FileSystem& files, const std::string& path);

}  // namespace kestra
