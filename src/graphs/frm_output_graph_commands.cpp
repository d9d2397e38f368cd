#include "base/runtime_fault.h"
#include "graphs/frm_graph_pp.h"
#include "graphs/frm_output_graph.h"
#include "graphs/frm_update_colors.h"
#include "graphs/frm_update_lines.h"
#include "platform/files.h"
#include "screens/file_choice.h"

namespace kestra {
namespace {

constexpr int kSampleGraph = 14;  // whose picture is that of canvas 0

// The key that moves to a neighbouring graph, and how far.
int stepOf(const Key& key) {
  if (key.name == "PageDown") return 1;
  return key.name == "PageUp" ? -1 : 0;
}

}  // namespace

void frmOutputGraph::joinCanvas(int number, CanvasControl& canvas, GraphPane& pane) {
  canvas.onMouse = [this, &pane, number](const MouseEvent& event) { userMouse(pane, event, number); };
  canvas.onKeyPress = [this, number](const Key& key) { userKey(key, number); };
}

void frmOutputGraph::userMouse(GraphPane& pane, const MouseEvent& event, int number) {
  const auto x = toSingle(event.x);
  const auto y = toSingle(event.y);
  switch (event.type) {
    case MouseEvent::Type::down:
      return tools.GenericMouseDown(pane, event.button, x, y, number);
    case MouseEvent::Type::move:
      return tools.GenericMouseMove(pane, event.button, x, y, number);
    case MouseEvent::Type::up:
      return tools.GenericMouseUp(pane, event.button, x, y, number);
    case MouseEvent::Type::doubleClick:
      return openColors();
  }
}

void frmOutputGraph::userKey(const Key& key, int number) {
  const int step = stepOf(key);
  if (step == 0) return;
  const int next = (number + step + kGraphs) % kGraphs;
  mnuGraph_Click(next);
  Pic1(next).takeFocus();
}

void frmOutputGraph::openColors() {
  host().hide(*this);
  neighbours_.colors.openFrom(name());
}

void frmOutputGraph::joinCommands() {
  GraphTab.onClick = [this](int) { mnuGraph_Click(GraphTab.index()); };
  for (int n = 0; n < kGraphs; ++n) mnuGraph(n).onClick = [this, n] { mnuGraph_Click(n); };
  const struct {
    std::string_view key;
    Menu& menu;
    Button& button;
    void (GraphTools::*command)();
  } commands[] = {{"Frame", mnuFrame, tlbFrame, &GraphTools::mnuFrame_Click},
                  {"ZoomIn", mnuZoomIn, tlbZoomIn, &GraphTools::mnuZoomIn_Click},
                  {"ZoomOut", mnuZoomOut, tlbZoomOut, &GraphTools::mnuZoomOut_Click},
                  {"Drag", mnuDrag, tlbDrag, &GraphTools::mnuDrag_Click},
                  {"Pan", mnuPan, tlbPan, &GraphTools::mnuPan_Click},
                  {"Pointer", mnuPointer, tlbPointer, &GraphTools::mnuPointer_Click}};
  for (const auto& each : commands) {
    each.menu.onClick = [this, command = each.command] { (tools.*command)(); };
    each.button.onClick = [this, key = each.key] { tools.toolbarClick(key); };
  }
  tools.onTool = [this] {
    const std::pair<std::string_view, Menu*> menus[] = {{"ZoomIn", &mnuZoomIn},
                                                        {"ZoomOut", &mnuZoomOut},
                                                        {"Drag", &mnuDrag},
                                                        {"Pan", &mnuPan},
                                                        {"Pointer", &mnuPointer}};
    for (const auto& [key, menu] : menus) menu->setChecked(key == tools.tool());
  };
  mnuPrint.onClick = [this] { print(); };
  mnuPrintPreview.onClick = [this] {
    neighbours_.preview.showGraph(std::string(graphEntry(shown_).title), pictured().log());
  };
  mnuCopyToClipboard.onClick = [this] { copy(); };
  mnuSaveAs.onClick = [this] { saveAs(); };
  mnuExportData.onClick = [this] { exportData(); };
  mnuUpdateColors.onClick = [this] { openColors(); };
  mnuUpdateLines.onClick = [this] {
    host().hide(*this);
    neighbours_.lines.openFrom(name());
  };
  mnuExit.onClick = [this] { host().unload(*this); };
}

CanvasControl& frmOutputGraph::pictured() {
  return Pic1(shown_ == kSampleGraph ? 0 : shown_);
}

void frmOutputGraph::print() {
  printPictures(context_, {&pictured().log()}, pictureSizeOf(*this), "Unable to print graph, check printer.");
}

void frmOutputGraph::copy() {
  copyPicture(context_, pictured().log(), pictureSizeOf(*this));
}

void frmOutputGraph::saveAs() {
  const auto path =
      chooseFile(context_.base.ports,
                 {FileDialog::Kind::save, "Save As", "All Files (*.*)|*.*|Bitmap Files (*.bmp)|*.bmp", 2, {}, false});
  if (!path || path->empty()) return;
  savePicture(context_, *path, PictureForm::bmp, pictured().log(), pictureSizeOf(*this));
}

void frmOutputGraph::exportData() {
  const auto path =
      chooseFile(context_.base.ports,
                 {FileDialog::Kind::save, "Export Data", "All Files (*.*)|*.*|CSV Files (*.csv)|*.csv", 2, {}, false});
  if (!path || path->empty()) return;
  const auto csv = csvOf(shown_);
  if (!csv) return tellFailure(context_, {FailureKind::other, {}, noticeOf(graphEntry(shown_))});
  const Status written = writeWholeFile(context_.base.ports.files, *path, *csv);
  if (!written) tellFailure(context_, written.failure());
}

}  // namespace kestra
