#pragma once

#include <optional>

#include "hydraulics/dam_routing.h"
#include "kestrasim/build_storage.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

// All that is computed with, and what the report tells of it.
struct DamRun {
  RoutingInput routing;
  ReservoirTable reservoir;
  double highestCrest = 0;  // of the dam, ft
};

// Nothing, with the errors told, where there is no reservoir, no dam or no flood to compute with.
std::optional<DamRun> buildRun(const DamModel& dam, RunMessages& messages);

}  // namespace kestra
