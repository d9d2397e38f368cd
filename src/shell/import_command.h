#pragma once

#include <string>

#include "shell/file_desk.h"

namespace kestra {

// A control file as it goes into a project: its lines, ended by CR LF. The run of a spillway names the dam's results
// behind column 20 of its KESTRA record; there the name of the imported file's results comes in. `target`: its path.
std::string importedText(std::string_view source, const std::string& target);

// Whether the first record is one that a control file begins with.
bool beginsLikeControlFile(std::string_view text);

// Import: copies control files into the project. A file that is replaced takes the results of its run with it.
class ImportCommand {
 public:
  explicit ImportCommand(FileDesk& desk);

 private:
  void import();
  // False when the command has to end.
  bool importFile(const std::string& source);
  bool mayReplace(const std::string& target);
  void removeResults(const std::string& target);
  bool fail(const std::string& text);

  FileDesk& desk_;
};

}  // namespace kestra
