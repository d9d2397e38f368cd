#pragma once

#include <string>

#include "run/run_context.h"

namespace kestra {

inline constexpr const char* kSpillwaySolver = "TorveSim.exe";

// Runs one instance of an auxiliary spillway, anew: what it has left before goes first. The hydrograph of the instance
// file is brought up to date with the dam's output that its link names, and the link is taken out. A file that names
// one crest and one bottom width goes to the spillway solver, whose digest is put into the form that the summary reads;
// several are run one after the other by the dam solver in a directory named after the file, and each becomes an entry
// of the summary. A missing digest, and any failure, is told in a box. The letter case of the path does not count.
// Nothing happens for a file outside the open project, or without a name and an extension. What programs print goes to
// the log of the run. Throws RunStopped; RuntimeFault when what an earlier run has left cannot be removed.
void RunSpillwayInstance(RunContext& context, const std::string& instanceFile, int spillwayNumber);

}  // namespace kestra
