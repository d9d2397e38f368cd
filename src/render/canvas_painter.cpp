#include "render/canvas_painter.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <algorithm>

#include "graphics/draw_series.h"

namespace kestra {
namespace {

// The canvas of a graph screen of its opening size, in pixels.
constexpr double kUsualWidth = 688;
constexpr double kUsualHeight = 440;

// The points of a line that the columns of a picture need.
QPolygonF thinned(const QPolygonF& line, int width, int columns) {
  if (line.size() <= columns) return line;
  Series series;
  for (const QPointF& point : line) {
    series.PlotX.push_back(static_cast<float>(point.x()));
    series.PlotY.push_back(static_cast<float>(point.y()));
  }
  QPolygonF out;
  for (const int i : pointsForColumns(series, 0, width, columns)) out.append(line[i]);
  return out;
}

}  // namespace

double pictureScale(PictureSize size) {
  return std::min(size.width / kUsualWidth, size.height / kUsualHeight);
}

QFont fontFor(double points, bool bold, double scale) {
  constexpr double kPixelsPerPoint = 96.0 / 72;
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, static_cast<int>(points * kPixelsPerPoint * scale + 0.5)));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

CanvasPainter::CanvasPainter(QPainter& painter, PictureSize size, int columns, bool raster)
    : painter_(painter), size_(size), columns_(columns), raster_(raster), scale_(pictureScale(size)) {}

QColor CanvasPainter::color(std::uint32_t value) {
  return {static_cast<int>(value & 0xFFU), static_cast<int>(value >> 8U & 0xFFU),
          static_cast<int>(value >> 16U & 0xFFU)};
}

QPen CanvasPainter::pen(int style, int width) const {
  constexpr Qt::PenStyle kStyles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine};
  const bool known = style >= 0 && style < 5;
  return {color(state_.foreColor), std::max(1.0, width * scale_), known ? kStyles[style] : Qt::SolidLine, Qt::FlatCap,
          Qt::BevelJoin};
}

QPointF CanvasPainter::place(double x, double y) const {
  const auto& [x1, y1, x2, y2] = state_.scale;
  return {(x - x1) / (x2 - x1) * size_.width, (y - y1) / (y2 - y1) * size_.height};
}

void CanvasPainter::draw(const CanvasLog& log) {
  state_ = log.start();
  for (const CanvasCall& call : log.calls()) {
    if (call.op == CanvasOp::BackColor) state_.backColor = static_cast<std::uint32_t>(call.numbers[0]);
  }
  painter_.fillRect(0, 0, size_.width, size_.height, color(state_.backColor));
  painter_.setRenderHint(QPainter::Antialiasing);
  for (const CanvasCall& call : log.calls()) take(log, call);
  flush();
}

void CanvasPainter::take(const CanvasLog& log, const CanvasCall& call) {
  if (call.op == CanvasOp::Line) return addLine(call.numbers);
  flush();
  const bool draws = call.op <= CanvasOp::Print && call.op != CanvasOp::Scale;
  const bool inverts = state_.drawMode == kInvertMode;
  if (!draws) return takeState(call);
  if (inverts && !raster_) return;
  if (inverts) painter_.setCompositionMode(QPainter::RasterOp_NotDestination);
  const QRectF box(place(call.numbers[0], call.numbers[1]), place(call.numbers[2], call.numbers[3]));
  painter_.setPen(pen(state_.drawStyle, state_.drawWidth));
  painter_.setBrush(Qt::NoBrush);
  if (call.op == CanvasOp::Box) painter_.drawRect(box.normalized());
  if (call.op == CanvasOp::FilledBox) painter_.fillRect(box.normalized(), color(state_.foreColor));
  if (call.op == CanvasOp::PSet) painter_.drawPoint(place(call.numbers[0], call.numbers[1]));
  if (call.op == CanvasOp::Circle) drawCircle(call);
  if (call.op == CanvasOp::Print) drawText(call, log.textOf(call));
  if (inverts) painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void CanvasPainter::takeState(const CanvasCall& call) {
  const double value = call.numbers[0];
  if (call.op == CanvasOp::Scale) state_.scale = call.numbers;
  if (call.op == CanvasOp::ForeColor) state_.foreColor = static_cast<std::uint32_t>(value);
  if (call.op == CanvasOp::DrawStyle) state_.drawStyle = static_cast<int>(value);
  if (call.op == CanvasOp::DrawWidth) state_.drawWidth = static_cast<int>(value);
  if (call.op == CanvasOp::DrawMode) state_.drawMode = static_cast<int>(value);
  if (call.op == CanvasOp::FontSize) state_.fontSize = value;
  if (call.op == CanvasOp::FontBold) state_.fontBold = value != 0;
}

void CanvasPainter::addLine(const std::array<double, 4>& ends) {
  const QPointF from = place(ends[0], ends[1]);
  if (line_.isEmpty() || line_.last() != from) {
    flush();
    line_.append(from);
  }
  line_.append(place(ends[2], ends[3]));
}

void CanvasPainter::flush() {
  if (line_.isEmpty()) return;
  if (state_.drawMode != kInvertMode) {
    const QPen ink = pen(state_.drawStyle, state_.drawWidth);
    // What is closer together than half the pen's width is under its ink.
    const int columns = static_cast<int>(columns_ / std::max(1.0, ink.widthF() / 2));
    drawPolyline(thinned(line_, size_.width, std::max(1, columns)), ink);
  }
  line_.clear();
}

// A long line on pixels is drawn in pieces that overlap by their caps: the time for a wide one grows with the square of
// its length.
void CanvasPainter::drawPolyline(const QPolygonF& line, QPen ink) {
  constexpr qsizetype kPiece = 16;
  const bool whole = !raster_ || ink.style() != Qt::SolidLine || line.size() <= kPiece;
  if (!whole) ink.setCapStyle(Qt::RoundCap);
  painter_.setPen(ink);
  const qsizetype step = whole ? line.size() : kPiece;
  for (qsizetype at = 0; at + 1 < line.size(); at += step) {
    painter_.drawPolyline(line.constData() + at, static_cast<int>(std::min(step + 1, line.size() - at)));
  }
}

// A circle too small to be seen is a dot.
void CanvasPainter::drawCircle(const CanvasCall& call) {
  constexpr double kDot = 1.5;
  const double radius = call.numbers[2] / (state_.scale[2] - state_.scale[0]) * size_.width;
  const double shown = std::max(radius, kDot * scale_);
  const QColor ink = color(static_cast<std::uint32_t>(call.numbers[3]));
  painter_.setPen(QPen(ink, std::max(1.0, scale_)));
  if (radius < shown) painter_.setBrush(ink);
  painter_.drawEllipse(place(call.numbers[0], call.numbers[1]), shown, shown);
}

void CanvasPainter::drawText(const CanvasCall& call, const std::string& text) {
  if (text.empty()) return;
  const QFont font = fontFor(state_.fontSize, state_.fontBold, scale_);
  painter_.setFont(font);
  const QPointF corner = place(call.numbers[0], call.numbers[1]);
  painter_.drawText(corner + QPointF(0, QFontMetricsF(font).ascent()), QString::fromStdString(text));
}

}  // namespace kestra
