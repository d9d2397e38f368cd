#pragma once

#include <string>

#include "cli/options.h"
#include "platform/ini_settings.h"
#include "platform/native/posix_file_system.h"
#include "platform/native/posix_process_host.h"
#include "platform/native/system_ports.h"
#include "platform/printer.h"
#include "platform/scripted.h"

namespace kestra {

// Shows nothing and keeps the topic asked for last.
class LastHelpTopic : public HelpViewer {
 public:
  void showTopic(const std::string& topic) override { topic_ = topic; }
  const std::string& topic() const { return topic_; }

 private:
  std::string topic_;
};

// The ports of this machine for a program without a window. The clipboard is the program's own, and help is noted
// rather than shown. Who talks to the user stands elsewhere: boxes, dialogs and beeper are handed in.
class NativeDesk {
 public:
  explicit NativeDesk(const CliOptions& options);

  Ports ports(MessageBoxes& boxes, Dialogs& dialogs, Beeper& beeper);
  const std::string& applicationDirectory() const { return applicationDirectory_; }
  FileSystem& files() { return files_; }
  Printer& printer() { return printer_; }

 private:
  PosixFileSystem files_;
  std::string applicationDirectory_;
  IniSettings settings_;
  MemoryClipboard clipboard_;
  PosixProcessHost processes_;
  SpoolPrinter printer_{files_, processes_, "/tmp"};
  TerminalEventPump events_;
  SystemEntropy entropy_;
  SystemClock clock_;
  LastHelpTopic help_;
};

}  // namespace kestra
