#include <gtest/gtest.h>

#include "desktop/canvas_binding.h"
#include "desktop/canvas_widget.h"
#include "desktop/shown_desk.h"
#include "graphs/graph_tools.h"

namespace kestra {
namespace {

constexpr std::uint32_t kRed = 0x0000FF;
constexpr std::uint32_t kSand = 0x8FD5EE;

struct DrawnScreen : Screen {
  DrawnScreen() : Screen("drawn", "Drawn") { picture.Scale(0, 0, 100, 50); }
  CanvasControl picture{*this, "picture"};
};

// A canvas of 100 by 50 units on a widget of 200 by 100 points.
struct Canvases : testing::Test {
  Canvases() {
    view.resize(200, 100);
    binding = bindCanvas(screen.picture, view, [](const std::function<void()>& action) { action(); });
    view.show();
  }
  QImage painted() {
    QImage image(view.size(), QImage::Format_RGB32);
    view.render(&image);
    return image;
  }
  void drawBand() {
    screen.picture.DrawMode(kInvertMode);
    screen.picture.DrawStyle(kDotted);
    screen.picture.Box(10, 10, 80, 40);
    screen.picture.DrawMode(kCopyMode);
  }

  DrawnScreen screen;
  CanvasWidget view;
  std::unique_ptr<Binding> binding;
};

TEST_F(Canvases, showWhatWasDrawnOnThem) {
  screen.picture.BackColor(kSand);
  screen.picture.Cls();
  screen.picture.ForeColor(kRed);
  screen.picture.FilledBox(0, 0, 50, 25);
  EXPECT_EQ(painted().pixelColor(10, 10), QColor(255, 0, 0));
  EXPECT_EQ(painted().pixelColor(190, 90), QColor(238, 213, 143));
  screen.picture.FilledBox(50, 25, 100, 50);
  EXPECT_EQ(painted().pixelColor(190, 90), QColor(255, 0, 0));
  screen.picture.Cls();
  EXPECT_EQ(painted().pixelColor(10, 10), QColor(238, 213, 143));
}

TEST_F(Canvases, areAsBeforeWhenABandWasDrawnTwice) {
  screen.picture.Line(0, 0, 100, 50);
  const QImage before = painted();
  drawBand();
  EXPECT_NE(painted(), before);
  drawBand();
  EXPECT_EQ(painted(), before);
}

TEST_F(Canvases, tellTheMouseInTheirOwnUnits) {
  std::vector<MouseEvent> told;
  screen.picture.onMouse = [&told](const MouseEvent& event) { told.push_back(event); };
  screen.picture.Scale(-10, 60, 90, 10);
  QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(100, 25));
  QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(200, 100));
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0].type, MouseEvent::Type::down);
  EXPECT_EQ(told[0].button, 1);
  EXPECT_DOUBLE_EQ(told[0].x, 40);
  EXPECT_DOUBLE_EQ(told[0].y, 47.5);
  EXPECT_EQ(told[1].type, MouseEvent::Type::up);
  EXPECT_DOUBLE_EQ(told[1].x, 90);
  EXPECT_DOUBLE_EQ(told[1].y, 10);
}

TEST_F(Canvases, giveTheMouseTheShapeOfTheTool) {
  const struct {
    int image;
    Qt::CursorShape shape;
  } cases[] = {{0, Qt::ArrowCursor},
               {10, Qt::OpenHandCursor},
               {11, Qt::BitmapCursor},
               {12, Qt::BitmapCursor},
               {13, Qt::SizeAllCursor}};
  for (const auto& [image, shape] : cases) {
    screen.picture.setPointer(image);
    binding->follow(Property::value);
    EXPECT_EQ(view.cursor().shape(), shape) << image;
  }
}

TEST_F(Canvases, measureTextsAsTheyPaintThem) {
  EXPECT_GT(screen.picture.TextWidth("wide text"), screen.picture.TextWidth("text"));
  const double usual = screen.picture.TextWidth("text");
  view.resize(400, 100);
  QCoreApplication::processEvents();
  EXPECT_LT(screen.picture.TextWidth("text"), usual);  // the same letters on twice the width
}

}  // namespace
}  // namespace kestra
