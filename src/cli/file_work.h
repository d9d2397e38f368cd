#pragma once

#include "cli/options.h"

// The commands that work through control files, one after the other. Each gives the program's exit code.
namespace kestra {

// What the Build command does, for each file. 0 when every build reached its end.
int buildFiles(const CliOptions& options);

// What the Check File command does, for each file; the findings go to standard output, a line each. 0 when no file has
// an error.
int checkFiles(const CliOptions& options);

}  // namespace kestra
