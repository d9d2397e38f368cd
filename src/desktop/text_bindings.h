#pragma once

#include "desktop/binding.h"

namespace kestra {

// A text box and a field of one line or of several; null for any other widget.
std::unique_ptr<Binding> bindTextBox(Control& control, QWidget& widget, const UserAction& act);

// The key as the controls know it: a character, or the name of a key that has none.
Key keyOf(int key, const QString& text);

}  // namespace kestra
