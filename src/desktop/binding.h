#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "controls/control.h"

class QAction;
class QWidget;

namespace kestra {

// Runs what a user does: first the checks of the field that the focus has left, then the action, and at the end the
// focus goes where the screens have put it.
using UserAction = std::function<void(const std::function<void()>& action)>;

// Joins a control to the widget that shows it: the widget follows the control's properties, and what the user does to
// the widget is done to the control.
class Binding : public QObject {
 public:
  Binding(Control& control, UserAction act) : control_(control), act_(std::move(act)) {}

  Control& control() const { return control_; }
  virtual QWidget* widget() const = 0;  // null for an entry of a menu
  virtual void follow(Property property) = 0;
  void followAll();  // every property: after the widget was made

 protected:
  void followWidget(Property property);  // visible and enabled
  void act(const std::function<void()>& action) const { act_(action); }

 private:
  Control& control_;
  UserAction act_;
};

// The binding that fits the control's kind and the widget's class; null where the two do not fit.
std::unique_ptr<Binding> bindWidget(Control& control, QWidget& widget, const UserAction& act);
std::unique_ptr<Binding> bindAction(Control& control, QAction& action, const UserAction& act);

// Binds a control to a widget of one kind; null for a widget of another.
template <class BindingType, class ControlType, class WidgetType>
std::unique_ptr<Binding> join(Control& control, QWidget& widget, const UserAction& act) {
  auto* const fitting = qobject_cast<WidgetType*>(&widget);
  if (fitting == nullptr) return nullptr;
  return std::make_unique<BindingType>(dynamic_cast<ControlType&>(control), *fitting, act);
}

}  // namespace kestra
