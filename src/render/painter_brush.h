#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>

#include "graphics/canvas_replay.h"
#include "graphics/text_metrics.h"

namespace kestra {

QFont fontFor(double pixels, bool bold);

// The texts of a picture of that size, in letters that are `scale` times those of a screen.
class PainterMetrics : public TextMetrics {
 public:
  PainterMetrics(PictureSize size, double scale) : size_(size), scale_(scale) {}
  TextSize measure(std::string_view text, double fontSize, bool bold) const override;

 private:
  PictureSize size_;
  double scale_;
};

// Paints with Qt's painter. `raster`: on pixels, which can be inverted.
class PainterBrush : public PictureBrush {
 public:
  PainterBrush(QPainter& painter, bool raster) : painter_(painter), raster_(raster) {}

  void ground(PictureSize size, std::uint32_t color) override;
  void line(const std::vector<PicturePoint>& points, const Ink& ink) override;
  void box(PicturePoint corner, PicturePoint opposite, const Ink& ink, bool filled) override;
  void circle(PicturePoint centre, double radius, const Ink& ink, bool filled) override;
  void text(PicturePoint upperLeft, std::string_view text, const Letters& letters) override;
  bool invert(bool on) override;

 private:
  static QColor color(std::uint32_t value);
  static QPen pen(const Ink& ink);

  QPainter& painter_;
  bool raster_;
};

}  // namespace kestra
