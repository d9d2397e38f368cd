#include "desktop/desk.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "desktop/qt_environment.h"
#include "desktop/qt_text.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

// The program's windows over scripted ports, a project open and the first input screen on show.
struct ShownDesk : RunningDesk {
  ShownDesk() {
    makeProject(shell, "/home", "dam");
    window.start({});
    QTest::qWait(0);
  }
  QWidget& widget(Control& control) { return *window.viewOf(control.screen()).widgetOf(control); }
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

TEST(Desk, opensOnTheInputWindowOfTheProject) {
  ShownDesk desk;
  QMdiSubWindow* const active = desk.window.findChild<QMdiArea*>()->activeSubWindow();
  ASSERT_NE(active, nullptr);
  EXPECT_EQ(told(active->windowTitle()), desk.shell.inputWindow.title());
  EXPECT_EQ(told(desk.window.windowTitle()), desk.shell.topScreen.title());
  EXPECT_EQ(takeWarnings(), "");
}

TEST(Desk, walksOnByTheButtonsAndHidesTheScreenBefore) {
  ShownDesk desk;
  desk.press(desk.shell.inputWindow.cmdNext);
  EXPECT_TRUE(desk.shell.input.projectInformation.visible());
  EXPECT_TRUE(desk.window.viewOf(desk.shell.input.projectInformation).isVisible());
  desk.press(desk.shell.input.projectInformation.cmdNext);
  EXPECT_FALSE(desk.window.viewOf(desk.shell.input.projectInformation).isVisible());
  EXPECT_TRUE(desk.window.viewOf(desk.shell.input.properties).isVisible());
}

TEST(Desk, putsWhatIsTypedIntoTheControl) {
  ShownDesk desk;
  desk.press(desk.shell.inputWindow.cmdNext);
  desk.type(desk.shell.input.projectInformation.txtWatershedID, "Mill Creek 3");
  EXPECT_EQ(desk.shell.input.projectInformation.txtWatershedID.text(), "Mill Creek 3");
  EXPECT_TRUE(desk.state.fileDirty);
}

TEST(Desk, showsWhatTheProgramPutsIntoAControl) {
  ShownDesk desk;
  desk.press(desk.shell.inputWindow.cmdNext);
  auto& field = desk.shell.input.projectInformation.txtWatershedID;
  field.setText("Bear Run");
  EXPECT_EQ(dynamic_cast<QLineEdit&>(desk.widget(field)).text(), QStringLiteral("Bear Run"));
}

TEST(Desk, editsTablesByTheirOwnKeys) {
  ShownDesk desk;
  desk.app.host.show(desk.shell.input.structureTable);
  QTest::qWait(0);
  Table& table = desk.shell.input.structureTable.grdTable;
  desk.widget(table).setFocus();
  QTest::qWait(0);
  QTest::keyClicks(&desk.widget(table), "1200.5");
  QTest::keyClick(&desk.widget(table), Qt::Key_Return);
  QTest::keyClicks(&desk.widget(table), "x7");
  EXPECT_EQ(table.cell(1, 1), "1200.5");
  EXPECT_EQ(table.cell(1, 2), "7");
  const auto& view = dynamic_cast<QTableView&>(desk.widget(table));
  EXPECT_EQ(view.currentIndex().column(), 1);
  EXPECT_EQ(view.model()->data(view.model()->index(0, 0)).toString(), QStringLiteral("1200.5"));
}

TEST(Desk, closesAWindowByItsFrameAsTheScreenSays) {
  ShownDesk desk;
  desk.press(desk.shell.inputWindow.cmdNext);
  desk.press(desk.shell.input.projectInformation.cmdNext);
  desk.window.findChild<QMdiArea*>()->activeSubWindow()->close();
  QTest::qWait(0);
  EXPECT_TRUE(desk.shell.input.projectInformation.visible());
  EXPECT_FALSE(desk.shell.input.properties.visible());
}

TEST(Desk, staysWhenTheUserDoesNotWantToExit) {
  ShownDesk desk;
  desk.boxes.answers = {BoxButton::no};
  desk.window.close();
  EXPECT_TRUE(desk.window.isVisible());
  EXPECT_FALSE(desk.shell.ended());
}

}  // namespace
}  // namespace kestra
