#pragma once

#include <array>
#include <string>
#include <string_view>

#include "graphs/graph_reader.h"

namespace kestra {

inline constexpr int kGraphs = 22;
inline constexpr int kSpillwayGraph = 12;      // where the graphs of a spillway analysis begin
inline constexpr int kLowTailwaterGraph = 10;  // whose footer has a note
inline constexpr int kHeadcutGraph = 17;       // which has a second canvas

// One of the output graphs.
struct GraphEntry {
  std::string_view title;
  std::string_view xLabel;
  std::string_view yLabel;
  GraphReader read = nullptr;  // null: not drawn from a run of the dam, its notice stands in its place
  int column = 0;              // for the reader, when the graph is drawn again
  int menuColumn = 0;          // when it is reached by the menu
  std::string_view caption;    // of its tab, where that is not the title
  std::string_view notice;     // when it cannot be drawn, where that is not made from the title
};

const std::array<GraphEntry, kGraphs>& graphCatalogue();
const GraphEntry& graphEntry(int number);  // a RuntimeFault outside 0 to 21
std::string_view tabCaption(const GraphEntry& entry);
std::string noticeOf(const GraphEntry& entry);  // "Dam Graph Not Available"

}  // namespace kestra
