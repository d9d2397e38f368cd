#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "controls/canvas_control.h"
#include "controls/text_box.h"
#include "graphics/scaling.h"
#include "graphs/graph_context.h"

namespace kestra {

// The box that shows the values at a point of a graph while the mouse is pressed.
class ReadOut : public TextBox {
 public:
  ReadOut(Screen& screen, std::string name) : TextBox(screen, std::move(name)) { setVisible(false); }

  void place(double left, double top, std::uint32_t color) {
    left_ = left;
    top_ = top;
    color_ = color;
  }
  double left() const { return left_; }  // in units of the canvas
  double top() const { return top_; }
  std::uint32_t color() const { return color_; }

 private:
  double left_ = 0;
  double top_ = 0;
  std::uint32_t color_ = 0;
};

// A canvas with its read-out box, and the corner of the rubber band that was drawn on it last.
struct GraphPane {
  CanvasControl& canvas;
  ReadOut& readOut;
  float BandLastX = 0;
  float BandLastY = 0;
};

// A graph screen as its tools see it.
class GraphToolHost {
 public:
  virtual ~GraphToolHost() = default;
  virtual View& window() = 0;                 // the working window
  virtual View& savedWindow(int number) = 0;  // of a graph
  virtual int shownGraph() const = 0;
  virtual void ReDrawGraph(int number) = 0;
  virtual void SetMouse(int image) = 0;  // shape of the mouse over the canvases; 0 the normal one
  // Text of the read-out at a place of a canvas, in its units.
  virtual std::string readOutText(int number, double x, double y) = 0;
};

inline constexpr int kLeftButton = 1;

// The tools of a graph screen: return to the whole graph, zoom by a rubber band, drag, pan, read a point. All places
// are in units of the canvas.
class GraphTools {
 public:
  static constexpr int kMostGraphs = 23;

  GraphTools(GraphContext& context, GraphToolHost& host) : context_(context), host_(host) {}

  void mnuFrame_Click();
  void mnuZoomIn_Click();
  void mnuZoomOut_Click();
  void mnuDrag_Click();
  void mnuPan_Click();
  void mnuPointer_Click();
  void opened();   // the state when a screen opens: ready to zoom in
  void refresh();  // the mouse's shape, and `onTool`, by the present state
  // Runs the command of a toolbar key ("ZoomIn"); nothing for a key without one.
  void toolbarClick(std::string_view key);

  void GenericMouseDown(GraphPane& pane, int button, float x, float y, int number);
  void GenericMouseMove(GraphPane& pane, int button, float x, float y, int number);
  void GenericMouseUp(GraphPane& pane, int button, float x, float y, int number);

  bool BandArmed = true;
  std::int16_t BandState = 0;  // 0 none, 1 pressed, 2 on the canvas
  std::int16_t ZoomOutMode = 0;
  std::int16_t PanMode = 0;
  std::int16_t DragMode = 0;
  std::int16_t PointerMode = 0;
  float DragStartX = 0;
  float DragStartY = 0;
  std::array<float, kMostGraphs> BandX1{};
  std::array<float, kMostGraphs> BandY1{};
  std::array<float, kMostGraphs> BandX2{};
  std::array<float, kMostGraphs> BandY2{};

  // The key of the tool in use; empty for none.
  std::string_view tool() const;
  std::function<void()> onTool;

 private:
  struct Band;
  void use(bool bandArmed, int zoomOut, int drag, int pan, int pointer);
  void drawBand(GraphPane& pane, const Band& band);
  Band orderBand(int number);
  void zoom(const Band& band);
  void moveWindow(double dx, double dy);

  GraphContext& context_;
  GraphToolHost& host_;
};

}  // namespace kestra
