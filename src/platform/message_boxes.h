#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestra {

enum class BoxIcon { none, information, warning, critical, question };
enum class BoxButton { ok, yes, no, cancel };

struct MessageBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::none;
  std::vector<BoxButton> buttons = {BoxButton::ok};
};

std::string_view captionOf(BoxButton button);  // "OK", "Yes", "No", "Cancel"
std::string_view nameOf(BoxIcon icon);         // "none", "information", "warning", "critical", "question"

// The answer of somebody who does not want anything to happen: Cancel where offered, else No, else the first button.
BoxButton refusal(const MessageBox& box);

// Port: shows a box and waits for the user's choice, which is always one of the box's buttons. Never fails.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual BoxButton show(const MessageBox& box) = 0;

  // One button, OK.
  void tell(std::string title, std::string text, BoxIcon icon);
  // Yes and No, question icon; true for Yes.
  bool confirm(std::string title, std::string text);
};

// Shows nothing and refuses everything.
class SilentMessageBoxes : public MessageBoxes {
 public:
  BoxButton show(const MessageBox& box) override { return refusal(box); }
};

}  // namespace kestra
