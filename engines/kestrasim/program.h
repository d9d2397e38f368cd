#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kestra {

// The program: takes the path of a control file, or of a data file with the same records, and writes .OUT, .BRE and
// .HCT beside it under its stem; histories of an earlier run that this one does not have are removed. The exit code is
// 0 unless the input could not be read (1), something could not be written (1), or no path was given (2); why is told
// on `errors`. Options: --check-steps before the path (see StepCheck), --help, --version.
int runProgram(const std::vector<std::string>& arguments, FileSystem& files, std::ostream& output,
               std::ostream& errors);

}  // namespace kestra
