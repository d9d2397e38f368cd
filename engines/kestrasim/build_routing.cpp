#include "kestrasim/build_routing.h"

#include <fmt/format.h>

#include <algorithm>

#include "kestrasim/build_erosion.h"
#include "kestrasim/build_outlets.h"
#include "kestrasim/given_or.h"

namespace kestra {
namespace {

constexpr double kRowsOfVariable = 200;  // of a hydrograph of variable step that names no increment
constexpr double kHighestRows = 10000;   // of the routing of the flood itself
constexpr double kTopMargin = 10;        // ft above all tables to which ratings are computed
constexpr double kCrestWidth = 10;       // ft
constexpr double kCoefficient = 2.8;     // ft^0.5/s; in the middle of what is found for dams, 2.6 to 3.1
constexpr double kRoughness = 0.03;
constexpr double kUnfinishedFlood = 0.1;  // of its peak

std::optional<LinearTable> buildInflow(const HydrographRecord& hydrograph, RunMessages& messages) {
  const Place place{"HYD", hydrograph.line};
  if (hydrograph.points.size() < 2) {
    messages.error(place, "the hydrograph has fewer than two values", "nothing is routed");
    return std::nullopt;
  }
  std::vector<double> hours;
  std::vector<double> flows;
  double most = 0;
  hours.reserve(hydrograph.points.size());
  flows.reserve(hydrograph.points.size());
  for (const TablePoint& point : hydrograph.points) {
    hours.push_back(point.first);
    flows.push_back(point.second);
    most = std::max(most, point.second);
  }
  if (flows.back() > std::max(1.0, kUnfinishedFlood * most)) {
    messages.warning({"HYD", hydrograph.points.back().line},
                     fmt::format("the hydrograph ends with {} cfs", shown(flows.back())),
                     "where the routing goes on behind it, this inflow stays");
  }
  return LinearTable(std::move(hours), std::move(flows));
}

double rowHours(const HydrographRecord& hydrograph, RunMessages& messages) {
  const double length = hydrograph.points.back().first - hydrograph.points.front().first;
  const double given = hydrograph.step.value_or(0);
  const double spacing = given > 0 ? given : length / kRowsOfVariable;
  if (given <= 0) {
    messages.warning({"HYD", hydrograph.line}, "there is no time increment above 0",
                     fmt::format("a row stands every {} h", shown(spacing)));
  }
  if (length / spacing <= kHighestRows) return spacing;
  messages.warning({"HYD", hydrograph.line}, "the time increment makes too many rows",
                   fmt::format("a row stands every {} h", shown(length / kHighestRows)));
  return length / kHighestRows;
}

std::optional<CrestOverflow> buildCrest(const DamModel& dam, double highestHead, RunMessages& messages) {
  const auto& profile = dam.crestProfile;
  if (profile.size() < 2 || profile.back().first <= profile.front().first) {
    messages.error({"CRESTPRFL", dam.crestLine}, "the crest has no two points apart", "nothing is routed");
    return std::nullopt;
  }
  std::vector<CrestPoint> points;
  for (const TablePoint& point : profile) points.push_back({point.first, point.second});
  const Place place{"DAMCREST", dam.crest.line};
  if (dam.options.overflow == OverflowModel::coefficient) {
    const double coefficient = givenOr(dam.crest.coefficient, kCoefficient, "discharge coefficient", place, messages);
    return CrestOverflow(std::move(points), UnitDischarge::fromCoefficient(coefficient));
  }
  CrestSurface surface;
  surface.width = givenOr(dam.crest.width, kCrestWidth, "crest width", place, messages);
  surface.roughness = givenOr(dam.crest.retardance, kRoughness, "retardance of the crest", place, messages);
  surface.upstreamSlope = dam.upstream.slope.value_or(kFaceSlope);  // told where the section is built
  surface.upstreamRoughness = givenOr(dam.upstream.retardance, surface.roughness, "retardance of the upstream face",
                                      {"UPSTREAM", dam.upstream.line}, messages);
  return CrestOverflow(std::move(points), UnitDischarge::fromSurface(surface, highestHead));
}

// The pool that passes the outflow of the start.
double poolOfStart(const DamModel& dam, const DamRun& run, RunMessages& messages) {
  const Place place{"STROUTE", dam.start.line};
  const RoutingInput& routing = run.routing;
  const double outflow = std::max(0.0, *dam.start.start);
  if (*dam.start.start < 0) {
    messages.warning(place, fmt::format("the outflow {} of the start is below 0", shown(*dam.start.start)),
                     "0 is taken");
  }
  const double top = routing.storage.highest();
  const double pool = poolOfOutflow(routing.outlets, routing.storage, outflow);
  const DamErosion whole(routing.erosion);
  if (pool >= top && routing.outlets.flows(top, whole).total() < outflow) {
    messages.warning(place,
                     fmt::format("the outlets pass no {} cfs below the top of the storage table", shown(outflow)),
                     fmt::format("the pool of {} is taken", shown(top)));
  }
  return pool;
}

double startPool(const DamModel& dam, const DamRun& run, RunMessages& messages) {
  const Place place{"STROUTE", dam.start.line};
  const StageStorage& storage = run.routing.storage;
  double pool = 0;
  if (dam.start.byOutflow && dam.start.start) {
    pool = poolOfStart(dam, run, messages);
  } else {
    pool = givenOr(dam.start.start, run.routing.outlets.lowestSpillwayCrest(), "start of the routing", place, messages);
  }
  if (pool < storage.lowest()) {
    messages.warning(place, fmt::format("the start {} is below the storage table", shown(pool)),
                     fmt::format("{} is taken", shown(storage.lowest())));
    pool = storage.lowest();
  }
  if (pool > storage.highest()) {
    messages.warning(place, fmt::format("the start {} is above the storage table", shown(pool)),
                     "the last area goes on above it");
  }
  return pool;
}

std::optional<DrawdownRequest> buildDrawdown(const DamModel& dam, const DamOutlets& outlets, RunMessages& messages) {
  constexpr double kEvacuated = 85;  // percent
  constexpr double kTenDays = 240;   // h
  const DamOptions& options = dam.options;
  if (options.analysis != Analysis::drawdown) return std::nullopt;
  const Place place{"OPTION", options.line};
  DrawdownRequest request;
  request.hours = givenOr(options.drawdownHours, kTenDays, "drawdown time", place, messages);
  if (options.drawdownPercent) {
    request.evacuatedPercent = givenOr(options.drawdownLevel, kEvacuated, "drawdown percent", place, messages);
  } else {
    request.elevation =
        givenOr(options.drawdownLevel, outlets.lowestSpillwayCrest(), "drawdown elevation", place, messages);
  }
  return request;
}

}  // namespace

std::optional<DamRun> buildRun(const DamModel& dam, RunMessages& messages) {
  const std::optional<LinearTable> inflow = buildInflow(dam.hydrograph, messages);
  std::optional<ReservoirTable> reservoir = buildStorage(dam.structure, messages);
  if (!reservoir) return std::nullopt;
  double top = reservoir->storage.highest();
  for (const TablePoint& point : dam.crestProfile) top = std::max(top, point.second);
  double low = top;
  for (const TablePoint& point : dam.crestProfile) low = std::min(low, point.second);
  std::optional<CrestOverflow> crest = buildCrest(dam, top - low + kTopMargin, messages);
  if (!inflow || !crest) return std::nullopt;
  if (low <= reservoir->storage.lowest()) {
    messages.error({"CRESTPRFL", dam.crestLine},
                   fmt::format("the crest at {} is not above the floor of the reservoir at {}", shown(low),
                               shown(reservoir->storage.lowest())),
                   "nothing is routed");
    return std::nullopt;
  }

  DamRun run;
  run.highestCrest = std::ranges::max(dam.crestProfile, {}, &TablePoint::second).second;
  const double base =
      givenOr(dam.start.damBase, reservoir->storage.lowest(), "base of the dam", {"STROUTE", dam.start.line}, messages);
  DamOutlets& outlets = run.routing.outlets;
  outlets.principal = buildPrincipal(dam, messages);
  for (std::size_t i = 0; i < kAuxiliarySpillways; ++i) {
    if (!dam.auxiliary[i]) continue;
    outlets.auxiliary[i] = buildAuxiliary(*dam.auxiliary[i], static_cast<int>(i) + 1, top + kTopMargin, messages);
  }
  outlets.crest = std::move(*crest);
  outlets.tailwater = buildTailwater(dam, base, messages);
  run.routing.storage = reservoir->storage;
  run.routing.inflow = *inflow;
  run.routing.rowHours = rowHours(dam.hydrograph, messages);
  run.routing.erosion = buildErosion(dam, outlets.crest, base, messages);
  run.routing.drawdown = buildDrawdown(dam, outlets, messages);
  run.routing.startPool = startPool(dam, run, messages);
  run.reservoir = std::move(*reservoir);
  return run;
}

}  // namespace kestra
