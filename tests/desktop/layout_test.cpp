#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QTabBar>
#include <QTest>

#include "desktop/canvas_widget.h"
#include "desktop/qt_environment.h"
#include "desktop/qt_text.h"
#include "desktop/screen_view.h"
#include "support/window_desk.h"

namespace kestra {
namespace {

const auto kAtOnce = [](const std::function<void()>& action) { action(); };

// The letters of the toolkit, larger for as long as this lives.
class LargerLetters {
 public:
  explicit LargerLetters(double times) : usual_(QApplication::font()) {
    QFont larger = usual_;
    larger.setPointSizeF(usual_.pointSizeF() * times);
    QApplication::setFont(larger);
  }
  ~LargerLetters() { QApplication::setFont(usual_); }
  LargerLetters(const LargerLetters&) = delete;
  LargerLetters& operator=(const LargerLetters&) = delete;

 private:
  QFont usual_;
};

bool hasText(const QWidget& widget) {
  const auto* const label = qobject_cast<const QLabel*>(&widget);
  return (label != nullptr && !label->wordWrap()) || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QGroupBox*>(&widget) != nullptr;
}

std::string nameOf(const QWidget& widget) {
  return told(widget.objectName());
}

// What of the screen's window cannot be seen whole.
std::string cutOff(const QWidget& view) {
  std::string names;
  for (const QWidget* widget : view.findChildren<QWidget*>()) {
    if (!widget->isVisible() || !hasText(*widget) || nameOf(*widget).starts_with("qt_")) continue;
    const bool ofTabs = qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
    if (ofTabs || dynamic_cast<CanvasWidget*>(widget->parentWidget()) != nullptr) continue;
    const QSize needed = widget->minimumSizeHint();
    if (widget->width() < needed.width() || widget->height() < needed.height()) names += " " + nameOf(*widget);
  }
  return names;
}

// Pairs of what a layout has laid out that cover each other.
std::string overlaps(const QWidget& view) {
  std::string pairs;
  for (const QLayout* layout : view.findChildren<QLayout*>()) {
    QList<QWidget*> shownWidgets;
    for (int i = 0; i < layout->count(); ++i) {
      QWidget* const widget = layout->itemAt(i)->widget();
      if (widget != nullptr && widget->isVisible()) shownWidgets.append(widget);
    }
    for (qsizetype i = 0; i < shownWidgets.size(); ++i) {
      for (qsizetype j = i + 1; j < shownWidgets.size(); ++j) {
        if (shownWidgets[i]->geometry().intersects(shownWidgets[j]->geometry()))
          pairs += " " + nameOf(*shownWidgets[i]) + "/" + nameOf(*shownWidgets[j]);
      }
    }
  }
  return pairs;
}

void expectEverythingIsSeen(Screen& screen) {
  ScreenView view(screen, kAtOnce);
  if (!view.hasForm()) return;
  view.show();
  QTest::qWait(0);  // tables learn how high they are
  view.resize(view.sizeHint());
  QTest::qWait(0);
  EXPECT_EQ(cutOff(view), "") << screen.name();
  EXPECT_EQ(overlaps(view), "") << screen.name();
}

struct Layout : testing::TestWithParam<double> {};

TEST_P(Layout, showsEverythingWhole) {
  const LargerLetters letters(GetParam());
  WindowDesk desk;
  for (Screen* screen : desk.app.host.screens()) {
    if (screen->controls().empty() || screen == &desk.shell.topScreen) continue;
    desk.app.host.show(*screen);
    expectEverythingIsSeen(*screen);
    for (Control* control : screen->controls()) {
      auto* const tabs = dynamic_cast<Tabs*>(control);
      for (int page = 1; tabs != nullptr && page < static_cast<int>(tabs->captions().size()); ++page) {
        tabs->userSelect(page);
        expectEverythingIsSeen(*screen);
      }
    }
    desk.app.host.hide(*screen);
  }
  EXPECT_EQ(takeWarnings(), "");
}

INSTANTIATE_TEST_SUITE_P(InLetters, Layout, testing::Values(1, 1.5, 2));

}  // namespace
}  // namespace kestra
