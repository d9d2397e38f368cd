#include "graphics/draw_series.h"

#include <algorithm>

#include "graphics/clipped_line.h"
#include "graphics/draw_frame.h"

namespace kestra {
namespace {

// A stretch of points of one column: the numbers of its first, lowest, highest and last point.
struct Stretch {
  int first;
  int lowest;
  int highest;
  int last;

  void appendTo(std::vector<int>& points) const {
    points.push_back(first);
    const auto [a, b] = std::minmax(lowest, highest);
    for (const int point : {a, b, last}) {
      if (point != points.back()) points.push_back(point);
    }
  }
};

template <class NextPoint>
void drawLine(const Series& series, const View& w, AbstractCanvas& canvas, int count, const NextPoint& pointAt) {
  for (int j = 1; j < count; ++j) {
    const auto a = static_cast<std::size_t>(pointAt(j - 1));
    const auto b = static_cast<std::size_t>(pointAt(j));
    DrawClippedLine(static_cast<double>(series.PlotX[a]), static_cast<double>(series.PlotY[a]),
                    static_cast<double>(series.PlotX[b]), static_cast<double>(series.PlotY[b]), w.Xmin, w.Ymin, w.Xmax,
                    w.Ymax, canvas, kNoFill);
  }
}

void drawPoints(const Series& series, const View& w, AbstractCanvas& canvas) {
  const int count = series.PointCount();
  const int columns = canvas.pixelColumns();
  if (columns == 0 || count <= columns) {
    drawLine(series, w, canvas, count, [](int j) { return j; });
    return;
  }
  const auto points = pointsForColumns(series, canvas.ScaleLeft(), canvas.ScaleWidth(), columns);
  drawLine(series, w, canvas, static_cast<int>(points.size()),
           [&](int j) { return points[static_cast<std::size_t>(j)]; });
}

void drawLegendRow(const View& w, AbstractCanvas& canvas, int row, const std::string& name) {
  const double xu = w.xRange() / 100;
  const double yu = w.yRange() / 100;
  const double y = w.Ymin + 0.1 * w.yRange() + 6 * row * yu;
  canvas.moveTo(w.Xmax + xu, y);
  canvas.LineTo(w.Xmax + xu + 5 * xu, y);
  canvas.moveTo(canvas.CurrentX() + xu, y - 3 * yu);
  canvas.Print(name);
}

}  // namespace

std::vector<int> pointsForColumns(const Series& series, double left, double width, int columns) {
  std::vector<int> points;
  const int count = series.PointCount();
  if (count == 0) return points;
  points.reserve(static_cast<std::size_t>(4 * columns));
  const double scale = width > 0 ? columns / width : 0;
  const double beyond = columns;
  const float* x = series.PlotX.data();
  const float* y = series.PlotY.data();
  // Left and right of the canvas a point belongs to the column outside of it.
  const auto columnOf = [=](float at) {
    return static_cast<int>(std::clamp((static_cast<double>(at) - left) * scale, -1.0, beyond) + 1);
  };
  Stretch stretch = {0, 0, 0, 0};
  int column = columnOf(x[0]);
  for (int j = 1; j < count; ++j) {
    const int here = columnOf(x[j]);
    if (here != column) {
      stretch.appendTo(points);
      stretch = {j, j, j, j};
      column = here;
      continue;
    }
    if (y[j] < y[stretch.lowest]) stretch.lowest = j;
    if (y[j] > y[stretch.highest]) stretch.highest = j;
    stretch.last = j;
  }
  stretch.appendTo(points);
  return points;
}

void DrawSeriesLines(const GraphSheet& sheet, AbstractCanvas& canvas) {
  constexpr double kPointRadius = 0.0006;
  constexpr std::size_t kFirstPen = 2;
  const View& w = sheet.window;
  setGraphScale(sheet, canvas);
  canvas.DrawMode(kCopyMode);
  canvas.DrawWidth(1);
  for (int i = 0; i < sheet.series.SeriesCount; ++i) {
    const Series& series = sheet.series(i);
    const std::size_t pen = kFirstPen + static_cast<std::size_t>(i);
    const std::size_t line = std::min(pen, sheet.lines.WidthList.size() - 1);
    canvas.ForeColor(sheet.lines.ColorList[pen]);
    canvas.DrawWidth(sheet.lines.WidthList[line]);
    canvas.DrawStyle(sheet.lines.ComboList[line]);
    if (series.PointCount() > 0) canvas.moveTo(shortDecimal(series.PlotX[0]), w.flipped(shortDecimal(series.PlotY[0])));
    if (series.PointCount() == 1) {
      canvas.Circle(canvas.CurrentX(), canvas.CurrentY(), kPointRadius, sheet.lines.ColorList[pen]);
    }
    drawPoints(series, w, canvas);
    if (sheet.series.SeriesCount > 1) drawLegendRow(w, canvas, i, series.SeriesName);
  }
}

}  // namespace kestra
