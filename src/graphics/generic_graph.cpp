#include "graphics/generic_graph.h"

#include "graphics/draw_frame.h"

namespace kestra {

bool FindMinMax(const std::vector<GenericPoint>& table, std::string_view caption, bool bandActive, View& window) {
  if (table.empty()) return false;
  const auto& [x, y] = table.front();
  View found = {x, x, y, y};
  for (std::size_t i = 1; i < table.size() && i < kGenericRows; ++i) found.include(table[i].x, table[i].y);
  if (caption == "Hydrograph" && !bandActive) {
    const double xMargin = 0.1 * found.xRange();
    const double yMargin = 0.1 * found.yRange();
    found = {found.Xmin - xMargin, found.Xmax + xMargin, found.Ymin - yMargin, found.Ymax + yMargin};
  }
  window = found;
  return true;
}

void DrawGenericGraph(const GraphSheet& sheet, const GenericGraph& graph, AbstractCanvas& canvas) {
  const View kept = sheet.window;
  if (kept.Xmax == kept.Xmin || kept.Ymax == kept.Ymin) {
    if (!FindMinMax(graph.table, graph.caption, graph.bandActive, sheet.window)) return;
  }
  if (kept.Xmin != 0 || kept.Xmax != 0) sheet.window = kept;
  canvas.AutoRedraw(true);
  canvas.Cls();
  canvas.Visible(true);
  canvas.BackColor(sheet.background());
  Scaling(sheet.window, sheet.memo);
  const Steps steps = DrawAxis(sheet, canvas);
  DrawTic(sheet, steps, canvas);
  canvas.DrawWidth(1);
  DrawLabel(sheet, canvas, "X Label", "Y Label");
  if (graph.plot) graph.plot(canvas);
  setGraphScale(sheet, canvas);
}

}  // namespace kestra
