#include "app/application.h"

namespace kestra {

Application::Application(const Ports& given, const std::string& applicationDirectory)
    : files(given.files, state),
      ports{given.boxes,  given.dialogs, given.settings, given.clipboard, given.processes, files,
            given.events, given.beeper,  given.entropy,  given.clock,     given.help},
      host(state.bExiting),
      context{ports, state, host},
      shell(context, applicationDirectory) {
  host.onEdited = [this](Screen& screen, Control&) {
    if (screen.holdsInput()) state.fileDirty = true;
  };
}

}  // namespace kestra
