#pragma once

#include <string>

#include "shell/build_commands.h"
#include "shell/check_commands.h"
#include "shell/file_commands.h"
#include "shell/import_command.h"
#include "shell/rebuild_commands.h"

namespace kestra {

// The commands of the input window, each joined to its menu.
struct WindowCommands {
  WindowCommands(FileDesk& desk, Projects& projects, const std::string& applicationDirectory)
      : file(desk),
        saving(desk, file),
        files(desk, file, saving, projects),
        import(desk),
        build(desk, saving),
        rebuild(desk, file, saving),
        check(desk, saving, applicationDirectory) {}

  OpenFile file;
  SaveCommands saving;
  FileCommands files;
  ImportCommand import;
  BuildCommands build;
  RebuildCommands rebuild;
  CheckCommands check;
};

}  // namespace kestra
