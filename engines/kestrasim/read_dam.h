#pragma once

#include <vector>

#include "control/record_reader.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

// The dam of the main run. Of a record that stands more than once the last one counts. Rows without their first number,
// and rows that do not go on where the row before ends, are left out; everything that is left out or changed is told.
DamModel readDam(const std::vector<ControlRun>& runs, RunMessages& messages);

}  // namespace kestra
