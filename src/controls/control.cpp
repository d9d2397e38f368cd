#include "controls/control.h"

#include <array>
#include <utility>

#include "controls/screen.h"
#include "controls/undo_history.h"

namespace kestra {

std::string_view nameOf(ControlKind kind) {
  constexpr std::array<std::string_view, 15> kNames = {"text",   "option", "check", "combo",  "list",
                                                       "button", "menu",   "label", "frame",  "table",
                                                       "tabs",   "slider", "gauge", "canvas", "directory"};
  return kNames[static_cast<std::size_t>(kind)];
}

Control::Control(Screen& screen, std::string name, ControlKind kind, std::string caption)
    : screen_(screen), name_(std::move(name)), kind_(kind) {
  look_.caption = std::move(caption);
  screen_.enter(*this);
}

void Control::setCaption(std::string caption) {
  if (UndoHistory* kept = history()) kept->keep(look_.caption, this, Property::caption, false);
  look_.caption = std::move(caption);
  changed(Property::caption);
}

bool Control::visible() const {
  return look_.visible && (frame_ == nullptr || frame_->visible());
}

void Control::setVisible(bool visible) {
  if (UndoHistory* kept = history()) kept->keep(look_.visible, this, Property::visible, false);
  look_.visible = visible;
  changed(Property::visible);
}

void Control::setEnabled(bool enabled) {
  if (UndoHistory* kept = history()) kept->keep(look_.enabled, this, Property::enabled, false);
  look_.enabled = enabled;
  changed(Property::enabled);
}

void Control::restoreDesign() {
  look_ = design_;
  changed(Property::caption);
  changed(Property::visible);
  changed(Property::enabled);
}

void Control::userFocus() {
  if (screen_.focused() == this) return;
  takeFocus();
}

void Control::userLeave() {
  const Gesture gesture(history(), nullptr);
  if (screen_.focused() == this) screen_.setFocused(nullptr);
  if (onLeave) onLeave();
}

void Control::takeFocus() {
  screen_.setFocused(this);
  if (onFocus) onFocus();
}

void Control::userKey(const Key& key) {
  (void)key;
}

void Control::changed(Property property) {
  screen_.tell(*this, property);
}

UndoHistory* Control::history() const {
  return screen_.history();
}

void Control::edited() {
  screen_.tellEdited(*this);
}

}  // namespace kestra
