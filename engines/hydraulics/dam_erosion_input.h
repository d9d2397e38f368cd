#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "hydraulics/breach.h"
#include "hydraulics/headcut.h"
#include "hydraulics/riprap.h"
#include "hydraulics/slope_stress.h"

// What must be known of an embankment to tell how overtopping wears it. Every member has a value that computes.
namespace kestra {

// The section at the lowest point of the crest; ft, slopes H:V.
struct DamSection {
  double crestElevation = 100;
  double baseElevation = 50;
  double upstreamSlope = 3;
  double crestWidth = 15;
  double downstreamSlope = 3;
  double crestLength = 500;                    // no breach grows wider
  std::optional<double> nonErodibleElevation;  // of a layer that stops the breach above the base
};

enum class SlopeSurface { vegetated, bare, riprap };

// The downstream slope before anything is lost; `slope` of the cover is taken from the section.
struct SlopeInput {
  SlopeSurface surface = SlopeSurface::vegetated;
  SlopeCover cover;
  double plasticityIndex = 0;
  Riprap riprap;
};

enum class HeadcutModel { energy = 1, stress = 2 };

// The fill, by the model of the headcut: `energy` takes the advance coefficient, `stress` the strength of the bank,
// both erodibility and critical stress.
struct FillSoil {
  HeadcutModel model = HeadcutModel::energy;
  double erodibility = 0.5;       // kd, (ft/h)/(lb/ft^2)
  double criticalStress = 0;      // lb/ft^2
  double advanceCoefficient = 1;  // C, (ft/h)/(ft/s^(1/3))
  double thresholdEnergy = 0;     // A0, ft/s^(1/3); next to nothing in compacted fill
  BankStrength bank;
};

struct DamErosionInput {
  bool breach = true;  // without, the slope is judged and nothing is eroded
  DamSection section;
  SlopeInput slope;
  FillSoil soil;
  double breachCoefficient = kIdealWeir;
  double breachBedRoughness = kBreachBedRoughness;
  double notchWidth = 0;  // of a notch in the crest from the start
};

// A value that cannot be computed with, and what stands in its place.
struct ClippedValue {
  std::string_view name;
  double given = 0;
  double used = 0;
};

// Moves every value into the range in which the formulas hold and no result leaves the numbers of a double; what is no
// number at all becomes the default. Tells what was changed, in the order of the members.
std::vector<ClippedValue> clipToComputable(DamErosionInput& input);

// The lowest elevation to which the breach can go: the base, or the layer that does not erode. Never above the crest.
double lowestSill(const DamSection& section);

// Elevation of the sill when the headcut has come `advance` ft upstream of the downstream edge of the crest: the crest
// up to its upstream edge, from there down the upstream face.
double sillElevation(const DamSection& section, double advance);

// The advance at which the sill has come down to its lowest.
double fullAdvance(const DamSection& section);

// Station of the headcut, ft from the upstream toe towards the downstream one.
double headcutStation(const DamSection& section, double advance);

}  // namespace kestra
