#pragma once

#include <string>

namespace kestra {

// Where the settings of the user's programs stand: $XDG_CONFIG_HOME when it is an absolute path, else ".config" in the
// home directory.
std::string userConfigDirectory();

// The settings of this program, the same for all its faces.
std::string userSettingsFile();

}  // namespace kestra
