#pragma once

#include <optional>
#include <string>

#include "platform/ports.h"

namespace kestra {

// A directory from the root on, each name spelled as the disk has it; a name that is not there is looked for whatever
// its letter case. Nothing when one is missing.
std::optional<std::string> spelledDirectory(FileSystem& files, const std::string& directory);

// The directory of a path, each name spelled as the disk has it; a name that is not there is looked for whatever its
// letter case. Empty, after a box, when a directory is missing.
std::string checkedDirectory(Ports& ports, const std::string& path);

}  // namespace kestra
