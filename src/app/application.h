#pragma once

#include <string>

#include "shell/shell.h"

namespace kestra {

// The whole system without a face: owns the state and the screens and joins them to the ports it is given. One object a
// program; the ports must outlive it.
class Application {
 public:
  // `applicationDirectory`: where the external programs, catalogues and the help stand.
  Application(Ports ports, const std::string& applicationDirectory);

  Ports ports;
  ApplicationState state;
  ScreenHost host;
  ScreenContext context;
  Shell shell;
};

}  // namespace kestra
