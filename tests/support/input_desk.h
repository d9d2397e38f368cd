#pragma once

#include <string>
#include <vector>

#include "controls/undo_history.h"
#include "platform/memory_file_system.h"
#include "platform/scripted.h"
#include "screens/input_context.h"

namespace kestra {

// A screen that only takes up a name: where a Next or Previous leads in a test of one screen.
class PlainScreen : public Screen {
 public:
  explicit PlainScreen(const std::string& name) : Screen(name, name) {}
};

// Scripted ports, a host with history, and an input window that counts the builds: what input screens stand on.
struct InputDesk : InputDesktop {
  MemoryFileSystem files;
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
  Ports ports{boxes, dialogs, settings, clipboard, processes, files, events, beeper, entropy, clock, help};
  ApplicationState state;
  ScreenHost host{state.bExiting};
  UndoHistory history;
  ScreenContext base{ports, state, host};
  InputContext context{base, *this, {}};
  PlainScreen window{"frmKestra"};
  int builds = 0;

  InputDesk() {
    host.setHistory(&history);
    host.onEdited = [this](Screen& screen, Control&) {
      if (screen.holdsInput()) state.fileDirty = true;
    };
    host.enter(window);
  }

  Screen& inputWindow() override { return window; }
  void mnuBuildFileFromOtherScreen_Click() override { ++builds; }

  // Name of the screen in front; empty when none is shown.
  std::string front() const { return host.shown().empty() ? "" : host.shown().front()->name(); }
  // Texts of the boxes shown since the last call, each behind its title: "Data Check: ...".
  std::vector<std::string> takeBoxes() {
    std::vector<std::string> texts;
    for (const MessageBox& box : boxes.shown) texts.push_back(box.title + ": " + box.text);
    boxes.shown.clear();
    return texts;
  }
};

// Types characters into a control as the user does: \r is Enter, \b Backspace.
inline void typeInto(Control& control, const std::string& keys) {
  control.userFocus();
  for (const char c : keys) control.userKey({static_cast<unsigned char>(c), {}});
}

}  // namespace kestra
