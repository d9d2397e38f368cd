#include "graphs/frm_update_lines.h"

namespace kestra {
namespace {

constexpr double kColorLeft = 22;
constexpr double kWidthLeft = 38;
constexpr double kLineLeft = 58;
constexpr double kLineRight = 96;

std::size_t at(int row) {
  return static_cast<std::size_t>(row);
}

}  // namespace

frmUpdateLines::frmUpdateLines(GraphContext& context)
    : LegendScreen(context, "frmUpdateLines", "Update Lines", kFirst, kFirst + kCount - 1) {
  for (int row = kFirst; row < kFirst + kCount; ++row) {
    styleCombo(row).setItems({"Solid", "Dash", "Dot", "Dash-Dot", "Dash-Dot-Dot"});
    widthCombo(row).setItems({"1", "2", "3", "4"});
    styleCombo(row).onClick = [this, row] { takeStyle(row); };
    widthCombo(row).onClick = [this, row] { takeWidth(row); };
  }
}

void frmUpdateLines::activate() {
  for (int row = kFirst; row < kFirst + kCount; ++row) {
    styleCombo(row).setIndex(context_.lines.ComboList[at(row)]);
    widthCombo(row).setIndex(context_.lines.WidthList[at(row)] - 1);
  }
  LegendScreen::activate();
}

void frmUpdateLines::takeStyle(int row) {
  tell(context_.lines.setStyle(context_.base.ports.settings, row, styleCombo(row).index()));
  redrawShown();
}

void frmUpdateLines::takeWidth(int row) {
  tell(context_.lines.setWidth(context_.base.ports.settings, row, widthCombo(row).index() + 1));
  redrawShown();
}

void frmUpdateLines::drawHeader() {
  printAt(kColorLeft, 0, "Color");
  printAt(kWidthLeft, 0, " Width");
  printAt(kLineLeft, 0, " Line");
}

void frmUpdateLines::drawRow(int row, double top) {
  constexpr double kMiddle = 0.5;
  printAt(1, top, " Line (" + std::to_string(row) + ")");
  drawSample(context_.lines.ColorList[at(row)], kColorLeft, top);
  printAt(kWidthLeft, top, " " + std::to_string(context_.lines.WidthList[at(row)]));
  LegendPic.ForeColor(context_.lines.ColorList[at(row)]);
  LegendPic.DrawStyle(context_.lines.ComboList[at(row)]);
  LegendPic.DrawWidth(context_.lines.WidthList[at(row)]);
  LegendPic.Line(kLineLeft, top + kMiddle, kLineRight, top + kMiddle);
  LegendPic.ForeColor(0);
  LegendPic.DrawStyle(kSolid);
  LegendPic.DrawWidth(1);
}

}  // namespace kestra
