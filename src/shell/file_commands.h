#pragma once

#include "shell/projects.h"
#include "shell/save_commands.h"

namespace kestra {

// New, Open and Exit: the commands that put away what is open.
class FileCommands {
 public:
  FileCommands(FileDesk& desk, OpenFile& file, SaveCommands& saving, Projects& projects);

 private:
  void newFile();
  void open();
  void exit();

  FileDesk& desk_;
  OpenFile& file_;
  SaveCommands& saving_;
  Projects& projects_;
};

}  // namespace kestra
