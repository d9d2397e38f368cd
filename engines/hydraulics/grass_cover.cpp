#include "hydraulics/grass_cover.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "hydraulics/units.h"

namespace kestra {
namespace {

struct WorkIndex {
  double limit;  // m/s
  double work;   // m^3/s^2
};
constexpr std::array<WorkIndex, 3> kWorkIndices = {{{0.76, 0.103e6}, {1.30, 0.229e6}, {1.80, 0.492e6}}};

constexpr double kMetresInAFoot = 0.3048;

double cube(double x) {
  return x * x * x;
}

}  // namespace

double stemsOf(const GrassCover& cover, Stand stand) {
  return cover.stems * static_cast<int>(stand) / 3;
}

double retardanceIndex(double height, double stems) {
  return 2.5 * std::cbrt(height * std::sqrt(stems));
}

double enduranceHours(GrassQuality quality, double velocity) {
  const WorkIndex& index = kWorkIndices[static_cast<std::size_t>(quality)];
  const double beyond = cube(velocity * kMetresInAFoot) - cube(index.limit);
  return beyond > 0 ? index.work / beyond / kSecondsPerHour : std::numeric_limits<double>::infinity();
}

}  // namespace kestra
