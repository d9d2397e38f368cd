#pragma once

#include <sys/types.h>
#include <string>
#include <vector>

namespace kestra {

// How a program is started. The lists hold texts without zero bytes.
struct SpawnRequest {
  std::string program;                   // path of the executable
  std::vector<std::string> arguments;    // the first is the name that the program is told it has
  std::vector<std::string> environment;  // "NAME=value"
  std::string directory;                 // where it runs; empty: where this program stands
  int input = -1;                        // descriptors that become its standard input,
  int output = -1;                       // and its standard output and error; above 2
  bool diesWithParent = true;            // killed when the thread that starts it ends, however it ends
};

struct SpawnResult {
  pid_t process = -1;
  int error = 0;  // why it did not start; 0: it runs
};

// Starts a program as leader of a new process group, with every signal in its default state and no open files but its
// standard ones. When it returns the program runs in place of the child, or the start has failed and no child is left.
// The time that it takes does not depend on the memory that this program uses.
SpawnResult spawn(const SpawnRequest& request);

}  // namespace kestra
