#include "hydraulics/dam_outlets.h"

#include <algorithm>
#include <limits>

#include "hydraulics/roots.h"
#include "hydraulics/weir_submergence.h"

namespace kestra {
namespace {

constexpr double kNever = std::numeric_limits<double>::max();
constexpr double kRelativeOutflow = 1e-10;  // to which the outflow is found where tailwater and flows depend on another

template <class... Forms>
struct Overloaded : Forms... {
  using Forms::operator()...;
};
template <class... Forms>
Overloaded(Forms...) -> Overloaded<Forms...>;

double outletLevel(const Conduits& conduits) {
  return conduits.outletInvert + kFreeOutletLevel * conduits.section.height;
}

// Tailwater below this changes nothing.
double feelsTailwaterFrom(const PrincipalSpillway& spillway) {
  return std::visit(Overloaded{[](const DropInletSpillway& drop) { return outletLevel(drop.conduits); },
                               [](const HoodSpillway& hood) { return outletLevel(hood.conduits); },
                               [](const auto&) { return kNever; }},
                    spillway);
}

}  // namespace

void OutletFlows::scale(double factor) {
  principal *= factor;
  for (double& discharge : auxiliary) discharge *= factor;
  crest *= factor;
  breach *= factor;
}

double principalDischarge(const PrincipalSpillway& spillway, double pool, double tailwater) {
  return std::visit(
      Overloaded{
          [](std::monostate) { return 0.0; }, [&](const RatingCurve& rating) { return rating.at(pool); },
          [&](const DropInletSpillway& drop) { return dropInletDischarge(drop.inlet, drop.conduits, pool, tailwater); },
          [&](const HoodSpillway& hood) { return hoodDischarge(hood.inlet, hood.conduits, pool, tailwater); }},
      spillway);
}

std::optional<double> principalCrest(const PrincipalSpillway& spillway) {
  using Crest = std::optional<double>;
  return std::visit(
      Overloaded{[](std::monostate) { return Crest(); },
                 [](const RatingCurve& rating) { return rating.empty() ? Crest() : Crest(rating.lowestFlow()); },
                 [](const DropInletSpillway& drop) {
                   const DropInlet& inlet = drop.inlet;
                   return Crest(inlet.twoStage ? std::min(inlet.lowCrest, inlet.highCrest) : inlet.highCrest);
                 },
                 [](const HoodSpillway& hood) { return Crest(hood.inlet.invert); }},
      spillway);
}

OutletFlows DamOutlets::flowsAt(double pool, double givenTailwater, const DamErosion& erosion) const {
  OutletFlows flows;
  flows.tailwater = givenTailwater;
  flows.principal = principalDischarge(principal, pool, givenTailwater);
  for (std::size_t i = 0; i < kAuxiliarySpillways; ++i) {
    const RatingCurve& rating = auxiliary[i];
    if (rating.empty() || pool <= rating.lowest()) continue;
    const double crestLevel = rating.lowestFlow();
    flows.auxiliary[i] = rating.at(pool) * submergenceFactor(pool - crestLevel, givenTailwater - crestLevel);
  }
  flows.breach = erosion.breachDischarge(pool, givenTailwater);
  if (pool > crest.lowest())
    flows.crest = crest.discharge(pool, givenTailwater, crest.gapOfWidth(erosion.breachWidth()));
  return flows;
}

OutletFlows DamOutlets::flows(double pool, const DamErosion& erosion) const {
  constexpr double kDryValley = -1e6;
  if (tailwater.empty()) return flowsAt(pool, kDryValley, erosion);
  OutletFlows free = flowsAt(pool, tailwater.y().front(), erosion);
  const double most = free.total();
  free.tailwater = tailwaterOf(most);
  if (free.tailwater <= lowestThatFeelsTailwater(erosion)) return free;
  const double least = flowsAt(pool, free.tailwater, erosion).total();
  const auto excess = [&](double outflow) { return outflow - flowsAt(pool, tailwaterOf(outflow), erosion).total(); };
  const double outflow = least < most ? solveIncreasing(excess, least, most, kRelativeOutflow * most) : most;
  return flowsAt(pool, tailwaterOf(outflow), erosion);
}

double DamOutlets::tailwaterOf(double outflow) const {
  return tailwater.at(outflow);
}

double DamOutlets::lowestThatFeelsTailwater(const DamErosion& erosion) const {
  double lowest = std::min(feelsTailwaterFrom(principal), crest.lowest());
  for (const RatingCurve& rating : auxiliary) {
    if (!rating.empty()) lowest = std::min(lowest, rating.lowest());
  }
  return erosion.breachWidth() > 0 ? std::min(lowest, erosion.row().breach.sill) : lowest;
}

std::vector<double> DamOutlets::crests() const {
  std::vector<double> elevations{crest.lowest()};
  if (const auto level = principalCrest(principal)) elevations.push_back(*level);
  if (const auto* drop = std::get_if<DropInletSpillway>(&principal)) elevations.push_back(drop->inlet.highCrest);
  for (const RatingCurve& rating : auxiliary) {
    if (!rating.empty()) elevations.push_back(rating.lowestFlow());
  }
  std::ranges::sort(elevations);
  elevations.erase(std::unique(elevations.begin(), elevations.end()), elevations.end());
  return elevations;
}

double DamOutlets::lowestSpillwayCrest() const {
  std::optional<double> lowest = principalCrest(principal);
  for (const RatingCurve& rating : auxiliary) {
    if (!rating.empty()) lowest = std::min(lowest.value_or(kNever), rating.lowestFlow());
  }
  return lowest.value_or(crest.lowest());
}

}  // namespace kestra
