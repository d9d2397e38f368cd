#include "platform/native/system_ports.h"

#include <sys/random.h>
#include <time.h>
#include <unistd.h>

#include <chrono>

#include "base/runtime_fault.h"
#include "platform/native/descriptor.h"

namespace kestra {

std::int64_t SystemClock::nowNs() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

std::int64_t SystemClock::steadyNs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

CalendarTime SystemClock::localTime(std::int64_t ns) {
  const time_t seconds = std::chrono::floor<std::chrono::seconds>(std::chrono::nanoseconds(ns)).count();
  tm local = {};
  ::tzset();
  ::localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::uint32_t SystemEntropy::next() {
  std::uint32_t number = 0;
  const ssize_t count = untilDone([&] { return ::getrandom(&number, sizeof number, 0); });
  if (count != sizeof number) throw RuntimeFault("the system gives no random numbers");
  return number;
}

void TerminalBeeper::beep() {
  constexpr char kBell = '\a';
  if (::isatty(descriptor_) == 0) return;
  // A bell that cannot be rung is no failure.
  [[maybe_unused]] const ssize_t rung = untilDone([&] { return ::write(descriptor_, &kBell, 1); });
}

}  // namespace kestra
