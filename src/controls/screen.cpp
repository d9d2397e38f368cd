#include "controls/screen.h"

#include <cassert>
#include <utility>

#include "controls/screen_host.h"

namespace kestra {

Screen::Screen(std::string name, std::string title) : name_(std::move(name)) {
  place_.title = std::move(title);
}

void Screen::setTitle(std::string title) {
  place_.title = std::move(title);
  tellScreen();
}

void Screen::setSize(int width, int height) {
  place_.width = width;
  place_.height = height;
  tellScreen();
}

void Screen::setBackColor(std::uint32_t color) {
  place_.backColor = color;
  tellScreen();
}

Control* Screen::find(std::string_view name) const {
  const auto at = byName_.find(std::string(name));
  return at == byName_.end() ? nullptr : at->second;
}

void Screen::removeObserver(ScreenObserver& observer) {
  std::erase(observers_, &observer);
}

bool Screen::queryUnload(CloseReason reason, bool bExiting) {
  (void)reason, (void)bExiting;
  return true;
}

ScreenHost& Screen::host() const {
  assert(host_ != nullptr);
  return *host_;
}

void Screen::enter(Control& control) {
  assert(byName_.find(control.name()) == byName_.end());
  controls_.push_back(&control);
  byName_[control.name()] = &control;
}

Control* Screen::focused() const {
  return host_ != nullptr ? host_->focus_ : nullptr;
}

void Screen::setFocused(Control* control) {
  if (host_ != nullptr) host_->focus_ = control;
}

void Screen::tell(Control& control, Property property) {
  for (ScreenObserver* observer : observers_) observer->controlChanged(control, property);
}

void Screen::tellEdited(Control& control) {
  if (host_ != nullptr) host_->tellEdited(*this, control);
}

UndoHistory* Screen::history() const {
  return host_ != nullptr && holdsInput() ? host_->history() : nullptr;
}

void Screen::tellScreen() {
  for (ScreenObserver* observer : observers_) observer->screenChanged(*this);
}

void Screen::keepDesign() {
  designPlace_ = place_;
  for (Control* control : controls_) control->keepDesign();
}

void Screen::restoreDesign() {
  place_ = designPlace_;
  for (Control* control : controls_) control->restoreDesign();
  tellScreen();
}

}  // namespace kestra
