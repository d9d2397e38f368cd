#pragma once

#include <string>

#include "controls/canvas_control.h"
#include "controls/simple_controls.h"
#include "graphs/graph_context.h"

namespace kestra {

// A list of colours on a canvas, a row each: a press selects a row, a double click picks another colour for it, which
// is kept at once. Leaving it leads back to the graph screen that has opened it.
class LegendScreen : public GraphScreen {
 public:
  LegendScreen(GraphContext& context, const std::string& name, const std::string& title, int firstRow, int lastRow);

  CanvasControl LegendPic{*this, "LegendPic"};
  Menu mnuExit{*this, "mnuExit", "E&xit"};

  void openFrom(const std::string& screenName);
  int selectedRow() const { return selected_; }
  void redrawShown() override { drawLegend(); }

 protected:
  static constexpr double kWidth = 100;  // of the canvas's window; a row is 1 high

  void activate() override { drawLegend(); }
  void unload() override;
  virtual void drawRow(int row, double top) = 0;
  virtual void drawHeader() {}
  virtual double headerHeight() const { return 0; }
  void drawSample(std::uint32_t color, double left, double top);
  void printAt(double x, double y, const std::string& text);
  void tell(const Status& kept);

  GraphContext& context_;

 private:
  void drawLegend();
  void selectAt(double y);
  void pickColor();
  void leave();

  int first_;
  int last_;
  int selected_;
  std::string returnTo_;
};

}  // namespace kestra
