#pragma once

#include <functional>
#include <optional>
#include <string>

#include "controls/canvas_control.h"
#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "graphics/summary_plot.h"
#include "summary/summary_context.h"
#include "summary/summary_table.h"

namespace kestra {

// A value of the entries by its position, from 1. Behind the 25th a dam's fields and an instance's share their places;
// with a level only the entries of its kind have the value.
struct PlotField {
  int position = 0;  // 0: none
  std::optional<SummaryLevel> level;

  static PlotField of(SummaryLevel level, int field) {
    return {(level == SummaryLevel::instance ? static_cast<int>(kInstanceOffset) : 0) + field, level};
  }
  std::string title(const FieldCatalogues& catalogues) const;
  std::optional<double> valueIn(const ShownRow& row) const;  // nothing where the entry has no number there
};

// Two fields of all rows of the summary table against each other, as points or joined by a line.
class frmSummaryGraphics : public Screen {
 public:
  explicit frmSummaryGraphics(SummaryContext& context);

  CanvasControl picScatter{*this, "picScatter"};
  CanvasControl picLine{*this, "picLine"};
  Button cmdAlt{*this, "cmdAlt", "&Line Graph"};
  Button cmdSel{*this, "cmdSel", "&Selections"};
  Button cmdCancel{*this, "cmdCancel", "&Cancel"};
  Button cmdHelp{*this, "cmdHelp", "&Help"};
  Menu mnuSaveAs{*this, "mnuSaveAs", "Save &As..."};
  Menu mnuPrintPreview{*this, "mnuPrintPreview", "Print Pre&view"};
  Menu mnuPrint{*this, "mnuPrint", "&Print..."};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  Menu mnuCopyToClipboard{*this, "mnuCopyToClipboard", "&Copy"};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};

  // Shows the screen and draws. Where no row has both values this is told in a box.
  void ShowScreen(PlotField xField, PlotField yField, bool isLineGraph);
  void RedrawMe();
  void Form_Resize(int width, int height);
  void forgetGraph();  // "Summary Graphics [ No Data ]"

  // Widens an axis. One that cannot be scaled, for want of a range, stays as it is.
  static AxisScale Scaling(double low, double high);

  int xField() const { return xField_.position; }
  int yField() const { return yField_.position; }
  bool isLineGraph() const { return isLineGraph_; }
  bool graphShown() const { return graphShown_; }

  std::function<const ShownRows&()> rows;  // those of the summary table; set where the screens are joined
  std::function<void()> onSelections;      // the user wants to choose other fields

 protected:
  void load() override;
  void unload() override;

 private:
  CanvasControl& picture() { return isLineGraph_ ? picLine : picScatter; }
  void clear();
  void draw();
  void change();
  void saveAs();
  SummaryPlot plot() const;
  std::string drawnTitle() const;

  SummaryContext& context_;
  PlotField xField_;
  PlotField yField_;
  bool isLineGraph_ = false;
  bool graphShown_ = false;
};

}  // namespace kestra
