#include <gtest/gtest.h>

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include "desktop/canvas_widget.h"
#include "desktop/shown_desk.h"
#include "support/sample_run.h"

namespace kestra {
namespace {

// The graphs of a run on show.
struct GraphDesk : ShownDesk {
  GraphDesk() {
    memory.put("/home/dam/pond.KSC", "KESTRA    01/01/2009Larkmoor\r\n");
    memory.put("/home/dam/pond.OUT", SampleRun().out());
    graphs.OpenFile("/home/dam/pond.KSC");
    QTest::qWait(40);
  }
  CanvasWidget& canvas(int number) { return widgetAs<CanvasWidget>(graphs.Pic1(number)); }
  QPoint at(int number, double acrossPart, double downPart) {
    return {static_cast<int>(canvas(number).width() * acrossPart),
            static_cast<int>(canvas(number).height() * downPart)};
  }
  void pull(int number, QPoint from, QPoint to) {
    QTest::mousePress(&canvas(number), Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas(number), (from + to) / 2);
    QTest::mouseMove(&canvas(number), to);
    QTest::mouseRelease(&canvas(number), Qt::LeftButton, {}, to);
    QTest::qWait(0);
  }
  frmOutputGraph& graphs = shell.graphs.output;
};

TEST(GraphScreen, showsTheFirstGraphDrawn) {
  GraphDesk desk;
  EXPECT_TRUE(desk.canvas(0).isVisible());
  EXPECT_TRUE(desk.graphs.isDrawn(0));
  EXPECT_EQ(told(desk.active()->windowTitle()), "Graphics [ /home/dam/pond.KSC ]");
  EXPECT_EQ(desk.widgetAs<QTabWidget>(desk.graphs.GraphTab).count(), 22);
  EXPECT_EQ(takeWarnings(), "");
}

TEST(GraphScreen, zoomsIntoABandThatIsPulled) {
  GraphDesk desk;
  const View whole = desk.graphs.savedWindow(0);
  desk.pull(0, desk.at(0, 0.3, 0.3), desk.at(0, 0.5, 0.5));
  const View zoomed = desk.graphs.savedWindow(0);
  EXPECT_LT(zoomed.xRange(), whole.xRange());
  EXPECT_LT(zoomed.yRange(), whole.yRange());
  EXPECT_TRUE(desk.canvas(0).isVisible());
  desk.press(desk.graphs.tlbFrame);
  EXPECT_EQ(desk.graphs.savedWindow(0).Xmax, whole.Xmax);
}

TEST(GraphScreen, zoomsOutAndMovesByTheToolsOfItsBar) {
  GraphDesk desk;
  const View whole = desk.graphs.savedWindow(0);
  desk.press(desk.graphs.tlbZoomOut);
  QTest::mouseClick(&desk.canvas(0), Qt::LeftButton, {}, desk.at(0, 0.4, 0.4));
  EXPECT_GT(desk.graphs.savedWindow(0).xRange(), whole.xRange());
  desk.press(desk.graphs.tlbFrame);
  desk.press(desk.graphs.tlbDrag);
  desk.pull(0, desk.at(0, 0.5, 0.4), desk.at(0, 0.4, 0.4));
  EXPECT_GT(desk.graphs.savedWindow(0).Xmin, whole.Xmin);
  EXPECT_EQ(desk.canvas(0).cursor().shape(), Qt::OpenHandCursor);
}

TEST(GraphScreen, showsWhichToolIsInUse) {
  GraphDesk desk;
  const auto isDown = [&desk](Button& tool) { return desk.widgetAs<QToolButton>(tool).isChecked(); };
  EXPECT_TRUE(isDown(desk.graphs.tlbZoomIn));
  desk.press(desk.graphs.tlbPan);
  EXPECT_TRUE(isDown(desk.graphs.tlbPan));
  EXPECT_FALSE(isDown(desk.graphs.tlbZoomIn));
  desk.press(desk.graphs.tlbPan);
  EXPECT_TRUE(isDown(desk.graphs.tlbPan));
}

TEST(GraphScreen, tellsTheValuesUnderThePressedPointer) {
  GraphDesk desk;
  desk.press(desk.graphs.tlbPointer);
  auto& readOut = desk.widgetAs<QLabel>(desk.graphs.txtLabel(0));
  EXPECT_FALSE(readOut.isVisible());
  QTest::mousePress(&desk.canvas(0), Qt::LeftButton, {}, desk.at(0, 0.5, 0.5));
  EXPECT_TRUE(readOut.isVisible());
  EXPECT_EQ(told(readOut.text()), desk.graphs.txtLabel(0).text());
  EXPECT_TRUE(desk.canvas(0).rect().contains(readOut.geometry()));
  QTest::mouseRelease(&desk.canvas(0), Qt::LeftButton, {}, desk.at(0, 0.5, 0.5));
  EXPECT_FALSE(readOut.isVisible());
}

TEST(GraphScreen, leadsFromGraphToGraphByKeysAndTabs) {
  GraphDesk desk;
  QTest::keyClick(&desk.canvas(0), Qt::Key_PageDown);
  EXPECT_EQ(desk.graphs.shownGraph(), 1);
  EXPECT_TRUE(desk.canvas(1).isVisible());
  EXPECT_FALSE(desk.canvas(0).isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &desk.canvas(1));
  auto& tabs = desk.widgetAs<QTabWidget>(desk.graphs.GraphTab);
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(0).center());
  EXPECT_EQ(desk.graphs.shownGraph(), 0);
}

TEST(GraphScreen, takesTheSizeOfItsWindow) {
  GraphDesk desk;
  desk.active()->resize(500, 400);
  QTest::qWait(40);
  const QSize shownSize = desk.window.viewOf(desk.graphs).size();
  EXPECT_EQ(desk.graphs.width(), shownSize.width() * 1440 / desk.window.logicalDpiX());
  EXPECT_EQ(desk.graphs.height(), shownSize.height() * 1440 / desk.window.logicalDpiY());
}

TEST(GraphScreen, leadsToTheColoursAndBack) {
  GraphDesk desk;
  QTest::mouseDClick(&desk.canvas(0), Qt::LeftButton, {}, desk.at(0, 0.5, 0.5));
  QTest::qWait(0);
  ASSERT_TRUE(desk.shell.graphs.updateColors.visible());
  desk.dialogs.colors = {0x00FF00};
  QWidget& legend = desk.widget(desk.shell.graphs.updateColors.LegendPic);
  QTest::mouseDClick(&legend, Qt::LeftButton, {}, QPoint(20, legend.height() / 110 / 2));
  EXPECT_EQ(desk.shell.lines.ColorList[0], 0x00FF00U);
  desk.shell.graphs.updateColors.mnuExit.click();
  QTest::qWait(0);
  EXPECT_TRUE(desk.canvas(0).isVisible());
}

}  // namespace
}  // namespace kestra
