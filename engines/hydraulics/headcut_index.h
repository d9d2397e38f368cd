#pragma once

#include <cstdint>

// How well earth and rock stand a headcut, by the headcut erodibility index. Temple and Moore 1997, Transactions of the
// ASAE 40(3):557-562; National Engineering Handbook, part 628, chapter 52.
namespace kestra {

// The four factors of the index.
struct HeadcutIndex {
  double strength = 0;     // Ms, of the mass
  double blocks = 1;       // Kb: RQD / Jn of rock, 1 of intact soil
  double joints = 0;       // Kd: Jr / Ja of rock, the tangent of the residual friction angle of soil
  double orientation = 1;  // Js, 1 of soil

  double value() const { return strength * blocks * joints * orientation; }
};

// Mass strength Ms of soil: `soft` is loose, `firm` medium, `stiff` dense of a granular one.
enum class SoilStrength : std::uint8_t { verySoft, soft, firm, stiff, veryStiff };
double massStrength(SoilStrength soil);

// Mass strength of rock by its unconfined compressive strength, MPa, in classes; below 1.25 MPa the curve.
double massStrength(double megapascals);

// The curve behind the classes: 0.78 UCS^1.09 up to 10 MPa, from there UCS.
double massStrengthCurve(double megapascals);

// The exponent's constant is printed as 3.23 and drawn as 3.2; it changes the threshold by 1.5 % at most.
inline constexpr double kThresholdExponent = 3.2;

// A0 = (189 Kh^0.5 exp(-3.2 / ln(101 Kh)))^(1/3), ft/s^(1/3), up to which a headcut stands; 0 up to an index of 0.01.
double thresholdOfIndex(double index, double exponent = kThresholdExponent);

// C = 3.04 - 0.79 ln Kh, (ft/h)/(ft/s^(1/3)), no less than 0.75 from an index of 18.2 on. The index is above 0.
double advanceOfIndex(double index);

}  // namespace kestra
