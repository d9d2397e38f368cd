#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kestra {

enum class CliCommand { newProject, build, check, summary, graph, drive };

struct CliOptions {
  CliCommand command = CliCommand::drive;
  std::string directory;           // new: of the project
  std::string controlFile;         // drive, graph: as it stands on the command line; empty: none
  std::vector<std::string> files;  // build, check: at least one
  std::string project;             // build, summary: its directory; empty: that of the first file, or here
  std::string appDirectory;        // empty: that of the program
  std::string settingsFile;        // empty: the user's
  bool yes = false;
  bool list = false;        // graph: which graphs there are
  std::vector<int> graphs;  // graph: their numbers, 0 to 21
  std::string format;       // graph: png, svg, pdf or csv, empty: by the name of the output; summary: text, csv,
                            // json or xlsx, empty: text
  std::string size;         // graph: "800x600", pixels; empty: 1200 x 800
  std::string output;       // graph, summary: a file, "-" for the standard output; summary, empty: likewise
  bool all = false;         // summary: every entry
};

// Reads the command line. Without a value there is nothing left to do and `exitCode` says how it ended: the version or
// a help text was printed on `out` (0), or the words were wrong and `err` says how (2).
std::optional<CliOptions> parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err,
                                           int& exitCode);

}  // namespace kestra
