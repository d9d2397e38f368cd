#include "kestrasim/build_outlets.h"

#include <fmt/format.h>

#include <algorithm>

#include "kestrasim/given_or.h"

namespace kestra {
namespace {

constexpr double kRoughness = 0.03;  // Manning's n of a spillway about which nothing is told
constexpr double kFoot = 0.01;       // ft below a rating's first discharge at which it counts as dry
constexpr double kLeastHead = 1.0;   // ft above its crest to which a spillway is rated in any case

std::vector<CoverReach> reachesOf(const AuxiliaryRecord& spillway, const Place& place, RunMessages& messages) {
  std::vector<CoverReach> reaches;
  for (const ReachRow& row : spillway.reaches) {
    if (!row.begin || !row.end || !row.retardance) {
      messages.warning({"ASSURFACE", row.line}, "a station or the retardance is missing", "the row is left out");
      continue;
    }
    reaches.push_back({*row.begin, *row.end, *row.retardance});
  }
  if (reaches.empty()) {
    messages.warning(place, "no reach tells the roughness",
                     fmt::format("a Manning's n of {} is taken", shown(kRoughness)));
    reaches.push_back({-1e9, 1e9, kRoughness});
  }
  return reaches;
}

RatingCurve rateProfile(const AuxiliaryRecord& record, int number, double top, RunMessages& messages) {
  const Place place{"ASSURFACE", record.line};
  const auto refuse = [&](const std::string& what) {
    messages.error(place, what, "the spillway discharges nothing");
    return RatingCurve();
  };
  if (record.profile.size() < 2) {
    return refuse(fmt::format("auxiliary spillway {} has no run with its ASSPRFL profile behind the main run", number));
  }
  if (record.bottomWidth.value_or(0) <= 0 && record.sideSlope.value_or(0) <= 0) {
    return refuse("neither a bottom width nor a side slope is given");
  }
  EarthSpillway spillway;
  spillway.section.bottom = givenOr(record.bottomWidth, 0, "bottom width", place, messages);
  spillway.section.sideSlope = givenOr(record.sideSlope, 0, "side slope", place, messages);
  for (const TablePoint& point : record.profile) spillway.profile.push_back({point.first, point.second});
  spillway.reaches = reachesOf(record, place, messages);
  return rateSpillway(spillway, std::max(top, levelCrest(spillway).elevation + kLeastHead));
}

}  // namespace

RatingCurve buildRating(const std::vector<TablePoint>& rows, const Place& place, RunMessages& messages) {
  if (rows.size() < 2) {
    messages.error(place, "a rating has fewer than two rows", "it discharges nothing");
    return {};
  }
  std::vector<double> elevations;
  std::vector<double> discharges;
  if (rows.front().second > 0) {
    messages.warning({place.record, rows.front().line}, "the first discharge of a rating is above 0",
                     "it is dry 0.01 ft below");
    elevations.push_back(rows.front().first - kFoot);
    discharges.push_back(0);
  }
  for (const TablePoint& row : rows) {
    double discharge = row.second;
    if (!discharges.empty() && discharge < discharges.back()) {
      messages.warning({place.record, row.line}, fmt::format("the discharge {} falls", shown(discharge)),
                       fmt::format("{} is taken", shown(discharges.back())));
      discharge = discharges.back();
    }
    elevations.push_back(row.first);
    discharges.push_back(discharge);
  }
  return {std::move(elevations), std::move(discharges), RatingCurve::Shape::straight};
}

RatingCurve buildAuxiliary(const AuxiliaryRecord& spillway, int number, double top, RunMessages& messages) {
  if (spillway.byProfile) return rateProfile(spillway, number, top, messages);
  return buildRating(spillway.rating, {"ASRATING", spillway.line}, messages);
}

LinearTable buildTailwater(const DamModel& dam, double base, RunMessages& messages) {
  std::vector<double> outflows;
  std::vector<double> elevations;
  for (const TablePoint& row : dam.tailwater) {
    double elevation = row.first;
    if (!outflows.empty() && row.second <= outflows.back()) {
      messages.warning({"TAILWATER", row.line}, fmt::format("the outflow {} does not rise", shown(row.second)),
                       "the row is left out");
      continue;
    }
    if (!elevations.empty() && elevation < elevations.back()) {
      messages.warning({"TAILWATER", row.line}, fmt::format("the elevation {} falls", shown(elevation)),
                       fmt::format("{} is taken", shown(elevations.back())));
      elevation = elevations.back();
    }
    outflows.push_back(row.second);
    elevations.push_back(elevation);
  }
  if (!outflows.empty()) {
    if (outflows.front() > 0) {
      messages.warning({"TAILWATER", dam.tailwater.front().line},
                       fmt::format("the first outflow {} is above 0", shown(outflows.front())),
                       "its elevation counts below it");
    }
    return {std::move(outflows), std::move(elevations)};
  }
  messages.warning({"TAILWATER", dam.tailwaterLine}, "no tailwater is given", "it is taken at the base of the dam");
  return {{0.0}, {base}};
}

}  // namespace kestra
