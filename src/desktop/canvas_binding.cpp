#include "desktop/canvas_binding.h"

#include <QCursor>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

#include "controls/canvas_control.h"
#include "desktop/canvas_widget.h"
#include "desktop/text_bindings.h"
#include "graphs/graph_tools.h"
#include "render/painter_brush.h"

namespace kestra {
namespace {

// Shapes of the mouse, by their images in the lists of the graph screens.
struct PointerShape {
  int image;
  Qt::CursorShape shape;
  const char* picture;  // in place of the shape; null: none
};
constexpr PointerShape kPointers[] = {{10, Qt::OpenHandCursor, nullptr},
                                      {11, Qt::BitmapCursor, ":/pictures/zoom-in.svg"},
                                      {12, Qt::BitmapCursor, ":/pictures/zoom-out.svg"},
                                      {13, Qt::SizeAllCursor, nullptr}};

QCursor pointerFor(int image) {
  constexpr int kPixels = 24;
  constexpr int kGlass = 9;  // middle of the glass, where the click counts
  for (const PointerShape& each : kPointers) {
    if (each.image != image) continue;
    if (each.picture == nullptr) return QCursor(each.shape);
    return QCursor(QIcon(QLatin1String(each.picture)).pixmap(kPixels, kPixels), kGlass, kGlass);
  }
  return QCursor(Qt::ArrowCursor);
}

class CanvasBinding : public Binding {
 public:
  CanvasBinding(CanvasControl& canvas, CanvasWidget& view, const UserAction& act)
      : Binding(canvas, act), canvas_(canvas), view_(view), metrics_(measure()) {
    view.setCanvas(&canvas);
    view.installEventFilter(this);
    takeSize();
  }
  ~CanvasBinding() override {
    canvas_.setMetrics(nullptr);
    canvas_.setPixelColumns(0);
  }
  CanvasBinding(const CanvasBinding&) = delete;
  CanvasBinding& operator=(const CanvasBinding&) = delete;

  QWidget* widget() const override { return &view_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::drawing) view_.update();
    if (property == Property::value) view_.setCursor(pointerFor(canvas_.pointer()));
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
      case QEvent::Resize:
        takeSize();
        return false;
      default:
        return Binding::eventFilter(watched, event);
    }
  }

 private:
  PainterMetrics measure() const { return {view_.pixels(), view_.letterScale()}; }
  void takeSize() {
    metrics_ = measure();
    canvas_.setMetrics(&metrics_);
    canvas_.setPixelColumns(view_.pixels().width);
  }
  bool mouse(MouseEvent::Type type, const QEvent& event) {
    const auto& press = static_cast<const QMouseEvent&>(event);
    MouseEvent told;
    told.type = type;
    const bool left = press.button() == Qt::LeftButton || (press.buttons() & Qt::LeftButton) != 0;
    const bool right = press.button() == Qt::RightButton || (press.buttons() & Qt::RightButton) != 0;
    told.button = left ? 1 : right ? 2 : 0;
    told.x = canvas_.ScaleLeft() + canvas_.ScaleWidth() * press.position().x() / std::max(1, view_.width());
    told.y = canvas_.ScaleTop() + canvas_.ScaleHeight() * press.position().y() / std::max(1, view_.height());
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
  PainterMetrics metrics_;
};

// A read-out stands on its canvas, where the screen has put it, and as near to that as it can be seen whole.
class ReadOutBinding : public Binding {
 public:
  ReadOutBinding(ReadOut& box, QLabel& label, const CanvasWidget& view, const UserAction& act)
      : Binding(box, act), box_(box), label_(label), view_(view) {
    label.setAttribute(Qt::WA_TransparentForMouseEvents);
    label.setAutoFillBackground(true);
  }
  QWidget* widget() const override { return &label_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::value) label_.setText(QString::fromStdString(box_.text()));
    if (box_.ownVisible() && view_.canvas() != nullptr) place(*view_.canvas());
  }

 private:
  void place(const CanvasControl& canvas) {
    label_.adjustSize();
    const double x = (box_.left() - canvas.ScaleLeft()) / canvas.ScaleWidth() * view_.width();
    const double y = (box_.top() - canvas.ScaleTop()) / canvas.ScaleHeight() * view_.height();
    const auto within = [](double at, int most) { return std::max(0, std::min(static_cast<int>(at), most)); };
    label_.move(within(x, view_.width() - label_.width()), within(y, view_.height() - label_.height()));
    label_.raise();
  }

  ReadOut& box_;
  QLabel& label_;
  const CanvasWidget& view_;
};

}  // namespace

std::unique_ptr<Binding> bindCanvas(Control& control, QWidget& widget, const UserAction& act) {
  auto* const view = dynamic_cast<CanvasWidget*>(&widget);
  if (view == nullptr) return nullptr;
  return std::make_unique<CanvasBinding>(dynamic_cast<CanvasControl&>(control), *view, act);
}

std::unique_ptr<Binding> bindReadOut(Control& control, QWidget& widget, const UserAction& act) {
  auto* const label = qobject_cast<QLabel*>(&widget);
  auto* const box = dynamic_cast<ReadOut*>(&control);
  const auto* const view = dynamic_cast<CanvasWidget*>(widget.parentWidget());
  if (label == nullptr || box == nullptr || view == nullptr) return nullptr;
  return std::make_unique<ReadOutBinding>(*box, *label, *view, act);
}

}  // namespace kestra
