#pragma once

#include <string>

namespace kestra {

// Where the settings of the user's programs stand: $XDG_CONFIG_HOME when it is an absolute path, else ".config" in the
// home directory.
std::string userConfigDirectory();

}  // namespace kestra
