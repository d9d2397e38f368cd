#pragma once

#include "graphics/line_settings.h"
#include "graphics/scaling.h"
#include "graphics/series_store.h"

namespace kestra {

// What the engine draws with: the working window of a graph screen, the scale memo of the graph, its series, and the
// user's colours and lines.
struct GraphSheet {
  View& window;
  ScaleMemo& memo;
  const SeriesStore& series;
  const LineSettings& lines;

  std::uint32_t background() const { return lines.ColorList[0]; }
  std::uint32_t foreground() const { return lines.ColorList[1]; }
};

}  // namespace kestra
