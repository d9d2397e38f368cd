#pragma once

#include <QString>
#include <string>

#include "desktop/qt_ports.h"
#include "platform/ini_settings.h"
#include "platform/native/posix_file_system.h"
#include "platform/native/posix_process_host.h"
#include "platform/native/system_ports.h"
#include "platform/ports.h"
#include "platform/printer.h"
#include "render/qt_pictures.h"

class QCoreApplication;

namespace kestra {

struct DeskOptions {
  QString controlFile;   // as it stands on the command line; empty: none
  QString appDirectory;  // empty: that of the program
  QString settingsFile;  // empty: the user's
};

// Reads the command line; ends the program where the words are wrong or a help text was asked for.
DeskOptions deskOptions(const QCoreApplication& toolkit);

// Shows pages of the help in a window of its own.
class QtHelpViewer : public HelpViewer {
 public:
  void showTopic(const std::string& topic) override;
};

// Prints into a file where the user has chosen one in place of a printer.
class DeskPrinter : public Printer {
 public:
  DeskPrinter(FileSystem& files, ProcessHost& processes) : files_(files), spool_(files, processes, "/tmp") {}
  Status print(const std::string& pdf, const PrintChoice& choice) override;

 private:
  FileSystem& files_;
  SpoolPrinter spool_;
};

// The ports of this machine for the program with windows.
class QtDesk {
 public:
  explicit QtDesk(const DeskOptions& options);

  Ports ports();
  const std::string& applicationDirectory() const { return applicationDirectory_; }
  PictureMaker& pictures() { return pictures_; }
  Printer& printer() { return printer_; }

 private:
  PosixFileSystem files_;
  std::string applicationDirectory_;
  IniSettings settings_;
  QtMessageBoxes boxes_;
  QtDialogs dialogs_;
  QtClipboard clipboard_;
  PosixProcessHost processes_;
  QtEventPump events_;
  QtBeeper beeper_;
  SystemEntropy entropy_;
  SystemClock clock_;
  QtHelpViewer help_;
  QtPictures pictures_;
  DeskPrinter printer_{files_, processes_};
};

}  // namespace kestra
