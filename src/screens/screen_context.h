#pragma once

#include "controls/screen_host.h"
#include "platform/ports.h"
#include "shell/application_state.h"

namespace kestra {

// What every screen is given: the machine and the user, the shared values, and the other screens' places.
struct ScreenContext {
  Ports& ports;
  ApplicationState& state;
  ScreenHost& host;
};

}  // namespace kestra
