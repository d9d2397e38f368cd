#include "hydraulics/pool_march.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/pool_step.h"
#include "hydraulics/roots.h"
#include "hydraulics/units.h"

namespace kestra {
namespace {

constexpr double kPoolError = 0.001;     // ft, of a step
constexpr double kOutflowError = 0.001;  // of the outflow, or of the scale of outflows
constexpr double kShortestStep = 1e-4;   // h, taken whatever its error
constexpr double kSameElevation = 1e-7;  // ft, at which a crest counts as reached
constexpr double kEasy = 1.0 / 8;        // of the errors allowed, below which the next step is doubled
constexpr double kSliver = 1e-6;         // of a step, too little to be left for one of its own
constexpr double kRichardson = 3.0;      // a second-order step and its halves differ by three errors of the halves

}  // namespace

PoolMarch::PoolMarch(const RoutingInput& input)
    : input_(input), crests_(input.outlets.crests()), nextHours_(input.rowHours * input.stepShare) {
  const double most = std::ranges::max(input.inflow.y());
  outflowScale_ = std::max(0.01 * most, 0.1);
}

PoolState PoolMarch::start() const {
  const double hours = input_.inflow.x().front();
  const DamErosion erosion(input_.erosion);
  const OutletFlows flows = input_.outlets.flows(input_.startPool, erosion);
  return {hours, input_.startPool, flows, erosion};
}

double PoolMarch::poolAt(const PoolState& from, double hours, const DamErosion& atEnd) const {
  const double seconds = hours * kSecondsPerHour;
  const double wanted = inflow(from.hours) + inflow(from.hours + hours) - from.flows.total() +
                        2 * input_.storage.volume(from.pool) / seconds;
  const auto outflow = [&](double pool) { return input_.outlets.flows(pool, atEnd).total(); };
  return solvePool(input_.storage, outflow, wanted, seconds, from.pool);
}

bool PoolMarch::overDam(const PoolState& a, const PoolState& b) const {
  const bool wet = std::max(a.pool, b.pool) > input_.outlets.crest.lowest();
  return wet || a.erosion.breachWidth() > 0 || a.erosion.row().unitDischarge > 0;
}

DamErosion PoolMarch::eroded(const PoolState& from, double hours, double pool, const OutletFlows& flows) const {
  const CrestOverflow& crest = input_.outlets.crest;
  ErosionStep step;
  step.timeHours = from.hours;
  step.dtHours = hours;
  step.pool = 0.5 * (from.pool + pool);
  step.tailwater = 0.5 * (from.flows.tailwater + flows.tailwater);
  step.head = 0.5 * (std::max(0.0, from.pool - crest.lowest()) + std::max(0.0, pool - crest.lowest()));
  step.unitDischarge = 0.5 * (crest.unitDischarge(from.pool) + crest.unitDischarge(pool));
  DamErosion erosion = from.erosion;
  erosion.advance(step);
  return erosion;
}

PoolState PoolMarch::stateAt(const PoolState& from, double hours, double pool, const DamErosion& erosion) const {
  PoolState to{from.hours + hours, pool, input_.outlets.flows(pool, erosion), erosion};
  // At the floor no more runs out than comes in.
  const double outflow = to.flows.total();
  if (pool <= input_.storage.lowest() && outflow > inflow(to.hours)) to.flows.scale(inflow(to.hours) / outflow);
  const double half = 0.5 * hours * kSecondsPerHour;
  to.in = from.in + half * (inflow(from.hours) + inflow(to.hours));
  to.out = from.out + half * (from.flows.total() + to.flows.total());
  to.overCrest = from.overCrest + half * (from.flows.crest + to.flows.crest);
  to.throughBreach = from.throughBreach + half * (from.flows.breach + to.flows.breach);
  return to;
}

// Where the dam erodes: the pool as if it did not, the erosion under that water, and the pool of the eroded dam. All of
// the second order in the length of the step, and the volumes agree to the last digit.
PoolState PoolMarch::leap(const PoolState& from, double hours) const {
  const PoolState to = stateAt(from, hours, poolAt(from, hours, from.erosion), from.erosion);
  if (!overDam(from, to)) return to;
  const DamErosion erosion = eroded(from, hours, to.pool, to.flows);
  const double pool = erosion.breachWidth() > 0 ? poolAt(from, hours, erosion) : to.pool;
  return stateAt(from, hours, pool, erosion);
}

PoolState PoolMarch::twoHalves(const PoolState& from, double hours) const {
  PoolState to = leap(leap(from, 0.5 * hours), 0.5 * hours);
  to.hours = from.hours + hours;
  return to;
}

std::optional<PoolState> PoolMarch::accurate(const PoolState& from, double hours) {
  ++steps_;
  const PoolState whole = leap(from, hours);
  PoolState halves = twoHalves(from, hours);
  const double outflow = std::max(halves.flows.total(), outflowScale_);
  const double error =
      std::max(std::fabs(whole.pool - halves.pool) / (kRichardson * kPoolError),
               std::fabs(whole.flows.total() - halves.flows.total()) / (kRichardson * kOutflowError * outflow));
  const double allowed = std::pow(input_.stepShare, 3);  // the error of a step goes with the cube of its length
  const bool shortest = hours <= kShortestStep * input_.stepShare;
  if (error > allowed && !shortest) {
    nextHours_ = 0.5 * hours;
    return std::nullopt;
  }
  nextHours_ = error < kEasy * allowed ? std::max(nextHours_, 2 * hours) : hours;
  return halves;
}

// The moment at which the pool stands at the first crest that it would cross, found by the length of the step.
PoolState PoolMarch::cutAtCrest(const PoolState& from, PoolState to) const {
  const bool rises = to.pool > from.pool;
  const double low = std::min(from.pool, to.pool) + kSameElevation;
  const double high = std::max(from.pool, to.pool) - kSameElevation;
  const auto first = std::ranges::lower_bound(crests_, low);
  if (first == crests_.end() || *first >= high) return to;
  const double crest = rises ? *first : *(std::ranges::lower_bound(crests_, high) - 1);
  const auto beyond = [&](double hours) {
    if (hours > 0) to = twoHalves(from, hours);
    const double above = (hours > 0 ? to.pool : from.pool) - crest;
    if (std::fabs(above) <= kSameElevation) return 0.0;
    return rises ? above : -above;
  };
  const double longest = to.hours - from.hours;
  solveIncreasing(beyond, 0.0, longest, 1e-12 * longest);
  return to;
}

PoolState PoolMarch::step(const PoolState& from, double limit) {
  const double most = limit - from.hours;
  double hours = std::min({nextHours_, input_.rowHours * input_.stepShare, most});
  if (overDam(from, from)) hours = std::min(hours, from.erosion.suggestedStepHours() * input_.stepShare);
  if (most - hours < kSliver * hours) hours = most;
  std::optional<PoolState> to = accurate(from, hours);
  while (!to) to = accurate(from, hours = nextHours_);
  PoolState end = cutAtCrest(from, *to);
  if (limit - end.hours < kSliver * hours) end.hours = limit;
  return end;
}

}  // namespace kestra
