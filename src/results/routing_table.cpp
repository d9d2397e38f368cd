#include "results/routing_table.h"

namespace kestra {

bool isRoutingTitle(std::string_view line) {
  return trim(line) == "Hydrograph Routing";
}

bool enterRoutingTable(LineReader& lines) {
  LineReader ahead = lines;
  std::string_view text;
  while (ahead.next(text) && !isRoutingTitle(text)) {
    if (!trim(text).starts_with("(hr)")) continue;
    skipLines(ahead, 1);
    lines = ahead;
    return true;
  }
  return false;
}

}  // namespace kestra
