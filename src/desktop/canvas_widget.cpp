#include "desktop/canvas_widget.h"

#include <QPainter>
#include <QVariant>
#include <cmath>

#include "controls/canvas_control.h"
#include "render/painter_brush.h"

namespace kestra {
namespace {

constexpr QSize kUsualSize{640, 420};
constexpr QSize kLeastSize{160, 90};
constexpr double kUsualDotsPerInch = 96;

}  // namespace

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

PictureSize CanvasWidget::pixels() const {
  const double ratio = devicePixelRatioF();
  return {std::max(1, static_cast<int>(std::ceil(width() * ratio))),
          std::max(1, static_cast<int>(std::ceil(height() * ratio)))};
}

double CanvasWidget::letterScale() const {
  if (property("fixedLetters").toBool()) return devicePixelRatioF() * logicalDpiY() / kUsualDotsPerInch;
  return pictureScale(pixels());
}

QSize CanvasWidget::sizeHint() const {
  return minimumSize().isEmpty() ? kUsualSize : minimumSize();
}

QSize CanvasWidget::minimumSizeHint() const {
  return kLeastSize;
}

void CanvasWidget::bringUpToDate() {
  const PictureSize size = pixels();
  if (image_.width() != size.width || image_.height() != size.height || !replay_) {
    image_ = QImage(size.width, size.height, QImage::Format_RGB32);
    replay_.emplace(size, size.width, letterScale());
  }
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  PainterBrush brush(painter, true);
  replay_->paint(canvas_->log(), brush);
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
  (void)event;
  QPainter painter(this);
  if (canvas_ == nullptr) return painter.fillRect(rect(), Qt::white);
  image_.setDevicePixelRatio(1);
  bringUpToDate();
  image_.setDevicePixelRatio(devicePixelRatioF());
  painter.drawImage(QPoint(0, 0), image_);
}

}  // namespace kestra
