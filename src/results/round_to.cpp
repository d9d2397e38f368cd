#include "results/round_to.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

namespace kestra {

std::string RoundTo(double value, int digits) {
  constexpr int kMostDigits = 22;                    // powers of ten up to here are exact
  constexpr double kWholeOnly = 4503599627370496.0;  // 2^52: doubles from here on have no fraction
  digits = std::clamp(digits, -kMostDigits, kMostDigits);
  const double power = std::pow(10.0, std::abs(digits));
  const double scaled = digits < 0 ? value / power : value * power;
  if (!(std::fabs(scaled) < kWholeOnly)) return generalNumber(value);
  double whole = std::floor(scaled);
  const double rest = scaled - whole;
  if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2.0) != 0)) whole += 1;
  return generalNumber(digits < 0 ? whole * power : whole / power);
}

}  // namespace kestra
