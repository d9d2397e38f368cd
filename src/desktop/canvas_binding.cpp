#include "desktop/canvas_binding.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/canvas_widget.h"
#include "desktop/text_bindings.h"

namespace kestra {
namespace {

class CanvasBinding : public Binding {
 public:
  CanvasBinding(CanvasControl& canvas, CanvasWidget& view, const UserAction& act)
      : Binding(canvas, act), canvas_(canvas), view_(view) {
    view.setCanvas(&canvas);
    view.installEventFilter(this);
  }
  QWidget* widget() const override { return &view_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::drawing) view_.update();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
        return mouse(MouseEvent::Type::down, *event);
      case QEvent::MouseMove:
        return mouse(MouseEvent::Type::move, *event);
      case QEvent::MouseButtonRelease:
        return mouse(MouseEvent::Type::up, *event);
      case QEvent::MouseButtonDblClick:
        return mouse(MouseEvent::Type::doubleClick, *event);
      case QEvent::KeyPress:
        return key(*static_cast<QKeyEvent*>(event));
      default:
        return Binding::eventFilter(watched, event);
    }
  }

 private:
  bool mouse(MouseEvent::Type type, const QEvent& event) {
    const auto& press = static_cast<const QMouseEvent&>(event);
    const auto& [x1, y1, x2, y2] = canvas_.scale();
    MouseEvent told;
    told.type = type;
    const bool left = press.button() == Qt::LeftButton || (press.buttons() & Qt::LeftButton) != 0;
    const bool right = press.button() == Qt::RightButton || (press.buttons() & Qt::RightButton) != 0;
    told.button = left ? 1 : right ? 2 : 0;
    told.x = x1 + (x2 - x1) * press.position().x() / std::max(1, view_.width());
    told.y = y1 + (y2 - y1) * press.position().y() / std::max(1, view_.height());
    act([this, &told] { canvas_.userMouse(told); });
    return false;
  }
  bool key(const QKeyEvent& press) {
    const Key key = keyOf(press.key(), press.text());
    if (key.name.empty() || !canvas_.onKeyPress) return false;
    act([this, &key] { canvas_.userKey(key); });
    return true;
  }

  CanvasControl& canvas_;
  CanvasWidget& view_;
};

}  // namespace

std::unique_ptr<Binding> bindCanvas(Control& control, QWidget& widget, const UserAction& act) {
  auto* const view = dynamic_cast<CanvasWidget*>(&widget);
  if (view == nullptr) return nullptr;
  return std::make_unique<CanvasBinding>(dynamic_cast<CanvasControl&>(control), *view, act);
}

}  // namespace kestra
