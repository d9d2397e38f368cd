#include "graphs/legend_screen.h"

#include <cmath>

namespace kestra {

LegendScreen::LegendScreen(GraphContext& context, const std::string& name, const std::string& title, int firstRow,
                           int lastRow)
    : GraphScreen(name, title), context_(context), first_(firstRow), last_(lastRow), selected_(firstRow) {
  LegendPic.onMouse = [this](const MouseEvent& event) {
    const bool twice = event.type == MouseEvent::Type::doubleClick;
    if (!twice && event.type != MouseEvent::Type::down) return;
    selectAt(event.y);
    if (twice) pickColor();
  };
  mnuExit.onClick = [this] { leave(); };
}

void LegendScreen::openFrom(const std::string& screenName) {
  returnTo_ = screenName;
  host().show(*this);
}

void LegendScreen::unload() {
  selected_ = first_;
}

void LegendScreen::leave() {
  const std::string back = std::exchange(returnTo_, {});
  host().unload(*this);
  Screen* screen = host().find(back);
  if (screen == nullptr) return;
  host().show(*screen);
  if (auto* graph = dynamic_cast<GraphScreen*>(screen)) graph->redrawShown();
}

void LegendScreen::selectAt(double y) {
  const double row = std::floor(y - headerHeight());
  if (!(row >= 0 && row <= last_ - first_)) return;
  selected_ = first_ + static_cast<int>(row);
  drawLegend();
}

void LegendScreen::pickColor() {
  const std::uint32_t start = context_.lines.ColorList[static_cast<std::size_t>(selected_)];
  const auto color = PickColor(context_.base.ports.dialogs, start);
  if (!color) return;
  tell(context_.lines.setColor(context_.base.ports.settings, selected_, *color));
  drawLegend();
}

void LegendScreen::tell(const Status& kept) {
  if (kept) return;
  const Failure& failure = kept.failure();
  context_.base.ports.boxes.tell("Error Message", failure.path + ": " + failure.reason, BoxIcon::critical);
}

void LegendScreen::drawLegend() {
  LegendPic.Cls();
  LegendPic.Scale(0, 0, kWidth, headerHeight() + last_ - first_ + 1);
  LegendPic.DrawStyle(kSolid);
  LegendPic.DrawWidth(1);
  drawHeader();
  for (int row = first_; row <= last_; ++row) {
    const double top = headerHeight() + row - first_;
    drawRow(row, top);
    if (row == selected_) LegendPic.Box(0, top, kWidth, top + 1);
  }
}

void LegendScreen::drawSample(std::uint32_t color, double left, double top) {
  constexpr double kMargin = 0.15;
  constexpr double kSample = 12;
  LegendPic.ForeColor(color);
  LegendPic.FilledBox(left, top + kMargin, left + kSample, top + 1 - kMargin);
  LegendPic.ForeColor(0);
}

void LegendScreen::printAt(double x, double y, const std::string& text) {
  LegendPic.moveTo(x, y);
  LegendPic.Print(text);
}

}  // namespace kestra
