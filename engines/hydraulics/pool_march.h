#pragma once

#include "hydraulics/dam_routing.h"

namespace kestra {

// The reservoir at one moment.
struct PoolState {
  double hours = 0;
  double pool = 0;
  OutletFlows flows;
  DamErosion erosion;
  // What has run since the start, ft^3: in, out, over the crest, through the breach.
  double in = 0;
  double out = 0;
  double overCrest = 0;
  double throughBreach = 0;
};

// Takes the reservoir of a routing from moment to moment.
class PoolMarch {
 public:
  explicit PoolMarch(const RoutingInput& input);

  PoolState start() const;

  // One accepted step from `from` towards `limit` (h, later), as long as accuracy allows. It ends at a crest that the
  // pool would cross.
  PoolState step(const PoolState& from, double limit);

  // Whether water runs over the dam in one of two moments, or has run until the first, so that it may wear it.
  bool overDam(const PoolState& a, const PoolState& b) const;
  double inflow(double hours) const { return input_.inflow.at(hours); }
  long steps() const { return steps_; }  // tried, accepted or not

 private:
  // The erosion of a step from the water at its beginning and end.
  DamErosion eroded(const PoolState& from, double hours, double pool, const OutletFlows& flows) const;
  PoolState leap(const PoolState& from, double hours) const;
  PoolState twoHalves(const PoolState& from, double hours) const;
  PoolState stateAt(const PoolState& from, double hours, double pool, const DamErosion& erosion) const;
  double poolAt(const PoolState& from, double hours, const DamErosion& atEnd) const;
  // The step's end by two halves, where it agrees with the step in one; nothing where it does not.
  std::optional<PoolState> accurate(const PoolState& from, double hours);
  PoolState cutAtCrest(const PoolState& from, PoolState to) const;

  const RoutingInput& input_;
  std::vector<double> crests_;
  double outflowScale_;  // cfs below which outflows count by their difference
  double nextHours_;
  long steps_ = 0;
};

}  // namespace kestra
