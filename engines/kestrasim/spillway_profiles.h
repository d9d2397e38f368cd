#pragma once

#include <vector>

#include "control/record_reader.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

// Gives the auxiliary spillways that are told by their surface the profile of the ASSPRFL record in their run behind
// the main run. A run belongs to the spillway whose name it bears, else to the analysed spillways in their order.
void takeSpillwayProfiles(const std::vector<ControlRun>& runs, DamModel& dam, RunMessages& messages);

}  // namespace kestra
