#include "controls/simple_controls.h"

#include "controls/undo_history.h"

namespace kestra {

void Command::click() {
  const Gesture gesture(history(), nullptr);
  if (onClick) onClick();
}

}  // namespace kestra
