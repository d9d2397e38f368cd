#pragma once

#include <string>
#include <vector>

#include "platform/ports.h"

// The external checkers of a control file. What they find goes into error files beside it, a heading and a line a
// finding. With `base` the control file's path without its last three characters, "dam.KSC" giving "dam.":
//
//   base + "ERR"              written by KestraIntCheck.exe: findings in the dam's run
//   base + "ERR0"             the copy of it that is kept
//   base + "ERR1" to "ERR3"   findings in a spillway's run, which IntCheck.exe writes as base + "ER1"
namespace kestra {

struct Findings {
  int errors = 0;
  int warnings = 0;
  bool operator==(const Findings&) const = default;
};

// Runs the checkers, which stand in the application directory, over the control file and over those of its spillway
// files (base + "AS1" to "AS3") that are there. Error files of an earlier check go first. Fails when the checker of the
// dam's run cannot be started; what it ends with is not looked at.
Status RunIntegrityChecker(Ports& ports, const std::string& applicationDirectory, const std::string& filePath);

// Counts what the error files of a control file hold; a file that is not there holds nothing. `errPath`: base + "ERR".
Findings CountFindings(FileSystem& files, const std::string& errPath);
// The lines of the findings as they stand, blanks at their ends cut off: those of the dam, then of the spillways.
std::vector<std::string> findingLines(FileSystem& files, const std::string& errPath);

std::string errorFileOf(const std::string& controlFile);  // base + "ERR"

}  // namespace kestra
