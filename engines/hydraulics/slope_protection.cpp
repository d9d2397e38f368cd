#include "hydraulics/slope_protection.h"

#include <algorithm>
#include <limits>

namespace kestra {
namespace {

constexpr double kLeastBareStress = 0.02;  // lb/ft^2
constexpr double kLeastDischarge = 1e-6;   // cfs/ft, where no rock would lie
constexpr double kMostShare = 99.99;       // what is told of a limit that is passed a thousand times over

// Without a cover the grains bear all, as in the major gaps of one.
SlopeCover coverOf(const DamErosionInput& input) {
  SlopeCover cover = input.slope.cover;
  cover.slope = 1 / input.section.downstreamSlope;
  if (input.slope.surface == SlopeSurface::bare) {
    cover.maintenanceCode = 3;
  }
  return cover;
}

double percentOf(double value, double limit) {
  return 100 * std::min(value / limit, kMostShare);
}

}  // namespace

SlopeProtection::SlopeProtection(const DamErosionInput& input)
    : surface_(input.slope.surface),
      cover_(coverOf(input)),
      instantStress_(surface_ == SlopeSurface::vegetated ? kMostStressOnTurf
                                                         : std::max(kLeastBareStress, input.soil.criticalStress)),
      stressTimeLimit_(kestra::stressTimeLimit(surface_ == SlopeSurface::vegetated ? input.slope.plasticityIndex : 0,
                                               cover_.diameterInches)),
      allowedDischarge_(std::max(kLeastDischarge, riprapAllowable(input.slope.riprap, cover_.slope))) {}

std::optional<double> SlopeProtection::advance(double hours, double unitDischarge) {
  const double share = shareOfInstantLimit(unitDischarge);
  const std::optional<double> instant = instantLoss(share, hours);
  const std::optional<double> gradual = gradualLoss(hours);
  state_.stressTime += state_.effectiveStress * hours;
  state_.stressTimePercent = percentOf(state_.stressTime, stressTimeLimit_);
  lastShare_ = share;
  lastHalf_ = hours / 2;
  if (lost_ || (!instant && !gradual)) return std::nullopt;
  lost_ = true;
  return std::min(instant.value_or(hours), gradual.value_or(hours));
}

double SlopeProtection::hoursLeft() const {
  if (lost_) return 0;
  if (state_.effectiveStress <= 0) return std::numeric_limits<double>::infinity();
  return (stressTimeLimit_ - state_.stressTime) / state_.effectiveStress;
}

double SlopeProtection::shareOfInstantLimit(double unitDischarge) {
  if (surface_ == SlopeSurface::riprap) {
    state_.dischargePercent = percentOf(unitDischarge, allowedDischarge_);
    return unitDischarge / allowedDischarge_;
  }
  const SlopeFlow flow = slopeFlow(cover_, unitDischarge);
  const double stress = surface_ == SlopeSurface::vegetated ? flow.grossStress : flow.effectiveStress;
  state_.grossStress = flow.grossStress;
  state_.effectiveStress = flow.effectiveStress;
  state_.grossPercent = percentOf(stress, instantStress_);
  return stress / instantStress_;
}

std::optional<double> SlopeProtection::instantLoss(double share, double hours) const {
  if (share <= 1) return std::nullopt;
  if (lastShare_ >= 1) return 0;
  const double between = lastHalf_ + hours / 2;
  return std::clamp((1 - lastShare_) / (share - lastShare_) * between - lastHalf_, 0.0, hours);
}

std::optional<double> SlopeProtection::gradualLoss(double hours) const {
  const double left = stressTimeLimit_ - state_.stressTime;
  if (state_.effectiveStress * hours < left) return std::nullopt;
  return std::clamp(left / state_.effectiveStress, 0.0, hours);
}

}  // namespace kestra
