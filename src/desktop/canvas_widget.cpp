#include "desktop/canvas_widget.h"

#include <QPainter>

namespace kestra {
namespace {

constexpr QSize kUsualSize{640, 420};

}  // namespace

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize CanvasWidget::sizeHint() const {
  return kUsualSize;
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
  (void)event;
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  (void)canvas_;
}

}  // namespace kestra
