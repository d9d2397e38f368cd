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

Reader ofSavedWindows(double View::*end) {
  return [end](const Application& a) {
    Json list = Json::array();
    for (const View& window : graphsOf(a).savedWindows()) list.push_back(window.*end);
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
  return {
      {"Xmin", ofWindow(&View::Xmin)},
      {"Xmax", ofWindow(&View::Xmax)},
      {"Ymin", ofWindow(&View::Ymin)},
      {"Ymax", ofWindow(&View::Ymax)},
      {"SavedXmin", ofSavedWindows(&View::Xmin)},
      {"SavedXmax", ofSavedWindows(&View::Xmax)},
      {"SavedYmin", ofSavedWindows(&View::Ymin)},
      {"SavedYmax", ofSavedWindows(&View::Ymax)},
      {"BandArmed", ofTools(&GraphTools::BandArmed)},
      {"BandState", ofTools(&GraphTools::BandState)},
      {"ZoomOutMode", ofTools(&GraphTools::ZoomOutMode)},
      {"PanMode", ofTools(&GraphTools::PanMode)},
      {"DragMode", ofTools(&GraphTools::DragMode)},
      {"PointerMode", ofTools(&GraphTools::PointerMode)},
      {"SeriesCount", [](const Application& a) -> Json { return graphsOf(a).series().SeriesCount; }},
      {"PointCount", ofSeries([](const Series& series) { return series.PointCount(); })},
      {"SeriesName", ofSeries([](const Series& series) { return series.SeriesName; })},
      {"PlotX", ofSeries([](const Series& series) { return series.PlotX; })},
      {"PlotY", ofSeries([](const Series& series) { return series.PlotY; })},
  };
}

}  // namespace kestra
