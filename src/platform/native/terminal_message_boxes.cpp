#include "platform/native/terminal_message_boxes.h"

#include <algorithm>

namespace kestra {

BoxButton TerminalMessageBoxes::show(const MessageBox& box) {
  lines_ << box.title << ": " << box.text << '\n' << std::flush;
  if (box.buttons.size() == 1) return box.buttons.front();
  const bool offersYes = std::find(box.buttons.begin(), box.buttons.end(), BoxButton::yes) != box.buttons.end();
  if (yes_ && offersYes) return BoxButton::yes;
  ++refused_;
  lines_ << (offersYes ? "refused; --yes answers Yes\n" : "refused\n") << std::flush;
  return refusal(box);
}

}  // namespace kestra
