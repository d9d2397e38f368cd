#pragma once

#include "desktop/binding.h"

namespace kestra {

// Buttons, check boxes, options, combo boxes, lists and directory lists; null where the widget does not fit.
std::unique_ptr<Binding> bindChoice(Control& control, QWidget& widget, const UserAction& act);

}  // namespace kestra
