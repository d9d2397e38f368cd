#pragma once

#include <string_view>
#include <vector>

#include "graphics/canvas_log.h"

namespace kestra {

// Pixels; in a PDF of 96 to the inch.
struct PictureSize {
  int width = 800;
  int height = 600;
};

struct PicturePoint {
  double x = 0;
  double y = 0;

  bool operator==(const PicturePoint&) const = default;
};

struct Ink {
  std::uint32_t color = 0;  // red in the low byte
  int style = kSolid;       // as DrawStyle
  double width = 1;         // pixels
};

struct Letters {
  double size = 11;  // pixels
  bool bold = false;
  std::uint32_t color = 0;
};

// What a picture is painted with. Places are in its pixels.
class PictureBrush {
 public:
  virtual ~PictureBrush() = default;
  virtual void ground(PictureSize size, std::uint32_t color) = 0;
  virtual void line(const std::vector<PicturePoint>& points, const Ink& ink) = 0;
  virtual void box(PicturePoint corner, PicturePoint opposite, const Ink& ink, bool filled) = 0;
  virtual void circle(PicturePoint centre, double radius, const Ink& ink, bool filled) = 0;
  virtual void text(PicturePoint upperLeft, std::string_view text, const Letters& letters) = 0;
  // From now on what is painted inverts what is there, or no longer. False where that cannot be: it is left out then.
  virtual bool invert(bool on) = 0;
};

// How much larger than the canvas of a screen of its opening size a picture is. Letters and pens grow with it.
double pictureScale(PictureSize size);
double letterSize(double points, double scale);  // pixels

// Paints what a canvas shows. Lines that continue each other become one, thinned to what so many columns of pixels can
// show under the width of its pen.
void replay(const CanvasLog& log, PictureSize size, int columns, PictureBrush& brush);

}  // namespace kestra
