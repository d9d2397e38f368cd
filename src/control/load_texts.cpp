#include "control/load_texts.h"

#include "control/main_run_reader.h"
#include "control/spillway_run_reader.h"

namespace kestra {

void loadTexts(InputContext& input, ScreenFields& fields, const ControlTexts& texts, LoadPlace& at) {
  readMainRun(input, fields, texts.controlText, at.place);
  for (int i = 0; i < kAuxSpillways; ++i) {
    const std::string& run = texts.auxRunText[static_cast<std::size_t>(i)];
    if (run.empty()) continue;
    at.run = i;
    const int named = namedSpillway(run);
    readSpillwayRun(input, fields, named < 0 ? i : named, run, at.place);
  }
}

}  // namespace kestra
