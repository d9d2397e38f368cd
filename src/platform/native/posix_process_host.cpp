#include "platform/native/posix_process_host.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "base/paths.h"
#include "platform/native/posix_file_system.h"
#include "platform/native/process_group.h"
#include "platform/native/system_failure.h"

namespace kestra {
namespace {

constexpr int kAskEveryMs = 50;
constexpr int kGraceMs = 3000;

bool holdsZeroByte(const std::string& text) {
  return text.find('\0') != std::string::npos;
}

// What the system cannot hand over whole must not arrive cut off.
bool canBeHandedOver(const ProcessRequest& request) {
  return !holdsZeroByte(request.program) && !holdsZeroByte(request.directory) && !holdsZeroByte(request.outputFile) &&
         std::none_of(request.arguments.begin(), request.arguments.end(), holdsZeroByte);
}

std::vector<std::string> environmentOfPrograms() {
  constexpr std::string_view kLocale = "LC_ALL=";
  std::vector<std::string> environment;
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    if (!std::string_view(*entry).starts_with(kLocale)) environment.emplace_back(*entry);
  }
  environment.emplace_back("LC_ALL=C");
  return environment;
}

std::string programPath(const std::string& program) {
  if (program.empty() || isAbsolutePath(program)) return program;
  return joinPath(PosixFileSystem().currentDirectory(), program);
}

std::string signalName(int number) {
  const char* name = ::sigabbrev_np(number);
  return name != nullptr ? std::string("SIG") + name : "signal " + std::to_string(number);
}

ProcessOutcome outcomeOf(const siginfo_t& ending) {
  if (ending.si_code == CLD_EXITED) return Exited{ending.si_status};
  return Signalled{ending.si_status, signalName(ending.si_status)};
}

// Asks the group to end, one that is halted too, and gives it time; what is left is killed with the group.
void stop(const ProcessGroup& group) {
  group.send(SIGTERM);
  group.send(SIGCONT);
  for (int waited = 0; waited < kGraceMs && !group.waitFor(kAskEveryMs); waited += kAskEveryMs) {
  }
}

}  // namespace

ProcessOutcome PosixProcessHost::run(const ProcessRequest& request, const std::function<bool()>& keepGoing) {
  if (!canBeHandedOver(request)) return StartFailed{wordsOfError(EINVAL)};
  const std::string outputFile = request.outputFile.empty() ? "/dev/null" : request.outputFile;
  const Descriptor input = aboveStandard(openFile("/dev/null", O_RDONLY));
  if (!input) return StartFailed{wordsOfError(errno)};
  const Descriptor output =
      aboveStandard(openFile(outputFile, O_WRONLY | O_CREAT | (request.appendsOutput ? O_APPEND : O_TRUNC)));
  if (!output) return StartFailed{wordsOfError(errno)};

  std::vector<std::string> arguments = {request.program};
  arguments.insert(arguments.end(), request.arguments.begin(), request.arguments.end());
  const ProcessGroup group({programPath(request.program), std::move(arguments), environmentOfPrograms(),
                            request.directory, input.number(), output.number(), true});
  if (group.startError() != 0) return StartFailed{wordsOfError(group.startError())};
  while (!group.waitFor(kAskEveryMs)) {
    if (keepGoing && !keepGoing()) {
      stop(group);
      return Stopped();
    }
  }
  return outcomeOf(group.ending());
}

}  // namespace kestra
