#include "cli/native_desk.h"

#include "base/paths.h"
#include "platform/native/executable_directory.h"
#include "platform/native/user_directories.h"

namespace kestra {
namespace {

std::string settingsPath(const CliOptions& options, FileSystem& files) {
  if (!options.settingsFile.empty()) return absolutePath(options.settingsFile, files.currentDirectory());
  return userSettingsFile();
}

std::string applicationPath(const CliOptions& options, FileSystem& files) {
  if (!options.appDirectory.empty()) return absolutePath(options.appDirectory, files.currentDirectory());
  return executableDirectory();
}

}  // namespace

NativeDesk::NativeDesk(const CliOptions& options)
    : applicationDirectory_(applicationPath(options, files_)), settings_(files_, settingsPath(options, files_)) {}

Ports NativeDesk::ports(MessageBoxes& boxes, Dialogs& dialogs, Beeper& beeper) {
  return {boxes, dialogs, settings_, clipboard_, processes_, files_, events_, beeper, entropy_, clock_, help_};
}

}  // namespace kestra
