#pragma once

#include "platform/small_ports.h"

// The small ports of this machine for a program that has a terminal, or none at all, and no window.
namespace kestra {

class SystemClock : public Clock {
 public:
  std::int64_t nowNs() override;
  std::int64_t steadyNs() override;
  CalendarTime localTime(std::int64_t ns) override;
};

// From the system's generator. Throws RuntimeFault when there is none.
class SystemEntropy : public EntropySource {
 public:
  std::uint32_t next() override;
};

// Rings the bell of the terminal on the descriptor; silent when that is no terminal.
class TerminalBeeper : public Beeper {
 public:
  explicit TerminalBeeper(int descriptor = 2) : descriptor_(descriptor) {}
  void beep() override;

 private:
  int descriptor_;
};

// A terminal has no events that wait.
class TerminalEventPump : public EventPump {
 public:
  void pump() override {}
};

}  // namespace kestra
