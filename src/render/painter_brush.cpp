#include "render/painter_brush.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <algorithm>

namespace kestra {

QFont fontFor(double pixels, bool bold) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, static_cast<int>(pixels + 0.5)));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

TextSize PainterMetrics::measure(std::string_view text, double fontSize, bool bold) const {
  const QFontMetricsF metrics(fontFor(letterSize(fontSize, scale_), bold));
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return {metrics.horizontalAdvance(shown) / size_.width, metrics.height() / size_.height};
}

QColor PainterBrush::color(std::uint32_t value) {
  return {static_cast<int>(value & 0xFFU), static_cast<int>(value >> 8U & 0xFFU),
          static_cast<int>(value >> 16U & 0xFFU)};
}

QPen PainterBrush::pen(const Ink& ink) {
  constexpr Qt::PenStyle kStyles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine};
  const bool known = ink.style >= 0 && ink.style < 5;
  return {color(ink.color), ink.width, known ? kStyles[ink.style] : Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin};
}

void PainterBrush::ground(PictureSize size, std::uint32_t value) {
  painter_.fillRect(0, 0, size.width, size.height, color(value));
  painter_.setRenderHint(QPainter::Antialiasing);
}

// A long line on pixels is drawn in pieces that overlap by their caps: the time for a wide one grows with the square of
// its length.
void PainterBrush::line(const std::vector<PicturePoint>& points, const Ink& ink) {
  constexpr std::size_t kPiece = 16;
  QPolygonF whole;
  whole.reserve(static_cast<qsizetype>(points.size()));
  for (const PicturePoint& point : points) whole.append(QPointF(point.x, point.y));
  const bool inPieces = raster_ && ink.style == kSolid && points.size() > kPiece;
  QPen tip = pen(ink);
  if (inPieces) tip.setCapStyle(Qt::RoundCap);
  painter_.setPen(tip);
  const std::size_t step = inPieces ? kPiece : points.size();
  for (std::size_t at = 0; at + 1 < points.size(); at += step) {
    const std::size_t count = std::min(step + 1, points.size() - at);
    painter_.drawPolyline(whole.constData() + at, static_cast<int>(count));
  }
}

void PainterBrush::box(PicturePoint corner, PicturePoint opposite, const Ink& ink, bool filled) {
  const QRectF area = QRectF(QPointF(corner.x, corner.y), QPointF(opposite.x, opposite.y)).normalized();
  if (filled) return painter_.fillRect(area, color(ink.color));
  painter_.setPen(pen(ink));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(area);
}

void PainterBrush::circle(PicturePoint centre, double radius, const Ink& ink, bool filled) {
  painter_.setPen(filled ? QPen(Qt::NoPen) : pen(ink));
  painter_.setBrush(filled ? QBrush(color(ink.color)) : QBrush(Qt::NoBrush));
  painter_.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
}

void PainterBrush::text(PicturePoint upperLeft, std::string_view text, const Letters& letters) {
  const QFont font = fontFor(letters.size, letters.bold);
  painter_.setFont(font);
  painter_.setPen(color(letters.color));
  painter_.drawText(QPointF(upperLeft.x, upperLeft.y + QFontMetricsF(font).ascent()),
                    QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

bool PainterBrush::invert(bool on) {
  if (!raster_) return false;
  painter_.setRenderHint(QPainter::Antialiasing, !on);  // inverting half a pixel twice would leave a trace
  painter_.setCompositionMode(on ? QPainter::RasterOp_NotDestination : QPainter::CompositionMode_SourceOver);
  return true;
}

}  // namespace kestra
