#pragma once

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "platform/process_host.h"
#include "platform/settings_store.h"
#include "platform/small_ports.h"

namespace kestra {

// All that the system asks of the machine and the user it works for. Whoever makes it keeps the ports alive.
struct Ports {
  MessageBoxes& boxes;
  Dialogs& dialogs;
  SettingsStore& settings;
  Clipboard& clipboard;
  ProcessHost& processes;
  FileSystem& files;
  EventPump& events;
  Beeper& beeper;
  EntropySource& entropy;
  Clock& clock;
  HelpViewer& help;
};

}  // namespace kestra
