#include "hydraulics/weir_submergence.h"

#include <algorithm>

namespace kestra {

double submergenceFactor(double head, double tailwaterHead) {
  constexpr double kModularLimit = 0.67;
  if (head <= 0 || tailwaterHead >= head) return 0;
  const double beyond = tailwaterHead / head - kModularLimit;
  return beyond <= 0 ? 1.0 : std::max(0.0, 1 - 27.8 * beyond * beyond * beyond);
}

}  // namespace kestra
