#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kestra {

enum class CliCommand { newProject, build, check, summary, drive };

struct CliOptions {
  CliCommand command = CliCommand::drive;
  std::string directory;           // new: of the project
  std::string controlFile;         // drive: as it stands on the command line; empty: none
  std::vector<std::string> files;  // build, check: at least one
  std::string project;             // build, summary: its directory; empty: that of the first file, or here
  std::string format = "text";     // summary
  std::string appDirectory;        // empty: that of the program
  std::string settingsFile;        // empty: the user's
  bool yes = false;
};

// Reads the command line. Without a value there is nothing left to do and `exitCode` says how it ended: the version or
// a help text was printed on `out` (0), or the words were wrong and `err` says how (2).
std::optional<CliOptions> parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err,
                                           int& exitCode);

}  // namespace kestra
