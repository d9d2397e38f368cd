#pragma once

#include <cstddef>
#include <vector>

#include "hydraulics/open_channel.h"
#include "hydraulics/rating_curve.h"

// Auxiliary spillways cut into earth: a trapezoid along a surface profile, from the reservoir through the inlet to a
// level crest and down the exit channel. NEH part 628, chapter 50, Earth Spillway Design.
namespace kestra {

struct ProfilePoint {
  double station = 0;    // ft, downstream
  double elevation = 0;  // ft
};

struct CoverReach {
  double begin = 0;  // stations, ft
  double end = 0;
  double roughness = 0.03;
};

struct EarthSpillway {
  Trapezoid section;
  std::vector<ProfilePoint> profile;  // two points at least, stations rising
  std::vector<CoverReach> reaches;    // where none reaches, the nearest one counts; one at least
};

struct LevelCrest {
  double elevation = 0;  // ft, the highest of the profile
  std::size_t first = 0;
  std::size_t last = 0;  // points of the profile at that elevation
};

LevelCrest levelCrest(const EarthSpillway& spillway);
double roughnessAt(const EarthSpillway& spillway, double station);

// Pool elevation that drives `discharge` cfs (above 0) through the spillway. Control is at the downstream edge of the
// crest where the exit channel is steeper than critical, else as far down as the channel is mild; from there the
// profile is taken upstream by standard steps, E2 + z2 = E1 + z1 + (Sf1 + Sf2)/2 dx, subcritical, to the first station,
// where the energy level is the pool.
double poolOfSpillway(const EarthSpillway& spillway, double discharge);

// The rating from the crest to the elevation `top`, which is above it.
RatingCurve rateSpillway(const EarthSpillway& spillway, double top);

}  // namespace kestra
