#pragma once

#include <string>

#include "cli/options.h"
#include "summary/summary_store.h"

namespace kestra {

// The runs of a project: the name of each on a line, and below it the selected fields as "  TITLE: VALUE", those of
// instances where an entry has any.
std::string summaryText(const SummaryStore& store);

// Prints the summary of a project on standard output; the program's exit code, 1 for a directory that is no project.
int printSummary(const CliOptions& options);

}  // namespace kestra
