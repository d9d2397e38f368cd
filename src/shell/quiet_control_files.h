#pragma once

#include "control/control_files.h"
#include "shell/file_desk.h"

namespace kestra {

// Control files made from the screens of a desk beside those of its commands: no box is shown, and the texts that the
// commands have built stay as they are.
class QuietControlFiles {
 public:
  explicit QuietControlFiles(FileDesk& desk)
      : ports_{boxes_,
               desk.context.ports.dialogs,
               desk.context.ports.settings,
               desk.context.ports.clipboard,
               desk.context.ports.processes,
               desk.context.ports.files,
               desk.context.ports.events,
               desk.context.ports.beeper,
               desk.context.ports.entropy,
               desk.context.ports.clock,
               desk.context.ports.help},
        context_{ports_, desk.state(), desk.context.host},
        files_(desk.input, context_) {}
  QuietControlFiles(const QuietControlFiles&) = delete;
  QuietControlFiles& operator=(const QuietControlFiles&) = delete;

  ControlFiles* operator->() { return &files_; }

 private:
  SilentMessageBoxes boxes_;
  Ports ports_;
  ScreenContext context_;
  ControlFiles files_;
};

}  // namespace kestra
