#pragma once

#include <array>
#include <string_view>

// Grass as a cover: what kinds there are, how rough a stand is, how long it lasts.
namespace kestra {

struct GrassCover {
  std::string_view name;
  double coverFactor;  // of a good stand
  double stems;        // of a good stand, a square foot
};

// Temple, Robinson, Ahring and Davis 1987, Agriculture Handbook 667.
inline constexpr std::array<GrassCover, 12> kGrassCovers = {{
    {"bermudagrass", 0.90, 500},
    {"centipedegrass", 0.90, 500},
    {"buffalograss", 0.87, 400},
    {"Kentucky bluegrass", 0.87, 350},
    {"blue grama", 0.87, 350},
    {"grass mixture", 0.75, 200},
    {"weeping lovegrass", 0.50, 350},
    {"yellow bluestem", 0.50, 250},
    {"alfalfa", 0.50, 500},
    {"lespedeza sericea", 0.50, 300},
    {"common lespedeza", 0.50, 150},
    {"sudangrass", 0.50, 50},
}};

enum class Stand { poor = 1, fair, good, veryGood, excellent };

// Stems a square foot of a stand: thirds of those of a good one, from one third to five.
double stemsOf(const GrassCover& cover, Stand stand);

// CI = 2.5 (h M^0.5)^(1/3): the retardance curve index of stems `height` ft high, `stems` a square foot. Same source.
double retardanceIndex(double height, double stems);

// How long grass of a stand has lasted under a flow, ft/s, h; infinite below the speed that it bears for ever. An index
// of the work beyond a limit, (V^3 - Vc^3) t = E, by Dean, Rosati, Walton and Edge 2010, Ocean Engineering 37, fitted
// to the curves of Hewlett, Boorman and Bramley 1987, CIRIA report 116. It checks the stress over time; nothing is
// computed with it.
enum class GrassQuality { poor, average, good };
double enduranceHours(GrassQuality quality, double velocity);

}  // namespace kestra
