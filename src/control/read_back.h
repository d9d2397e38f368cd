#pragma once

#include "control/load_texts.h"
#include "controls/screen_host.h"
#include "screens/input_screen_set.h"

namespace kestra {

// Screens of their own, as they are when a file with these texts has just been opened. No box is shown.
class ReadBack {
 public:
  ReadBack(const Ports& ports, const ControlTexts& texts);

  InputScreenSet& screens() { return screens_; }
  ScreenContext& context() { return context_; }
  const ApplicationState& state() const { return state_; }
  const std::set<std::string>& used() const { return fields_.used; }  // names of the controls that were given a text

 private:
  class NoDesktop : public InputDesktop {
   public:
    Screen& inputWindow() override { return window_; }
    void mnuBuildFileFromOtherScreen_Click() override {}

   private:
    Screen window_{"frmKestra", ""};
  };

  SilentMessageBoxes boxes_;
  Ports ports_;
  ApplicationState state_;
  ScreenHost host_{state_.bExiting};
  ScreenContext context_{ports_, state_, host_};
  NoDesktop desktop_;
  InputScreenSet screens_{context_, desktop_};
  ScreenFields fields_{screens_.context};
};

}  // namespace kestra
