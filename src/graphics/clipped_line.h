#pragma once

#include "graphics/canvas.h"

namespace kestra {

// Draws the part of the segment from (x1, y1) to (x2, y2), in data coordinates, that lies within the closed window,
// with canvas y = Ymin + Ymax - y, in the direction of the segment. A segment that only touches the window from outside
// draws nothing. A slope is taken over a width of 0.0001 at least, so that a steep line leaves the window a hair aside
// of where it should.
//
// With `fill` = -1 the strip between the drawn line and the bottom of the window is filled as well.
void DrawClippedLine(double x1, double y1, double x2, double y2, double Xmin, double Ymin, double Xmax, double Ymax,
                     AbstractCanvas& canvas, int fill);

inline constexpr int kFill = -1;
inline constexpr int kNoFill = 0;

}  // namespace kestra
