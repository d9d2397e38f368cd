#pragma once

#include <QPainter>
#include <vector>

#include "graphics/canvas_replay.h"

namespace kestra {

// Paints a solid line of many points on the pixels of an untransformed painter, with soft edges and round joins. Each
// pixel is inked once, by its distance from the nearest piece of the line: a painter's own wide lines take many times
// as long where a line runs up and down in every column.
void paintLongLine(QPainter& painter, const std::vector<PicturePoint>& points, double width, QColor color);

}  // namespace kestra
