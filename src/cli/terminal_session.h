#pragma once

#include <iostream>

#include "app/application.h"
#include "cli/native_desk.h"
#include "platform/native/terminal_dialogs.h"
#include "platform/native/terminal_message_boxes.h"

namespace kestra {

inline constexpr int kFailed = 1;  // exit code: the work itself failed

// The application for a command that talks on standard error and waits for nobody.
struct TerminalSession {
  explicit TerminalSession(const CliOptions& options)
      : desk(options), boxes(std::cerr, options.yes), dialogs(std::cerr, options.yes) {}

  NativeDesk desk;
  TerminalMessageBoxes boxes;
  TerminalDialogs dialogs;
  TerminalBeeper beeper;
  Application application{desk.ports(boxes, dialogs, beeper), desk.applicationDirectory()};
};

}  // namespace kestra
