#include "platform/native/spawn.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "platform/native/descriptor.h"

namespace kestra {
namespace {

// All that the child needs, made ready beforehand: it shares this program's memory and may not allocate.
struct ChildPlan {
  const char* program = nullptr;
  char* const* arguments = nullptr;
  char* const* environment = nullptr;
  const char* directory = nullptr;
  int input = -1;
  int output = -1;
  bool diesWithParent = true;
  pid_t parent = -1;
};

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

// A signal that this program ignores would stay ignored in the other.
void resetSignals() {
  struct sigaction standard = {};
  standard.sa_handler = SIG_DFL;
  for (int number = 1; number <= SIGRTMAX; ++number) ::sigaction(number, &standard, nullptr);
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

bool prepare(const ChildPlan& plan) {
  if (::setpgid(0, 0) != 0) return false;
  if (plan.diesWithParent) {
    if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0) return false;
    if (::getppid() != plan.parent) ::_exit(127);  // it has ended already
  }
  if (plan.directory != nullptr && ::chdir(plan.directory) != 0) return false;
  if (::dup2(plan.input, STDIN_FILENO) < 0 || ::dup2(plan.output, STDOUT_FILENO) < 0 ||
      ::dup2(plan.output, STDERR_FILENO) < 0) {
    return false;
  }
  // This program opens no file that is inherited, but a library might. A kernel that does not know the call keeps
  // those.
  (void)::close_range(STDERR_FILENO + 1, ~0U, 0);
  resetSignals();
  return true;
}

// Runs in the child. The parent stands still until the program has started or the child is gone, so that the error
// number can be left in memory that both see.
[[noreturn]] void becomeProgram(const ChildPlan& plan, volatile int& error) {
  if (prepare(plan)) ::execve(plan.program, plan.arguments, plan.environment);
  error = errno;
  ::_exit(127);
}

// In a function of its own, so that the two returns from vfork share no variable of the caller.
[[gnu::noinline]] pid_t divide(const ChildPlan& plan, volatile int& error) {
  const pid_t process = ::vfork();
  if (process == 0) becomeProgram(plan, error);
  return process;
}

// Holds all signals back: a handler of this program must not run in the child.
class SignalPause {
 public:
  SignalPause() {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~SignalPause() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalPause(const SignalPause&) = delete;
  SignalPause& operator=(const SignalPause&) = delete;

 private:
  sigset_t before_ = {};
};

}  // namespace

SpawnResult spawn(const SpawnRequest& request) {
  const std::vector<char*> arguments = pointersTo(request.arguments);
  const std::vector<char*> environment = pointersTo(request.environment);
  const ChildPlan plan = {request.program.c_str(), arguments.data(),
                          environment.data(),      request.directory.empty() ? nullptr : request.directory.c_str(),
                          request.input,           request.output,
                          request.diesWithParent,  ::getpid()};
  volatile int error = 0;
  pid_t process = -1;
  {
    const SignalPause pause;
    process = divide(plan, error);
    if (process < 0) error = errno;
  }
  if (process > 0 && error != 0) untilDone([&] { return ::waitpid(process, nullptr, 0); });
  return {error == 0 ? process : -1, error};
}

}  // namespace kestra
