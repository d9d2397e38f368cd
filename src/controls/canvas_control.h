#pragma once

#include <array>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "controls/control.h"

namespace kestra {

// One call on a canvas as it was made: "Line" with its numbers, "Print" with position and text, "Visible" with a flag.
struct CanvasCall {
  std::string name;
  std::vector<std::variant<double, std::string, bool>> arguments;
};

struct MouseEvent {
  enum class Type { down, move, up, doubleClick };
  Type type = Type::move;
  int button = 0;  // 1 left, 2 right, 0 none
  double x = 0;    // in the canvas's logical units
  double y = 0;
};

// An area that is drawn on. It keeps the calls made since it was cleared, for whoever renders or inspects them.
class CanvasControl : public Control {
 public:
  CanvasControl(Screen& screen, std::string name) : Control(screen, std::move(name), ControlKind::canvas) {}

  const std::array<double, 4>& scale() const { return scale_; }  // logical window: x1, y1, x2, y2
  void setScale(const std::array<double, 4>& scale) {
    scale_ = scale;
    record({"Scale", {scale[0], scale[1], scale[2], scale[3]}});
  }
  const std::vector<CanvasCall>& calls() const { return calls_; }
  void record(CanvasCall call) {
    calls_.push_back(std::move(call));
    changed(Property::drawing);
  }
  void clear() {
    calls_.clear();
    changed(Property::drawing);
  }

  void userMouse(const MouseEvent& event) {
    if (onMouse) onMouse(event);
  }
  void userKey(const Key& key) override {
    if (onKeyPress) onKeyPress(key);
  }
  void restoreDesign() override {
    Control::restoreDesign();
    clear();
    scale_ = {0, 0, 1, 1};
  }

  std::function<void(const MouseEvent&)> onMouse;
  std::function<void(const Key&)> onKeyPress;

 private:
  std::array<double, 4> scale_ = {0, 0, 1, 1};
  std::vector<CanvasCall> calls_;
};

}  // namespace kestra
