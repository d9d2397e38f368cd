#include "hydraulics/closed_conduit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "hydraulics/physical_constants.h"
#include "hydraulics/units.h"

namespace kestra {
namespace {

constexpr double kConduitFriction = 29.16;

}  // namespace

ConduitSection circularSection(double diameterInches) {
  const double diameter = diameterInches / kInchesPerFoot;
  return {std::numbers::pi * diameter * diameter / 4, diameter / 4, diameter};
}

double largestFillet(double width, double height) {
  return std::min(width, height) / 2;
}

ConduitSection rectangularSection(double width, double height, double filletInches) {
  const double leg = std::min(filletInches / kInchesPerFoot, largestFillet(width, height));
  const double area = width * height - 2 * leg * leg;
  const double perimeter = 2 * (width + height) - 4 * leg * (2 - std::numbers::sqrt2);
  return {area, area / perimeter, height};
}

double conduitLossPerFoot(const ConduitSection& section, double manning) {
  return kConduitFriction * manning * manning / (section.hydraulicRadius * std::cbrt(section.hydraulicRadius));
}

double fullConduitDischarge(const ConduitSection& section, double losses, double head) {
  return section.area * std::sqrt(2 * kGravity * std::max(head, 0.0) / (1 + losses));
}

double orificeDischarge(double coefficient, double area, double head) {
  return coefficient * area * std::sqrt(2 * kGravity * std::max(head, 0.0));
}

double weirDischarge(double coefficient, double length, double head) {
  return head > 0 ? coefficient * length * head * std::sqrt(head) : 0.0;
}

CircleFlow criticalFlowInCircle(double diameter, double angle) {
  const double area = (angle - std::sin(angle)) / 8 * diameter * diameter;
  const double width = std::sin(angle / 2) * diameter;
  const double depth = diameter * (1 - std::cos(angle / 2)) / 2;
  return {area * std::sqrt(kGravity * area / width), depth + area / (2 * width)};
}

}  // namespace kestra
