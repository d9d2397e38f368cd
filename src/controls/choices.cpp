#include "controls/choices.h"

#include <algorithm>
#include <utility>

#include "controls/undo_history.h"

namespace kestra {

CheckBox::CheckBox(Screen& screen, std::string name, std::string caption, bool checked)
    : Control(screen, std::move(name), ControlKind::check, std::move(caption)),
      checked_(checked),
      designChecked_(checked) {}

void CheckBox::setChecked(bool checked) {
  if (UndoHistory* kept = history(); kept != nullptr && checked != checked_) {
    kept->keep(checked_, this, Property::value, true);
  }
  checked_ = checked;
  changed(Property::value);
}

void CheckBox::userSet(bool checked) {
  const Gesture gesture(history(), nullptr);
  setChecked(checked);
  edited();
  if (onClick) onClick();
}

void CheckBox::keepDesign() {
  Control::keepDesign();
  designChecked_ = checked_;
}

void CheckBox::restoreDesign() {
  Control::restoreDesign();
  setChecked(designChecked_);
}

void OptionGroup::clearOthers(const OptionButton& selected) {
  for (OptionButton* option : options_) {
    if (option == &selected || !option->selected_) continue;
    option->keepSelected();
    option->selected_ = false;
    option->changed(Property::value);
  }
}

OptionButton::OptionButton(Screen& screen, std::string name, OptionGroup& group, std::string caption, bool selected)
    : Control(screen, std::move(name), ControlKind::option, std::move(caption)),
      group_(group),
      selected_(selected),
      designSelected_(selected) {
  group_.enter(*this);
}

void OptionButton::keepSelected() {
  if (UndoHistory* kept = history()) kept->keep(selected_, this, Property::value, true);
}

void OptionButton::setSelected(bool selected) {
  if (selected != selected_) keepSelected();
  selected_ = selected;
  if (selected) group_.clearOthers(*this);
  changed(Property::value);
}

void OptionButton::userSelect() {
  const Gesture gesture(history(), nullptr);
  setSelected(true);
  edited();
  if (onClick) onClick();
}

void OptionButton::keepDesign() {
  Control::keepDesign();
  designSelected_ = selected_;
}

void OptionButton::restoreDesign() {
  Control::restoreDesign();
  selected_ = designSelected_;
  changed(Property::value);
}

ChoiceList::ChoiceList(Screen& screen, std::string name, ControlKind kind, std::vector<std::string> items, int index)
    : Control(screen, std::move(name), kind), items_(std::move(items)), index_(index), designIndex_(index) {}

void ChoiceList::setItems(std::vector<std::string> items) {
  setIndex(-1);
  if (UndoHistory* kept = history()) kept->keep(items_, this, Property::items, true);
  items_ = std::move(items);
  changed(Property::items);
}

void ChoiceList::setIndex(int index) {
  const int wanted = index >= 0 && index < static_cast<int>(items_.size()) ? index : -1;
  if (wanted == index_ && typed_.empty()) return;
  keepChoice();
  index_ = wanted;
  typed_.clear();
  changed(Property::value);
}

void ChoiceList::keepChoice() {
  if (UndoHistory* kept = history()) {
    kept->keep(typed_, this, Property::value, true);
    kept->keep(index_, this, Property::value, true);
  }
}

std::string ChoiceList::text() const {
  return index_ < 0 ? typed_ : items_[static_cast<std::size_t>(index_)];
}

void ChoiceList::setText(std::string_view text) {
  setIndex(indexOf(text));
  if (index_ < 0 && editable_) typed_ = text;
}

bool ChoiceList::userSelect(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) return false;
  const Gesture gesture(history(), nullptr);
  setIndex(index);
  edited();
  if (onClick) onClick();
  return true;
}

bool ChoiceList::userSelect(std::string_view text) {
  const int index = indexOf(text);
  if (index >= 0 || !editable_) return userSelect(index);
  const Gesture gesture(history(), nullptr);
  setText(text);
  edited();
  if (onClick) onClick();
  return true;
}

void ChoiceList::userDoubleClick() {
  const Gesture gesture(history(), nullptr);
  if (onDoubleClick) onDoubleClick();
}

void ChoiceList::userKey(const Key& key) {
  const Gesture gesture(history(), nullptr);
  if (onKeyPress) onKeyPress(key);
}

void ChoiceList::keepDesign() {
  Control::keepDesign();
  designItems_ = items_;
  designIndex_ = index_;
}

void ChoiceList::restoreDesign() {
  Control::restoreDesign();
  setItems(designItems_);
  setIndex(designIndex_);
}

int ChoiceList::indexOf(std::string_view text) const {
  const auto at = std::find(items_.begin(), items_.end(), text);
  return at == items_.end() ? -1 : static_cast<int>(at - items_.begin());
}

}  // namespace kestra
