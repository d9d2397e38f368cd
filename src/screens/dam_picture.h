#pragma once

#include "controls/canvas_control.h"

namespace kestra {

// Draws the picture of the system: a dam between its reservoir and its valley.
void drawDamPicture(CanvasControl& canvas);

}  // namespace kestra
