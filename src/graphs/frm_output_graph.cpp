#include "graphs/frm_output_graph.h"

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "graphics/draw_frame.h"
#include "graphics/draw_series.h"
#include "graphs/series_csv.h"
#include "results/input_digest.h"

namespace kestra {
namespace {

std::vector<std::string> tabCaptions() {
  std::vector<std::string> captions;
  for (const GraphEntry& entry : graphCatalogue()) captions.emplace_back(tabCaption(entry));
  return captions;
}

constexpr int kSlot = static_cast<int>(WindowSlot::outputGraph);
constexpr const char* kUntitled = "Graphics [ Untitled ]";

// Wipes a canvas, on which a rubber band may have been left in the mode that inverts.
void wipe(CanvasControl& canvas, std::uint32_t background) {
  canvas.DrawMode(kCopyMode);
  canvas.BackColor(background);
  canvas.Cls();
}

// Instances of a spillway, .V2D, stand in a directory that is named after their control file.
std::string controlFileOfRun(const std::string& path) {
  constexpr std::string_view kInstance = ".V2D";
  const bool isInstance =
      path.size() > kInstance.size() && equalIgnoringCase(path.substr(path.size() - kInstance.size()), kInstance);
  return isInstance ? std::string(directoryOf(path)) + ".KSC" : path;
}

}  // namespace

frmOutputGraph::frmOutputGraph(GraphContext& context, const GraphNeighbours& neighbours)
    : GraphScreen("frmOutputGraph", kUntitled),
      GraphTab(*this, "GraphTab", tabCaptions()),
      tools(context, *this),
      context_(context),
      neighbours_(neighbours) {
  constexpr int kWidth = 10320;
  constexpr int kHeight = 6600;
  setSize(kWidth, kHeight);
  for (int n = 0; n < kGraphs; ++n) {
    mnuGraph(n).setCaption(std::string(graphEntry(n).title));
    panes_.push_back({Pic1(n), txtLabel(n)});
    Pic1(n).setVisible(n == 0);
  }
  panesA_.push_back({Pic1A(kHeadcutGraph), txtLabelA(kHeadcutGraph)});
  Pic1A(kHeadcutGraph).setVisible(false);
  for (int n = 0; n < kGraphs; ++n) joinCanvas(n, Pic1(n), panes_[at(n)]);
  joinCanvas(kHeadcutGraph, Pic1A(kHeadcutGraph), panesA_[0]);
  for (Menu& entry : mnuWindowsArray) entry.setVisible(false);
  joinCommands();
}

void frmOutputGraph::load() {
  context_.base.state.window(kSlot) = true;
  forgetFile();
  tools.opened();
  GetGraphToOpen();
}

void frmOutputGraph::unload() {
  context_.base.state.window(kSlot) = false;
  forgetFile();
}

void frmOutputGraph::forgetFile() {
  controlFile_.clear();
  saved_ = {};
  resume_ = {};
  whole_ = {};
  memos_ = {};
  drawn_ = {};
  notices_ = {};
  window_ = {};
  series_.begin(0);
  for (CanvasControl& canvas : Pic1) canvas.Cls();
  for (CanvasControl& canvas : Pic1A) canvas.Cls();
  select(0);
  setTitle(kUntitled);
}

void frmOutputGraph::OpenFile(const std::string& path, bool spillwayAnalysis) {
  host().load(*this);
  forgetFile();
  controlFile_ = path;
  select(spillwayAnalysis ? kSpillwayGraph : 0);
  GetGraphToOpen();
  host().show(*this);
}

void frmOutputGraph::GetGraphToOpen() {
  if (controlFile_.empty()) controlFile_ = context_.base.state.currentFile;
  followInput();
  for (std::size_t n = 0; n < saved_.size(); ++n) {
    if (saved_[n] == whole_[n]) saved_[n] = {};
  }
  ReDrawGraph(shown_);
}

void frmOutputGraph::followInput() {
  setTitle(caption());
}

std::string frmOutputGraph::caption() const {
  if (controlFile_.empty()) return kUntitled;
  const std::string text = "Graphics [ " + controlFile_ + " ]";
  const bool changed = context_.inputChanged && context_.inputChanged(controlFileOfRun(controlFile_));
  return changed ? text + " - " + kInputChanged : text;
}

void frmOutputGraph::select(int number) {
  shown_ = number;
  for (int n = 0; n < kGraphs; ++n) Pic1(n).setVisible(n == number);
  Pic1A(kHeadcutGraph).setVisible(number == kHeadcutGraph);
  GraphTab.setIndex(number);
}

void frmOutputGraph::mnuGraph_Click(int number) {
  const GraphEntry& entry = graphEntry(number);
  select(number);
  window_ = saved_[at(number)];
  draw(number, entry.menuColumn);
  tools.refresh();
}

void frmOutputGraph::ReDrawGraph(int number) {
  const GraphEntry& entry = graphEntry(number);
  select(number);
  window_ = saved_[at(number)];
  Pic1(number).Cls();
  draw(number, entry.column);
}

void frmOutputGraph::Form_Resize(int width, int height) {
  setSize(width, height);
  redrawShown();
}

GraphSheet frmOutputGraph::sheet(int number) {
  return {window_, memos_[at(number)], series_, context_.lines};
}

Reading frmOutputGraph::read(int number, int column, View& extents) {
  const GraphEntry& entry = graphEntry(number);
  series_.begin(0);
  if (entry.read == nullptr) return {};
  const RunFiles run(context_.base.ports.files, controlFile_);
  return entry.read({run, column, series_, extents});
}

void frmOutputGraph::drawNotice(int number, const std::string& notice) {
  notices_[at(number)] = notice;
  const auto onCanvas = [&](CanvasControl& canvas) {
    wipe(canvas, context_.lines.ColorList[0]);
    DrawGraphTitle(sheet(number), canvas, notice);
  };
  onCanvas(Pic1(number));
  if (number == kHeadcutGraph) onCanvas(Pic1A(number));
}

void frmOutputGraph::draw(int number, int column) {
  View extents;
  resume_[at(number)] = window_;
  const Reading reading = read(number, column, extents);
  drawn_[at(number)] = reading.outcome == Reading::Outcome::drawn;
  if (!drawn_[at(number)]) {
    const bool noHeadcut = reading.outcome == Reading::Outcome::noHeadcut;
    drawNotice(number, noHeadcut ? std::string(kNoHeadcut) : noticeOf(graphEntry(number)));
    if (reading.outcome == Reading::Outcome::fileError) {
      context_.base.ports.boxes.tell("File Error", reading.reason, BoxIcon::warning);
    }
    return;
  }
  const bool whole = window_.Xmin == 0 && window_.Xmax == 0;
  if (whole) window_ = extents;
  try {
    drawSeries(number);
    saved_[at(number)] = window_;
    if (whole) whole_[at(number)] = window_;
  } catch (const ScalingFault& fault) {
    context_.base.ports.boxes.tell("Warning", fault.what(), BoxIcon::warning);
  }
  window_ = resume_[at(number)];
}

void frmOutputGraph::drawSeries(int number) {
  const GraphEntry& entry = graphEntry(number);
  const GraphSheet on = sheet(number);
  CanvasControl& canvas = Pic1(number);
  canvas.AutoRedraw(true);
  canvas.DrawStyle(kSolid);
  wipe(canvas, on.background());
  canvas.Visible(true);
  DrawGraphTitle(on, canvas, entry.title);
  const Steps steps = DrawAxis(on, canvas);
  DrawTic(on, steps, canvas);
  DrawLabel(on, canvas, entry.xLabel, entry.yLabel);
  DrawSeriesLines(on, canvas);
  DrawGraphFooter(on, canvas, context_.base.ports.files, controlFile_,
                  number == kLowTailwaterGraph ? kLowTailwaterNote : std::string_view());
  setGraphScale(on, canvas);
}

Steps frmOutputGraph::Scaling(const View& window) {
  window_ = window;
  try {
    return kestra::Scaling(window_, memos_[at(shown_)]);
  } catch (const ScalingFault& fault) {
    context_.base.ports.boxes.tell("Warning", fault.what(), BoxIcon::warning);
    return {};
  }
}

std::optional<std::string> frmOutputGraph::csvOf(int number) {
  View extents;
  const GraphEntry& entry = graphEntry(number);
  if (read(number, entry.column, extents).outcome != Reading::Outcome::drawn) return std::nullopt;
  return seriesCsv(series_, entry.xLabel, entry.yLabel);
}

void frmOutputGraph::SetMouse(int image) {
  for (CanvasControl& canvas : Pic1) canvas.setPointer(image);
  for (CanvasControl& canvas : Pic1A) canvas.setPointer(image);
}

std::string frmOutputGraph::readOutText(int number, double x, double y) {
  return "( " + cutNumber(x) + " , " + cutNumber(saved_[at(number)].flipped(y)) + " )";
}

}  // namespace kestra
