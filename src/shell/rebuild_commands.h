#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shell/save_commands.h"

namespace kestra {

// Rebuild All and Convert All: what is done to every control file of the project, one after the other.
class RebuildCommands {
 public:
  RebuildCommands(FileDesk& desk, OpenFile& file, SaveCommands& saving);

  // Loads each control file and builds it. Goes on after one that fails; those are told at the end.
  void rebuildAll();
  // Loads each control file and writes it anew, with the run of its first spillway, into the directory "New".
  void convertAll();
  // One of them; false, after a box, when it could not be converted.
  bool convert(const std::string& path);

 private:
  using Work = bool (RebuildCommands::*)(const std::string& path);  // on one file; false: it failed
  void forEach(Work work);
  bool rebuild(const std::string& path);
  bool takeIfLoadable(const std::string& path);
  void note(const std::string& path, const std::string& why);
  void tellFailed(const std::string& title, const std::string& heading);

  FileDesk& desk_;
  OpenFile& file_;
  SaveCommands& saving_;
  std::vector<std::string> failed_;  // a line each
};

// The file that a control file is converted to: base name + "P.v2c" in the directory "New" beside it. Nothing for a
// name without an extension.
std::optional<std::string> convertedPath(const std::string& path);

}  // namespace kestra
