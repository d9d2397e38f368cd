#include "desktop/sketch_widget.h"

#include <QPainter>
#include <algorithm>

#include "base/numbers.h"

namespace kestra {
namespace {

constexpr QSize kUsualSize{180, 100};
constexpr double kMargin = 8;

const std::string& textAt(const SketchLines& lines, int line, int point) {
  return lines.alongColumns ? lines.table->cell(line, point) : lines.table->cell(point, line);
}

// The points stretched to fill the area.
QPolygonF fitted(const QPolygonF& points, const QRectF& area) {
  const QRectF extent = points.boundingRect();
  const auto part = [](double value, double low, double span) { return span > 0 ? (value - low) / span : 0.5; };
  QPolygonF out;
  for (const QPointF& point : points)
    out.append({area.left() + area.width() * part(point.x(), extent.left(), extent.width()),
                area.bottom() - area.height() * part(point.y(), extent.top(), extent.height())});
  return out;
}

}  // namespace

SketchWidget::SketchWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize SketchWidget::sizeHint() const {
  return kUsualSize;
}

QPolygonF SketchWidget::points() const {
  const auto onShow = [](const SketchLines& lines) { return lines.table->visible(); };
  const auto source = std::find_if(sources_.begin(), sources_.end(), onShow);
  QPolygonF points;
  if (source == sources_.end()) return points;
  const Table& table = *source->table;
  const int first = source->alongColumns ? table.fixedColumns() : table.fixedRows();
  const int end = source->alongColumns ? table.columns() : table.rows();
  for (int point = first; point < end; ++point) {
    const std::string& y = textAt(*source, source->y, point);
    const std::string& x = textAt(*source, source->x, point);
    if (x.empty() || y.empty()) break;
    points.append({lenientNumber(x), lenientNumber(y)});
  }
  return points;
}

void SketchWidget::paintEvent(QPaintEvent* event) {
  (void)event;
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  const QPolygonF all = points();
  if (all.size() < 2) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawPolyline(fitted(all, QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin)));
}

}  // namespace kestra
