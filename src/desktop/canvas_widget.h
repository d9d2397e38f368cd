#pragma once

#include <QWidget>

#include "controls/canvas_control.h"

namespace kestra {

// Shows what was drawn on a canvas, at any size and resolution.
class CanvasWidget : public QWidget {
 public:
  explicit CanvasWidget(QWidget* parent = nullptr);

  void setCanvas(const CanvasControl* canvas) { canvas_ = canvas; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const CanvasControl* canvas_ = nullptr;
};

}  // namespace kestra
