#include "graphics/canvas_replay.h"

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "graphics/svg_file.h"

namespace kestra {
namespace {

// Writes down what is painted.
struct WritingBrush : PictureBrush {
  void ground(PictureSize size, std::uint32_t color) override {
    add("ground " + std::to_string(size.width) + "x" + std::to_string(size.height) + " in " + std::to_string(color));
  }
  void line(const std::vector<PicturePoint>& points, const Ink& ink) override {
    std::string text = "line";
    for (const PicturePoint& p : points) text += " " + generalNumber(p.x) + "," + generalNumber(p.y);
    add(text + with(ink));
    longest = std::max(longest, points.size());
  }
  void box(PicturePoint a, PicturePoint b, const Ink& ink, bool filled) override {
    add((filled ? "filled " : "box ") + at(a) + " " + at(b) + with(ink));
  }
  void circle(PicturePoint centre, double radius, const Ink& ink, bool filled) override {
    add((filled ? "dot " : "circle ") + at(centre) + " r " + generalNumber(radius) + with(ink));
  }
  void text(PicturePoint corner, std::string_view shown, const Letters& letters) override {
    add("text " + at(corner) + " " + std::string(shown) + " of " + generalNumber(letters.size) +
        (letters.bold ? " bold" : "") + " in " + std::to_string(letters.color));
  }
  bool invert(bool on) override {
    if (inverts) add(on ? "invert" : "copy");
    return inverts;
  }

  static std::string at(PicturePoint p) { return generalNumber(p.x) + "," + generalNumber(p.y); }
  static std::string with(const Ink& ink) {
    return " in " + std::to_string(ink.color) + " style " + std::to_string(ink.style) + " width " +
           generalNumber(ink.width);
  }
  void add(std::string what) { painted.push_back(std::move(what)); }

