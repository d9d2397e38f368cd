#pragma once

#include <QString>

class QWidget;

namespace kestra {

// The form of that name from the program's resources, made with `parent`; null when there is none.
QWidget* loadForm(const QString& name, QWidget* parent);

}  // namespace kestra
