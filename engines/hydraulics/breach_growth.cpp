#include "hydraulics/breach_growth.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "hydraulics/soil_erodibility.h"

namespace kestra {
namespace {

constexpr double kLongest = std::numeric_limits<double>::infinity();

double hoursFor(double change, double rate) {
  return rate > 0 ? change / rate : kLongest;
}

}  // namespace

void BreachGrowth::form(double height, double unitDischarge) {
  const DamSection& section = input_.section;
  const double width = initialBreachWidth(input_.notchWidth, height, unitDischarge);
  state_.advance = 0;
  state_.base = std::max(lowestSill(section), section.crestElevation - height);
  state_.width = std::min(width, section.crestLength);
}

void BreachGrowth::advance(double timeHours, double hours, const BreachWater& water) {
  constexpr double kMostSubsteps = 4000;  // beyond them accuracy yields to an end
  double done = 0;
  noteStages(timeHours);
  while (done < hours) {
    const double longest = std::max(longestSubstep(rates(water)), hours / kMostSubsteps);
    const double step = substep(std::min(longest, hours - done), water);
    done = hours - done > step ? done + step : hours;
    noteStages(timeHours + done);
  }
}

double BreachGrowth::discharge(double pool, double tailwater) const {
  return state_.width * breachUnitDischarge(input_.breachCoefficient, pool, sill(), tailwater);
}

double BreachGrowth::hoursToChange(const BreachWater& water) const {
  const BreachRates now = rates(water);
  if (!initiated_) {
    const double deeper = std::max(0.05, 0.02 * (sill() - state_.base));
    return std::min(hoursFor(input_.section.crestWidth - state_.advance, now.advance),
                    hoursFor(deeper, deepeningLeft(now)));
  }
  const double change = std::max(0.05, 0.005 * (water.pool - sill()));
  const double fall = now.advance / input_.section.upstreamSlope;
  return std::min({hoursFor(change, fall), hoursFor(fullAdvance(input_.section) - state_.advance, now.advance),
                   hoursFor(0.005 * state_.width, wideningLeft(now))});
}

// Over the crest the flow is the crest's own, and none that erodes when the tailwater stands over it; beyond it the
// sill is a weir.
double BreachGrowth::unitDischargeAt(const State& state, double sill, const BreachWater& water) const {
  if (state.advance >= input_.section.crestWidth)
    return breachUnitDischarge(input_.breachCoefficient, water.pool, sill, water.tailwater);
  return water.tailwater < sill ? water.crestUnitDischarge : 0;
}

double BreachGrowth::headcutAdvance(double height, double drop, double unitDischarge) const {
  const FillSoil& soil = input_.soil;
  if (drop <= 0) return 0;
  if (soil.model == HeadcutModel::energy)
    return energyAdvance(soil.advanceCoefficient, soil.thresholdEnergy, unitDischarge, drop);
  const double stress = overfallStress(kFaceOverfallStress, height, unitDischarge) * drop / height;
  return blocksPerUndercut(soil.bank, height, unitDischarge) *
         detachmentRate(soil.erodibility, stress, soil.criticalStress);
}

// Below the step the water runs on down what is left of the downstream slope and wears it as it did before there was a
// step; without that a headcut which advances fast would outrun its own base and come to rest. Under the tailwater
// there is no such slope.
double BreachGrowth::baseStress(double height, double tailwaterAboveBase, double unitDischarge) const {
  const double overfall =
      overfallStress(kPeakOverfallStress, height, unitDischarge) * submergedPart(height, tailwaterAboveBase);
  if (tailwaterAboveBase > 0) return overfall;
  const double slope = 1 / input_.section.downstreamSlope;
  return std::max(overfall, bareSoilStress(slope, input_.slope.cover.diameterInches, unitDischarge));
}

// The bed stress of the critical flow works wherever the breach carries water: it takes the base and the sill on where
// the step has become too low for a plunging flow, and the banks always.
BreachRates BreachGrowth::ratesAt(const State& state, const BreachWater& water) const {
  const DamSection& section = input_.section;
  const FillSoil& soil = input_.soil;
  const double lowest = lowestSill(section);
  const double sill = sillElevation(section, state.advance);
  const double height = std::max(0.0, sill - state.base);
  const double open = submergedPart(height, water.tailwater - state.base);

  BreachRates rates;
  rates.unitDischarge = unitDischargeAt(state, sill, water);
  const double bedStress = criticalBedStress(input_.breachBedRoughness, rates.unitDischarge);
  rates.baseStress = std::max(baseStress(height, water.tailwater - state.base, rates.unitDischarge), bedStress);
  rates.deepening = detachmentRate(soil.erodibility, rates.baseStress, soil.criticalStress);

  double byHeadcut = 0;
  if (state.advance < fullAdvance(section)) byHeadcut = headcutAdvance(height, height * open, rates.unitDischarge);
  rates.advance = byHeadcut;
  if (state.advance >= section.crestWidth && sill > lowest)
    rates.advance += section.upstreamSlope * detachmentRate(soil.erodibility, bedStress, soil.criticalStress);
  rates.widening =
      std::max(kWideningWithAdvance * byHeadcut, bankWidening(soil.erodibility, soil.criticalStress, bedStress));
  return rates;
}

double BreachGrowth::deepeningLeft(const BreachRates& rates) const {
  return state_.base > lowestSill(input_.section) ? rates.deepening : 0;
}

double BreachGrowth::wideningLeft(const BreachRates& rates) const {
  return state_.width < input_.section.crestLength ? rates.widening : 0;
}

// No more than 2 % of the crest's width or half a foot upstream, 1 % of the depth down, 1 % of the width sideways.
double BreachGrowth::longestSubstep(const BreachRates& rates) const {
  const DamSection& section = input_.section;
  const double farthest = std::clamp(0.02 * section.crestWidth, 0.05, 0.5);
  const double deepest = 0.01 * (section.crestElevation - section.baseElevation);
  return std::min({hoursFor(farthest, rates.advance), hoursFor(deepest, deepeningLeft(rates)),
                   hoursFor(0.01 * state_.width, wideningLeft(rates))});
}

BreachGrowth::State BreachGrowth::moved(const BreachRates& rates, double hours) const {
  const DamSection& section = input_.section;
  State next;
  next.advance = std::min(state_.advance + rates.advance * hours, fullAdvance(section));
  next.base = std::max(lowestSill(section), state_.base - rates.deepening * hours);
  next.base = std::min(next.base, sillElevation(section, next.advance));
  next.width = std::min(state_.width + rates.widening * hours, section.crestLength);
  return next;
}

// By the rates in the middle of the step, or by the first ones where the middle is beyond the next edge; the step ends
// at the latest where the headcut comes to that edge.
double BreachGrowth::substep(double longest, const BreachWater& water) {
  const double crest = input_.section.crestWidth;
  const double edge = state_.advance < crest ? crest : fullAdvance(input_.section);
  const double toEdge = edge - state_.advance;
  BreachRates by = rates(water);
  if (toEdge <= 0 || by.advance * longest / 2 < toEdge) by = ratesAt(moved(by, longest / 2), water);
  const bool lands = toEdge > 0 && by.advance * longest >= toEdge;
  const double hours = lands ? toEdge / by.advance : longest;
  state_ = moved(by, hours);
  if (lands) state_.advance = edge;
  return hours;
}

void BreachGrowth::noteStages(double timeHours) {
  if (!initiated_ && state_.advance >= input_.section.crestWidth) initiated_ = timeHours;
  if (!completed_ && state_.advance >= fullAdvance(input_.section)) completed_ = timeHours;
}

}  // namespace kestra
