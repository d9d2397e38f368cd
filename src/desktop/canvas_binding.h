#pragma once

#include "desktop/binding.h"

namespace kestra {

// A canvas and the widget that paints its calls; null for any other widget.
std::unique_ptr<Binding> bindCanvas(Control& control, QWidget& widget, const UserAction& act);

// The box in which a canvas tells the values at a point, a label that stands on the canvas; null for anything else.
std::unique_ptr<Binding> bindReadOut(Control& control, QWidget& widget, const UserAction& act);

}  // namespace kestra
