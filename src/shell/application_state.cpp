#include "shell/application_state.h"

#include "base/runtime_fault.h"

namespace kestra {

bool& ApplicationState::window(int slot) {
  if (slot < kFirstSlot || slot > kLastSlot) {
    throw RuntimeFault("window slot " + std::to_string(slot) + " is outside 1 to 6");
  }
  return windowOpen[static_cast<std::size_t>(slot)];
}

void ApplicationState::noteEdit() {
  fileDirty = true;
  ++edits;
}

void ApplicationState::forgetInput() {
  const ApplicationState design;
  numAuxSpillways = design.numAuxSpillways;
  curAuxSpillway = design.curAuxSpillway;
  totalInstances = design.totalInstances;
  lhsSeed = design.lhsSeed;
  bRandomSample = design.bRandomSample;
  bRandomPairing = design.bRandomPairing;
}

}  // namespace kestra
