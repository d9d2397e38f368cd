#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

// The files of runs: how their names are made, and the steps on them that a run takes. A step that fails throws
// RuntimeFault with the path and the system's words.
namespace kestra {

void require(const Status& status);  // throws for a failure

// The path without the last "." of its name and what is behind; the path itself when its name has no dot.
std::string withoutExtension(std::string_view path);
bool hasExtension(std::string_view path);  // its name holds a dot

// Whether a name without its extension is no name of a file: empty, or the directory itself or the one above.
bool isOnlyDots(std::string_view name);

// The name part of a path up to its first "."; all of it without one.
std::string_view firstStem(std::string_view path);

// Whether a name is that of a control file, of a spillway program's control file or of a split file: what a user has
// written, or a build has cut from it, and no build deletes.
bool isInputOfRuns(std::string_view name);

// Path of the file there, whatever the case of the letters of its name; nothing when there is none.
std::optional<std::string> findFile(FileSystem& files, const std::string& path);

std::string readText(FileSystem& files, const std::string& path, std::uint64_t limit = kReadLimit);
// In place of what stood there, which stays when the file cannot be written whole.
void writeText(FileSystem& files, const std::string& path, std::string_view text);
void copyFile(FileSystem& files, const std::string& from, const std::string& to);
void removeFound(FileSystem& files, const std::string& path);  // whatever its letter case; not there is fine

// What stands in a directory, links on the way to it followed.
std::vector<DirectoryEntry> entriesOf(FileSystem& files, const std::string& directory);

// Leaves nothing in a directory but its subdirectories and the input of runs. Goes on behind a failure; throws for the
// first.
void emptyDirectory(FileSystem& files, const std::string& directory);

// Whether a file stands in this directory itself, whatever links lead to either.
bool standsIn(FileSystem& files, const std::string& path, const std::string& directory);

}  // namespace kestra
