#include "graphics/clipped_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "graphics/scaling.h"

namespace kestra {
namespace {

struct Point {
  double x = 0;
  double y = 0;
};

struct Segment {
  Point from;
  Point to;
};

bool spans(double a, double b, double edge) {
  return std::min(a, b) <= edge && edge <= std::max(a, b);
}

// The value brought within the range when it lies there but for rounding; false when it lies outside.
bool within(double& value, double low, double high) {
  const double slack = 1e-9 * (high - low);
  if (!(value >= low - slack && value <= high + slack)) return false;
  value = std::clamp(value, low, high);
  return true;
}

// Where a segment from left to right meets the edges of a window, and those of its ends that lie inside.
class Clip {
 public:
  Clip(const Segment& segment, const View& window) : segment_(segment), window_(window) {
    const auto& [a, b] = segment_;
    constexpr double kNarrow = 0.0001;
    slope_ = (b.y - a.y) / (std::fabs(a.x - b.x) < kNarrow ? kNarrow : b.x - a.x);
    intercept_ = a.y - slope_ * a.x;
    addEnd(a);
    addEnd(b);
    if (count_ < 2) {
      addAtX(window_.Xmin);
      addAtY(window_.Ymax);
      addAtX(window_.Xmax);
      addAtY(window_.Ymin);
    }
  }

  // The visible part, from left to right; false when there is none.
  bool part(Segment& out) const {
    constexpr double kHair = 1e-9;
    double longest = kHair * (window_.xRange() + window_.yRange());
    bool found = false;
    for (int i = 0; i < count_; ++i) {
      for (int j = i + 1; j < count_; ++j) {
        const double length = std::fabs(points_[j].x - points_[i].x) + std::fabs(points_[j].y - points_[i].y);
        if (length <= longest) continue;
        longest = length;
        found = true;
        out = ordered(points_[i], points_[j]);
      }
    }
    return found;
  }

 private:
  bool holds(const Point& p) const {
    return p.x >= window_.Xmin && p.x <= window_.Xmax && p.y >= window_.Ymin && p.y <= window_.Ymax;
  }
  void add(double x, double y) { points_[count_++] = {x, y}; }
  void addEnd(const Point& end) {
    if (holds(end)) add(end.x, end.y);
  }
  void addAtX(double edge) {
    if (!spans(segment_.from.x, segment_.to.x, edge)) return;
    double y = slope_ * edge + intercept_;
    if (within(y, window_.Ymin, window_.Ymax)) add(edge, y);
  }
  void addAtY(double edge) {
    if (slope_ == 0 || !spans(segment_.from.y, segment_.to.y, edge)) return;
    double x = (edge - intercept_) / slope_;
    if (!within(x, window_.Xmin, window_.Xmax)) {
      x = std::clamp(x, segment_.from.x, segment_.to.x);
      if (!within(x, window_.Xmin, window_.Xmax)) return;
    }
    add(x, edge);
  }
  // In the direction of the segment.
  Segment ordered(const Point& p, const Point& q) const {
    const double dx = segment_.to.x - segment_.from.x;
    const double dy = segment_.to.y - segment_.from.y;
    const bool forward = (q.x - p.x) * dx + (q.y - p.y) * dy >= 0;
    return forward ? Segment{p, q} : Segment{q, p};
  }

  Segment segment_;
  const View& window_;
  double slope_ = 0;
  double intercept_ = 0;
  std::array<Point, 6> points_;
  int count_ = 0;
};

// From the higher end down to the lower one in thin bands, each from the line to the higher end's side, and from there
// to the bottom in one piece.
void fillBelow(const Segment& line, const View& window, AbstractCanvas& canvas) {
  constexpr double kBands = 400;
  const bool rising = line.to.y >= line.from.y;
  const Point& high = rising ? line.to : line.from;
  const Point& low = rising ? line.from : line.to;
  const double band = window.yRange() / kBands;
  const double drop = high.y - low.y;
  if (!(band > 0)) return;
  const int bands = static_cast<int>(std::ceil(drop / band));
  for (int i = 0; i < bands; ++i) {
    const double top = high.y - i * band;
    const double bottom = std::max(top - band, low.y);
    const double x = low.x + (high.x - low.x) * ((bottom - low.y) / drop);
    canvas.Box(x, window.flipped(top), high.x, window.flipped(bottom));
  }
  canvas.FilledBox(low.x, window.flipped(low.y), high.x, window.flipped(window.Ymin));
}

}  // namespace

void DrawClippedLine(double x1, double y1, double x2, double y2, double Xmin, double Ymin, double Xmax, double Ymax,
                     AbstractCanvas& canvas, int fill) {
  const View window = {Xmin, Xmax, Ymin, Ymax};
  Segment segment = {{x1, y1}, {x2, y2}};
  const auto inside = [&](double x, double y) { return x >= Xmin && x <= Xmax && y >= Ymin && y <= Ymax; };
  if (!inside(x1, y1) || !inside(x2, y2)) {
    const bool swapped = x1 > x2;
    if (swapped) std::swap(segment.from, segment.to);
    const Clip clip(segment, window);
    if (!clip.part(segment)) return;
    if (swapped) std::swap(segment.from, segment.to);
  }
  canvas.Line(segment.from.x, window.flipped(segment.from.y), segment.to.x, window.flipped(segment.to.y));
  if (fill == kFill) fillBelow(segment, window, canvas);
}

}  // namespace kestra
