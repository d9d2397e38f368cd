#include "platform/native/user_directories.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "base/paths.h"

namespace kestra {
namespace {

std::string homeDirectory() {
  if (const char* home = std::getenv("HOME"); home != nullptr && isAbsolutePath(home)) return home;
  const passwd* user = getpwuid(getuid());
  return user != nullptr ? user->pw_dir : "/";
}

}  // namespace

std::string userConfigDirectory() {
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config != nullptr && isAbsolutePath(config)) return config;
  return joinPath(homeDirectory(), ".config");
}

std::string userSettingsFile() {
  return joinPath(joinPath(userConfigDirectory(), "kestra-b"), "settings.ini");
}

}  // namespace kestra
