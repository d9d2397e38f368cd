#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "graphics/canvas.h"
#include "graphics/graph_sheet.h"

// A graph of a plain table of two columns.
namespace kestra {

struct GenericPoint {
  double x = 0;
  double y = 0;
};
inline constexpr int kGenericRows = 102;  // rows 0 to 101

// Sets the window to the extents of the table's rows, row 0 being the start; on a screen with the caption "Hydrograph",
// while no rubber band is active, a tenth of the range wider at each end. False when the table has no rows.
bool FindMinMax(const std::vector<GenericPoint>& table, std::string_view caption, bool bandActive, View& window);

// What a generic graph needs besides the sheet.
struct GenericGraph {
  const std::vector<GenericPoint>& table;
  std::string_view caption;                   // of its screen
  bool bandActive = false;                    // a rubber band is being drawn
  std::function<void(AbstractCanvas&)> plot;  // the screen's own drawing; may be empty
};

// The whole drawing. A window without width or height is fitted to the table, but one that had an X end other than 0 is
// kept. Draws nothing when there is nothing to fit to; a ScalingFault goes through.
void DrawGenericGraph(const GraphSheet& sheet, const GenericGraph& graph, AbstractCanvas& canvas);

}  // namespace kestra
