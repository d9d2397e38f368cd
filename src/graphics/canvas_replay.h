#pragma once

#include <optional>
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

// Paints what a canvas shows, and later what was drawn on it since. Lines that continue each other become one, thinned
// to what so many columns of pixels can show under the width of its pen.
class CanvasReplay {
 public:
  CanvasReplay(PictureSize size, int columns, double scale) : size_(size), columns_(columns), scale_(scale) {}

  // Brings a picture up to date; one that it has not painted before, or whose canvas was wiped since, from the ground.
  void paint(const CanvasLog& log, PictureBrush& brush);

 private:
  class Stroke;
  bool goesOn(const CanvasLog& log) const;

  PictureSize size_;
  int columns_;
  double scale_;
  CanvasState state_;
  std::optional<unsigned> wipes_;  // of the canvas when it was painted
  std::size_t painted_ = 0;        // calls
};

// All that a canvas shows, its letters and pens growing with the picture.
void replay(const CanvasLog& log, PictureSize size, int columns, PictureBrush& brush);

}  // namespace kestra
