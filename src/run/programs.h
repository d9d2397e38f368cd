#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/ports.h"
#include "screens/frm_progress.h"
#include "shell/application_state.h"

namespace kestra {

// A command line taken apart: program and arguments.
struct CommandLine {
  std::string program;
  std::vector<std::string> arguments;
};

// The program stands first without quotes, blanks in its path and all: as much of what is before the first quote as
// names a file, up to a blank or the end. Where nothing does, all of it when a quote follows, else the first word. The
// rest are arguments: words, a text in double quotes being one.
CommandLine splitCommandLine(FileSystem& files, std::string_view line);

// The user has stopped the program that ran. Travels past the traps of single operations to that of the command.
class RunStopped : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Starts the external programs of the application directory, one at a time, and waits for each without limit. While
// one runs, frmProgress, where it is on show, tells which and for how long and can stop it. A program's exit code
// decides nothing; how it ended is told to the log and, where it did not end well, to `onTold`.
class Programs {
 public:
  Programs(Ports& ports, ApplicationState& state, frmProgress& progress, std::string applicationDirectory);

  // Runs a command line, never through a shell, in the current directory; a program named without a directory is
  // looked for in the application directory. Its exit code, 128 + the signal's number where a signal ended it, 0 where
  // it could not be started. Throws RunStopped; RuntimeFault in a project that is open for looking only.
  int RunAndWait(std::string_view commandLine);
  // The program of that name in the application directory, on one file.
  int run(const std::string& name, const std::string& file);

  // Shows a message on frmProgress, where that is on show, and hands it to `onTold`.
  void tell(const std::string& message);

  const std::string& applicationDirectory() const { return applicationDirectory_; }

  // Which program starts on which file: "TorveSim.exe dam1_0.V2D".
  std::function<void(const std::string&)> onStarted;
  // What the user has to know of a program: that it could not be started and where it was looked for, or how it failed.
  std::function<void(const std::string&)> onTold;

 private:
  friend class RunLog;

  int start(const ProcessRequest& request, const std::string& subject);
  bool keepGoing(const std::string& what, std::int64_t begunNs);
  int settle(const ProcessOutcome& outcome, const ProcessRequest& request);
  void log(const std::string& line);

  Ports& ports_;
  ApplicationState& state_;
  frmProgress& progress_;
  std::string applicationDirectory_;
  std::string logFile_;  // takes what programs print; empty: thrown away
};

// While it lives what programs print goes to the end of a file, after a line that names the program and before one
// that tells how it ended. The outermost log of several counts.
class RunLog {
 public:
  RunLog(Programs& programs, std::string path);
  ~RunLog();
  RunLog(const RunLog&) = delete;
  RunLog& operator=(const RunLog&) = delete;

 private:
  Programs& programs_;
  std::string before_;
};

}  // namespace kestra
