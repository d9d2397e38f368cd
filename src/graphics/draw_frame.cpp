#include "graphics/draw_frame.h"

#include <cmath>

#include "base/lines.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr int kMostTicks = 1000;

// Calls `tick` for each tick of an axis; also when a step is too small to move its number.
template <class Tick>
void forTicks(double from, double to, double step, const Tick& tick) {
  double at = from;
  for (int i = 0; i < kMostTicks && at <= to; ++i) {
    tick(at);
    if (!(at + step > at)) return;
    at += step;
  }
}

void printAt(AbstractCanvas& canvas, double x, double y, std::string_view text) {
  canvas.moveTo(x, y);
  canvas.Print(text);
}

// The line of a control file that names the project; empty when it has none.
std::string projectLine(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  while (lines.next(line)) {
    if (trim(charsFrom(line, 0, 6)) == "KESTRA") return std::string(line);
  }
  return {};
}

std::string identifierText(const std::string& line) {
  constexpr std::size_t kBefore = 20;
  constexpr std::size_t kWidth = 50;
  if (charCount(line) <= kBefore) return "NO PROJECT ID";
  return "PROJECT ID = " + std::string(trim(charsFrom(line, kBefore, kWidth)));
}

}  // namespace

std::string cutNumber(double value) {
  return decimalNumber(std::trunc(value * 100) / 100);
}

void setGraphScale(const GraphSheet& sheet, AbstractCanvas& canvas) {
  const View& w = sheet.window;
  const double xd = w.xRange();
  const double yd = w.yRange();
  const double right = sheet.series.SeriesCount < 2 ? xd / 10 : xd / 5;
  canvas.Scale(w.Xmin - 1.2 * xd / 5, w.Ymin - yd / 9.5, w.Xmax + right, w.Ymax + 1.8 * yd / 5);
}

void DrawFrame(const GraphSheet& sheet, AbstractCanvas& canvas) {
  const View& w = sheet.window;
  setGraphScale(sheet, canvas);
  canvas.DrawMode(kCopyMode);
  canvas.DrawWidth(1);
  canvas.ForeColor(sheet.foreground());
  canvas.Line(w.Xmin, w.Ymin, w.Xmin, w.Ymax);
  canvas.LineTo(w.Xmax, w.Ymax);
  canvas.Line(w.Xmin, w.Ymin, w.Xmax, w.Ymin);
  canvas.LineTo(w.Xmax, w.Ymax);
}

Steps DrawAxis(const GraphSheet& sheet, AbstractCanvas& canvas) {
  const Steps steps = Scaling(sheet.window, sheet.memo);
  DrawFrame(sheet, canvas);
  return steps;
}

void DrawTic(const GraphSheet& sheet, const Steps& steps, AbstractCanvas& canvas) {
  const View& w = sheet.window;
  const double xd = w.xRange();
  const double yd = w.yRange();
  canvas.DrawStyle(kSolid);
  canvas.ForeColor(sheet.foreground());
  forTicks(w.Ymin, w.Ymax, steps.YStep, [&](double y) {
    const double c = w.flipped(y);
    canvas.Line(w.Xmin - xd / 100, c, w.Xmin + xd / 100, c);
    printAt(canvas, w.Xmin - xd / 8, c - yd / 50, cutNumber(y));
  });
  forTicks(w.Xmin, w.Xmax, steps.XStep, [&](double x) {
    canvas.Line(x, w.Ymax - yd / 100, x, w.Ymax + yd / 100);
    printAt(canvas, x - xd / 30, w.Ymax + yd / 50, cutNumber(x));
  });
}

void DrawLabel(const GraphSheet& sheet, AbstractCanvas& canvas, std::string_view xLabel, std::string_view yLabel) {
  canvas.DrawStyle(kSolid);
  const double width = std::nearbyint(canvas.ScaleWidth());
  const double height = canvas.ScaleHeight();
  const double left = canvas.ScaleLeft();
  const double top = canvas.ScaleTop();
  canvas.moveTo(left + 0.45 * width, top + 0.815 * height);
  canvas.ForeColor(sheet.foreground());
  canvas.Print(xLabel);

  const std::size_t open = yLabel.rfind('(');
  const std::string_view word = yLabel.substr(0, open);
  const std::string_view unit = open == std::string_view::npos ? std::string_view() : yLabel.substr(open);
  const auto row = [&](std::size_t i) { return top + height * 0.01 * (100 + 4 * static_cast<double>(i) - 85); };
  const std::size_t letters = charCount(word);
  for (std::size_t i = 0; i < letters; ++i) printAt(canvas, left + width * 0.02, row(i), trim(charsFrom(word, i, 1)));
  printAt(canvas, left + width * 0.013, row(letters + 1), trim(unit));
  canvas.ForeColor(sheet.lines.ColorList[3]);
}

void DrawGraphTitle(const GraphSheet& sheet, AbstractCanvas& canvas, std::string_view title) {
  constexpr double kTitleSize = 16;
  const bool lower = title == "Headcut Advance Graph Not Available" || title == kNoHeadcut;
  canvas.Scale(0, 0, 100, lower ? 50 : 100);
  canvas.ForeColor(sheet.background());
  const double size = canvas.state().fontSize;
  const bool bold = canvas.state().fontBold;
  canvas.FontSize(kTitleSize);
  canvas.FontBold(false);
  canvas.PSet((100 - canvas.TextWidth(title)) / 2, 7 - canvas.TextHeight(title));
  canvas.ForeColor(sheet.foreground());
  canvas.Print(title);
  canvas.FontSize(size);
  canvas.FontBold(bold);
}

void DrawGraphFooter(const GraphSheet& sheet, AbstractCanvas& canvas, FileSystem& files, const std::string& controlFile,
                     std::string_view note) {
  std::string line;
  if (!controlFile.empty()) {
    const Result<std::string> text = files.read(controlFile, kReadLimit);
    if (!text) return;
    line = projectLine(text.value());
  }
  const std::string identifier = identifierText(line);
  constexpr double kMiddle = 40;
  constexpr double kUsualLength = 13;
  canvas.Scale(0, 0, 100, 200);
  canvas.ForeColor(sheet.foreground());
  printAt(canvas, kMiddle - (static_cast<double>(charCount(identifier)) - kUsualLength) / 2, 177,
          "FILE = " + std::string(ParsePathName(controlFile)) + ",  " + identifier);
  if (!note.empty()) printAt(canvas, 39, 188, note);
}

}  // namespace kestra
