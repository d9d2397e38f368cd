#pragma once

#include <string>
#include <vector>

#include "graphics/canvas.h"
#include "graphics/line_settings.h"
#include "graphics/scaling.h"

// Two values of all runs of a project against each other.
namespace kestra {

struct PlotPoint {
  double x = 0;
  double y = 0;
};

struct SummaryPlot {
  std::vector<PlotPoint> points;  // in the order of the runs
  std::string xLabel;
  std::string yLabel;
  bool isLine = false;  // the points are joined in their order; else each is marked
};

// An axis, and the distance of its ticks.
struct AxisScale {
  double low = 0;
  double high = 0;
  double step = 0;
};

// Widens an axis to whole ticks. A fault for one without a range, or with an end that is no number.
AxisScale scaleAxis(double low, double high);

// Wipes the canvas and draws frame, ticks, labels and points, of which there has to be one at least. An axis whose
// values are all the same is widened. A ScalingFault where no axis can be found.
void drawSummaryPlot(const SummaryPlot& plot, const LineSettings& lines, AbstractCanvas& canvas);

}  // namespace kestra
