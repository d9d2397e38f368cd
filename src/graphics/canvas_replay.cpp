#include "graphics/canvas_replay.h"

#include <algorithm>

#include "graphics/draw_series.h"

namespace kestra {
namespace {

// The canvas of a graph screen of its opening size, in pixels.
constexpr double kUsualWidth = 688;
constexpr double kUsualHeight = 440;

// The points of a line that the columns of a picture need.
std::vector<PicturePoint> thinned(const std::vector<PicturePoint>& line, int width, int columns) {
  Series series;
  series.PlotX.reserve(line.size());
  series.PlotY.reserve(line.size());
  for (const PicturePoint& point : line) {
    series.PlotX.push_back(static_cast<float>(point.x));
    series.PlotY.push_back(static_cast<float>(point.y));
  }
  std::vector<PicturePoint> out;
  for (const int i : pointsForColumns(series, 0, width, columns)) out.push_back(line[static_cast<std::size_t>(i)]);
  return out;
}

}  // namespace

// The calls of a canvas as strokes of a brush.
class CanvasReplay::Stroke {
 public:
  Stroke(PictureSize size, int columns, double scale, CanvasState& state, PictureBrush& brush)
      : size_(size), columns_(columns), brush_(brush), scale_(scale), state_(state) {}

  void take(const CanvasLog& log, const CanvasCall& call) {
    if (call.op == CanvasOp::Line) return addLine(call.numbers);
    flush();
    const bool draws = call.op <= CanvasOp::Print && call.op != CanvasOp::Scale;
    if (!draws) return takeState(call);
    const bool inverts = state_.drawMode == kInvertMode;
    if (inverts && !brush_.invert(true)) return;
    draw(call, log);
    if (inverts) brush_.invert(false);
  }

  void flush() {
    if (line_.empty()) return;
    const bool inverts = state_.drawMode == kInvertMode;
    if (!inverts || brush_.invert(true)) {
      // What is closer together than half the pen's width is under its ink.
      const int columns = std::max(1, static_cast<int>(columns_ / std::max(1.0, ink().width / 2)));
      const bool many = line_.size() > static_cast<std::size_t>(columns);
      brush_.line(many ? thinned(line_, size_.width, columns) : line_, ink());
    }
    if (inverts) brush_.invert(false);
    line_.clear();
  }

 private:
  void draw(const CanvasCall& call, const CanvasLog& log) {
    const auto& [a, b, c, d] = call.numbers;
    const PicturePoint at = place(a, b);
    if (call.op == CanvasOp::Box) brush_.box(at, place(c, d), ink(), false);
    if (call.op == CanvasOp::FilledBox) brush_.box(at, place(c, d), ink(), true);
    if (call.op == CanvasOp::PSet) brush_.circle(at, ink().width / 2, ink(), true);
    if (call.op == CanvasOp::Circle) drawCircle(at, c, static_cast<std::uint32_t>(d));
    if (call.op == CanvasOp::Print && !log.textOf(call).empty()) {
      brush_.text(at, log.textOf(call), {letterSize(state_.fontSize, scale_), state_.fontBold, state_.foreColor});
    }
  }

  // A circle too small to be seen is a dot.
  void drawCircle(PicturePoint centre, double units, std::uint32_t color) {
    constexpr double kDot = 1.5;
    const double radius = units / (state_.scale[2] - state_.scale[0]) * size_.width;
    const Ink thin = {color, kSolid, std::max(1.0, scale_)};
    brush_.circle(centre, std::max(radius, kDot * scale_), thin, radius < kDot * scale_);
  }

  void takeState(const CanvasCall& call) {
    const double value = call.numbers[0];
    if (call.op == CanvasOp::Scale) state_.scale = call.numbers;
    if (call.op == CanvasOp::ForeColor) state_.foreColor = static_cast<std::uint32_t>(value);
    if (call.op == CanvasOp::DrawStyle) state_.drawStyle = static_cast<int>(value);
    if (call.op == CanvasOp::DrawWidth) state_.drawWidth = static_cast<int>(value);
    if (call.op == CanvasOp::DrawMode) state_.drawMode = static_cast<int>(value);
    if (call.op == CanvasOp::FontSize) state_.fontSize = value;
    if (call.op == CanvasOp::FontBold) state_.fontBold = value != 0;
  }

  void addLine(const std::array<double, 4>& ends) {
    const PicturePoint from = place(ends[0], ends[1]);
    if (line_.empty() || line_.back() != from) {
      flush();
      line_.push_back(from);
    }
    line_.push_back(place(ends[2], ends[3]));
  }

  Ink ink() const { return {state_.foreColor, state_.drawStyle, std::max(1.0, state_.drawWidth * scale_)}; }

  PicturePoint place(double x, double y) const {
    const auto& [x1, y1, x2, y2] = state_.scale;
    return {(x - x1) / (x2 - x1) * size_.width, (y - y1) / (y2 - y1) * size_.height};
  }

  PictureSize size_;
  int columns_;
  PictureBrush& brush_;
  double scale_;
  CanvasState& state_;
  std::vector<PicturePoint> line_;
};

bool CanvasReplay::goesOn(const CanvasLog& log) const {
  const auto isGround = [](const CanvasCall& call) { return call.op == CanvasOp::BackColor; };
  return wipes_ == log.wipes() && painted_ <= log.calls().size() &&
         std::none_of(log.calls().begin() + static_cast<std::ptrdiff_t>(painted_), log.calls().end(), isGround);
}

void CanvasReplay::paint(const CanvasLog& log, PictureBrush& brush) {
  if (!goesOn(log)) {
    state_ = log.start();
    std::uint32_t ground = state_.backColor;
    for (const CanvasCall& call : log.calls()) {
      if (call.op == CanvasOp::BackColor) ground = static_cast<std::uint32_t>(call.numbers[0]);
    }
    brush.ground(size_, ground);
    wipes_ = log.wipes();
    painted_ = 0;
  }
  Stroke stroke(size_, columns_, scale_, state_, brush);
  for (; painted_ < log.calls().size(); ++painted_) stroke.take(log, log.calls()[painted_]);
  stroke.flush();
}

double pictureScale(PictureSize size) {
  return std::min(size.width / kUsualWidth, size.height / kUsualHeight);
}

double letterSize(double points, double scale) {
  constexpr double kPixelsPerPoint = 96.0 / 72;
  return std::max(1.0, points * kPixelsPerPoint * scale);
}

void replay(const CanvasLog& log, PictureSize size, int columns, PictureBrush& brush) {
  CanvasReplay(size, columns, pictureScale(size)).paint(log, brush);
}

}  // namespace kestra
