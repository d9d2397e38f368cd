#include "hydraulics/breach_bounds.h"

#include <algorithm>
#include <cmath>

namespace kestra {
namespace {

constexpr double kFoot = 0.3048;                // m
constexpr double kAcreFoot = 1233.482;          // m^3
constexpr double kCfs = kFoot * kFoot * kFoot;  // m^3/s

double cubicMetres(const BreachedDam& dam) {
  return dam.volume * kAcreFoot;
}
double metres(const BreachedDam& dam) {
  return dam.waterDepth * kFoot;
}

double tr60Cap(const BreachedDam& dam) {
  const double shortDam = 65 * std::pow(dam.waterDepth, 0.35) / 0.416;
  if (dam.crestLength < shortDam) return 0.416 * dam.crestLength * std::pow(dam.waterDepth, 1.5);
  return 65 * std::pow(dam.waterDepth, 1.85);
}

}  // namespace

double tr60Peak(const BreachedDam& dam) {
  const double cap = tr60Cap(dam);
  if (dam.waterDepth >= 103) return cap;
  const double factor = dam.volume * dam.waterDepth / dam.sectionArea;
  return std::min(cap, std::max(1000 * std::pow(factor, 1.35), 3.2 * std::pow(dam.waterDepth, 2.5)));
}

double froehlichPeak(const BreachedDam& dam) {
  return 0.607 * std::pow(cubicMetres(dam), 0.295) * std::pow(metres(dam), 1.24) / kCfs;
}

double froehlichWidth(const BreachedDam& dam) {
  return 0.27 * 1.3 * std::pow(cubicMetres(dam), 0.32) * std::pow(metres(dam), 0.04) / kFoot;
}

double froehlichHours(const BreachedDam& dam) {
  return 63.2 * std::sqrt(cubicMetres(dam) / 9.81) / metres(dam) / 3600;
}

}  // namespace kestra
