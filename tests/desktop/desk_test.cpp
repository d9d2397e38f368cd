#include "desktop/desk.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTableView>
#include <QTimer>

#include "desktop/shown_desk.h"

namespace kestra {
namespace {

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

QStringList menuTitles(const Desk& window) {
  QStringList titles;
  for (const QAction* menu : window.menuBar()->actions())
    if (menu->isVisible()) titles.append(menu->text().remove(QLatin1Char('&')));
  return titles;
}

TEST(Desk, showsTheMenusOfTheScreenInFront) {
  ShownDesk desk;
  const QStringList ofInputWindow = {"File", "Summary", "Window", "Options", "Help"};
  EXPECT_EQ(menuTitles(desk.window), ofInputWindow);
  desk.show(desk.shell.input.structureTable);
  EXPECT_EQ(menuTitles(desk.window), (QStringList{"File", "Edit"}));
  desk.show(desk.shell.about);
  EXPECT_EQ(menuTitles(desk.window), ofInputWindow);
}

TEST(Desk, offersTheRecentProjects) {
  RunningDesk desk;
  makeProject(desk.shell, "/home", "first");
  desk.shell.inputWindow.mnuExit.click();
  Desk window(desk.app);
  window.start({});
  const auto* const recent =
      window.viewOf(desk.shell.topScreen).findChild<QAction*>(QStringLiteral("mnuRecentProject(1)"));
  ASSERT_NE(recent, nullptr);
  EXPECT_EQ(recent->text(), QStringLiteral("&1 /home/first"));
  EXPECT_TRUE(recent->isVisible());
  EXPECT_EQ(menuTitles(window), (QStringList{"File", "Help"}));
}

TEST(Desk, laysItsWindowsOutSideBySide) {
  ShownDesk desk;
  desk.show(desk.shell.input.damSurface);
  desk.shell.inputWindow.mnuTile.click();
  const auto windows = desk.window.findChild<QMdiArea*>()->subWindowList();
  ASSERT_EQ(windows.size(), 2);
  EXPECT_FALSE(windows[0]->geometry().intersects(windows[1]->geometry()));
  desk.shell.inputWindow.mnuCascade.click();
  EXPECT_TRUE(windows[0]->geometry().intersects(windows[1]->geometry()));
}

TEST(Desk, showsTheHelpOfTheScreenInFrontByItsKey) {
  ShownDesk desk;
  desk.show(desk.shell.input.damSurface);
  QTest::keyClick(&desk.window, Qt::Key_F1);
  desk.show(desk.shell.about);
  QTest::keyClick(&desk.window, Qt::Key_F1);
  EXPECT_EQ(desk.help.topics, (std::vector<std::string>{"html\\DamSurfaceDescription.htm", ""}));
}

// The place of a window that is started anew after one was closed at a place.
QRect placeAfter(const QRect& place) {
  ShownDesk first;
  first.window.setGeometry(place);
  first.shell.inputWindow.mnuExit.click();
  first.shell.topScreen.mnuExit.click();
  first.window.close();
  ScriptedDesk ports;
  EXPECT_TRUE(ports.settings.set("Window", {{"geometry", first.settings.get("Window", "geometry", "")}}));
  Application again(ports.ports(), "/app");
  Desk second(again);
  second.start({});
  return second.geometry();
}

TEST(Desk, comesBackWhereItWasAndNeverOffTheScreen) {
  const QRect space = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect place(space.left() + 40, space.top() + 50, space.width() / 2, space.height() / 2);
  EXPECT_EQ(placeAfter(place), place);
  EXPECT_TRUE(space.contains(placeAfter(place.translated(2 * space.width(), 0))));
  EXPECT_TRUE(space.contains(placeAfter(place.translated(-space.width(), 2 * space.height()))));
  EXPECT_TRUE(space.contains(placeAfter(QRect(space.topLeft(), 2 * space.size()))));
}

TEST(Desk, marksTheCellAtFaultWithItsMessage) {
  ShownDesk desk;
  desk.show(desk.shell.input.damSurface);
  Table& table = desk.shell.input.damSurface.grdTable;
  QWidget& view = desk.widget(table);
  view.setFocus();
  QTest::qWait(0);
  QTest::keyClick(&view, Qt::Key_Return);
  const auto* const model = dynamic_cast<QTableView&>(view).model();
  const QModelIndex cell = model->index(0, 0);
  EXPECT_EQ(model->data(cell, Qt::ToolTipRole).toString(), QStringLiteral("This cell must contain data."));
  EXPECT_TRUE(model->data(cell, Qt::BackgroundRole).isValid());
  QTest::keyClicks(&view, "5");
  EXPECT_FALSE(model->data(cell, Qt::ToolTipRole).isValid());
  EXPECT_FALSE(model->data(cell, Qt::BackgroundRole).isValid());
}

TEST(Desk, copiesAndPastesCellsAsSpreadsheetsDo) {
  ShownDesk desk;
  desk.show(desk.shell.input.structureTable);
  Table& table = desk.shell.input.structureTable.grdTable;
  auto& view = desk.widgetAs<QTableView>(table);
  view.setFocus();
  QTest::qWait(0);
  desk.clipboard.setText("1000\t\t0\n1004\t\t1.2\n");
  QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table.cell(2, 1), "1004");
  EXPECT_EQ(table.cell(2, 3), "1.2");
  const auto cellMiddle = [&view](int row, int column) {
    return view.visualRect(view.model()->index(row, column)).center();
  };
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cellMiddle(0, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, cellMiddle(1, 2));
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(desk.clipboard.text(), "1000\t\t0\r\n1004\t\t1.2\r\n");
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_EQ(table.cell(1, 1), "");
  QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(table.cell(1, 1), "1000");
  QTest::keyClick(&view, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(table.cell(1, 1), "");
}

TEST(Desk, offersTheEditMenuUnderTheRightButtonOfATable) {
  ShownDesk desk;
  desk.show(desk.shell.input.structureTable);
  auto& view = desk.widgetAs<QTableView>(desk.shell.input.structureTable.grdTable);
  emit view.customContextMenuRequested(QPoint(5, 5));
  const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(told(menu->actions().first()->objectName()), "mnuUndo");
  QApplication::activePopupWidget()->close();
}

TEST(Desk, givesAModalScreenHelpAndClosesItByKeys) {
  ShownDesk desk;
  frmHydrographSelect& choice = desk.shell.input.hydrographSelect;
  bool closed = true;
  QTimer::singleShot(0, [&] {
    QWidget* const dialog = desk.window.viewOf(choice).window();
    EXPECT_EQ(QApplication::activeModalWidget(), dialog);
    QTest::keyClick(dialog, Qt::Key_F1);
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  constexpr int kPatience = 2000;
  QTimer patience;
  QObject::connect(&patience, &QTimer::timeout, [&] {
    closed = false;
    desk.app.host.hide(choice);
  });
  patience.start(kPatience);
  desk.app.host.showModal(choice);
  EXPECT_TRUE(closed);
  EXPECT_EQ(desk.help.topics.size(), 1U);
}

TEST(Desk, letsNothingBeReachedBesideTheProgress) {
  ShownDesk desk;
  desk.shell.progress.begin(10);
  desk.shell.progress.step(4, "KestraSim on dam.KSC");
  QTest::qWait(0);
  ScreenView& view = desk.window.viewOf(desk.shell.progress);
  ASSERT_TRUE(view.isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), view.window());
  EXPECT_TRUE(menuTitles(desk.window).contains(QStringLiteral("Summary")));  // no jump of what is below
  desk.press(desk.shell.progress.cmdStop);
  EXPECT_TRUE(desk.shell.progress.stopRequested());
  desk.shell.progress.finish();
  QTest::qWait(0);
  EXPECT_FALSE(view.isVisible());
}

TEST(Desk, opensItsMenusByTheirKeysAtEveryPress) {
  ShownDesk desk;
  for (int press = 0; press < 3; ++press) {
    QTest::keyClick(&desk.window, Qt::Key_F, Qt::AltModifier);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr) << press;
    EXPECT_EQ(qobject_cast<QMenu*>(menu)->title(), QStringLiteral("&File"));
    menu->close();
  }
}

TEST(Desk, keepsTheMenusOfProjectsAwayWhileNoneIsOpen) {
  RunningDesk desk;
  Desk window(desk.app);
  window.start({});
  desk.app.host.show(desk.shell.newProject);
  QTest::qWait(0);
  EXPECT_EQ(menuTitles(window), (QStringList{"File", "Help"}));
}

TEST(Desk, putsTheFocusIntoTheWindowThatComesToTheFront) {
  ShownDesk desk;
  for (Screen* screen : std::initializer_list<Screen*>{&desk.shell.newProject, &desk.shell.input.auxRatingTable,
                                                       &desk.shell.input.properties, &desk.shell.inputWindow}) {
    desk.show(*screen);
    ASSERT_NE(desk.window.focusWidget(), nullptr) << screen->name();
    EXPECT_TRUE(desk.active()->isAncestorOf(desk.window.focusWidget())) << screen->name();
  }
}

TEST(Desk, pressesAButtonByEnter) {
  ShownDesk desk;
  QWidget& next = desk.widget(desk.shell.inputWindow.cmdNext);
  next.setFocus();
  QTest::keyClick(&next, Qt::Key_Return);
  QTest::qWait(0);
  EXPECT_TRUE(desk.shell.input.projectInformation.visible());
  QTest::keyClick(&desk.widget(desk.shell.input.projectInformation.txtWatershedID), Qt::Key_Return);
  QTest::qWait(0);
  EXPECT_TRUE(desk.shell.input.projectInformation.visible());  // from a field nothing but an OK is pressed
}

TEST(Desk, makesAProjectByEnterAfterItsName) {
  ShownDesk desk;
  desk.show(desk.shell.newProject);
  desk.shell.newProject.dirList.userChoose("/home");
  desk.type(desk.shell.newProject.txtEnterName, "other");
  QTest::keyClick(&desk.widget(desk.shell.newProject.txtEnterName), Qt::Key_Return);
  QTest::qWait(0);
  EXPECT_EQ(desk.state.projectDir, "/home/other");
}

TEST(Desk, leadsEnterFromTheNumberOfSpillwaysToWhatComesNext) {
  ShownDesk desk;
  frmAuxSpillways& spillways = desk.shell.input.auxSpillways;
  desk.show(spillways);
  QWidget& count = desk.widget(spillways.cmbAuxSpillways);
  const auto focusAfterEnter = [&](const char* chosen) {
    spillways.cmbAuxSpillways.userSelect(chosen);
    count.setFocus();
    QTest::keyClick(&count, Qt::Key_Return);
    QTest::qWait(0);
    return desk.window.focusWidget();
  };
  EXPECT_EQ(focusAfterEnter("2"), &desk.widget(spillways.txtsway(0)));
  EXPECT_EQ(focusAfterEnter("0"), &desk.widget(spillways.cmdNext));
}

TEST(Desk, leavesAPageOfTextByTab) {
  ShownDesk desk;
  frmEditor& editor = desk.shell.editor;
  desk.show(editor);
  for (Control* control : editor.controls()) {
    if (control->kind() != ControlKind::text || !desk.widget(*control).isVisible()) continue;
    desk.widget(*control).setFocus();
    QTest::keyClick(&desk.widget(*control), Qt::Key_Tab);
    QTest::qWait(0);
    EXPECT_NE(desk.window.focusWidget(), &desk.widget(*control)) << control->name();
  }
  EXPECT_TRUE(desk.boxes.shown.empty());
}

}  // namespace
}  // namespace kestra
