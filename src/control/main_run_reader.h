#pragma once

#include <string_view>

#include "control/run_reader.h"
#include "control/screen_fields.h"
#include "screens/input_context.h"

namespace kestra {

// Fills the screens from the records of a main run; nothing is checked, what the text does not mention stays. The count
// of spillways becomes the highest number that is met. A table with more rows than its screen, or its store, is a fault
// at `place`, and the screens stay as far as they were filled.
void readMainRun(InputContext& input, ScreenFields& fields, std::string_view text, ReadPlace& place);

}  // namespace kestra
