#pragma once

#include "app/application.h"
#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"
#include "platform/scripted.h"

namespace kestra {

// The whole application on ports that need no machine: files in memory (and failing on demand), answers from lists.
struct ScriptedDesk {
  MemoryFileSystem memory;
  FaultyFileSystem files{memory};
  ScriptedMessageBoxes boxes;
  ScriptedDialogs dialogs;
  MemorySettings settings;
  MemoryClipboard clipboard;
  ScriptedProcessHost processes;
  RecordingEventPump events;
  RecordingBeeper beeper;
  ScriptedEntropy entropy;
  ScriptedClock clock;
  RecordingHelpViewer help;

  ScriptedDesk() {
    memory.putDirectory("/app");
    memory.putDirectory("/home");
    (void)memory.changeDirectory("/home");
  }

  Ports ports() {
    return {boxes, dialogs, settings, clipboard, processes, files, events, beeper, entropy, clock, help};
  }
};

// A desk with the application on it, started without a control file.
struct RunningDesk : ScriptedDesk {
  explicit RunningDesk(const std::string& commandLine = "") { app.shell.startUp(commandLine); }

  Application app{ports(), "/app"};
  Shell& shell = app.shell;
  ApplicationState& state = app.state;
};

// Makes a project as the user would: the chosen directory, a name, OK.
inline void makeProject(Shell& shell, const std::string& parent, const std::string& name) {
  shell.topScreen.mnuNewProject.click();
  shell.newProject.dirList.userChoose(parent);
  shell.newProject.txtEnterName.userReplace(name);
  shell.newProject.cmdOK.click();
}

}  // namespace kestra
