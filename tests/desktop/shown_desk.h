#pragma once

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "desktop/desk.h"
#include "desktop/qt_environment.h"
#include "desktop/qt_text.h"
#include "support/scripted_desk.h"

namespace kestra {

// The program's windows over scripted ports, a project open and its input window in front.
struct ShownDesk : RunningDesk {
  ShownDesk() {
    makeProject(shell, "/home", "dam");
    window.start({});
    QTest::qWait(0);
  }

  QWidget& widget(Control& control) { return *window.viewOf(control.screen()).widgetOf(control); }
  template <class WidgetType>
  WidgetType& widgetAs(Control& control) {
    return dynamic_cast<WidgetType&>(widget(control));
  }
  QMdiSubWindow* active() { return window.findChild<QMdiArea*>()->activeSubWindow(); }
  void show(Screen& screen) {
    app.host.show(screen);
    QTest::qWait(0);
  }
  void press(Control& button) {
    QTest::mouseClick(&widget(button), Qt::LeftButton);
    QTest::qWait(0);
  }
  void type(Control& field, const char* text) {
    widget(field).setFocus();
    QTest::keyClicks(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &widget(field), text);
    QTest::qWait(0);
  }

  Desk window{app};
};

}  // namespace kestra
