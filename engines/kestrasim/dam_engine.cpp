#include "kestrasim/dam_engine.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <variant>

#include "kestrasim/dam_report.h"
#include "kestrasim/given_or.h"
#include "kestrasim/history_files.h"
#include "kestrasim/read_dam.h"

namespace kestra {
namespace {

constexpr double kBalance = 1e-3;  // of the inflow, from which a difference of the volumes is told

void tellRouting(const DamModel& dam, const RoutingResult& result, RunMessages& messages) {
  const Place structure{"STRUCTURE", dam.structure.line};
  const auto at = [](const std::optional<double>& hours) { return fmt::format("at {} hours", shown(*hours)); };
  if (result.leftStorageTable) {
    messages.warning(structure, "the pool rose above the storage table " + at(result.leftStorageTable),
                     "the last area goes on above it");
  }
  if (result.ranDry) {
    messages.warning(structure, "the pool came down to the lowest row " + at(result.ranDry), "it stays there");
  }
  if (result.leftTailwaterTable) {
    messages.warning({"TAILWATER", dam.tailwaterLine},
                     "the outflow rose beyond the table " + at(result.leftTailwaterTable), "the last elevation stays");
  }
  if (result.balanceError() > kBalance) {
    messages.warning({}, fmt::format("the volumes differ by {} of the inflow", shown(result.balanceError())),
                     "a shorter time increment will help");
  }
  if (result.end == RoutingEnd::rowLimit) {
    messages.warning({}, "the routing table is full", "the routing ends there");
  }
  if (result.end == RoutingEnd::stepLimit) {
    messages.error({}, "the routing takes too many steps", "it ends where the table ends");
  }
}

void tellRatings(const DamModel& dam, const DamRun& run, const RoutingResult& result, RunMessages& messages) {
  const auto* const principal = std::get_if<RatingCurve>(&run.routing.outlets.principal);
  if (principal != nullptr && !principal->empty() && result.pool.value > principal->highest()) {
    messages.warning({"STRUCTURE", dam.structure.line}, "the pool rose above the discharges of the principal spillway",
                     "the last two are carried on");
  }
  for (std::size_t i = 0; i < kAuxiliarySpillways; ++i) {
    const RatingCurve& rating = run.routing.outlets.auxiliary[i];
    if (rating.empty() || result.pool.value <= rating.highest()) continue;
    const AuxiliaryRecord& spillway = *dam.auxiliary[i];
    messages.warning({spillway.byProfile ? "ASSURFACE" : "ASRATING", spillway.line},
                     fmt::format("the pool rose above the rating of auxiliary spillway {}", i + 1),
                     "its last two rows are carried on");
  }
}

// What a proof by half steps bears: the limits within which a routing counts as converged.
HalvedSteps routeByHalves(const RoutingInput& routing, const RoutingResult& result, RunMessages& messages) {
  constexpr double kPool = 0.01;    // ft
  constexpr double kOutflow = 0.5;  // percent
  RoutingInput halves = routing;
  halves.stepShare = 0.5;
  const RoutingResult again = routeDam(halves);
  const HalvedSteps halved{again.pool.value - result.pool.value,
                           100 * (again.outflow.value - result.outflow.value) / std::max(result.outflow.value, 1e-6)};
  if (again.end == RoutingEnd::stepLimit && result.end != RoutingEnd::stepLimit) {
    messages.warning({}, "the routing by half steps takes too many steps", "it is compared as far as it came");
  }
  if (std::fabs(halved.poolChange) > kPool || std::fabs(halved.outflowPercent) > kOutflow) {
    messages.warning({}, "half the steps change the peaks by more than 0.01 ft or 0.5 percent",
                     "a shorter time increment will help");
  }
  return halved;
}

}  // namespace

DamFiles runDam(std::string_view controlText, StepCheck check) {
  RunMessages messages;
  const std::vector<ControlRun> runs = readControlRecords(controlText);
  const DamModel dam = readDam(runs, messages);
  const std::optional<DamRun> run = buildRun(dam, messages);
  DamFiles files;
  if (!run) {
    files.report = damReport({runs, dam, messages});
    return files;
  }
  const RoutingResult result = routeDam(run->routing);
  tellRouting(dam, result, messages);
  tellRatings(dam, *run, result, messages);
  std::optional<HalvedSteps> halved;
  if (check == StepCheck::halved) halved = routeByHalves(run->routing, result, messages);
  files.report = damReport({runs, dam, messages, &*run, &result, halved});
  if (!run->routing.erosion.breach) return files;
  files.headcut = headcutHistory(result);
  if (result.overtoppingBegins) files.breach = breachHistory(result, run->routing.outlets.crest.lowest());
  return files;
}

}  // namespace kestra
