#include "graphics/summary_plot.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "graphics/draw_frame.h"

namespace kestra {
namespace {

constexpr std::size_t kPen = 2;  // of the first series of a graph
constexpr int kMark = 5;         // width of a point's mark

double stepFor(double range) {
  const double unit = std::pow(10.0, std::trunc(std::log10(range)));
  const double leading = std::trunc(range / unit - 0.001) + 1;
  if (leading > 10) return 2 * unit;
  if (leading > 5) return unit;
  return leading > 2 ? unit / 2 : unit / 5;
}

AxisScale axisFor(double low, double high) {
  constexpr double kSmallestRange = 0.001;
  constexpr double kSmallestPart = 1e-12;  // so that the widening is not lost in a great number
  if (high > low) return scaleAxis(low, high);
  return scaleAxis(low, low + std::max(kSmallestRange, std::fabs(low) * kSmallestPart));
}

View windowOf(const SummaryPlot& plot, Steps& steps) {
  View extents = {plot.points.front().x, plot.points.front().x, plot.points.front().y, plot.points.front().y};
  for (const PlotPoint& point : plot.points) extents.include(point.x, point.y);
  const AxisScale x = axisFor(extents.Xmin, extents.Xmax);
  const AxisScale y = axisFor(extents.Ymin, extents.Ymax);
  steps = {x.step, y.step};
  return {x.low, x.high, y.low, y.high};
}

// A short label of the Y axis stands left of it as on all graphs, a long one above it.
void drawLabels(const GraphSheet& sheet, AbstractCanvas& canvas, const SummaryPlot& plot) {
  constexpr std::size_t kMostLetters = 18;
  const bool isShort = charCount(plot.yLabel) <= kMostLetters;
  DrawLabel(sheet, canvas, plot.xLabel, isShort ? std::string_view(plot.yLabel) : std::string_view());
  if (isShort) return;
  canvas.ForeColor(sheet.foreground());
  canvas.moveTo(canvas.ScaleLeft() + canvas.ScaleWidth() / 100, sheet.window.Ymin - 1.2 * canvas.TextHeight("X"));
  canvas.Print(plot.yLabel);
}

void drawPoints(const GraphSheet& sheet, AbstractCanvas& canvas, const SummaryPlot& plot) {
  const View& w = sheet.window;
  canvas.DrawMode(kCopyMode);
  canvas.ForeColor(sheet.lines.ColorList[kPen]);
  const bool joins = plot.isLine && plot.points.size() > 1;
  canvas.DrawStyle(joins ? sheet.lines.ComboList[kPen] : kSolid);
  canvas.DrawWidth(joins ? sheet.lines.WidthList[kPen] : kMark);
  if (!joins) {
    for (const PlotPoint& point : plot.points) canvas.PSet(point.x, w.flipped(point.y));
    return;
  }
  canvas.moveTo(plot.points[0].x, w.flipped(plot.points[0].y));
  for (std::size_t i = 1; i < plot.points.size(); ++i) canvas.LineTo(plot.points[i].x, w.flipped(plot.points[i].y));
}

}  // namespace

AxisScale scaleAxis(double low, double high) {
  const double range = high - low;
  if (!(range > 0) || !std::isfinite(range)) throw ScalingFault();
  AxisScale axis;
  axis.step = stepFor(range);
  axis.low = std::trunc(low / axis.step) * axis.step + 0.0;  // never -0
  if (axis.low > low) axis.low -= axis.step;
  axis.high = axis.low + (std::trunc((high - axis.low) / axis.step - 0.0001) + 1) * axis.step;
  if (!(axis.step > 0) || !std::isfinite(axis.low) || !std::isfinite(axis.high)) throw ScalingFault();
  return axis;
}

void drawSummaryPlot(const SummaryPlot& plot, const LineSettings& lines, AbstractCanvas& canvas) {
  Steps steps;
  View window = windowOf(plot, steps);
  ScaleMemo memo;
  const SeriesStore oneSeries;
  const GraphSheet sheet = {window, memo, oneSeries, lines};
  canvas.AutoRedraw(true);
  canvas.DrawStyle(kSolid);
  canvas.BackColor(sheet.background());
  canvas.Cls();
  canvas.Visible(true);
  DrawGraphTitle(sheet, canvas, "Summary Graphics");
  DrawFrame(sheet, canvas);
  DrawTic(sheet, steps, canvas);
  drawLabels(sheet, canvas, plot);
  drawPoints(sheet, canvas, plot);
}

}  // namespace kestra
