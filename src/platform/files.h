#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

// What the system does with files, put together from the steps of the FileSystem port.
namespace kestra {

bool exists(FileSystem& files, const std::string& path);
bool isDirectory(FileSystem& files, const std::string& path);

// Whether a file has to outlive a loss of power. What can be computed anew need not, and is written much faster.
enum class Durable { yes, no };

// Writes a whole file: to a temporary name (".kestra-N.tmp") in the same directory, synced, renamed over `path`, the
// directory synced. Follows a link to its target and keeps the permissions of a file that stood there. On failure the
// old file, or the absence of one, is as before and no temporary file is left; only when the directory cannot be
// synced, which comes last, the new file stands and may not outlive a loss of power. A read-only file fails as denied,
// whoever asks; a directory or a device as wrongType; a link that leads nowhere as notFound. Without `durable` nothing
// is synced.
Status writeWholeFile(FileSystem& files, const std::string& path, std::string_view bytes,
                      Durable durable = Durable::yes);

// Removes a file or a directory with everything below it. A link is removed and never followed. Goes on behind a
// failure and gives the first one; notFound when there is nothing at `path`.
Status removeTree(FileSystem& files, const std::string& path);

// Path of the file in `directory` whose name is `name` whatever the case of its ASCII letters: the exact name first,
// else the first in the order of bytes. A directory of that name does not count. notFound when there is none.
Result<std::string> findIgnoringCase(FileSystem& files, const std::string& directory, std::string_view name);

// Makes a directory and those above it that are missing. exists, with its path, when a file stands in the way.
Status makeDirectories(FileSystem& files, const std::string& path);

}  // namespace kestra
