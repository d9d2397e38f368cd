#pragma once

#include <array>
#include <string>
#include <vector>

#include "controls/control_array.h"
#include "controls/screen_host.h"
#include "controls/simple_controls.h"
#include "shell/application_state.h"

namespace kestra {

// The windows that have slots: 1 the input window with the input screens behind it, 2 to 6 the others.
class WindowRegistry {
 public:
  WindowRegistry(ApplicationState& state, ScreenHost& host) : state_(state), host_(host) {}

  // Says which screen stands in a slot, and which menu entries its Window menu has for the open windows; none if null.
  void enter(WindowSlot slot, Screen& screen, ControlArray<Menu>* windowMenu);
  // An input screen of the Next sequence; slot 1 remembers the one shown last.
  void enterSequence(Screen& screen) { sequence_.push_back(&screen); }
  std::vector<std::string> sequenceNames() const;
  void shown(Screen& screen);  // a screen came to the front

  void AddData(int slot);            // marks the slot open; outside 1 to 6 a fault
  void RemoveData(int slot);         // marks it closed; likewise
  bool IsAvailable(int slot) const;  // likewise
  void FindFormToBuildItems();       // rebuilds the Window menu of each open window
  void LoadOrUnload();               // the input window alone stays, or comes
  void unloadOthers();               // all windows with slots but the input window
  void RaiseScreen(int slot);        // brings a slot's window to the front; none for a slot that has no window open

 private:
  struct Slot {
    Screen* screen = nullptr;
    ControlArray<Menu>* windowMenu = nullptr;
  };
  void buildMenu(ControlArray<Menu>& menu);

  ApplicationState& state_;
  ScreenHost& host_;
  std::array<Slot, kLastSlot + 1> slots_{};
  std::vector<Screen*> sequence_;
  Screen* lastInSequence_ = nullptr;
};

}  // namespace kestra
