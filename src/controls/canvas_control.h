#pragma once

#include <array>
#include <functional>
#include <string>

#include "controls/control.h"
#include "graphics/canvas_log.h"

namespace kestra {

struct MouseEvent {
  enum class Type { down, move, up, doubleClick };
  Type type = Type::move;
  int button = 0;  // 1 left, 2 right, 0 none
  double x = 0;    // in the canvas's logical units
  double y = 0;
};

// An area that is drawn on. It keeps the calls made since it was wiped, for whoever renders or inspects them.
class CanvasControl : public Control, public RecordingCanvas {
 public:
  CanvasControl(Screen& screen, std::string name) : Control(screen, std::move(name), ControlKind::canvas) {}

  // Shape of the mouse over it: an image of its screen's list; 0 the normal pointer.
  int pointer() const { return pointer_; }
  void setPointer(int image) {
    pointer_ = image;
    changed(Property::value);
  }

  void userMouse(const MouseEvent& event) {
    mouse_ = event;
    if (onMouse) onMouse(event);
  }
  void userDoubleClick() { userMouse({MouseEvent::Type::doubleClick, 1, mouse_.x, mouse_.y}); }  // where the mouse is
  void userKey(const Key& key) override {
    if (onKeyPress) onKeyPress(key);
  }
  void restoreDesign() override {
    Control::restoreDesign();
    resetState();
    wiped();
    setPointer(0);
    mouse_ = {};
  }

  std::function<void(const MouseEvent&)> onMouse;
  std::function<void(const Key&)> onKeyPress;

 protected:
  void take(CanvasOp op, const Numbers& numbers, std::string_view text) override {
    RecordingCanvas::take(op, numbers, text);
    if (op == CanvasOp::Visible) setVisible(numbers[0] != 0);
    changed(Property::drawing);
  }
  void wiped() override {
    RecordingCanvas::wiped();
    changed(Property::drawing);
  }

 private:
  int pointer_ = 0;
  MouseEvent mouse_;
};

}  // namespace kestra
