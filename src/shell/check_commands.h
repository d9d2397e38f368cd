#pragma once

#include <string>

#include "run/integrity_check.h"
#include "shell/save_commands.h"

namespace kestra {

// Check File and Error Table: the integrity of a control file, looked at by the external checkers.
class CheckCommands {
 public:
  CheckCommands(FileDesk& desk, SaveCommands& saving, std::string applicationDirectory);

  void check();
  // Checks a file, tells in a box what there is to tell, and shows the errors. Nothing when the checker is missing.
  std::optional<Findings> checkFile(const std::string& path);
  void showErrorTable();  // of the open file; where none is open, of the one checked last

 private:
  std::optional<std::string> fileToCheck();
  bool wantsToSee(const Findings& findings);
  void showTable(const std::string& path, const Findings& findings);

  FileDesk& desk_;
  SaveCommands& saving_;
  std::string applicationDirectory_;
  std::string checked_;  // path of the file checked last
};

}  // namespace kestra
