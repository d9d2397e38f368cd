#include "graphs/graph_tools.h"

#include <gtest/gtest.h>

#include <cmath>

#include "graph_desk.h"

namespace kestra {
namespace {

using Type = MouseEvent::Type;

struct TheTools : testing::Test, GraphDesk {
  TheTools() {
    open();  // graph 0 from 0 to 4 and 0 to 1000
  }
  GraphTools& tools = screen.tools;
  View& saved() { return screen.savedWindow(0); }
  void click(double x, double y) {
    mouse(0, Type::down, x, y);
    mouse(0, Type::up, x, y);
  }
  void band(double x1, double y1, double x2, double y2) {
    mouse(0, Type::down, x1, y1);
    mouse(0, Type::move, x2, y2);
    mouse(0, Type::up, x2, y2);
  }
};

TEST_F(TheTools, areChosenByCommandsThatExcludeEachOther) {
  struct Expected {
    Menu& menu;
    const char* key;
    bool armed;
    int zoomOut, drag, pan, pointer, image;
  } const cases[] = {
      {screen.mnuZoomOut, "ZoomOut", true, 1, 0, 0, 0, 12}, {screen.mnuDrag, "Drag", false, 1, 1, 0, 0, 10},
      {screen.mnuPan, "Pan", false, 1, 0, 1, 0, 13},        {screen.mnuPointer, "Pointer", false, 0, 0, 0, 1, 0},
      {screen.mnuFrame, "Pointer", false, 0, 0, 0, 1, 0},   {screen.mnuZoomIn, "ZoomIn", true, 0, 0, 0, 0, 11},
      {screen.mnuFrame, "", false, 0, 0, 0, 0, 0},
  };
  for (const Expected& e : cases) {
    e.menu.click();
    EXPECT_EQ(tools.tool(), e.key);
    EXPECT_EQ(tools.BandArmed, e.armed) << e.key;
    EXPECT_EQ(tools.BandState, 0);
    EXPECT_EQ(tools.ZoomOutMode, e.zoomOut) << e.key;
    EXPECT_EQ(tools.DragMode, e.drag) << e.key;
    EXPECT_EQ(tools.PanMode, e.pan) << e.key;
    EXPECT_EQ(tools.PointerMode, e.pointer) << e.key;
    EXPECT_EQ(screen.Pic1(21).pointer(), e.image) << e.key;
    EXPECT_EQ(screen.mnuPan.checked(), tools.PanMode == 1) << e.key;
  }
}

TEST_F(TheTools, haveKeysOnTheToolbar) {
  screen.tlbDrag.click();
  EXPECT_EQ(tools.DragMode, 1);
  for (const auto& [key, tool] :
       {std::pair("Pan", "Pan"), std::pair("ZoomOut", "ZoomOut"), std::pair("Rotate", "ZoomOut"),
        std::pair("", "ZoomOut"), std::pair("ZoomIn", "ZoomIn")}) {
    tools.toolbarClick(key);
    EXPECT_EQ(tools.tool(), tool) << key;
  }
}

TEST_F(TheTools, halveTheWindowRoundAClickAndStayOn) {
  click(1, 250);  // canvas y 250 is 750 of the data
  EXPECT_EQ(saved(), (View{0, 2, 500, 1000}));
  EXPECT_TRUE(tools.BandArmed);
  EXPECT_EQ(tools.BandState, 0);
  click(1, 750);
  EXPECT_EQ(saved().Ymin, 600);  // 625 to 875, rounded to whole ticks
  EXPECT_EQ(saved().Ymax, 900);
}

TEST_F(TheTools, zoomToABandWhateverItsDirection) {
  band(1, 200, 3, 600);
  const View zoomed = saved();
  EXPECT_EQ(zoomed, (View{1, 3, 400, 800}));
  screen.mnuFrame.click();
  screen.mnuZoomIn.click();
  band(3, 600, 1, 200);
  EXPECT_EQ(saved(), zoomed);
}

TEST_F(TheTools, takeABandWithoutHeightForAClick) {
  band(1, 250, 3, 250);
  EXPECT_EQ(saved(), (View{1, 3, 500, 1000}));
}

TEST_F(TheTools, doubleTheWindowByZoomOutAndGetItBackByFrame) {
  screen.mnuZoomOut.click();
  click(2, 500);
  EXPECT_EQ(saved(), (View{-2, 6, -600, 1600}));  // -500 goes down a step more
  const double height = saved().yRange();
  click(2, 250);
  EXPECT_GE(saved().yRange(), 2 * height);
  EXPECT_EQ(saved().xRange(), 16);
  screen.mnuFrame.click();
  EXPECT_EQ(saved(), (View{0, 4, 0, 1000}));
}

TEST_F(TheTools, bringTheClickedPlaceToTheMiddle) {
  screen.mnuPan.click();
  click(3, 250);
  EXPECT_EQ(saved(), (View{1, 5, 250, 1250}));
  EXPECT_EQ(callsOf(screen.Pic1(0), "Scale").back().substr(0, 10), "Scale 0.04");
}

TEST_F(TheTools, moveTheViewAgainstTheHand) {
  screen.mnuDrag.click();
  mouse(0, Type::down, 3, 100);
  mouse(0, Type::up, 2, 400);
  EXPECT_EQ(saved(), (View{1, 5, 300, 1300}));
}

TEST_F(TheTools, drawTheBandByInvertingAndWipeItOut) {
  screen.Pic1(0).Cls();
  mouse(0, Type::move, 9, 9);
  EXPECT_EQ(callsOf(screen.Pic1(0)), Lines{});
  mouse(0, Type::down, 1, 2);
  EXPECT_EQ(tools.BandState, 1);
  mouse(0, Type::move, 3, 4);
  EXPECT_EQ(tools.BandState, 2);
  const Lines pen = {"ForeColor 255", "DrawStyle 2", "DrawWidth 1", "DrawMode 6"};
  Lines expected = pen;
  expected.push_back("Box 1 2 3 4");
  EXPECT_EQ(callsOf(screen.Pic1(0)), expected);
  mouse(0, Type::move, 5, 6);
  expected.insert(expected.end(), pen.begin(), pen.end());
  expected.insert(expected.end(), {"Box 1 2 3 4", "Box 1 2 5 6"});
  EXPECT_EQ(callsOf(screen.Pic1(0)), expected);
}

TEST_F(TheTools, wipeTheBandOutAtTheEnd) {
  GraphPane pane = {screen.Pic1(3), screen.txtLabel(3)};
  struct Host : GraphToolHost {
    View& window() override { return view; }
    View& savedWindow(int) override { return view; }
    int shownGraph() const override { return 3; }
    void ReDrawGraph(int) override { ++redrawn; }
    void SetMouse(int) override {}
    std::string readOutText(int, double, double) override { return "here"; }
    View view = {0, 10, 0, 10};
    int redrawn = 0;
  } aside;
  GraphTools alone(graphs.context, aside);
  screen.Pic1(3).Cls();
  alone.GenericMouseDown(pane, 1, 6, 7, 3);
  alone.GenericMouseMove(pane, 1, 2, 1, 3);
  alone.GenericMouseUp(pane, 1, 2, 1, 3);
  const Lines calls = callsOf(screen.Pic1(3));
  EXPECT_EQ(calls[calls.size() - 2], "Box 2 1 6 7");
  EXPECT_EQ(calls.back(), "DrawMode 13");
  EXPECT_EQ(aside.view, (View{2, 6, 3, 9}));
  EXPECT_EQ(aside.redrawn, 1);
}

TEST_F(TheTools, leaveNothingInvertedWhenTheBandIsGivenUp) {
  for (const int number : {0, 12}) {
    screen.ReDrawGraph(number);
    screen.mnuZoomIn.click();
    mouse(number, Type::down, 1, 20);
    mouse(number, Type::move, 3, 60);
    EXPECT_EQ(screen.Pic1(number).state().drawMode, kInvertMode);
    screen.mnuDrag.click();
    mouse(number, Type::up, 3, 60);
    EXPECT_EQ(screen.Pic1(number).log().start().drawMode, kCopyMode);
    EXPECT_EQ(screen.Pic1(number).state().drawMode, kCopyMode);
  }
}

TEST_F(TheTools, showTheValuesAtAPointAsLongAsTheMouseIsPressed) {
  screen.ReDrawGraph(3);  // 0 to 250, 1024 to 1026
  screen.mnuPointer.click();
  ReadOut& box = screen.txtLabel(3);
  mouse(3, Type::down, 100.129, 1024.5, 2);
  EXPECT_FALSE(box.visible());
  mouse(3, Type::down, 100.129, 1024.5);
  EXPECT_TRUE(box.visible());
  EXPECT_EQ(box.text(), "( 100.12 , 1025.5 )");
  EXPECT_FLOAT_EQ(static_cast<float>(box.left()), 100.129F);
  EXPECT_NEAR(box.top(), 1024.5 + screen.Pic1(3).ScaleHeight() / 40, 1e-6);
  EXPECT_EQ(box.color(), lines.ColorList[1]);
  const View before = screen.savedWindow(3);
  mouse(3, Type::up, 100.129, 1024.5);
  EXPECT_FALSE(box.visible());
  EXPECT_EQ(screen.savedWindow(3), before);
}

TEST_F(TheTools, readAPlaceAsItWasGiven) {
  screen.mnuPointer.click();
  // Neither is a number of single precision.
  mouse(0, Type::down, 0.7, 999.9);
  EXPECT_EQ(screen.txtLabel(0).text(), "( 0.7 , 0.1 )");
}

TEST_F(TheTools, stayInBoundsAtAnyPlace) {
  band(-1e300, -1e300, 1e300, 1e300);
  for (const double end : {saved().Xmin, saved().Xmax, saved().Ymin, saved().Ymax}) EXPECT_TRUE(std::isfinite(end));
  EXPECT_EQ(takeBoxes(), Lines{});
  screen.mnuFrame.click();
  EXPECT_EQ(saved(), (View{0, 4, 0, 1000}));
}

TEST_F(TheTools, workOnTheSecondCanvasOfTheHeadcutToo) {
  screen.mnuGraph(17).click();
  screen.mnuPointer.click();
  screen.Pic1A(17).userMouse({Type::down, 1, 2, 3});
  EXPECT_TRUE(screen.txtLabelA(17).visible());
  EXPECT_FALSE(screen.txtLabel(17).visible());
  screen.Pic1A(17).userMouse({Type::up, 1, 2, 3});
  EXPECT_FALSE(screen.txtLabelA(17).visible());
}

TEST_F(TheTools, alwaysDrawTheGraphAgainWhenTheMouseIsReleased) {
  screen.mnuFrame.click();
  screen.Pic1(0).Cls();
  click(1, 1);
  EXPECT_EQ(texts(0).front(), "Hydrographs");
  EXPECT_EQ(saved(), (View{0, 4, 0, 1000}));
}

TEST_F(TheTools, chooseNothingOnANotice) {
  (void)files.removeFile("/p/dam.OUT");
  screen.mnuFrame.click();
  screen.mnuZoomIn.click();
  click(50, 50);
  EXPECT_EQ(tools.BandState, 0);
  EXPECT_EQ(saved(), View());
  putRun();
  screen.ReDrawGraph(0);
  EXPECT_EQ(saved(), (View{0, 4, 0, 1000}));
}

TEST_F(TheTools, keepAnUnroundedWindowThatWasOnlyMoved) {
  screen.mnuDrag.click();
  mouse(0, Type::down, 1, 0);
  mouse(0, Type::up, 0.75, 0);
  EXPECT_EQ(saved(), (View{0.25, 4.25, 0, 1000}));
  EXPECT_EQ(texts(0)[12], "0.25");
}

}  // namespace
}  // namespace kestra
