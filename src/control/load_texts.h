#pragma once

#include "control/control_texts.h"
#include "control/run_reader.h"
#include "screens/input_context.h"

namespace kestra {

// Where a fault of a load has happened.
struct LoadPlace {
  int run = -1;  // index of the spillway's run in auxRunText; -1: the main run
  ReadPlace place;
};

// Fills the screens from the texts: the main run, then each run of a spillway, which goes to the spillway that its
// first record names, or by its position. A RuntimeFault leaves them as far as they were filled, and `at` where that
// was.
void loadTexts(InputContext& input, ScreenFields& fields, const ControlTexts& texts, LoadPlace& at);

}  // namespace kestra
