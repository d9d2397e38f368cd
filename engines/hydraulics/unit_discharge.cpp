#include "hydraulics/unit_discharge.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/linear_table.h"
#include "hydraulics/open_channel.h"
#include "hydraulics/physical_constants.h"
#include "hydraulics/roots.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

double powerThreeHalves(double x) {
  return x * std::sqrt(x);
}

// Distance upstream of a free overfall at which wide flow of constant n has the depth y on a level bed, from
// integrating dx = (1 - y_c^3/y^3) dy / S_f between y_c and y.
double distanceFromOverfall(double q, double critical, double depth, double frictionAtOne) {
  if (q <= 0) return 0;
  const auto term = [&](double y) {
    const double third = std::cbrt(y);
    const double fourThirds = y * third;
    return 3.0 / 13.0 * fourThirds * y * y * y - 0.75 * critical * critical * critical * fourThirds;
  };
  return (term(depth) - term(critical)) / frictionAtOne;
}

// Deeper of the two depths of wide flow at a specific energy, which is not below that of critical flow.
double subcriticalDepth(double q, double energy) {
  const double head = q * q / (2 * kGravity);
  double depth = energy;
  for (int i = 0; i < 60; ++i) {
    const double next = energy - head / (depth * depth);
    if (std::fabs(next - depth) <= 1e-12 * energy) break;
    depth = std::max(next, criticalDepth(q));
  }
  return depth;
}

// Energy lost on the submerged upstream slope, from the crest's upstream edge down to where the water is deep.
double lossOnSlope(const CrestSurface& surface, double q, double energy) {
  if (surface.upstreamSlope <= 0) return 0;
  constexpr int kSteps = 24;
  constexpr double kGrowth = 1.3;
  double depth = subcriticalDepth(q, energy);
  double friction = wideFrictionSlope(q, depth, surface.upstreamRoughness);
  double dx = 0.05 * depth * surface.upstreamSlope;
  double loss = 0;
  for (int i = 0; i < kSteps; ++i, dx *= kGrowth) {
    energy += dx / surface.upstreamSlope;
    depth = subcriticalDepth(q, energy + loss);
    const double next = wideFrictionSlope(q, depth, surface.upstreamRoughness);
    loss += 0.5 * (friction + next) * dx;
    friction = next;
  }
  return loss;
}

}  // namespace

double headOverCrest(const CrestSurface& surface, double q) {
  if (q <= 0) return 0;
  const double critical = criticalDepth(q);
  const double frictionAtOne = wideFrictionSlope(q, 1.0, surface.roughness);
  const auto excess = [&](double depth) {
    return distanceFromOverfall(q, critical, depth, frictionAtOne) - surface.width;
  };
  const double high = bracketAbove(excess, 2 * critical);
  const double depth = solveIncreasing(excess, critical, high, 1e-10 * high);
  const double energy = depth + q * q / (2 * kGravity * depth * depth);
  return energy + lossOnSlope(surface, q, energy);
}

UnitDischarge UnitDischarge::fromCoefficient(double coefficient) {
  UnitDischarge curve;
  curve.addRow(1.0, coefficient);
  return curve;
}

UnitDischarge UnitDischarge::fromSurface(const CrestSurface& surface, double highestHead) {
  constexpr double kFirst = 1e-4;  // cfs/ft
  constexpr double kGrowth = 1.25;
  constexpr int kMostRows = 120;
  UnitDischarge curve;
  double q = kFirst;
  for (int i = 0; i < kMostRows && curve.heads_.back() < highestHead; ++i, q *= kGrowth) {
    curve.addRow(headOverCrest(surface, q), q);
  }
  return curve;
}

// For a^1.5 with a straight between a1 and a2 over dh the integral is 2/5 dh (a2^2.5 - a1^2.5) / (a2 - a1).
void UnitDischarge::addRow(double head, double q) {
  if (head <= heads_.back()) return;
  const double power = std::cbrt(q * q);
  const double before = powers_.back();
  const double rise = power - before;
  const double area = rise > 0 ? 0.4 * (powerThreeHalves(power) * power - powerThreeHalves(before) * before) / rise : q;
  integrals_.push_back(integrals_.back() + (head - heads_.back()) * area);
  heads_.push_back(head);
  powers_.push_back(power);
}

double UnitDischarge::at(double head) const {
  if (head <= 0 || heads_.size() < 2) return 0;
  const std::size_t i = intervalOf(heads_, head);
  const double slope = (powers_[i + 1] - powers_[i]) / (heads_[i + 1] - heads_[i]);
  return powerThreeHalves(powers_[i] + slope * (head - heads_[i]));
}

double UnitDischarge::integral(double head) const {
  if (head <= 0 || heads_.size() < 2) return 0;
  const std::size_t i = intervalOf(heads_, head);
  const double slope = (powers_[i + 1] - powers_[i]) / (heads_[i + 1] - heads_[i]);
  const double a = powers_[i];
  const double b = a + slope * (head - heads_[i]);
  if (slope <= 0) return integrals_[i] + powerThreeHalves(a) * (head - heads_[i]);
  return integrals_[i] + 0.4 / slope * (powerThreeHalves(b) * b - powerThreeHalves(a) * a);
}

}  // namespace kestra
