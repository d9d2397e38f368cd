#include "screens/dam_picture.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kestra {
namespace {

// What stands between two elevations, with straight sides. Places are units of the picture, 120 across and 60 up.
struct Slab {
  std::uint32_t color;  // red in the low byte
  double low, high;
  double leftLow, rightLow;    // at its foot
  double leftHigh, rightHigh;  // at its top
};

constexpr std::uint32_t kSky = 0xFAF1E6;
constexpr std::uint32_t kWater = 0xC89655;
constexpr std::uint32_t kGround = 0x5A7896;
constexpr std::uint32_t kEarth = 0x4B78A5;
constexpr std::uint32_t kGrass = 0x4B9646;

constexpr std::array<Slab, 5> kSlabs = {{{kWater, 10, 39, 0, 60, 0, 60},
                                         {kWater, 10, 14, 80, 120, 80, 120},
                                         {kGrass, 10, 46, 58, 94, 58, 62},
                                         {kEarth, 10, 45, 18, 91, 50, 59},
                                         {kGround, 0, 10, 0, 120, 0, 120}}};

void fill(CanvasControl& canvas, const Slab& slab) {
  constexpr double kBand = 0.5;
  constexpr double kOverlap = 0.3;  // of a band with the next, so that no seam shows
  canvas.ForeColor(slab.color);
  for (double low = slab.low; low < slab.high; low += kBand) {
    const double part = (low - slab.low) / (slab.high - slab.low);
    const double left = slab.leftLow + part * (slab.leftHigh - slab.leftLow);
    const double right = slab.rightLow + part * (slab.rightHigh - slab.rightLow);
    canvas.FilledBox(left, low, right, std::min(slab.high, low + kBand + kOverlap));
  }
}

}  // namespace

void drawDamPicture(CanvasControl& canvas) {
  canvas.BackColor(kSky);
  canvas.Cls();
  canvas.Scale(0, 60, 120, 0);
  for (const Slab& slab : kSlabs) fill(canvas, slab);
}

}  // namespace kestra
