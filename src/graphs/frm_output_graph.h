#pragma once

#include <array>
#include <functional>
#include <string>

#include "controls/control_array.h"
#include "controls/ranges.h"
#include "controls/simple_controls.h"
#include "graphics/graph_sheet.h"
#include "graphs/graph_catalogue.h"
#include "graphs/graph_tools.h"

namespace kestra {

class frmGraphPP;
class frmUpdateColors;
class frmUpdateLines;

// The screens that the output graphs lead to.
struct GraphNeighbours {
  frmGraphPP& preview;
  frmUpdateColors& colors;
  frmUpdateLines& lines;
};

// The graphs of a run: 22 of them, each on a canvas of its own on a tab. They are read from the run's files anew each
// time they are drawn; only the windows are kept.
class frmOutputGraph : public GraphScreen, public GraphToolHost {
 public:
  frmOutputGraph(GraphContext& context, const GraphNeighbours& neighbours);

  Tabs GraphTab;
  ControlArray<CanvasControl> Pic1{*this, "Pic1", 0, kGraphs};
  ControlArray<CanvasControl> Pic1A{*this, "Pic1A", kHeadcutGraph, 1};
  ControlArray<ReadOut> txtLabel{*this, "txtLabel", 0, kGraphs};
  ControlArray<ReadOut> txtLabelA{*this, "txtLabelA", kHeadcutGraph, 1};
  ControlArray<Menu> mnuGraph{*this, "mnuGraph", 0, kGraphs};
  Menu mnuFrame{*this, "mnuFrame", "&Frame"};
  Menu mnuZoomIn{*this, "mnuZoomIn", "Zoom &In"};
  Menu mnuZoomOut{*this, "mnuZoomOut", "Zoom &Out"};
  Menu mnuDrag{*this, "mnuDrag", "&Drag"};
  Menu mnuPan{*this, "mnuPan", "&Pan"};
  Menu mnuPointer{*this, "mnuPointer", "Poin&ter"};
  Button tlbFrame{*this, "Toolbar1(Frame)", "Frame"};
  Button tlbZoomIn{*this, "Toolbar1(ZoomIn)", "Zoom In"};
  Button tlbZoomOut{*this, "Toolbar1(ZoomOut)", "Zoom Out"};
  Button tlbDrag{*this, "Toolbar1(Drag)", "Drag"};
  Button tlbPan{*this, "Toolbar1(Pan)", "Pan"};
  Button tlbPointer{*this, "Toolbar1(Pointer)", "Pointer"};
  Menu mnuPrint{*this, "mnuPrint", "&Print..."};
  Menu mnuPrintPreview{*this, "mnuPrintPreview", "Print Pre&view"};
  Menu mnuCopyToClipboard{*this, "mnuCopyToClipboard", "&Copy"};
  Menu mnuSaveAs{*this, "mnuSaveAs", "Save &As..."};
  Menu mnuExportData{*this, "mnuExportData", "&Export Data..."};
  Menu mnuUpdateColors{*this, "mnuUpdateColors", "&Colors..."};
  Menu mnuUpdateLines{*this, "mnuUpdateLines", "&Lines..."};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};

  // Shows the graphs of the run of a control file, all of them whole: graph 0, or for a spillway analysis the first of
  // the spillway graphs.
  void OpenFile(const std::string& path, bool spillwayAnalysis = false);
  // Takes over the open control file where none was chosen before, names it in the caption, and draws the shown graph
  // anew. Graphs that were shown whole will be so again, whatever a run has changed; a part that the user chose stays.
  void GetGraphToOpen();
  void followInput();  // tells in the caption whether the input has changed since the run
  void forgetFile();   // shows no run: "Graphics [ Untitled ]"

  void mnuGraph_Click(int number);
  void ReDrawGraph(int number) override;  // with the window that was saved; a RuntimeFault outside 0 to 21
  void Form_Resize(int width, int height) override;
  void redrawShown() override { ReDrawGraph(shown_); }
  // Rounds a window with the memo of the shown graph and makes it the working one. Says so in a box when it cannot be
  // done; the steps are then 0.
  Steps Scaling(const View& window);

  // Reads the series of a graph without drawing it: its CSV text, or nothing when it cannot be drawn.
  std::optional<std::string> csvOf(int number);
  bool isDrawn(int number) const override { return drawn_[at(number)]; }  // or its canvas shows a notice
  const std::string& notice(int number) const { return notices_[at(number)]; }

  View& window() override { return window_; }
  const View& workingWindow() const { return window_; }
  View& savedWindow(int number) override { return saved_[at(number)]; }
  const std::array<View, GraphTools::kMostGraphs>& savedWindows() const { return saved_; }
  const std::array<View, GraphTools::kMostGraphs>& resumedWindows() const { return resume_; }
  int shownGraph() const override { return shown_; }
  const std::string& controlFile() const { return controlFile_; }
  const SeriesStore& series() const { return series_; }
  void SetMouse(int image) override;
  std::string readOutText(int number, double x, double y) override;

  GraphTools tools;

 protected:
  void load() override;
  void unload() override;

 private:
  static std::size_t at(int number) { return static_cast<std::size_t>(number); }
  void joinCanvas(int number, CanvasControl& canvas, GraphPane& pane);
  void joinCommands();
  void userMouse(GraphPane& pane, const MouseEvent& event, int number);
  void userKey(const Key& key, int number);
  void select(int number);
  std::string caption() const;
  void openColors();

  GraphSheet sheet(int number);
  void draw(int number, int column);
  Reading read(int number, int column, View& extents);
  void drawNotice(int number, const std::string& notice);
  void drawSeries(int number);

  CanvasControl& pictured();  // the canvas whose picture is taken
  void print();
  void copy();
  void saveAs();
  void exportData();

  GraphContext& context_;
  GraphNeighbours neighbours_;
  std::string controlFile_;
  int shown_ = 0;
  SeriesStore series_;
  View window_;
  std::array<View, GraphTools::kMostGraphs> saved_{};
  std::array<View, GraphTools::kMostGraphs> resume_{};
  std::array<View, GraphTools::kMostGraphs> whole_{};  // the window in which a graph was last shown whole
  std::array<ScaleMemo, kGraphs> memos_{};
  std::array<bool, kGraphs> drawn_{};
  std::array<std::string, kGraphs> notices_{};
  std::vector<GraphPane> panes_;   // of Pic1, in its order
  std::vector<GraphPane> panesA_;  // of Pic1A
};

}  // namespace kestra
