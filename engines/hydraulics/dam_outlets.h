#pragma once

#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "hydraulics/crest_overflow.h"
#include "hydraulics/dam_erosion.h"
#include "hydraulics/linear_table.h"
#include "hydraulics/principal_spillway.h"
#include "hydraulics/rating_curve.h"

// All ways out of a reservoir: principal spillway, auxiliary spillways, the crest of the dam, its breach.
namespace kestra {

struct DropInletSpillway {
  DropInlet inlet;
  Conduits conduits;
};

struct HoodSpillway {
  HoodInlet inlet;
  Conduits conduits;
};

// None, a rating, or conduits. A rating takes no notice of the tailwater.
using PrincipalSpillway = std::variant<std::monostate, RatingCurve, DropInletSpillway, HoodSpillway>;

double principalDischarge(const PrincipalSpillway& spillway, double pool, double tailwater);

// Where its flow begins; nothing without a principal spillway.
std::optional<double> principalCrest(const PrincipalSpillway& spillway);

inline constexpr std::size_t kAuxiliarySpillways = 3;

struct OutletFlows {
  double principal = 0;  // all cfs
  std::array<double, kAuxiliarySpillways> auxiliary{};
  double crest = 0;  // over what stands of the crest
  double breach = 0;
  double tailwater = 0;  // elevation, ft

  double overDam() const { return crest + breach; }
  void scale(double factor);
  double total() const { return principal + auxiliary[0] + auxiliary[1] + auxiliary[2] + crest + breach; }
};

struct DamOutlets {
  PrincipalSpillway principal;
  std::array<RatingCurve, kAuxiliarySpillways> auxiliary;
  CrestOverflow crest;
  LinearTable tailwater;  // elevation by total outflow, neither falling; empty for a valley that never fills

  // At a tailwater that is given.
  OutletFlows flowsAt(double pool, double givenTailwater, const DamErosion& erosion) const;

  // With the tailwater that these flows themselves make: Q = sum of Q_i(pool, z(Q)), which has one solution, since the
  // discharges fall and the tailwater rises with the other.
  OutletFlows flows(double pool, const DamErosion& erosion) const;

  double tailwaterOf(double outflow) const;

  // Elevations at which an outlet begins to run, rising: the routing does not step across them.
  std::vector<double> crests() const;

  // The lowest of these but for the dam's own crest; that one without any spillway.
  double lowestSpillwayCrest() const;

 private:
  double lowestThatFeelsTailwater(const DamErosion& erosion) const;
};

}  // namespace kestra
