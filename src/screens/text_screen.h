#pragma once

#include <string>

#include "controls/screen.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"

namespace kestra {

// A page of text with a button that closes it.
class TextScreen : public Screen {
 public:
  TextScreen(const std::string& name, const std::string& title, const std::string& text);

  TextBox txtText{*this, "txtText"};
  Button cmdOK{*this, "cmdOK", "&OK"};
};

}  // namespace kestra
