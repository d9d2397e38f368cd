#pragma once

#include <sstream>
#include <string>

#include "automation/asker.h"
#include "automation/driver.h"
#include "automation/gallery.h"
#include "support/scripted_desk.h"

namespace kestra {

// The application on ports that need no machine, driven by request lines: with a gallery of all controls, and a screen
// that asks the user everything.
struct DriverDesk : ScriptedDesk {
  DriverDesk() {
    app.host.enter(gallery);
    app.shell.startUp("");
  }

  // The answer to one line. Request texts are written with ' for ".
  std::string tell(std::string request) {
    for (char& c : request) c = c == '\'' ? '"' : c;
    std::string answer = driver.answerTo(request);
    for (char& c : answer) c = c == '"' ? '\'' : c;
    return answer;
  }

  std::ostringstream outside;
  Conversation conversation{outside};
  Application app{driverPorts(), "/app"};
  Gallery gallery;
  Asker asker{app.context};
  Driver driver{app, conversation};

 private:
  Ports driverPorts() {
    return {conversation, conversation, settings, clipboard, processes, files,
            events,       conversation, entropy,  clock,     help};
  }
};

}  // namespace kestra
