#include "graphs/frm_update_colors.h"

namespace kestra {

frmUpdateColors::frmUpdateColors(GraphContext& context)
    : LegendScreen(context, "frmUpdateColors", "Update Colors", 0,
                   static_cast<int>(context.lines.ColorList.size()) - 1) {}

void frmUpdateColors::drawRow(int row, double top) {
  constexpr double kSampleLeft = 2;
  constexpr double kTextLeft = 16;
  const std::string number = "(" + std::to_string(row) + ")";
  drawSample(context_.lines.ColorList[static_cast<std::size_t>(row)], kSampleLeft, top);
  printAt(kTextLeft, top, (row == 0 ? " Background " : row == 1 ? " Foreground " : " Color ") + number);
}

}  // namespace kestra