  std::vector<std::string> painted;
  std::size_t longest = 0;
  bool inverts = true;
};

constexpr PictureSize kUsual = {688, 440};  // letters and pens as on a screen

struct AReplay : testing::Test {
  AReplay() { canvas.Scale(0, 0, 68.8, 44); }
  std::vector<std::string> painted(PictureSize size = kUsual) {
    replay(canvas.log(), size, size.width, brush);
    EXPECT_FALSE(brush.painted.empty());
    return {brush.painted.begin() + 1, brush.painted.end()};
  }
  RecordingCanvas canvas;
  WritingBrush brush;
};

TEST_F(AReplay, paintsWhatTheCanvasShows) {
  canvas.ForeColor(7);
  canvas.Box(1, 2, 3, 4);
  canvas.FilledBox(1, 2, 3, 4);
  canvas.PSet(5, 6);
  canvas.Circle(5, 6, 1, 9);
  canvas.Circle(5, 6, 0.0006, 9);
  canvas.moveTo(2, 2);
  canvas.FontSize(16.5);
  canvas.FontBold(true);
  canvas.Print("Title");
  canvas.Print("");
  EXPECT_EQ(painted(),
            (std::vector<std::string>{"box 10,20 30,40 in 7 style 0 width 1", "filled 10,20 30,40 in 7 style 0 width 1",
                                      "dot 50,60 r 0.5 in 7 style 0 width 1", "circle 50,60 r 10 in 9 style 0 width 1",
                                      "dot 50,60 r 1.5 in 9 style 0 width 1", "text 20,20 Title of 22 bold in 7"}));
}

TEST_F(AReplay, beginsWithTheGroundAndThePenOfTheLastWiping) {
  canvas.BackColor(12);
  canvas.DrawWidth(3);
  canvas.Cls();
  canvas.Line(0, 0, 1, 1);
  EXPECT_EQ(painted(), std::vector<std::string>{"line 0,0 10,10 in 0 style 0 width 3"});
  EXPECT_EQ(brush.painted[0], "ground 688x440 in 12");
}

TEST_F(AReplay, joinsLinesThatContinueEachOther) {
  canvas.Line(0, 0, 1, 1);
  canvas.LineTo(2, 0);
  canvas.Line(3, 3, 4, 4);
  canvas.DrawStyle(2);
  canvas.LineTo(5, 5);
  EXPECT_EQ(painted(), (std::vector<std::string>{"line 0,0 10,10 20,0 in 0 style 0 width 1",
                                                 "line 30,30 40,40 in 0 style 0 width 1",
                                                 "line 40,40 50,50 in 0 style 2 width 1"}));
}

TEST_F(AReplay, growsPensAndLettersWithThePicture) {
  canvas.DrawWidth(2);
  canvas.Line(0, 0, 1, 1);
  canvas.Print("a");
  EXPECT_EQ(painted({1376, 880}),
            (std::vector<std::string>{"line 0,0 20,20 in 0 style 0 width 4", "text 20,20 a of 22 in 0"}));
  EXPECT_EQ(pictureScale({1376, 440}), 1);
  EXPECT_EQ(letterSize(0.1, 0.1), 1);
}

TEST_F(AReplay, thinsALineToWhatItsPenCanShow) {
  canvas.moveTo(0, 0);
  for (int i = 1; i <= 9000; ++i) canvas.LineTo(i * 68.8 / 9000, i % 2);
  (void)painted();
  EXPECT_LE(brush.longest, 4 * 690U);
  EXPECT_GE(brush.longest, 2 * 680U);
  canvas.Cls();
  canvas.DrawWidth(4);
  canvas.moveTo(0, 0);
  for (int i = 1; i <= 9000; ++i) canvas.LineTo(i * 68.8 / 9000, i % 2);
  brush.longest = 0;
  (void)painted();
  EXPECT_LE(brush.longest, 4 * 346U);
}

TEST_F(AReplay, invertsWhereTheBrushCanAndElseLeavesThatOut) {
  canvas.DrawMode(kInvertMode);
  canvas.Box(0, 0, 1, 1);
  canvas.Line(0, 0, 1, 1);
  EXPECT_EQ(painted(), (std::vector<std::string>{"invert", "box 0,0 10,10 in 0 style 0 width 1", "copy", "invert",
                                                 "line 0,0 10,10 in 0 style 0 width 1", "copy"}));
  brush = {};
  brush.inverts = false;
  EXPECT_EQ(painted(), std::vector<std::string>{});
}

TEST(AnSvgFile, holdsWhatTheCanvasShows) {
  RecordingCanvas canvas;
  canvas.Scale(0, 0, 68.8, 44);
  canvas.ForeColor(0x00CCEE);  // red 238, green 204
  canvas.DrawStyle(1);
  canvas.Line(0, 0.016, 1, 1);
  canvas.LineTo(-2, 0);
  canvas.DrawStyle(0);
  canvas.FilledBox(3, 4, 1, 2);
  canvas.Box(1, 2, 3, 4);
  canvas.Circle(5, 6, 1, 255);
  canvas.moveTo(1, 1);
  canvas.FontSize(15);
  canvas.Print("a < b & \"c\"\n>");
  EXPECT_EQ(svgFile(canvas.log(), kUsual),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"688\" height=\"440\" viewBox=\"0 0 688 440\" "
            "font-family=\"DejaVu Sans, Verdana, sans-serif\" xml:space=\"preserve\">\n"
            "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
            "<polyline points=\"0,0.2 10,10 -20,0 \" fill=\"none\" stroke-linejoin=\"bevel\" stroke=\"#eecc00\" "
            "stroke-width=\"1\" stroke-dasharray=\"4 2 \"/>\n"
            "<rect x=\"10\" y=\"20\" width=\"20\" height=\"20\" fill=\"#eecc00\"/>\n"
            "<rect x=\"10\" y=\"20\" width=\"20\" height=\"20\" fill=\"none\" stroke=\"#eecc00\" stroke-width=\"1\"/>\n"
            "<circle cx=\"50\" cy=\"60\" r=\"10\" fill=\"none\" stroke=\"#ff0000\" stroke-width=\"1\"/>\n"
            "<text x=\"10\" y=\"28.6\" font-size=\"20\" fill=\"#eecc00\">a &lt; b &amp; \"c\" &gt;</text>\n"
            "</svg>\n");
}

struct AGoingReplay : AReplay {
  std::vector<std::string> more() {
    brush.painted.clear();
    going.paint(canvas.log(), brush);
    return brush.painted;
  }
  CanvasReplay going{kUsual, kUsual.width, 1};
};

TEST_F(AGoingReplay, paintsWhatWasDrawnSinceInTheStateOfThen) {
  canvas.ForeColor(255);
  canvas.DrawWidth(3);
  EXPECT_EQ(more(), (std::vector<std::string>{"ground 688x440 in 16777215"}));
  canvas.FilledBox(0, 0, 1, 1);
  EXPECT_EQ(more(), (std::vector<std::string>{"filled 0,0 10,10 in 255 style 0 width 3"}));
  EXPECT_EQ(more(), std::vector<std::string>());
  canvas.FilledBox(1, 1, 2, 2);
  EXPECT_EQ(more(), (std::vector<std::string>{"filled 10,10 20,20 in 255 style 0 width 3"}));
}

TEST_F(AGoingReplay, beginsAnewOnAWipedCanvasAndOnANewGround) {
  canvas.FilledBox(0, 0, 1, 1);
  (void)more();
  canvas.Cls();
  EXPECT_EQ(more(), (std::vector<std::string>{"ground 688x440 in 16777215"}));
  canvas.FilledBox(0, 0, 1, 1);
  canvas.BackColor(255);
  EXPECT_EQ(more(), (std::vector<std::string>{"ground 688x440 in 255", "filled 0,0 10,10 in 0 style 0 width 1"}));
}

TEST_F(AGoingReplay, beginsAnewOnACanvasThatShowsAnother) {
  canvas.FilledBox(0, 0, 1, 1);
  (void)more();
  const CanvasLog same = canvas.log();
  canvas.show(same);
  EXPECT_EQ(more().size(), 2U);
}

}  // namespace
}  // namespace kestra
