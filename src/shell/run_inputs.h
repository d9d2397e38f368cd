#pragma once

#include <cstdint>
#include <string>

#include "shell/quiet_control_files.h"

namespace kestra {

// Whether the results of a run still belong to its input. The input is the control file on the disk, and of the open
// file what the screens hold. Nothing is said of a run of which no digest was kept.
class RunInputs {
 public:
  explicit RunInputs(FileDesk& desk) : desk_(desk), builder_(desk) {}

  bool changed(const std::string& controlFile);        // on the disk, or on the screens
  bool screensDiffer(const std::string& controlFile);  // they hold this file, edited, and another input than was run

 private:
  std::uint64_t digestOfScreens();

  FileDesk& desk_;
  QuietControlFiles builder_;
  std::uint64_t edits_ = 0;  // up to which the digest counts
  std::uint64_t digest_ = 0;
};

}  // namespace kestra
