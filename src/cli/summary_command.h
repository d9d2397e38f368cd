#pragma once

#include "cli/options.h"

namespace kestra {

// Prints the summary table of a project, or writes it to a file; the program's exit code, 1 for a directory that is no
// project. The rows are those of frmSummaryTable, or, where asked for, one for every entry.
int printSummary(const CliOptions& options);

}  // namespace kestra
