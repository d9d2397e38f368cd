#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graphics/canvas_log.h"

namespace kestra {

// A table to be printed: its cells row by row, the first row being headings, the first column names.
struct PageTable {
  std::string_view title;
  int columns = 0;
  const std::vector<std::string>& cells;
};

// Draws a table on pages whose texts are measured by `metrics`. Headings stand on top of each page. Columns that find no
// room on a page go to further pages, behind the names again.
std::vector<CanvasLog> tablePages(const PageTable& table, const TextMetrics& metrics);

}  // namespace kestra
