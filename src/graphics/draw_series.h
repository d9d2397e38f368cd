#pragma once

#include <vector>

#include "graphics/canvas.h"
#include "graphics/graph_sheet.h"

namespace kestra {

// Draws the lines of all series and, when there is more than one, the legend. A series of a single point is a tiny
// circle; one without points has its row in the legend all the same.
//
// On a canvas of pixels, a series with more points than there are columns is drawn by the first, the lowest, the
// highest and the last of the points that fall into a column one after the other, which covers the same pixels.
void DrawSeriesLines(const GraphSheet& sheet, AbstractCanvas& canvas);

// The points of a series that a drawing on so many columns between `left` and `left` + `width` needs, by their numbers.
std::vector<int> pointsForColumns(const Series& series, double left, double width, int columns);

}  // namespace kestra
