#include "automation/graph_values.h"

namespace kestra {
namespace {

using Reader = std::function<Json(const Application&)>;

const frmOutputGraph& graphsOf(const Application& application) {
  return application.shell.graphs.output;
}

Reader ofWindow(double View::*end) {
  return [end](const Application& a) -> Json { return graphsOf(a).workingWindow().*end; };
}

using Windows = std::array<View, GraphTools::kMostGraphs>;

Reader ofWindows(const Windows& (frmOutputGraph::*windows)() const, double View::*end) {
  return [windows, end](const Application& a) {
    Json list = Json::array();
    for (const View& window : (graphsOf(a).*windows)()) list.push_back(window.*end);
    return list;
  };
}

template <class Member>
Reader ofTools(Member member) {
  return [member](const Application& a) -> Json { return graphsOf(a).tools.*member; };
}

// A value of each of the 8 series of a graph.
template <class Value>
Reader ofSeries(const Value& value) {
  return [value](const Application& a) {
    constexpr int kNamed = 8;
    Json list = Json::array();
    for (int i = 0; i < kNamed; ++i) list.push_back(value(graphsOf(a).series()(i)));
    return list;
  };
}

}  // namespace

std::map<std::string, Reader> graphVariables() {
  using Graphs = frmOutputGraph;
  return {
      {"Xmin", ofWindow(&View::Xmin)},
      {"Xmax", ofWindow(&View::Xmax)},
      {"Ymin", ofWindow(&View::Ymin)},
      {"Ymax", ofWindow(&View::Ymax)},
      {"SavedXmin", ofWindows(&Graphs::savedWindows, &View::Xmin)},
      {"SavedXmax", ofWindows(&Graphs::savedWindows, &View::Xmax)},
      {"SavedYmin", ofWindows(&Graphs::savedWindows, &View::Ymin)},
      {"SavedYmax", ofWindows(&Graphs::savedWindows, &View::Ymax)},
      {"ResumeXmin", ofWindows(&Graphs::resumedWindows, &View::Xmin)},
      {"ResumeXmax", ofWindows(&Graphs::resumedWindows, &View::Xmax)},
      {"ResumeYmin", ofWindows(&Graphs::resumedWindows, &View::Ymin)},
      {"ResumeYmax", ofWindows(&Graphs::resumedWindows, &View::Ymax)},
      {"BandArmed", ofTools(&GraphTools::BandArmed)},
      {"BandState", ofTools(&GraphTools::BandState)},
      {"ZoomOutMode", ofTools(&GraphTools::ZoomOutMode)},
      {"PanMode", ofTools(&GraphTools::PanMode)},
      {"DragMode", ofTools(&GraphTools::DragMode)},
      {"PointerMode", ofTools(&GraphTools::PointerMode)},
      {"DragStartX", ofTools(&GraphTools::DragStartX)},
      {"DragStartY", ofTools(&GraphTools::DragStartY)},
      {"BandX1", ofTools(&GraphTools::BandX1)},
      {"BandY1", ofTools(&GraphTools::BandY1)},
      {"BandX2", ofTools(&GraphTools::BandX2)},
      {"BandY2", ofTools(&GraphTools::BandY2)},
      {"SeriesCount", [](const Application& a) -> Json { return graphsOf(a).series().SeriesCount; }},
      {"PointCount", ofSeries([](const Series& series) { return series.PointCount(); })},
      {"SeriesName", ofSeries([](const Series& series) { return series.SeriesName; })},
      {"PlotX", ofSeries([](const Series& series) { return series.PlotX; })},
      {"PlotY", ofSeries([](const Series& series) { return series.PlotY; })},
  };
}

}  // namespace kestra
