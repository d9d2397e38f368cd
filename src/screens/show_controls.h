#pragma once

#include <initializer_list>

#include "controls/control.h"

namespace kestra {

// Shows or hides controls that go together, such as a field and its label.
inline void showControls(bool visible, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->setVisible(visible);
}

// Puts controls into a frame, which hides them with itself.
inline void standIn(const Control& frame, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->standIn(frame);
}

}  // namespace kestra
