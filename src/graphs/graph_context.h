#pragma once

#include <functional>
#include <string>

#include "graphics/line_settings.h"
#include "screens/picture_desk.h"

namespace kestra {

// What graph screens are given: what every screen is, the user's colours and lines, and who makes and prints pictures.
struct GraphContext : PictureDesk {
  LineSettings& lines;
  // Whether the input of a control file is not the one its run was made from; empty: nobody here knows.
  std::function<bool(const std::string& controlFile)> inputChanged = {};
};

// A screen that draws with the user's colours and lines, to which the screens that change these lead back.
class GraphScreen : public Screen {
 public:
  using Screen::Screen;
  virtual void redrawShown() = 0;  // draws again what is on show
};

}  // namespace kestra
