#include "control/read_back.h"

#include "base/runtime_fault.h"

namespace kestra {

ReadBack::ReadBack(const Ports& ports, const ControlTexts& texts)
    : ports_{boxes_,       ports.dialogs, ports.settings, ports.clipboard, ports.processes, ports.files,
             ports.events, ports.beeper,  ports.entropy,  ports.clock,     ports.help} {
  screens_.enterAll(host_);
  LoadPlace at;
  try {
    loadTexts(screens_.context, fields_, texts, at);
  } catch (const RuntimeFault&) {
    // The screens stay as far as they were filled, which is what an opened file would give.
  }
  screens_.auxSpillways.setCount(state_.numAuxSpillways);
}

}  // namespace kestra
