#pragma once

#include <optional>

#include "hydraulics/dam_erosion_input.h"

// How long the downstream slope of an overtopped dam holds: turf by the stress that it has borne over time, riprap and
// bare soil as long as a limit is not passed.
namespace kestra {

struct SlopeState {
  double grossStress = 0;        // lb/ft^2; stress is 0 on riprap
  double grossPercent = 0;       // of what turf stands, or of what starts to wear bare soil
  double effectiveStress = 0;    // lb/ft^2
  double stressTime = 0;         // lb h/ft^2, since the first flow
  double stressTimePercent = 0;  // of what the slope bears
  double dischargePercent = 0;   // of what riprap bears; 0 on other slopes
};

class SlopeProtection {
 public:
  // `input` within its ranges. Bare soil has no allowance: it is lost as soon as the stress on its grains passes the
  // critical stress of the fill, or 0.02 lb/ft^2, which the finest grains bear.
  explicit SlopeProtection(const DamErosionInput& input);

  // Lets a mean unit discharge, cfs/ft, run over the slope. The part of `hours` after which the protection is gone when
  // it goes in this step; nothing while it stands, and nothing once it has gone. A limit of discharge or stress is
  // passed at the time interpolated between the middles of the last step and this one.
  std::optional<double> advance(double hours, double unitDischarge);

  // How long it would stand under the last discharge; infinite when for ever, 0 once it has gone.
  double hoursLeft() const;

  const SlopeState& state() const { return state_; }

 private:
  double shareOfInstantLimit(double unitDischarge);
  std::optional<double> instantLoss(double share, double hours) const;
  std::optional<double> gradualLoss(double hours) const;

  SlopeSurface surface_;
  SlopeCover cover_;
  double instantStress_;     // lb/ft^2
  double stressTimeLimit_;   // lb h/ft^2
  double allowedDischarge_;  // cfs/ft
  SlopeState state_;
  double lastShare_ = 0;
  double lastHalf_ = 0;  // h from the middle of the last step to its end
  bool lost_ = false;
};

}  // namespace kestra
