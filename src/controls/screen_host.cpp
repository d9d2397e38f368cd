#include "controls/screen_host.h"

#include <cassert>
#include <utility>

namespace kestra {

namespace {

// Nothing is kept for undoing while it lives: what a screen is loaded with is nobody's edit.
class HistoryPause {
 public:
  explicit HistoryPause(UndoHistory*& history) : history_(history), paused_(std::exchange(history, nullptr)) {}
  ~HistoryPause() { history_ = paused_; }
  HistoryPause(const HistoryPause&) = delete;
  HistoryPause& operator=(const HistoryPause&) = delete;

 private:
  UndoHistory*& history_;
  UndoHistory* paused_;
};

}  // namespace

void ScreenHost::enter(Screen& screen) {
  assert(find(screen.name()) == nullptr);
  screen.host_ = this;
  screen.keepDesign();
  screens_.push_back(&screen);
  byName_[screen.name()] = &screen;
}

Screen* ScreenHost::find(std::string_view name) const {
  const auto at = byName_.find(std::string(name));
  return at == byName_.end() ? nullptr : at->second;
}

void ScreenHost::load(Screen& screen) {
  if (screen.loaded_) return;
  screen.loaded_ = true;
  const HistoryPause pause(history_);
  screen.load();
}

void ScreenHost::show(Screen& screen) {
  load(screen);
  std::erase(shown_, &screen);
  shown_.insert(shown_.begin(), &screen);
  screen.visible_ = true;
  screen.activate();
  screen.tellScreen();
  if (onShown) onShown(screen);
}

void ScreenHost::showModal(Screen& screen) {
  show(screen);
  if (modalLoop_ != nullptr) modalLoop_->run(screen);
  if (screen.visible_) hide(screen);
}

void ScreenHost::hide(Screen& screen) {
  if (focus_ != nullptr && &focus_->screen() == &screen) focus_ = nullptr;
  std::erase(shown_, &screen);
  screen.visible_ = false;
  screen.tellScreen();
}

bool ScreenHost::closeByFrame(Screen& screen) {
  return take(screen, CloseReason::userFrame);
}

bool ScreenHost::unload(Screen& screen) {
  return take(screen, CloseReason::program);
}

Control* ScreenHost::focus() const {
  return focus_ != nullptr && focus_->screen().visible() ? focus_ : nullptr;
}

void ScreenHost::tellEdited(Screen& screen, Control& control) const {
  if (onEdited) onEdited(screen, control);
}

bool ScreenHost::take(Screen& screen, CloseReason reason) {
  if (!screen.loaded_) return true;
  if (!screen.queryUnload(reason, bExiting_)) return false;
  if (!screen.loaded_) return true;  // its own answer has unloaded it already
  hide(screen);
  screen.loaded_ = false;
  if (focus_ != nullptr && &focus_->screen() == &screen) focus_ = nullptr;
  screen.unload();
  screen.restoreDesign();
  return true;
}

}  // namespace kestra
