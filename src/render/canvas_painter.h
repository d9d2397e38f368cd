#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QString>

#include "graphics/canvas_log.h"
#include "graphics/picture_maker.h"

namespace kestra {

// How much larger than a canvas of the usual screen a picture is.
double pictureScale(PictureSize size);
// The font of a canvas on a picture, in pixels of its size.
QFont fontFor(double points, bool bold, double scale);

// Draws the calls on a canvas again. Lines that continue each other become one, thinned to what the columns of pixels
// can show.
class CanvasPainter {
 public:
  // Lines are thinned for so many columns. `raster`: the painter works on pixels, which can be inverted; elsewhere what
  // inverts is left out.
  CanvasPainter(QPainter& painter, PictureSize size, int columns, bool raster);

  void draw(const CanvasLog& log);

 private:
  void take(const CanvasLog& log, const CanvasCall& call);
  void takeState(const CanvasCall& call);
  void addLine(const std::array<double, 4>& ends);
  void flush();
  void drawPolyline(const QPolygonF& line, QPen ink);
  QPen pen(int style, int width) const;
  QPointF place(double x, double y) const;
  void drawCircle(const CanvasCall& call);
  void drawText(const CanvasCall& call, const std::string& text);
  static QColor color(std::uint32_t value);

  QPainter& painter_;
  PictureSize size_;
  int columns_;
  bool raster_;
  double scale_;
  CanvasState state_;
  QPolygonF line_;
};

}  // namespace kestra
