#include "desktop/screen_view.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include "desktop/form_loader.h"
#include "desktop/qt_text.h"
#include "desktop/sketch_widget.h"

namespace kestra {
namespace {

constexpr const char* kControlProperty = "kestraControl";
constexpr int kTwipsPerInch = 1440;
constexpr int kResizeMilliseconds = 20;  // between a change of size and its telling, so that a pull is told seldom

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
  if (menus_ != nullptr) menus_->hide();  // the frame shows them
  bindAll();
  giveTablesTheirMenu();
  joinSketch();
  showToolsInUse();
  resized_.setSingleShot(true);
  connect(&resized_, &QTimer::timeout, this, [this] { tellSize(); });
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
  if (sketch_ != nullptr && control.kind() == ControlKind::table) sketch_->update();
}

void ScreenView::screenChanged(Screen& screen) {
  (void)screen;
  if (onScreenChanged) onScreenChanged();
}

void ScreenView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  resized_.start(isVisible() ? kResizeMilliseconds : 0);
}

// Enter presses the button that has the focus, and from a field the OK of its screen.
void ScreenView::keyPressEvent(QKeyEvent* event) {
  QPushButton* button = nullptr;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    button = qobject_cast<QPushButton*>(focusWidget());
    if (qobject_cast<QLineEdit*>(focusWidget()) != nullptr) button = findChild<QPushButton*>(QStringLiteral("cmdOK"));
  }
  button != nullptr ? button->click() : QWidget::keyPressEvent(event);
}

void ScreenView::tellSize() {
  if (!screen_.visible()) return;
  const int across = width() * kTwipsPerInch / logicalDpiX();
  const int down = height() * kTwipsPerInch / logicalDpiY();
  if (across == screen_.width() && down == screen_.height()) return;
  act_([this, across, down] { screen_.Form_Resize(across, down); });
}

// The form names the menu of the bar that a table has under the right button too.
void ScreenView::giveTablesTheirMenu() {
  for (QTableView* table : form_->findChildren<QTableView*>()) {
    auto* const menu = form_->findChild<QMenu*>(table->property("contextMenu").toString());
    if (menu == nullptr) continue;
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QWidget::customContextMenuRequested, menu,
            [menu, table](const QPoint& at) { menu->popup(table->viewport()->mapToGlobal(at)); });
  }
}

// The form tells what a sketch shows: "grdTable columns 1 2", the table, which way its points run, and its two lines.
void ScreenView::joinSketch() {
  for (QWidget* widget : form_->findChildren<QWidget*>()) {
    if (sketch_ == nullptr) sketch_ = dynamic_cast<SketchWidget*>(widget);
  }
  if (sketch_ == nullptr) return;
  for (const QString& source : sketch_->property("shows").toString().split(QLatin1Char(';'))) {
    const QStringList words = source.split(QLatin1Char(' '));
    const auto* const table = dynamic_cast<const Table*>(screen_.find(told(words.value(0))));
    const bool alongColumns = words.value(1) == QLatin1String("columns");
    if (table != nullptr) sketch_->add({table, alongColumns, words.value(2).toInt(), words.value(3).toInt()});
  }
}

// A button of a toolbar is down while the entry of the menu that its form names is checked.
void ScreenView::showToolsInUse() {
  for (QToolButton* button : form_->findChildren<QToolButton*>()) {
    const auto* const entry = form_->findChild<QAction*>(button->property("downWith").toString());
    if (entry == nullptr) continue;
    const auto follow = [button, entry] { button->setChecked(entry->isChecked()); };
    button->setCheckable(true);
    follow();
    connect(entry, &QAction::changed, button, follow);
    connect(button, &QToolButton::clicked, button, follow);
  }
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
