#include "screens/text_screen.h"

#include "controls/screen_host.h"

namespace kestra {

TextScreen::TextScreen(const std::string& name, const std::string& title, const std::string& text)
    : Screen(name, title) {
  txtText.setMultiLine(true);
  txtText.setText(text);
  txtText.setLocked(true);
  cmdOK.onClick = [this] { host().unload(*this); };
}

}  // namespace kestra
