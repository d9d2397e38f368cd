#pragma once

#include <string>

#include "platform/file_system.h"
#include "results/run_tables.h"

namespace kestra {

// Cuts a control file at its ENDRUN records. The first run, the dam's, fills `tables`: name and analysis of each
// auxiliary spillway. Each further run goes into a split file `runBase`.AS1 to .AS3, numbered by columns 21 to 30 of
// its first record, or by its place in the file where those hold no number from 1 to 3 or one that is taken. At most
// three are written, and none for a run of blank lines. Split files of an earlier control file go first, the source
// itself aside. Nothing
// happens without a path; a file that cannot be read or written ends it where it is.
void SplitControlFile(FileSystem& files, RunTables& tables, const std::string& sourcePath, const std::string& runBase);

// `runBase`.AS1 for 1.
std::string splitFileOf(const std::string& runBase, std::size_t spillwayNumber);

}  // namespace kestra
