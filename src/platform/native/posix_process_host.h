#pragma once

#include "platform/process_host.h"

namespace kestra {

// Runs programs of this machine. A relative path of the program or the output file counts from where this program
// stands. Whoever calls may be any thread, but has to live on until run returns, as it does when run is simply called.
class PosixProcessHost : public ProcessHost {
 public:
  ProcessOutcome run(const ProcessRequest& request, const std::function<bool()>& keepGoing) override;
};

}  // namespace kestra
