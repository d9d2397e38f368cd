#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace kestra {

struct ProcessRequest {
  std::string program;                 // path of the executable; started directly, never through a shell
  std::vector<std::string> arguments;  // without the program itself
  std::string directory;               // where it runs; empty: where this program stands
  std::string outputFile;              // takes its standard output and error; empty: thrown away
  bool appendsOutput = false;          // behind what stands in the file; else the file is emptied before the start
};

struct Exited {
  int code = 0;
};
struct Signalled {
  int number = 0;    // of the signal that ended it
  std::string name;  // "SIGSEGV"
};
struct Stopped {};  // the caller did not want to go on
struct StartFailed {
  std::string reason;  // the system's own words, such as "No such file or directory"
};
using ProcessOutcome = std::variant<Exited, Signalled, Stopped, StartFailed>;

// Port: runs an external program to its end. It gets no standard input and LC_ALL=C, and is the leader of a process
// group of its own, which ends with it: whatever it started is ended too when it ends, when it is stopped and when this
// program ends.
class ProcessHost {
 public:
  virtual ~ProcessHost() = default;

  // Waits until the program has ended. `keepGoing` is asked about twenty times a second; when it says false the group
  // is told to end, and killed three seconds later. It may be empty.
  virtual ProcessOutcome run(const ProcessRequest& request, const std::function<bool()>& keepGoing) = 0;
};

}  // namespace kestra
