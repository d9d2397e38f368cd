#pragma once

#include <signal.h>

#include "platform/native/descriptor.h"
#include "platform/native/spawn.h"

namespace kestra {

// A program that was started for this object, leader of its process group. When this goes nothing of the group is left:
// neither the program, nor what it started and left behind. When this program ends without a chance to see to that, two
// others do: the system kills the leader, and a guard kills the rest, a small process that waits for the end of a
// connection whose other end is here.
class ProcessGroup {
 public:
  explicit ProcessGroup(const SpawnRequest& request);
  ~ProcessGroup();
  ProcessGroup(const ProcessGroup&) = delete;
  ProcessGroup& operator=(const ProcessGroup&) = delete;

  int startError() const { return leader_.error; }  // 0: it was started
  // The rest is for a program that was started.
  bool waitFor(int milliseconds) const;  // true as soon as the leader has ended
  void send(int signal) const;           // to the whole group
  siginfo_t ending() const;              // waits for the end of the leader; how it ended, as the system tells it

 private:
  void startGuard();

  SpawnResult leader_;
  SpawnResult guard_;
  Descriptor guardLine_;  // the guard acts when this is closed
  Descriptor watch_;      // readable when the leader has ended; none on a system that has no such thing
};

}  // namespace kestra
