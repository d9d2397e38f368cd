#include "screens/dam_picture.h"

#include <array>
#include <cstdint>

namespace kestra {
namespace {

struct Stroke {
  std::uint32_t color;  // red in the low byte
  double x1, y1, x2, y2;
};

constexpr std::uint32_t kWater = 0xC08040;
constexpr std::uint32_t kEarth = 0x305080;
constexpr std::uint32_t kGrass = 0x308030;

constexpr std::array<Stroke, 8> kStrokes = {{{kEarth, 0, 10, 20, 10},
                                             {kEarth, 20, 10, 50, 45},
                                             {kEarth, 50, 45, 58, 45},
                                             {kGrass, 58, 45, 90, 10},
                                             {kEarth, 90, 10, 120, 10},
                                             {kWater, 0, 38, 44, 38},
                                             {kWater, 8, 34, 30, 34},
                                             {kWater, 92, 14, 120, 14}}};

}  // namespace

void drawDamPicture(CanvasControl& canvas) {
  canvas.Cls();
  canvas.Scale(0, 60, 120, 0);
  for (const Stroke& stroke : kStrokes) {
    canvas.ForeColor(stroke.color);
    canvas.Line(stroke.x1, stroke.y1, stroke.x2, stroke.y2);
  }
}

}  // namespace kestra
