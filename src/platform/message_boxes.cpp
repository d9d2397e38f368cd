#include "platform/message_boxes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kestra {

std::string_view captionOf(BoxButton button) {
  constexpr std::array<std::string_view, 4> kCaptions = {"OK", "Yes", "No", "Cancel"};
  return kCaptions[static_cast<std::size_t>(button)];
}

std::string_view nameOf(BoxIcon icon) {
  constexpr std::array<std::string_view, 5> kNames = {"none", "information", "warning", "critical", "question"};
  return kNames[static_cast<std::size_t>(icon)];
}

BoxButton refusal(const MessageBox& box) {
  for (const BoxButton wanted : {BoxButton::cancel, BoxButton::no}) {
    if (std::find(box.buttons.begin(), box.buttons.end(), wanted) != box.buttons.end()) return wanted;
  }
  return box.buttons.front();
}

void MessageBoxes::tell(std::string title, std::string text, BoxIcon icon) {
  show({std::move(title), std::move(text), icon, {BoxButton::ok}});
}

bool MessageBoxes::confirm(std::string title, std::string text) {
  return show({std::move(title), std::move(text), BoxIcon::question, {BoxButton::yes, BoxButton::no}}) ==
         BoxButton::yes;
}

}  // namespace kestra
