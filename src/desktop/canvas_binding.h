#pragma once

#include "desktop/binding.h"

namespace kestra {

// A canvas and the widget that paints its calls; null for any other widget.
std::unique_ptr<Binding> bindCanvas(Control& control, QWidget& widget, const UserAction& act);

}  // namespace kestra
