// A program to be started by tests. What it is asked for is its first argument:
//   arguments    prints all behind, each with its length, so that any bytes can be told apart
//   world        prints the directory, LC_ALL, whether it leads its process group, what standard input gives, the open
//                descriptors, and the signals that are ignored or held back
//   output       prints a line on standard output and one on standard error

#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

int printArguments(int count, char** arguments) {
  for (int i = 2; i < count; ++i) {
    const std::string_view argument = arguments[i];
    std::printf("%zu:", argument.size());
    std::fwrite(argument.data(), 1, argument.size(), stdout);
    std::printf("\n");
  }
  return 0;
}

int printWorld() {
  char directory[4096] = "";
  if (::getcwd(directory, sizeof directory) == nullptr) return 1;
  const char* locale = std::getenv("LC_ALL");
  char byte = 0;
  std::printf("directory %s\nLC_ALL %s\n", directory, locale != nullptr ? locale : "(none)");
  std::printf("leader %s\n", ::getpgrp() == ::getpid() ? "yes" : "no");
  std::printf("input ends %s\ndescriptors", ::read(0, &byte, 1) == 0 ? "yes" : "no");
  for (int number = 0; number < 256; ++number) {
    if (::dup2(number, number) == number) std::printf(" %d", number);
  }
  std::printf("\nsignals");
  sigset_t held;
  ::sigprocmask(SIG_SETMASK, nullptr, &held);
  for (int number = 1; number < SIGRTMAX; ++number) {
    struct sigaction action = {};
    const bool ignored = ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
    if (ignored || ::sigismember(&held, number) == 1) std::printf(" %d", number);
  }
  std::printf("\n");
  return 0;
}

int printBoth() {
  std::printf("to output\n");
  std::fflush(stdout);
  std::fprintf(stderr, "to error\n");
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view wanted = count > 1 ? arguments[1] : "";
  if (wanted == "arguments") return printArguments(count, arguments);
  if (wanted == "world") return printWorld();
  if (wanted == "output") return printBoth();
  return 2;
}
