#include "render/long_line.h"

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>

namespace kestra {
namespace {

constexpr int kBandRows = 64;  // so many that the distances of a band stay in the processor's cache

// The whole part within a range; of no number its low end.
int wholeWithin(double value, int low, int high) {
  if (!(value > low)) return low;
  return value < high ? static_cast<int>(value) : high;
}

// A piece of the line, downward; places count from the middle of the band's first pixel.
struct Piece {
  float x;
  float y;
  float dx;
  float dy;
  float perLength;  // 1 over the square of its length, 0 for a point

  // Lowers the squared distances of the pixels `from` to `to` in a row.
  void lower(float* squares, int from, int to, float row) const {
    const float above = row - y;
    for (int i = from; i <= to; ++i) {
      const float beside = static_cast<float>(i) - x;
      float t = (beside * dx + above * dy) * perLength;
      t = t < 0 ? 0 : t;
      t = t > 1 ? 1 : t;
      const float ex = beside - t * dx;
      const float ey = above - t * dy;
      const float square = ex * ex + ey * ey;
      squares[i] = square < squares[i] ? square : squares[i];
    }
  }
};

// Some rows of a picture with the squared distance of each pixel from the line.
class Band {
 public:
  Band(QRect area, double reach) : area_(area), reach_(reach), squares_(pixels(area), kFar) {}

  void add(PicturePoint a, PicturePoint b) {
    if (a.y > b.y) std::swap(a, b);
    if (!(b.y + reach_ >= area_.top() && a.y - reach_ <= area_.bottom() + 1)) return;
    const Piece piece = pieceOf(a, b);
    const int height = area_.height();
    const auto y = static_cast<double>(piece.y);
    const int first = wholeWithin(std::ceil(y - reach_), 0, height);
    const int last = wholeWithin(y + static_cast<double>(piece.dy) + reach_, -1, height - 1);
    for (int row = first; row <= last; ++row) addRow(piece, row);
  }

  QImage inked(QColor color) const {
    QImage image(area_.size(), QImage::Format_ARGB32_Premultiplied);
    const auto ink = shadesOf(color);
    const auto reach = static_cast<float>(reach_);
    const float inner = std::max(0.0F, reach - 1);
    const float* square = squares_.data();
    for (int y = 0; y < area_.height(); ++y) {
      auto* out = reinterpret_cast<QRgb*>(image.scanLine(y));
      for (int x = 0; x < area_.width(); ++x, ++square) {
        const bool edge = *square > inner * inner && *square < reach * reach;
        const float shade = edge ? (reach - std::sqrt(*square)) * 255 : *square < reach * reach ? 255.0F : 0.0F;
        out[x] = ink[static_cast<std::size_t>(std::min(shade, 255.0F))];
      }
    }
    return image;
  }

 private:
  static constexpr float kFar = 1e30F;

  static std::size_t pixels(QRect area) {
    return static_cast<std::size_t>(area.width()) * static_cast<std::size_t>(area.height());
  }
  static std::array<QRgb, 256> shadesOf(QColor color) {
    std::array<QRgb, 256> shades{};
    for (int i = 0; i < 256; ++i) {
      shades[static_cast<std::size_t>(i)] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), i));
    }
    return shades;
  }

  Piece pieceOf(PicturePoint a, PicturePoint b) const {
    constexpr double kMiddle = 0.5;
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    return {static_cast<float>(a.x - area_.left() - kMiddle), static_cast<float>(a.y - area_.top() - kMiddle),
            static_cast<float>(dx), static_cast<float>(dy), square > 0 ? static_cast<float>(1 / square) : 0};
  }

  // Only pixels within reach of the part of the piece that is itself within reach of the row.
  void addRow(const Piece& piece, int row) {
    const auto at = static_cast<float>(row);
    const auto reach = static_cast<float>(reach_);
    const auto along = [&](float y, float flat) {
      return piece.dy > 0 ? std::clamp((y - piece.y) / piece.dy, 0.0F, 1.0F) : flat;
    };
    const auto [left, right] =
        std::minmax({piece.x + along(at - reach, 0) * piece.dx, piece.x + along(at + reach, 1) * piece.dx});
    const int from = wholeWithin(std::ceil(static_cast<double>(left) - reach_), 0, area_.width());
    const int to = wholeWithin(static_cast<double>(right) + reach_, -1, area_.width() - 1);
    piece.lower(squares_.data() + pixels({0, 0, area_.width(), row}), from, to, at);
  }

  QRect area_;
  double reach_;
  std::vector<float> squares_;
};

QRect boundsOf(const std::vector<PicturePoint>& points, double reach) {
  PicturePoint low = points.front();
  PicturePoint high = points.front();
  for (const PicturePoint& point : points) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  constexpr int kFarOut = 1 << 20;
  const auto whole = [](double value) { return wholeWithin(value, -kFarOut, kFarOut); };
  return {QPoint(whole(low.x - reach) - 1, whole(low.y - reach) - 1),
          QPoint(whole(high.x + reach) + 1, whole(high.y + reach) + 1)};
}

}  // namespace

void paintLongLine(QPainter& painter, const std::vector<PicturePoint>& points, double width, QColor color) {
  constexpr double kSoft = 0.5;  // half a pixel in which the ink fades
  const double reach = width / 2 + kSoft;
  const QRect area = boundsOf(points, reach) & QRect(0, 0, painter.device()->width(), painter.device()->height());
  for (int top = area.top(); top <= area.bottom(); top += kBandRows) {
    const int rows = std::min(kBandRows, area.bottom() - top + 1);
    Band band({area.left(), top, area.width(), rows}, reach);
    for (std::size_t i = 1; i < points.size(); ++i) band.add(points[i - 1], points[i]);
    painter.drawImage(area.left(), top, band.inked(color));
  }
}

}  // namespace kestra
