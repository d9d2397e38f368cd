#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "graphics/text_metrics.h"

namespace kestra {

enum class CanvasOp : std::uint8_t {
  Scale,
  Line,
  Box,
  FilledBox,
  PSet,
  Circle,
  Print,
  ForeColor,
  BackColor,
  DrawStyle,
  DrawWidth,
  DrawMode,
  FontSize,
  FontBold,
  Visible,
  AutoRedraw
};

std::string_view nameOf(CanvasOp op);

inline constexpr int kCopyMode = 13;   // DrawMode: what is drawn replaces what is there
inline constexpr int kInvertMode = 6;  // DrawMode: it inverts what is there, so that drawing twice wipes out
inline constexpr int kSolid = 0;       // DrawStyle
inline constexpr int kDotted = 2;

// Window, pen and current point of a canvas.
struct CanvasState {
  std::array<double, 4> scale = {0, 0, 1, 1};  // x1, y1, x2, y2: upper-left and lower-right corner
  double currentX = 0;
  double currentY = 0;
  std::uint32_t foreColor = 0;  // red in the low byte, as all colours
  std::uint32_t backColor = 0xFFFFFF;
  int drawStyle = kSolid;  // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
  int drawWidth = 1;
  int drawMode = kCopyMode;
  double fontSize = 8.25;  // points
  bool fontBold = false;
};

// A surface with a logical window and a pen. All places are in the window's units, y growing downward from its top. The
// state is kept here; a derived canvas is handed every call as it is made.
class AbstractCanvas {
 public:
  virtual ~AbstractCanvas() = default;

  void Scale(double x1, double y1, double x2, double y2);
  double ScaleLeft() const { return state_.scale[0]; }
  double ScaleTop() const { return state_.scale[1]; }
  double ScaleWidth() const { return state_.scale[2] - state_.scale[0]; }
  double ScaleHeight() const { return state_.scale[3] - state_.scale[1]; }
  const CanvasState& state() const { return state_; }

  // Each leaves the current point at its end; a circle and a text leave it where it was.
  void Line(double x1, double y1, double x2, double y2);
  void LineTo(double x, double y);  // from the current point
  void Box(double x1, double y1, double x2, double y2);
  void FilledBox(double x1, double y1, double x2, double y2);
  void PSet(double x, double y);
  void Circle(double x, double y, double radius, std::uint32_t colour);
  void Print(std::string_view text);  // its upper-left corner at the current point

  double CurrentX() const { return state_.currentX; }
  double CurrentY() const { return state_.currentY; }
  void moveTo(double x, double y) {
    state_.currentX = x;
    state_.currentY = y;
  }

  double TextWidth(std::string_view text) const { return measure(text).width * ScaleWidth(); }
  double TextHeight(std::string_view text) const { return measure(text).height * ScaleHeight(); }

  void ForeColor(std::uint32_t colour);
  void BackColor(std::uint32_t colour);
  void DrawStyle(int style);
  void DrawWidth(int width);
  void DrawMode(int mode);
  void FontSize(double points);
  void FontBold(bool bold);
  void Visible(bool visible);
  void AutoRedraw(bool persistent);
  void Cls();  // wipes everything to BackColor; the pen stays

  // Who measures texts; null, as at first: the fixed metrics. It must outlive the canvas.
  void setMetrics(const TextMetrics* metrics) { metrics_ = metrics; }
  // Columns of pixels on which the canvas comes out; 0 where every call is to be seen as it is made.
  int pixelColumns() const { return pixelColumns_; }
  void setPixelColumns(int columns) { pixelColumns_ = columns; }

 protected:
  using Numbers = std::array<double, 4>;
  virtual void take(CanvasOp op, const Numbers& numbers, std::string_view text) = 0;
  virtual void wiped() = 0;
  void resetState() { state_ = {}; }

 private:
  void tell(CanvasOp op, double a = 0, double b = 0, double c = 0, double d = 0) { take(op, {a, b, c, d}, {}); }
  TextSize measure(std::string_view text) const;

  CanvasState state_;
  const TextMetrics* metrics_ = nullptr;
  int pixelColumns_ = 0;
};

}  // namespace kestra
