#include "graphs/graph_tools.h"

#include <utility>

#include "graphics/series_store.h"

namespace kestra {

struct GraphTools::Band {
  double x1;
  double y1;
  double x2;
  double y2;
};

namespace {

constexpr std::int16_t kPressed = 1;
constexpr std::int16_t kOnCanvas = 2;

// A tool by its toolbar key, with the shape of the mouse that goes with it.
struct Tool {
  std::string_view key;
  int image;
  void (GraphTools::*command)();
};
constexpr Tool kTools[] = {
    {"Frame", 0, &GraphTools::mnuFrame_Click},      {"ZoomIn", 11, &GraphTools::mnuZoomIn_Click},
    {"ZoomOut", 12, &GraphTools::mnuZoomOut_Click}, {"Drag", 10, &GraphTools::mnuDrag_Click},
    {"Pan", 13, &GraphTools::mnuPan_Click},         {"Pointer", 0, &GraphTools::mnuPointer_Click},
};

std::size_t at(int number) {
  return static_cast<std::size_t>(number);
}

}  // namespace

void GraphTools::use(bool bandArmed, int zoomOut, int drag, int pan, int pointer) {
  BandArmed = bandArmed;
  BandState = 0;
  ZoomOutMode = static_cast<std::int16_t>(zoomOut);
  DragMode = static_cast<std::int16_t>(drag);
  PanMode = static_cast<std::int16_t>(pan);
  PointerMode = static_cast<std::int16_t>(pointer);
  refresh();
}

// The saved window goes too, so that the graph fits its data.
void GraphTools::mnuFrame_Click() {
  use(false, ZoomOutMode, 0, 0, PointerMode);
  host_.window() = {};
  host_.savedWindow(host_.shownGraph()) = {};
  host_.ReDrawGraph(host_.shownGraph());
}

void GraphTools::mnuZoomIn_Click() {
  use(true, 0, 0, 0, 0);
}

void GraphTools::mnuZoomOut_Click() {
  use(true, 1, 0, 0, 0);
}

void GraphTools::mnuDrag_Click() {
  use(false, ZoomOutMode, 1, 0, 0);
}

void GraphTools::mnuPan_Click() {
  use(false, ZoomOutMode, 0, 1, 0);
}

void GraphTools::mnuPointer_Click() {
  use(false, 0, 0, 0, 1);
}

void GraphTools::opened() {
  mnuZoomIn_Click();
}

std::string_view GraphTools::tool() const {
  if (BandArmed) return ZoomOutMode != 0 ? "ZoomOut" : "ZoomIn";
  if (DragMode == 1) return "Drag";
  if (PanMode == 1) return "Pan";
  return PointerMode == 1 ? "Pointer" : "";
}

void GraphTools::refresh() {
  int image = 0;
  for (const Tool& each : kTools) {
    if (each.key == tool()) image = each.image;
  }
  host_.SetMouse(image);
  if (onTool) onTool();
}

void GraphTools::toolbarClick(std::string_view key) {
  for (const Tool& each : kTools) {
    if (each.key == key) return (this->*each.command)();
  }
}

void GraphTools::GenericMouseDown(GraphPane& pane, int button, float x, float y, int number) {
  if (BandArmed) {
    BandState = kPressed;
    BandX1[at(number)] = x;
    BandY1[at(number)] = y;
  }
  if (DragMode == 1) {
    DragStartX = x;
    DragStartY = y;
  }
  if (button != kLeftButton || PointerMode != 1) return;
  const std::string text = host_.readOutText(number, shortDecimal(x), shortDecimal(y));
  pane.readOut.place(static_cast<double>(x), static_cast<double>(y) + pane.canvas.TextHeight(text),
                     context_.lines.ColorList[1]);
  pane.readOut.setText(text);
  pane.readOut.setVisible(true);
}

// Drawn by inversion, so that the same box drawn again is wiped out.
void GraphTools::drawBand(GraphPane& pane, const Band& band) {
  pane.canvas.Box(band.x1, band.y1, band.x2, band.y2);
}

void GraphTools::GenericMouseMove(GraphPane& pane, int button, float x, float y, int number) {
  (void)button;
  if (!BandArmed || BandState == 0) return;
  constexpr std::uint32_t kRed = 255;
  pane.canvas.ForeColor(kRed);
  pane.canvas.DrawStyle(kDotted);
  pane.canvas.DrawWidth(1);
  pane.canvas.DrawMode(kInvertMode);
  const auto box = [&] {
    drawBand(pane, {static_cast<double>(BandX1[at(number)]), static_cast<double>(BandY1[at(number)]),
                    static_cast<double>(pane.BandLastX), static_cast<double>(pane.BandLastY)});
  };
  if (BandState == kOnCanvas) box();
  BandState = kOnCanvas;
  pane.BandLastX = x;
  pane.BandLastY = y;
  box();
}

GraphTools::Band GraphTools::orderBand(int number) {
  const std::size_t n = at(number);
  if (BandX1[n] > BandX2[n]) std::swap(BandX1[n], BandX2[n]);
  if (BandY1[n] > BandY2[n]) std::swap(BandY1[n], BandY2[n]);
  return {static_cast<double>(BandX1[n]), static_cast<double>(BandY1[n]), static_cast<double>(BandX2[n]),
          static_cast<double>(BandY2[n])};
}

void GraphTools::zoom(const Band& band) {
  constexpr double kQuarter = 0.25;
  View& w = host_.window();
  const double xd = w.xRange();
  const double yd = w.yRange();
  const View banded = {band.x1, band.x2, w.Ymin + w.Ymax - band.y2, w.Ymin + w.Ymax - band.y1};
  const double cx = banded.Xmin + banded.xRange() / 2;
  const double cy = banded.Ymin + banded.yRange() / 2;
  const bool isClick = banded.Xmin == banded.Xmax || banded.Ymin == banded.Ymax;
  if (ZoomOutMode != 0) {
    w = {cx - xd, cx + xd, cy - yd, cy + yd};
  } else if (isClick) {
    w = {cx - kQuarter * xd, cx + kQuarter * xd, cy - kQuarter * yd, cy + kQuarter * yd};
  } else {
    w = banded;
  }
}

void GraphTools::moveWindow(double dx, double dy) {
  View& w = host_.window();
  w = {w.Xmin + dx, w.Xmax + dx, w.Ymin + dy, w.Ymax + dy};
}

void GraphTools::GenericMouseUp(GraphPane& pane, int button, float x, float y, int number) {
  (void)button;
  BandX2[at(number)] = x;
  BandY2[at(number)] = y;
  if (PointerMode == 1) pane.readOut.setVisible(false);
  const Band band = orderBand(number);
  if (BandState == kOnCanvas) {
    drawBand(pane, band);
    pane.canvas.DrawMode(kCopyMode);
  }
  View& w = host_.window();
  w = host_.savedWindow(number);
  const double px = static_cast<double>(x);
  const double py = static_cast<double>(y);
  bool changed = true;
  if (BandState > 0) {
    BandArmed = true;
    BandState = 0;
    zoom(band);
  } else if (PanMode == 1) {
    moveWindow(px - (w.Xmin + w.xRange() / 2), w.Ymin + w.yRange() / 2 - py);
  } else if (DragMode == 1) {
    moveWindow(static_cast<double>(DragStartX) - px, py - static_cast<double>(DragStartY));
  } else {
    changed = false;
  }
  // On a notice there is no part of a graph to choose.
  if (changed && host_.isDrawn(number)) host_.savedWindow(number) = w;
  host_.ReDrawGraph(number);
}

}  // namespace kestra
