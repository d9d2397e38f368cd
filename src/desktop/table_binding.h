#pragma once

#include "desktop/binding.h"

namespace kestra {

// A table and a view of it; null for any other widget. Keys go to the table's own rules; the mouse and the shifted
// arrow keys select.
std::unique_ptr<Binding> bindTable(Control& control, QWidget& widget, const UserAction& act);

}  // namespace kestra
