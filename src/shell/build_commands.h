#pragma once

#include "shell/save_commands.h"

namespace kestra {

// Build, from the menu and from the end of the input screens.
class BuildCommands {
 public:
  BuildCommands(FileDesk& desk, SaveCommands& saving);

  bool build();                 // true when the build reached its end
  bool buildFromOtherScreen();  // asks whether or not anything has changed, and shows no summary

 private:
  bool saves();
  void showAgain();

  FileDesk& desk_;
  SaveCommands& saving_;
};

// Tells that nothing here can start a run, or that its files can not be written; false then.
bool canRun(FileDesk& desk);

}  // namespace kestra
