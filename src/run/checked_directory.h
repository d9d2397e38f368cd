#pragma once

#include <string>

#include "platform/ports.h"

namespace kestra {

// The directory of a path, each name spelled as the disk has it; a name that is not there is looked for whatever its
// letter case. Empty, after a box, when a directory is missing.
std::string checkedDirectory(Ports& ports, const std::string& path);

}  // namespace kestra
