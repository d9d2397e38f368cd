#include "app/application.h"

namespace kestra {

Application::Application(Ports portsGiven, const std::string& applicationDirectory)
    : ports(portsGiven), host(state.bExiting), context{ports, state, host}, shell(context, applicationDirectory) {
  host.onEdited = [this](Screen& screen, Control&) {
    if (screen.holdsInput()) state.fileDirty = true;
  };
}

}  // namespace kestra
