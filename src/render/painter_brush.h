#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>

#include "graphics/canvas_replay.h"

namespace kestra {

QFont fontFor(double pixels, bool bold);

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
