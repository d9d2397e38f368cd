#pragma once

#include "graphics/graph_sheet.h"
#include "platform/memory_file_system.h"
#include "platform/scripted.h"
#include "support/canvas_calls.h"

namespace kestra {

// A canvas that remembers, and a sheet with colours that tell what they are of: ColorList(i) is 100 + i.
struct SheetDesk {
  using Lines = std::vector<std::string>;

  View window;
  ScaleMemo memo;
  SeriesStore series;
  LineSettings lines;
  RecordingCanvas canvas;
  MemoryFileSystem files;
  GraphSheet sheet{window, memo, series, lines};

  SheetDesk() {
    for (std::size_t i = 0; i < lines.ColorList.size(); ++i) {
      lines.ColorList[i] = 100 + static_cast<std::uint32_t>(i);
    }
    lines.WidthList.fill(2);
    lines.WidthList[3] = 4;
    lines.ComboList[3] = 1;
  }

  Lines calls(const std::string& name = {}) const { return callsOf(canvas, name); }
};

}  // namespace kestra
