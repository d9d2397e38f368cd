#include "controls/ranges.h"

#include <algorithm>
#include <utility>

#include "controls/undo_history.h"

namespace kestra {

Range::Range(Screen& screen, std::string name, ControlKind kind, double minimum, double maximum)
    : Control(screen, std::move(name), kind), minimum_(minimum), maximum_(maximum), value_(minimum) {}

void Range::setValue(double value) {
  value_ = std::max(minimum_, std::min(value, maximum_));
  changed(Property::value);
}

void Range::setLimits(double minimum, double maximum) {
  minimum_ = minimum;
  maximum_ = maximum;
  changed(Property::range);
  setValue(value_);
}

void Range::userMove(double value) {
  setValue(value);
  if (onChange) onChange();
}

void Range::keepDesign() {
  Control::keepDesign();
  design_[0] = minimum_;
  design_[1] = maximum_;
  design_[2] = value_;
}

void Range::restoreDesign() {
  Control::restoreDesign();
  setLimits(design_[0], design_[1]);
  setValue(design_[2]);
}

Tabs::Tabs(Screen& screen, std::string name, std::vector<std::string> captions)
    : Control(screen, std::move(name), ControlKind::tabs), captions_(std::move(captions)) {}

void Tabs::setIndex(int index) {
  if (index < 0 || index >= static_cast<int>(captions_.size())) return;
  if (UndoHistory* kept = history()) kept->keep(index_, this, Property::value, false);
  index_ = index;
  changed(Property::value);
}

bool Tabs::userSelect(int index) {
  if (index < 0 || index >= static_cast<int>(captions_.size())) return false;
  const Gesture gesture(history(), nullptr);
  const int previous = index_;
  setIndex(index);
  if (onClick) onClick(previous);
  return true;
}

void Tabs::keepDesign() {
  Control::keepDesign();
  designIndex_ = index_;
}

void Tabs::restoreDesign() {
  Control::restoreDesign();
  setIndex(designIndex_);
}

}  // namespace kestra
