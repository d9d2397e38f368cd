#include "graphics/canvas.h"

#include <gtest/gtest.h>

#include "support/canvas_calls.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

TEST(ACanvas, continuesLinesFromItsCurrentPoint) {
  RecordingCanvas canvas;
  canvas.LineTo(1, 2);
  canvas.Line(3, 4, 5, 6);
  canvas.LineTo(7, 8);
  canvas.PSet(9, 9);
  canvas.LineTo(0, 0);
  canvas.Box(1, 1, 2, 3);
  canvas.LineTo(4, 4);
  canvas.FilledBox(0, 0, 6, 7);
  canvas.LineTo(8, 8);
  EXPECT_EQ(callsOf(canvas), (Lines{"Line 0 0 1 2", "Line 3 4 5 6", "Line 5 6 7 8", "PSet 9 9", "Line 9 9 0 0",
                                    "Box 1 1 2 3", "Line 2 3 4 4", "FilledBox 0 0 6 7", "Line 6 7 8 8"}));
}

TEST(ACanvas, printsAtItsCurrentPointAndStaysThere) {
  RecordingCanvas canvas;
  canvas.moveTo(2, 3);
  canvas.Print("a b");
  canvas.Circle(7, 8, 0.5, 255);
  canvas.Print("c");
  EXPECT_EQ(callsOf(canvas), (Lines{"Print 2 3 a b", "Circle 7 8 0.5 255", "Print 2 3 c"}));
}

TEST(ACanvas, remembersEverySettingEachTimeItIsMade) {
  RecordingCanvas canvas;
  canvas.Scale(-1, 20, 9, 0);
  canvas.ForeColor(255);
  canvas.ForeColor(255);
  canvas.BackColor(7);
  canvas.DrawStyle(2);
  canvas.DrawWidth(3);
  canvas.DrawMode(6);
  canvas.FontSize(16);
  canvas.FontBold(true);
  canvas.Visible(false);
  canvas.AutoRedraw(true);
  EXPECT_EQ(callsOf(canvas),
            (Lines{"Scale -1 20 9 0", "ForeColor 255", "ForeColor 255", "BackColor 7", "DrawStyle 2", "DrawWidth 3",
                   "DrawMode 6", "FontSize 16", "FontBold 1", "Visible 0", "AutoRedraw 1"}));
  EXPECT_EQ(canvas.ScaleLeft(), -1);
  EXPECT_EQ(canvas.ScaleTop(), 20);
  EXPECT_EQ(canvas.ScaleWidth(), 10);
  EXPECT_EQ(canvas.ScaleHeight(), -20);
  EXPECT_EQ(canvas.state().fontSize, 16);
}

TEST(ACanvas, keepsItsPenWhenItIsWiped) {
  RecordingCanvas canvas;
  canvas.BackColor(12);
  canvas.FontSize(16);
  canvas.moveTo(4, 4);
  canvas.Cls();
  EXPECT_EQ(callsOf(canvas), Lines{});
  EXPECT_EQ(canvas.log().start().backColor, 12U);
  EXPECT_EQ(canvas.log().start().fontSize, 16);
  EXPECT_EQ(canvas.CurrentX(), 0);
}

TEST(ACanvas, measuresTextsAlikeOnEveryMachine) {
  RecordingCanvas canvas;
  canvas.Scale(10, 0, 60, 200);
  canvas.FontSize(30);
  EXPECT_DOUBLE_EQ(canvas.TextWidth("abcd"), 2);
  EXPECT_DOUBLE_EQ(canvas.TextWidth("äö"), 1);
  EXPECT_DOUBLE_EQ(canvas.TextHeight("abcd"), 5);
}

TEST(ACanvas, measuresTextsAsItIsToldTo) {
  struct Wide : TextMetrics {
    TextSize measure(std::string_view text, double fontSize, bool bold) const override {
      return {static_cast<double>(text.size()) * fontSize / 1000, bold ? 0.5 : 0.25};
    }
  };
  const Wide wide;
  RecordingCanvas canvas;
  canvas.Scale(0, 0, 100, 100);
  canvas.setMetrics(&wide);
  canvas.FontSize(10);
  EXPECT_DOUBLE_EQ(canvas.TextWidth("ab"), 2);
  EXPECT_DOUBLE_EQ(canvas.TextHeight("ab"), 25);
  canvas.FontBold(true);
  EXPECT_DOUBLE_EQ(canvas.TextHeight("ab"), 50);
}

TEST(ACanvas, showsWhatAnotherOneShows) {
  RecordingCanvas first;
  RecordingCanvas second;
  first.Line(1, 2, 3, 4);
  first.Print("x");
  second.show(first.log());
  first.Cls();
  EXPECT_EQ(callsOf(second), (Lines{"Line 1 2 3 4", "Print 3 4 x"}));
}

}  // namespace
}  // namespace kestra
