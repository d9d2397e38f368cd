#include "graphics/canvas.h"

namespace kestra {

std::string_view nameOf(CanvasOp op) {
  constexpr std::array<std::string_view, 16> kNames = {
      "Scale",     "Line",      "Box",       "FilledBox", "PSet",     "Circle",   "Print",   "ForeColor",
      "BackColor", "DrawStyle", "DrawWidth", "DrawMode",  "FontSize", "FontBold", "Visible", "AutoRedraw"};
  return kNames[static_cast<std::size_t>(op)];
}

void AbstractCanvas::Scale(double x1, double y1, double x2, double y2) {
  state_.scale = {x1, y1, x2, y2};
  tell(CanvasOp::Scale, x1, y1, x2, y2);
}

void AbstractCanvas::Line(double x1, double y1, double x2, double y2) {
  moveTo(x2, y2);
  tell(CanvasOp::Line, x1, y1, x2, y2);
}

void AbstractCanvas::LineTo(double x, double y) {
  Line(state_.currentX, state_.currentY, x, y);
}

void AbstractCanvas::Box(double x1, double y1, double x2, double y2) {
  moveTo(x2, y2);
  tell(CanvasOp::Box, x1, y1, x2, y2);
}

void AbstractCanvas::FilledBox(double x1, double y1, double x2, double y2) {
  moveTo(x2, y2);
  tell(CanvasOp::FilledBox, x1, y1, x2, y2);
}

void AbstractCanvas::PSet(double x, double y) {
  moveTo(x, y);
  tell(CanvasOp::PSet, x, y);
}

void AbstractCanvas::Circle(double x, double y, double radius, std::uint32_t colour) {
  tell(CanvasOp::Circle, x, y, radius, colour);
}

void AbstractCanvas::Print(std::string_view text) {
  take(CanvasOp::Print, {state_.currentX, state_.currentY, 0, 0}, text);
}

void AbstractCanvas::ForeColor(std::uint32_t colour) {
  state_.foreColor = colour;
  tell(CanvasOp::ForeColor, colour);
}

void AbstractCanvas::BackColor(std::uint32_t colour) {
  state_.backColor = colour;
  tell(CanvasOp::BackColor, colour);
}

void AbstractCanvas::DrawStyle(int style) {
  state_.drawStyle = style;
  tell(CanvasOp::DrawStyle, style);
}

void AbstractCanvas::DrawWidth(int width) {
  state_.drawWidth = width;
  tell(CanvasOp::DrawWidth, width);
}

void AbstractCanvas::DrawMode(int mode) {
  state_.drawMode = mode;
  tell(CanvasOp::DrawMode, mode);
}

void AbstractCanvas::FontSize(double points) {
  state_.fontSize = points;
  tell(CanvasOp::FontSize, points);
}

void AbstractCanvas::FontBold(bool bold) {
  state_.fontBold = bold;
  tell(CanvasOp::FontBold, bold ? 1 : 0);
}

void AbstractCanvas::Visible(bool visible) {
  tell(CanvasOp::Visible, visible ? 1 : 0);
}

void AbstractCanvas::AutoRedraw(bool persistent) {
  tell(CanvasOp::AutoRedraw, persistent ? 1 : 0);
}

void AbstractCanvas::Cls() {
  moveTo(0, 0);
  wiped();
}

TextSize AbstractCanvas::measure(std::string_view text) const {
  return metrics_ == nullptr ? fixedTextSize(text) : metrics_->measure(text, state_.fontSize, state_.fontBold);
}

}  // namespace kestra
