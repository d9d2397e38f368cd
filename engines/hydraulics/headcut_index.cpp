#include "hydraulics/headcut_index.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace kestra {
namespace {

constexpr std::array kSoils = {0.02, 0.04, 0.09, 0.19, 0.41};

struct RockClass {
  double from;  // MPa
  double strength;
};

// The strongest first.
constexpr std::array<RockClass, 9> kRocks = {
    {{212, 280}, {106, 140}, {53, 70}, {26.4, 35}, {13.2, 17.7}, {6.6, 8.39}, {3.3, 3.95}, {1.7, 1.86}, {1.25, 0.87}}};

constexpr double kLeastIndex = 0.01;  // up to which anything moves a headcut
constexpr double kRockIndex = 18.2;   // from which the advance no longer changes

}  // namespace

double massStrength(SoilStrength soil) {
  return kSoils[static_cast<std::size_t>(soil)];
}

double massStrength(double megapascals) {
  for (const RockClass& rock : kRocks) {
    if (megapascals >= rock.from) return rock.strength;
  }
  return massStrengthCurve(megapascals);
}

double massStrengthCurve(double megapascals) {
  return megapascals <= 10 ? 0.78 * std::pow(megapascals, 1.09) : megapascals;
}

double thresholdOfIndex(double index, double exponent) {
  if (index <= kLeastIndex) return 0;
  return std::cbrt(189 * std::sqrt(index) * std::exp(-exponent / std::log(101 * index)));
}

double advanceOfIndex(double index) {
  return index > kRockIndex ? 0.75 : 3.04 - 0.79 * std::log(index);
}

}  // namespace kestra
