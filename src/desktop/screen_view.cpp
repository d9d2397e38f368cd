#include "desktop/screen_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>
#include <QVariant>

#include "desktop/form_loader.h"
#include "desktop/qt_text.h"

namespace kestra {
namespace {

constexpr const char* kControlProperty = "kestraControl";

}  // namespace

ScreenView::ScreenView(Screen& screen, UserAction act) : screen_(screen), act_(std::move(act)) {
  setObjectName(shown(screen.name()));
  form_ = loadForm(shown(screen.name()), this);
  if (form_ == nullptr) return;
  form_->setWindowFlags(Qt::Widget);  // a form with menus would be a window of its own
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(form_);
  menus_ = form_->findChild<QMenuBar*>();
  bindAll();
  screen_.addObserver(*this);
}

ScreenView::~ScreenView() {
  screen_.removeObserver(*this);
}

QWidget* ScreenView::widgetOf(const Control& control) const {
  const auto at = bindings_.find(&control);
  return at == bindings_.end() ? nullptr : at->second->widget();
}

void ScreenView::controlChanged(Control& control, Property property) {
  const auto at = bindings_.find(&control);
  if (at != bindings_.end()) at->second->follow(property);
}

void ScreenView::screenChanged(Screen& screen) {
  (void)screen;
  if (onScreenChanged) onScreenChanged();
}

void ScreenView::bindAll() {
  for (Control* control : screen_.controls()) {
    const QString name = shown(control->name());
    std::unique_ptr<Binding> binding;
    if (auto* const menu = form_->findChild<QMenu*>(name)) binding = bindAction(*control, *menu->menuAction(), act_);
    if (auto* const action = form_->findChild<QAction*>(name)) binding = bindAction(*control, *action, act_);
    if (auto* const widget = form_->findChild<QWidget*>(name); widget != nullptr && binding == nullptr) {
      binding = bindWidget(*control, *widget, act_);
      if (binding) widget->setProperty(kControlProperty, QVariant::fromValue(static_cast<void*>(control)));
    }
    if (binding == nullptr) {
      unbound_.push_back(control->name());
      continue;
    }
    binding->followAll();
    bindings_.emplace(control, std::move(binding));
  }
}

Control* controlOf(QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    const QVariant held = widget->property(kControlProperty);
    if (held.isValid()) return static_cast<Control*>(held.value<void*>());
  }
  return nullptr;
}

}  // namespace kestra
