#pragma once

#include <string>
#include <utility>
#include <vector>

#include "controls/choices.h"
#include "controls/text_box.h"

// Sets a control from the program where it does not show the value yet, so that a command that changes nothing leaves
// no step to undo.
namespace kestra {

inline void putValue(TextBox& box, const std::string& text) {
  if (box.text() != text) box.setText(text);
}

inline void putValue(CheckBox& box, bool checked) {
  if (box.checked() != checked) box.setChecked(checked);
}

inline void putSelected(OptionButton& option) {
  if (!option.selected()) option.setSelected(true);
}

// The entries of a list and the selected one by its text; a text that is not among them selects nothing.
inline void putEntries(ChoiceList& list, std::vector<std::string> items, const std::string& selected) {
  if (list.items() != items) list.setItems(std::move(items));
  if (list.text() != selected) list.setText(selected);
}

}  // namespace kestra
