#pragma once

#include <ostream>

#include "platform/message_boxes.h"

namespace kestra {

// Prints each box as a line, "TITLE: TEXT", and waits for nobody. A box with several buttons is a question: it is
// answered Yes when that is what the caller wants and Yes is offered, and refused otherwise, with a line behind it that
// says so
// ("refused; --yes answers Yes", or "refused" when it does not offer Yes).
class TerminalMessageBoxes : public MessageBoxes {
 public:
  TerminalMessageBoxes(std::ostream& lines, bool yes) : lines_(lines), yes_(yes) {}

  BoxButton show(const MessageBox& box) override;
  int refused() const { return refused_; }  // questions so far

 private:
  std::ostream& lines_;
  bool yes_;
  int refused_ = 0;
};

}  // namespace kestra
