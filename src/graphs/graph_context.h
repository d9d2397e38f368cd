#pragma once

#include "graphics/line_settings.h"
#include "graphics/picture_maker.h"
#include "platform/printer.h"
#include "screens/screen_context.h"

namespace kestra {

// What graph screens are given: what every screen is, the user's colours and lines, and who makes and prints pictures.
struct GraphContext {
  ScreenContext& base;
  LineSettings& lines;
  PictureMaker* pictures = nullptr;  // null: a program that makes none
  Printer* printer = nullptr;        // likewise
};

// A screen that draws with the user's colours and lines, to which the screens that change these lead back.
class GraphScreen : public Screen {
 public:
  using Screen::Screen;
  virtual void redrawShown() = 0;  // draws again what is on show
};

}  // namespace kestra
