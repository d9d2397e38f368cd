#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <set>

#include "desktop/desk.h"
#include "desktop/qt_environment.h"
#include "desktop/qt_text.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

const auto kNoAction = [](const std::function<void()>& action) { action(); };

bool takesInput(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr || qobject_cast<const QTableView*>(&widget) != nullptr;
}

bool isInnerPart(const QWidget& widget) {
  return widget.objectName().startsWith(QLatin1String("qt_")) || widget.objectName().isEmpty() ||
         qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
}

TEST(Forms, showEveryControlOfEveryScreen) {
  RunningDesk desk;
  for (Screen* screen : desk.app.host.screens()) {
    if (screen->controls().empty()) continue;  // never on show
    ScreenView view(*screen, kNoAction);
    EXPECT_TRUE(view.hasForm()) << "there is no form " << screen->name();
    EXPECT_THAT(view.unbound(), testing::IsEmpty()) << screen->name();
  }
  EXPECT_EQ(takeWarnings(), "");
}

TEST(Forms, showNothingToEnterThatIsNoControl) {
  RunningDesk desk;
  for (Screen* screen : desk.app.host.screens()) {
    ScreenView view(*screen, kNoAction);
    for (QWidget* widget : view.findChildren<QWidget*>()) {
      if (!takesInput(*widget) || isInnerPart(*widget)) continue;
      EXPECT_NE(controlOf(widget), nullptr) << screen->name() << "." << told(widget->objectName());
    }
  }
}

TEST(Forms, sayOfEveryFieldWhatItHolds) {
  RunningDesk desk;
  for (Screen* screen : desk.app.host.screens()) {
    ScreenView view(*screen, kNoAction);
    for (Control* control : screen->controls()) {
      QWidget* const widget = view.widgetOf(*control);
      if (widget == nullptr) continue;
      const ControlKind kind = control->kind();
      if (kind == ControlKind::label || kind == ControlKind::frame || kind == ControlKind::button ||
          kind == ControlKind::canvas)
        continue;
      EXPECT_FALSE(widget->toolTip().isEmpty()) << screen->name() << "." << control->name();
    }
  }
}

// As a screen reader tells it.
std::string spokenName(QWidget& widget) {
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken == nullptr ? "" : told(spoken->text(QAccessible::Name));
}

TEST(Forms, tellAScreenReaderWhatEveryFieldIs) {
  RunningDesk desk;
  for (Screen* screen : desk.app.host.screens()) {
    desk.app.host.load(*screen);
    ScreenView view(*screen, kNoAction);
    for (Control* control : screen->controls()) {
      QWidget* const widget = view.widgetOf(*control);
      const bool speaks = widget != nullptr && (takesInput(*widget) || control->kind() == ControlKind::canvas);
      if (!speaks) continue;
      const bool captioned = !control->caption().empty() || control->kind() == ControlKind::button;
      EXPECT_TRUE(captioned || !spokenName(*widget).empty()) << screen->name() << "." << control->name();
    }
  }
}

TEST(Forms, leadTheTabKeyToEveryField) {
  RunningDesk desk;
  for (Screen* screen : desk.app.host.screens()) {
    ScreenView view(*screen, kNoAction);
    std::set<QWidget*> reached;
    for (QWidget* at = view.nextInFocusChain(); at != &view && reached.insert(at).second;) at = at->nextInFocusChain();
    for (Control* control : screen->controls()) {
      QWidget* const widget = view.widgetOf(*control);
      if (widget == nullptr || !takesInput(*widget)) continue;
      EXPECT_TRUE(reached.count(widget) == 1 && (widget->focusPolicy() & Qt::TabFocus) != 0)
          << screen->name() << "." << control->name();
    }
  }
}

}  // namespace
}  // namespace kestra
