#include "platform/native/process_group.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestra {
namespace {

// The first line tells the number of the group; then nothing comes until the other end is closed.
constexpr const char* kGuardScript = "read -r group || exit; read -r end; kill -KILL \"-$group\"";

// A program that was started with SIGCHLD ignored hands that down, and then no ending of a child can be learned.
void learnEndings() {
  struct sigaction action = {};
  ::sigaction(SIGCHLD, nullptr, &action);
  if (action.sa_handler != SIG_IGN && (action.sa_flags & SA_NOCLDWAIT) == 0) return;
  action = {};
  action.sa_handler = SIG_DFL;
  ::sigaction(SIGCHLD, &action, nullptr);
}

void reap(pid_t process) {
  untilDone([&] { return ::waitpid(process, nullptr, 0); });
}

}  // namespace

ProcessGroup::ProcessGroup(const SpawnRequest& request) {
  learnEndings();
  startGuard();
  leader_ = spawn(request);
  if (leader_.error != 0) return;
  watch_ = Descriptor(static_cast<int>(::syscall(SYS_pidfd_open, leader_.process, 0)));
  if (!guardLine_) return;
  const std::string line = std::to_string(leader_.process) + "\n";
  (void)untilDone([&] { return ::send(guardLine_.number(), line.data(), line.size(), MSG_NOSIGNAL); });
}

// While the leader has not been reaped no other group can get its number.
ProcessGroup::~ProcessGroup() {
  if (leader_.error == 0) {
    send(SIGKILL);
    (void)ending();
  }
  if (guard_.process > 0) {
    ::kill(guard_.process, SIGKILL);
    reap(guard_.process);
  }
  if (leader_.error == 0) reap(leader_.process);
}

// Without a guard the system still kills the leader.
void ProcessGroup::startGuard() {
  int ends[2] = {-1, -1};
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
  guardLine_ = aboveStandard(Descriptor(ends[0]));
  const Descriptor input = aboveStandard(Descriptor(ends[1]));
  const Descriptor output = aboveStandard(openFile("/dev/null", O_WRONLY));
  guard_ = spawn({"/bin/sh", {"sh", "-c", kGuardScript}, {}, "/", input.number(), output.number(), false});
}

bool ProcessGroup::waitFor(int milliseconds) const {
  pollfd watched = {watch_.number(), POLLIN, 0};  // a negative number is passed over, and leaves a pause
  ::poll(&watched, 1, milliseconds);
  siginfo_t state = {};
  const int asked = untilDone(
      [&] { return ::waitid(P_PID, static_cast<id_t>(leader_.process), &state, WEXITED | WNOHANG | WNOWAIT); });
  return asked != 0 || state.si_pid != 0;
}

void ProcessGroup::send(int signal) const {
  ::kill(-leader_.process, signal);
}

siginfo_t ProcessGroup::ending() const {
  siginfo_t state = {};
  untilDone([&] { return ::waitid(P_PID, static_cast<id_t>(leader_.process), &state, WEXITED | WNOWAIT); });
  return state;
}

}  // namespace kestra
