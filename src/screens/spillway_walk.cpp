#include "screens/spillway_walk.h"

#include <vector>

#include "base/runtime_fault.h"
#include "controls/screen_host.h"
#include "screens/frm_aux_spillways.h"

namespace kestra {

void endSpillwayWalk(InputContext& context, WalkEnd end) {
  ScreenHost& host = context.base.host;
  const bool headcut = context.screens.auxSpillways->anyIntegrity();
  Screen* target = headcut ? host.find("frmHeadcut") : &context.desktop.inputWindow();
  if (target == nullptr) throw RuntimeFault("there is no screen frmHeadcut");
  const std::vector<Screen*> shown = host.shown();
  for (Screen* screen : shown) {
    if (screen->holdsInput()) host.hide(*screen);
  }
  host.show(*target);
  if (!headcut && end == WalkEnd::run) context.desktop.mnuBuildFileFromOtherScreen_Click();
}

}  // namespace kestra
