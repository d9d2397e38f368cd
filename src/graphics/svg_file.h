#pragma once

#include <string>

#include "graphics/canvas_replay.h"

namespace kestra {

// The text of an SVG file of what a canvas shows, places to a tenth of a pixel. Letters stay letters; what inverts is
// left out.
std::string svgFile(const CanvasLog& drawing, PictureSize size);

}  // namespace kestra
