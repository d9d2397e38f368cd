#pragma once

#include <vector>

namespace kestra {

// The crest of a dam as water meets it: up the submerged part of the upstream slope, then level over the crest. A
// roughness is Manning's n below 1 and a retardance curve index from there on.
struct CrestSurface {
  double width = 0;          // ft
  double roughness = 0.03;   // of the crest
  double upstreamSlope = 0;  // horizontal to 1 vertical; 0 leaves the slope out
  double upstreamRoughness = 0.03;
};

// Head above the crest, ft, under which `q` cfs/ft pass it: critical depth at the downstream edge, the friction of wide
// flow over the crest and up the submerged slope, energy level of the pool.
double headOverCrest(const CrestSurface& surface, double q);

// Unit discharge by head, cfs/ft and ft, and its integral over the head. Between rows the discharge to the power 2/3
// runs straight; beyond the last row it goes on as there.
class UnitDischarge {
 public:
  UnitDischarge() = default;
  static UnitDischarge fromCoefficient(double coefficient);  // C h^1.5, C in ft^0.5/s
  static UnitDischarge fromSurface(const CrestSurface& surface, double highestHead);

  double at(double head) const;        // 0 without head
  double integral(double head) const;  // of at() from 0 to `head`; 0 without head

 private:
  void addRow(double head, double q);

  std::vector<double> heads_{0.0};
  std::vector<double> powers_{0.0};  // q^(2/3)
  std::vector<double> integrals_{0.0};
};

}  // namespace kestra
