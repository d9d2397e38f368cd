#pragma once

#include <QImage>
#include <QWidget>
#include <optional>

#include "graphics/canvas_replay.h"

namespace kestra {

class CanvasControl;

// Shows what was drawn on a canvas, at any size and resolution. What was painted once is kept and only added to until
// the canvas is wiped. Letters and pens grow with the widget, so that a graph keeps its look; where the form gives it
// the property "fixedLetters" they are those of the screen.
class CanvasWidget : public QWidget {
 public:
  explicit CanvasWidget(QWidget* parent = nullptr);

  void setCanvas(const CanvasControl* canvas) { canvas_ = canvas; }
  const CanvasControl* canvas() const { return canvas_; }
  PictureSize pixels() const;  // of the device
  double letterScale() const;  // as of a picture of that size
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void bringUpToDate();

  const CanvasControl* canvas_ = nullptr;
  QImage image_;
  std::optional<CanvasReplay> replay_;
};

}  // namespace kestra
