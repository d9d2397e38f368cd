#include "graphs/graph_catalogue.h"

#include "base/runtime_fault.h"

namespace kestra {

// Graph 1 shows another column by the menu than when it is drawn again: the discharge over the dam first, its water
// surface from the first zoom on.
const std::array<GraphEntry, kGraphs>& graphCatalogue() {
  constexpr std::string_view kHydrograph = "Hydrograph Graph Not Available";
  static constexpr std::array<GraphEntry, kGraphs> kCatalogue = {{
      {"Hydrographs", "Time (hrs)", "Discharge (cfs)", DrawHydrographs, 0, 0, {}, kHydrograph},
      {"Maximum Overtopping Head", "Time (hr)", "Head (ft)", DrawHeadGraph, 8, 6, {}, {}},
      {"Reservoir Water Surface", "Time (hr)", "Elevation (ft) ", DrawHydrograph, 9, 9, {}, {}},
      {"Dam Crest Profile", "Station (ft)", "Elevation (ft) ", DrawProfileGraph, 0, 0, {}, {}},
      {"Overtopping Stress", "Time (hr)", "% of Allowable", DrawStressGraph, 0, 0, {}, {}},
      {"Dam", "Station (ft)", "Elevation (ft)", DrawDamGraph, 1, 1, "Dam Cross-Section", {}},
      {"Reservoir Surface Area", "Area (acres)", "Elevation (ft)", DrawStructureGraph, 4, 4, {}, {}},
      {"Reservoir Storage Volume", "Volume (acre ft.)", "Elevation (ft)", DrawStructureGraph, 3, 3, {}, {}},
      {"Principal Spillway Rating", "Discharge (cfs)", "Elevation (ft)", DrawRatingGraph, 2, 2, {}, {}},
      {"Auxiliary Spillway Ratings", "Discharge (cfs)", "Elevation (ft)", DrawAuxRatingGraph, 0, 0, {}, {}},
      {"Discharge Ratings", "Discharge (cfs)", "Elevation (ft)", DrawAllRatingGraph, 0, 0, {}, {}},
      {"Max Overtopping/Breach Discharge", "Time (hr)", "Unit Discharge (cfs/ft)", DrawDischargeGraph, 0, 0, {}, {}},
      {"Spillway Geology", "Station (ft)", "Elevation (ft)", nullptr, 0, 0, {}, {}},
      {"Spillway Erosion", "Station (ft)", "Elevation (ft)", nullptr, 0, 0, {}, {}},
      {"Spillway Erosion Samples", "Station (ft)", "Elevation (ft)", nullptr, 0, 0, {}, {}},
      {"Rate Graphs", {}, {}, nullptr, 0, 0, {}, {}},
      {"Threshold Graphs", {}, {}, nullptr, 0, 0, {}, {}},
      {"Headcut Advance", "Station (ft)", "Elevation (ft)", nullptr, 0, 0, {}, {}},
      {"Headcut Position", "Time (hrs)", "Position (ft)", DrawHCTgraph, 3, 3, {}, {}},
      {"Headcut/Breach Width", "Time (hrs)", "Width (ft)", DrawBREgraph, 5, 5, {}, {}},
      {"Tailwater", "Time (hr)", "Elevation (ft) ", DrawHydrograph, 10, 10, {}, {}},
      {"Tailwater Rating", "Discharge (cfs)", "Elevation (ft)", DrawRatingGraph, 8, 8, {}, {}},
  }};
  return kCatalogue;
}

const GraphEntry& graphEntry(int number) {
  if (number < 0 || number >= kGraphs) throw RuntimeFault("there is no graph " + std::to_string(number));
  return graphCatalogue()[static_cast<std::size_t>(number)];
}

std::string_view tabCaption(const GraphEntry& entry) {
  return entry.caption.empty() ? entry.title : entry.caption;
}

std::string noticeOf(const GraphEntry& entry) {
  return entry.notice.empty() ? std::string(entry.title) + " Graph Not Available" : std::string(entry.notice);
}

}  // namespace kestra
