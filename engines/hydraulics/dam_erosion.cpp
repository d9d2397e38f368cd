#include "hydraulics/dam_erosion.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/soil_erodibility.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

constexpr double kShortestStep = 0.0005;  // h
constexpr double kLongestStep = 24;       // h
constexpr double kDrainedHead = 0.05;     // ft

DamErosionInput clipped(DamErosionInput input) {
  clipToComputable(input);
  return input;
}

double clippedOr(double value, double least, double most, double otherwise) {
  return std::isfinite(value) ? std::clamp(value, least, most) : otherwise;
}

// Without numbers there is no water: a pool and a tailwater far below every sill.
ErosionStep computable(ErosionStep step) {
  constexpr double kDry = -1e6;
  step.pool = clippedOr(step.pool, kDry, 1e6, kDry);
  step.tailwater = clippedOr(step.tailwater, kDry, 1e6, kDry);
  step.head = clippedOr(step.head, 0, 1e6, 0);
  step.unitDischarge = step.head > 0 ? clippedOr(step.unitDischarge, 0, 1e6, 0) : 0;
  return step;
}

BreachWater waterOf(const ErosionStep& step) {
  return {step.pool, step.tailwater, step.unitDischarge};
}

}  // namespace

double headcutThreshold(double unitDischarge) {
  constexpr double kLeastHeight = 0.5;  // ft; a lower step is part of the rough surface
  return std::max(kLeastHeight, criticalDepth(unitDischarge));
}

DamErosion::DamErosion(const DamErosionInput& input) : input_(clipped(input)), protection_(input_), breach_(input_) {
  row_.breach.sill = input_.section.crestElevation;
}

void DamErosion::advance(const ErosionStep& given) {
  if (!(given.dtHours > 0) || !std::isfinite(given.dtHours)) return;
  const ErosionStep step = computable(given);
  double used = 0;
  eroding_ = false;
  wearProtection(step, used);
  if (phase_ == ErosionPhase::concentratedFlow) wearSlope(step, used);
  if (phase_ >= ErosionPhase::headcutInCrest) growBreach(step, used);
  last_ = step;
  tellRow(step);
}

// The stress on the slope is told to the end of a run, whatever stands of it.
void DamErosion::wearProtection(const ErosionStep& step, double& used) {
  const std::optional<double> lostAfter = protection_.advance(step.dtHours, step.unitDischarge);
  if (phase_ != ErosionPhase::slopeStands) return;
  eroding_ = protection_.state().effectiveStress > 0;
  used = step.dtHours;
  if (!lostAfter) return;
  events_.slopeLost = step.timeHours + *lostAfter;
  if (!input_.breach) return;
  phase_ = ErosionPhase::concentratedFlow;
  used = *lostAfter;
}

double DamErosion::slopeWear(double unitDischarge) const {
  const double stress =
      bareSoilStress(1 / input_.section.downstreamSlope, input_.slope.cover.diameterInches, unitDischarge);
  return detachmentRate(input_.soil.erodibility, stress, input_.soil.criticalStress);
}

void DamErosion::wearSlope(const ErosionStep& step, double& used) {
  const double rate = slopeWear(step.unitDischarge);
  if (rate <= 0) {
    used = step.dtHours;
    return;
  }
  eroding_ = true;
  const double hours = std::max(0.0, headcutThreshold(step.unitDischarge) - wornDepth_) / rate;
  if (used + hours > step.dtHours) {
    wornDepth_ += rate * (step.dtHours - used);
    used = step.dtHours;
    return;
  }
  wornDepth_ += rate * hours;
  used += hours;
  breach_.form(wornDepth_, step.unitDischarge);
  events_.headcutFormed = step.timeHours + used;
  phase_ = ErosionPhase::headcutInCrest;
}

void DamErosion::growBreach(const ErosionStep& step, double& used) {
  const BreachGrowth::State before = breach_.state();
  breach_.advance(step.timeHours + used, step.dtHours - used, waterOf(step));
  used = step.dtHours;
  const BreachGrowth::State& now = breach_.state();
  eroding_ = eroding_ || now.advance > before.advance || now.base < before.base || now.width > before.width;
  events_.breachInitiated = breach_.initiated();
  events_.breachCompleted = breach_.completed();
  if (events_.breachCompleted)
    phase_ = ErosionPhase::fullDepth;
  else if (events_.breachInitiated)
    phase_ = ErosionPhase::headcutInUpstreamFace;
}

double DamErosion::suggestedStepHours() const {
  double hours = kLongestStep;
  if (phase_ == ErosionPhase::slopeStands) {
    if (!events_.slopeLost) hours = protection_.hoursLeft();
  } else if (phase_ == ErosionPhase::concentratedFlow) {
    const double rate = slopeWear(last_.unitDischarge);
    if (rate > 0) hours = (headcutThreshold(last_.unitDischarge) - wornDepth_) / rate;
  } else {
    hours = breach_.hoursToChange(waterOf(last_));
  }
  return std::clamp(hours, kShortestStep, kLongestStep);
}

double DamErosion::breachDischarge(double pool, double tailwater) const {
  if (!events_.breachInitiated || !std::isfinite(pool)) return 0;
  return breach_.discharge(pool, clippedOr(tailwater, -1e6, 1e6, -1e6));
}

double DamErosion::breachWidth() const {
  return events_.breachInitiated ? breach_.state().width : 0;
}

bool DamErosion::finished() const {
  return events_.breachInitiated && (!eroding_ || last_.pool - breach_.sill() <= kDrainedHead);
}

void DamErosion::tellRow(const ErosionStep& step) {
  row_.timeHours = step.timeHours + step.dtHours;
  row_.unitDischarge = step.unitDischarge;
  row_.slope = protection_.state();
  row_.breach.unitDischarge = step.unitDischarge;
  if (phase_ < ErosionPhase::headcutInCrest) return;
  const BreachRates rates = breach_.rates(waterOf(step));
  const BreachGrowth::State& state = breach_.state();
  const double sill = breach_.sill();
  row_.breach = {breachDischarge(step.pool, step.tailwater), sill, rates.baseStress, breachWidth(),
                 rates.unitDischarge};
  row_.headcut = {sill, headcutStation(input_.section, state.advance), state.base, sill - state.base, state.width};
}

}  // namespace kestra
