#include "hydraulics/open_channel.h"

#include <cmath>

#include "hydraulics/physical_constants.h"
#include "hydraulics/roots.h"
#include "hydraulics/wide_flow.h"

namespace kestra {
namespace {

constexpr double kRelativeDepth = 1e-9;  // to which part of themselves depths are found

// Root of a function of the depth that rises through 0.
template <class Function>
double depthOf(const Function& f, double guess) {
  const double high = bracketAbove(f, guess);
  return solveIncreasing(f, 0.0, high, kRelativeDepth * high);
}

// x^(4/3) and x^(10/3) without the general power.
double fourThirds(double x) {
  return x * std::cbrt(x);
}

}  // namespace

double Trapezoid::perimeter(double depth) const {
  return bottom + 2 * depth * std::sqrt(1 + sideSlope * sideSlope);
}

double specificEnergy(const Trapezoid& channel, double discharge, double depth) {
  const double velocity = discharge / channel.area(depth);
  return depth + velocity * velocity / (2 * kGravity);
}

double criticalDepth(const Trapezoid& channel, double discharge) {
  const double wanted = discharge * discharge / kGravity;
  const auto excess = [&](double depth) {
    if (depth <= 0) return -1.0;
    const double area = channel.area(depth);
    return std::cbrt(area * area * area / channel.topWidth(depth)) - std::cbrt(wanted);
  };
  const double guess = channel.bottom > 0 ? criticalDepth(discharge / channel.bottom) : 1.0;
  return depthOf(excess, guess);
}

double frictionSlope(const Trapezoid& channel, double discharge, double depth, double roughness) {
  const double area = channel.area(depth);
  const double perimeter = channel.perimeter(depth);
  const double radius = area / perimeter;
  const double n = surfaceRoughness(roughness, discharge / perimeter);
  const double flow = n * discharge / area;
  return flow * flow / (kManning * kManning * fourThirds(radius));
}

double normalDepth(const Trapezoid& channel, double discharge, double slope, double roughness) {
  const auto excess = [&](double depth) {
    if (depth <= 0) return -1.0;
    // In this power of the slopes the function is close to a straight line.
    return 1 - std::pow(frictionSlope(channel, discharge, depth, roughness) / slope, 0.3);
  };
  return depthOf(excess, criticalDepth(channel, discharge));
}

double wideFrictionSlope(double q, double depth, double roughness) {
  const double flow = surfaceRoughness(roughness, q) * q / depth;
  return flow * flow / (kManning * kManning * fourThirds(depth));
}

}  // namespace kestra
