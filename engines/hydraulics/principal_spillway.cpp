#include "hydraulics/principal_spillway.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "hydraulics/physical_constants.h"

namespace kestra {
namespace {

constexpr double kOrificeFrom = 1.5;  // heads, in heights of the low stage, at which it runs as an orifice
constexpr double kHoodWeirTo = 1.0;   // heads, in diameters, to which a hood runs as a weir
constexpr double kHoodFullFrom = 1.25;
constexpr double kHoodLoss = 0.0340;
constexpr double kUnprimedCoefficient = 0.6;
constexpr double kLowestWeirCoefficient = 1.0;  // below it a coefficient is Poleni's, without a unit

double lowStageDischarge(const DropInlet& inlet, double head) {
  const double height = inlet.orificeHeight;
  if (height <= 0 || head <= height) return weirDischarge(inlet.lowWeirCoefficient, inlet.orificeWidth, head);
  const double area = height * inlet.orificeWidth;
  const auto orifice = [&](double h) { return orificeDischarge(inlet.lowOrificeCoefficient, area, h - height / 2); };
  const double full = weirDischarge(inlet.lowWeirCoefficient, inlet.orificeWidth, height);
  const double top = kOrificeFrom * height;
  if (head >= top) return std::max(full, orifice(head));
  const double there = std::max(full, orifice(top));
  return full + (there - full) * (head - height) / (top - height);
}

double losses(const Conduits& conduits) {
  return conduits.entranceLoss + conduitLossPerFoot(conduits.section, conduits.manning) * conduits.length;
}

}  // namespace

double inletDischarge(const DropInlet& inlet, double pool) {
  const double high = weirDischarge(inlet.weirCoefficient, inlet.weirLength, pool - inlet.highCrest);
  return inlet.twoStage ? high + lowStageDischarge(inlet, pool - inlet.lowCrest) : high;
}

double fullFlow(const Conduits& conduits, double pool, double tailwater) {
  const double outlet = conduits.outletInvert + kFreeOutletLevel * conduits.section.height;
  const double head = pool - std::max(tailwater, outlet);
  return conduits.count * fullConduitDischarge(conduits.section, losses(conduits), head);
}

double dropInletDischarge(const DropInlet& inlet, const Conduits& conduits, double pool, double tailwater) {
  const double entrance = conduits.count * orificeDischarge(conduits.orificeCoefficient, conduits.orificeArea,
                                                            pool - conduits.orificeCentre);
  return std::min({inletDischarge(inlet, pool), entrance, fullFlow(conduits, pool, tailwater)});
}

RatingCurve hoodEntrance(const ConduitSection& section) {
  constexpr int kRows = 60;
  constexpr double kHighestHead = 1.5;  // diameters
  const double diameter = section.height;
  std::vector<double> heads{0};
  std::vector<double> discharges{0};
  for (int i = 1; i < kRows && heads.back() < kHighestHead * diameter; ++i) {
    const CircleFlow critical = criticalFlowInCircle(diameter, 2 * std::numbers::pi * i / kRows);
    const double inlet = kHoodLoss * std::pow(critical.discharge / (section.area * std::sqrt(diameter)), 1.5);
    heads.push_back(critical.energy + inlet * diameter);
    discharges.push_back(critical.discharge);
  }
  return {std::move(heads), std::move(discharges), RatingCurve::Shape::weir};
}

double dimensionalWeirCoefficient(double given) {
  return given >= kLowestWeirCoefficient ? given : given * 2.0 / 3.0 * std::sqrt(2 * kGravity);
}

double hoodWeirDischarge(const HoodInlet& hood, const ConduitSection& section, double head) {
  return std::min(hood.entrance.at(head), weirDischarge(hood.weirCoefficient, section.height, head));
}

double hoodDischarge(const HoodInlet& hood, const Conduits& conduits, double pool, double tailwater) {
  const double diameter = conduits.section.height;
  const double head = pool - hood.invert;
  const auto weir = [&](double h) { return conduits.count * hoodWeirDischarge(hood, conduits.section, h); };
  const auto submerged = [&](double h) {
    const double full = fullFlow(conduits, hood.invert + h, tailwater);
    if (hood.primes) return full;
    const double area = conduits.count * conduits.section.area;
    return std::min(full, orificeDischarge(kUnprimedCoefficient, area, h - diameter / 2));
  };
  const double full = fullFlow(conduits, pool, tailwater);
  if (head <= kHoodWeirTo * diameter) return std::min(weir(head), full);
  if (head >= kHoodFullFrom * diameter) return submerged(head);
  const double from = weir(kHoodWeirTo * diameter);
  const double to = std::max(from, submerged(kHoodFullFrom * diameter));
  const double share = (head / diameter - kHoodWeirTo) / (kHoodFullFrom - kHoodWeirTo);
  return std::min(full, from + (to - from) * share);
}

bool hoodPrimes(const Conduits& conduits, double drop) {
  const double diameter = conduits.section.height;
  const double head = drop + kHoodFullFrom * diameter - kFreeOutletLevel * diameter;
  const double friction = conduitLossPerFoot(conduits.section, conduits.manning) * conduits.length;
  return drop > head * friction / (1 + losses(conduits));
}

}  // namespace kestra
