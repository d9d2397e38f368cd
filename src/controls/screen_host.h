#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/screen.h"

namespace kestra {

// Runs a screen that is shown modally until it is closed. Without one a modal screen closes as soon as it is shown.
class ModalLoop {
 public:
  virtual ~ModalLoop() = default;
  // Returns once `screen` is hidden or the user has had enough; the host then takes it away.
  virtual void run(Screen& screen) = 0;
};

// How the windows are laid out on the desk.
enum class WindowArrangement { cascade, tile };

// The screens of the system, which of them are on show, in which order, and where the focus is.
class ScreenHost {
 public:
  // `bExiting` is the application's flag: while it is true the system itself closes windows.
  explicit ScreenHost(const bool& bExiting) : bExiting_(bExiting) {}

  void enter(Screen& screen);  // once each, fully made: its properties now are its design
  const std::vector<Screen*>& screens() const { return screens_; }
  Screen* find(std::string_view name) const;  // null when there is none

  void load(Screen& screen);  // no effect on a loaded one
  void show(Screen& screen);  // loads, brings to the front, activates
  void showModal(Screen& screen);
  void hide(Screen& screen);
  // Closes by the frame, as a user does. False when the screen stays.
  bool closeByFrame(Screen& screen);
  // Unloads a loaded screen: what was put in is gone. False when the screen refuses.
  bool unload(Screen& screen);

  const std::vector<Screen*>& shown() const { return shown_; }  // front one first
  Control* focus() const;                                       // null when its screen is not on show

  void setHistory(UndoHistory* history) { history_ = history; }
  UndoHistory* history() const { return history_; }
  void setModalLoop(ModalLoop* loop) { modalLoop_ = loop; }
  void tellEdited(Screen& screen, Control& control) const;

  std::function<void(Screen&, Control&)> onEdited;  // the user changed the input of a screen
  std::function<void(Screen&)> onShown;
  std::function<void(WindowArrangement)> onArrange;  // the user wants it; whoever shows the windows does it

 private:
  friend class Screen;

  bool take(Screen& screen, CloseReason reason);

  const bool& bExiting_;
  std::vector<Screen*> screens_;
  std::unordered_map<std::string, Screen*> byName_;
  std::vector<Screen*> shown_;
  Control* focus_ = nullptr;
  ModalLoop* modalLoop_ = nullptr;
  UndoHistory* history_ = nullptr;
};

}  // namespace kestra
