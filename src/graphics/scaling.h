#pragma once

#include "base/runtime_fault.h"

namespace kestra {

// The part of the data that a graph shows. All four 0 mean: fit to the data.
struct View {
  double Xmin = 0;
  double Xmax = 0;
  double Ymin = 0;
  double Ymax = 0;

  bool operator==(const View&) const = default;
  double xRange() const { return Xmax - Xmin; }
  double yRange() const { return Ymax - Ymin; }
  // Canvas y of a data y, and back: the window is as high as it is deep.
  double flipped(double y) const { return Ymin + Ymax - y; }
  void include(double x, double y);  // widens so that the point lies within
};

// What Scaling remembers of its last result.
struct ScaleMemo {
  double XStep = 0;
  double YStep = 0;
  double MemoXmin = 0;
  double MemoXmax = 0;
  double MemoYmin = 0;
  double MemoYmax = 0;
  double MemoXRange = 0;
  double MemoYRange = 0;
};

// Distance between ticks.
struct Steps {
  double XStep = 0;
  double YStep = 0;
};

// A window that no scale can be found for: not finite, or out of all bounds.
class ScalingFault : public RuntimeFault {
 public:
  ScalingFault() : RuntimeFault("Scaling error, unable to draw graph.") {}
};

// Rounds the window outward to whole ticks and gives their distance. A window of the size that it had after the last
// call was only moved: it stays as it is and keeps its ticks. Ranges below 0.001, negative ones too, are widened to
// that. ScalingFault for a window that is not finite.
Steps Scaling(View& window, ScaleMemo& memo);

}  // namespace kestra
