#pragma once

#include <string>

#include "controls/canvas_control.h"
#include "controls/simple_controls.h"
#include "graphs/graph_context.h"

namespace kestra {

// How a graph will look on paper: on the page, and beside it filling the screen.
class frmGraphPP : public Screen {
 public:
  explicit frmGraphPP(GraphContext& context);

  CanvasControl GraphicsPicture{*this, "GraphicsPicture"};
  CanvasControl GraphicsPicture2{*this, "GraphicsPicture2"};
  Menu mnuExit{*this, "mnuExit", "E&xit"};

  // Shows a graph under its name. A fault is told in a box.
  void showGraph(const std::string& graphName, const CanvasLog& drawing);

 private:
  GraphContext& context_;
};

}  // namespace kestra
