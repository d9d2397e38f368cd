#include "summary/frm_summary_graphics.h"

#include "controls/screen_host.h"
#include "screens/file_choice.h"

namespace kestra {
namespace {

constexpr int kSlot = static_cast<int>(WindowSlot::summaryGraphics);
constexpr const char* kNoData = "Summary Graphics [ No Data ]";
constexpr const char* kSaveAs = "Save As...";
constexpr const char* kLineNext = "&Line Graph";

}  // namespace

std::string PlotField::title(const FieldCatalogues& catalogues) const {
  const int ofInstance = position - static_cast<int>(kInstanceOffset);
  const bool namesInstance = ofInstance >= 1 && ofInstance <= static_cast<int>(catalogues.fieldTitles[1].size());
  const bool isDam = level ? *level == SummaryLevel::dam : !namesInstance;
  return isDam ? catalogues.title(SummaryLevel::dam, position) : catalogues.title(SummaryLevel::instance, ofInstance);
}

std::optional<double> PlotField::valueIn(const ShownRow& row) const {
  if (position < 1 || position > static_cast<int>(kEntryPositions)) return std::nullopt;
  if (!level) return numberIn(row.entry.values[static_cast<std::size_t>(position - 1)]);
  const bool ofInstance = *level == SummaryLevel::instance;
  return numberIn(valueOf(row, *level, ofInstance ? position - static_cast<int>(kInstanceOffset) : position));
}

frmSummaryGraphics::frmSummaryGraphics(SummaryContext& context)
    : Screen("frmSummaryGraphics", kNoData), context_(context) {
  constexpr int kWidth = 10320;
  constexpr int kHeight = 6600;
  setSize(kWidth, kHeight);
  picLine.setVisible(false);
  for (Menu& entry : mnuWindowsArray) entry.setVisible(false);
  cmdAlt.onClick = [this] { change(); };
  cmdSel.onClick = [this] {
    if (onSelections) onSelections();
  };
  cmdCancel.onClick = [this] { host().unload(*this); };
  mnuExit.onClick = [this] { host().unload(*this); };
  cmdHelp.onClick = [this] { context_.ports().help.showTopic("html\\SummaryGraphics.htm"); };
  mnuSaveAs.onClick = [this] { saveAs(); };
  mnuPrintPreview.onClick = [this] { context_.runs.showPreview("Summary Graphics", picture().log()); };
  mnuPrint.onClick = [this] {
    printPictures(context_.desk, {&picture().log()}, pictureSizeOf(*this), "Unable to print graph, check printer.");
  };
  mnuCopyToClipboard.onClick = [this] { copyPicture(context_.desk, picture().log(), pictureSizeOf(*this)); };
}

void frmSummaryGraphics::load() {
  context_.state().window(kSlot) = true;
}

void frmSummaryGraphics::unload() {
  forgetGraph();
  context_.state().window(kSlot) = false;
}

void frmSummaryGraphics::forgetGraph() {
  clear();
  xField_ = {};
  yField_ = {};
  isLineGraph_ = false;
  graphShown_ = false;
  setTitle(kNoData);
}

void frmSummaryGraphics::ShowScreen(PlotField xField, PlotField yField, bool isLineGraph) {
  host().show(*this);
  xField_ = xField;
  yField_ = yField;
  isLineGraph_ = isLineGraph;
  if (graphShown_) clear();
  graphShown_ = true;
  draw();
  cmdAlt.setCaption(isLineGraph_ ? "Sca&tter Graph" : kLineNext);
}

void frmSummaryGraphics::RedrawMe() {
  clear();
  if (graphShown_) draw();
}

void frmSummaryGraphics::Form_Resize(int width, int height) {
  setSize(width, height);
  RedrawMe();
}

void frmSummaryGraphics::change() {
  if (!graphShown_) return;
  isLineGraph_ = !isLineGraph_;
  RedrawMe();
  cmdAlt.setCaption(isLineGraph_ ? "&Scatter Graph" : kLineNext);
}

void frmSummaryGraphics::clear() {
  picScatter.Cls();
  picLine.Cls();
}

SummaryPlot frmSummaryGraphics::plot() const {
  SummaryPlot plot;
  plot.isLine = isLineGraph_;
  plot.xLabel = xField_.title(context_.store.catalogues());
  plot.yLabel = yField_.title(context_.store.catalogues());
  for (const ShownRow& row : rows()) {
    const auto x = xField_.valueIn(row);
    const auto y = yField_.valueIn(row);
    if (x && y) plot.points.push_back({*x, *y});
  }
  return plot;
}

std::string frmSummaryGraphics::drawnTitle() const {
  const std::string& file = context_.state().currentFile;
  if (file.empty()) return isLineGraph_ ? "Summary Graphics [ Line Graph ]" : "Summary Graphics [ Scatter Plot ]";
  const std::string kind = isLineGraph_ ? "Line Plot" : "Scatter Plot";
  return "Summary Graphics [ " + kind + " ] ( file: " + file + " )";
}

void frmSummaryGraphics::draw() {
  picScatter.setVisible(!isLineGraph_);
  picLine.setVisible(isLineGraph_);
  try {
    const SummaryPlot drawing = plot();
    if (drawing.points.empty()) throw ScalingFault();
    drawSummaryPlot(drawing, context_.lines, picture());
    setTitle(drawnTitle());
  } catch (const ScalingFault&) {
    clear();
    setTitle(kNoData);
    context_.ports().boxes.tell("Kestra B", "Cannot draw a summary graph", BoxIcon::none);
  }
}

AxisScale frmSummaryGraphics::Scaling(double low, double high) {
  try {
    return scaleAxis(low, high);
  } catch (const ScalingFault&) {
    return {low, high, 0};
  }
}

void frmSummaryGraphics::saveAs() {
  const auto path =
      chooseFile(context_.ports(),
                 {FileDialog::Kind::save, kSaveAs, "All Files (*.*)|*.*|Bitmap Files (*.bmp)|*.bmp", 2, {}, false});
  if (!path || path->empty() || !mayWrite(context_.ports(), *path, kSaveAs)) return;
  savePicture(context_.desk, *path, pictureForm(*path).value_or(PictureForm::bmp), picture().log(),
              pictureSizeOf(*this));
}

}  // namespace kestra
